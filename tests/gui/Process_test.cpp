// The program itself: registration without a display, exit codes, the missing language file.
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vrek::test {
namespace {

constexpr int nPatience = 20000;  // milliseconds

class Process : public ::testing::Test {
 protected:
  Process() {
    auto Environment = QProcessEnvironment::systemEnvironment();
    for (const char* sName : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) Environment.remove(sName);
    Environment.insert("TMPDIR", Folder.path());
    Environment.insert("XDG_CONFIG_HOME", Folder.path());
    Program.setProcessEnvironment(Environment);
  }
  int Run(const QStringList& aArguments, const QString& sProgram = VREK_PROGRAM) {
    Program.start(sProgram, aArguments);
    EXPECT_TRUE(Program.waitForFinished(nPatience));
    EXPECT_EQ(Program.exitStatus(), QProcess::NormalExit);
    return Program.exitCode();
  }
  QString Path(const QString& sName) const { return Folder.path() + "/" + sName; }
  static QByteArray Bytes(const QString& sPath) {
    QFile File(sPath);
    return File.open(QIODevice::ReadOnly) ? File.readAll() : QByteArray();
  }

  QTemporaryDir Folder;
  QProcess Program;
};

TEST_F(Process, RegistersWithoutADisplay) {
  EXPECT_EQ(Run({"-reg", "-o", Path("info.txt")}), 1);
  EXPECT_EQ(Bytes(Path("info.txt")), "[Info]\r\nName=Vrek\r\nDescription=Vrek Converter\r\nFormat=Rail\r\n");
}

TEST_F(Process, EndsWithOneWhereItCantShowItself) {
  EXPECT_EQ(Run({"-o", Path("out.xml"), "-n", "A"}), 1);
  EXPECT_EQ(Run({"-reg", "-o"}), 1);
  EXPECT_TRUE(Program.readAllStandardError().contains("ReadLineCommand"));
}

TEST_F(Process, EndsWithOneWithoutItsLanguageFile) {
  const auto sCopy = Path("vrek");
  ASSERT_TRUE(QFile::copy(VREK_PROGRAM, sCopy));
  EXPECT_EQ(Run({"-o", Path("out.xml"), "-n", "A"}, sCopy), 1);
  const auto sTold = Program.readAllStandardError();
  EXPECT_TRUE(sTold.contains("The file Quennel.lng not exist. The program will be finished."));
  EXPECT_TRUE(sTold.contains("clsLanguageFile.ReadFile"));
}

}  // namespace
}  // namespace vrek::test

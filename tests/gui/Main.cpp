// The window's tests run offscreen unless a platform is asked for.
#include <gtest/gtest.h>

#include <QApplication>

namespace {

// What the toolkit warns of about our use of it is a fault; what the platform can't do isn't.
void FailOnWarning(QtMsgType, const QMessageLogContext&, const QString& sText) {
  for (const char* sClass : {"QWidget", "QLayout", "QObject", "QPainter"}) {
    if (sText.startsWith(sClass)) ADD_FAILURE() << sText.toStdString();
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  const QApplication Application(argc, argv);
  qInstallMessageHandler(FailOnWarning);
  return RUN_ALL_TESTS();
}

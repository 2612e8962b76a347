#include "wizard/qt/QtPlatform.h"

#include <QFileDialog>
#include <QIcon>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QTranslator>
#include <cstdio>

#include "base/Configuration.h"
#include "shell/ErrHandler.h"
#include "wizard/qt/DialogFilter.h"
#include "wizard/qt/View.h"

namespace vrek::qt {
namespace {

QString ProgramName() {
  return QString::fromUtf8(Configuration::sName.data(), static_cast<qsizetype>(Configuration::sName.size()));
}

bool HasDisplay() {
  return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || !qEnvironmentVariableIsEmpty("DISPLAY") ||
         !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

// A failure that rises out of an event is reported; the program goes on.
class Application final : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* pReceiver, QEvent* pEvent) override {
    bool bResult = false;
    TopLevel([&] { bResult = QApplication::notify(pReceiver, pEvent); });
    return bResult;
  }
};

// The wait pointer doesn't belong over a box that waits for the user.
class ArrowPointer {
 public:
  ArrowPointer() : m_bSet(QGuiApplication::overrideCursor() != nullptr) {
    if (m_bSet) QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
  }
  ArrowPointer(const ArrowPointer&) = delete;
  ~ArrowPointer() {
    if (m_bSet) QGuiApplication::restoreOverrideCursor();
  }

 private:
  bool m_bSet;
};

}  // namespace

LazyApplication::~LazyApplication() = default;

bool LazyApplication::Ensure() {
  if (QCoreApplication::instance()) return true;
  if (!HasDisplay()) return false;
  m_pApplication = std::make_unique<Application>(m_nArguments, m_aArguments);
  QCoreApplication::setApplicationName("vrek");
  QGuiApplication::setDesktopFileName("vrek");
  QApplication::setWindowIcon(QIcon(":/vrek.svg"));
  // The toolkit's own words, such as those of its file dialog, where its translations are installed.
  auto* pTranslator = new QTranslator(m_pApplication.get());
  if (pTranslator->load(QLocale::system(), "qtbase", "_",
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(pTranslator);
  }
  return true;
}

void QtDialogs::MessageBox(std::string_view sText, EIcon eIcon) {
  auto sShown = QString::fromUtf8(sText.data(), static_cast<qsizetype>(sText.size())).remove('\r');
  if (!m_Ensure()) {
    std::fprintf(stderr, "%s\n", sShown.toUtf8().constData());
    return;
  }
  const ArrowPointer Arrow;
  QMessageBox Box(eIcon == EIcon::eCritical ? QMessageBox::Critical : QMessageBox::Warning, ProgramName(),
                  sShown, QMessageBox::Ok, QApplication::activeWindow());
  Box.setTextFormat(Qt::PlainText);
  Box.exec();
}

std::string QtDialogs::OpenFile(std::string_view sFilter) {
  if (!m_Ensure()) return {};
  return Text(QFileDialog::getOpenFileName(QApplication::activeWindow(), QString(), QString(),
                                           DialogFilter(sFilter)));
}

std::string QtDialogs::SaveFile(std::string_view sFilter, std::string_view sFilename) {
  if (!m_Ensure()) {
    std::fprintf(stderr, "%s: no display\n", std::string(Configuration::sName).c_str());
    return {};
  }
  const auto sName = QString::fromUtf8(sFilename.data(), static_cast<qsizetype>(sFilename.size()));
  return Text(QFileDialog::getSaveFileName(QApplication::activeWindow(), ProgramName(), sName,
                                           DialogFilter(sFilter)));
}

void QtEvents::ProcessMessages() {
  if (!BeforeTurn || BeforeTurn()) QCoreApplication::processEvents();
}

void QtEvents::WaitPointer(bool bShow) {
  if (bShow) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

}  // namespace vrek::qt

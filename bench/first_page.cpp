// Starts the wizard on the platform that QT_QPA_PLATFORM names and ends once its first page has been painted.
// bench/measure times the whole process.
#include <QApplication>
#include <QEvent>
#include <cstdlib>

#include "platform/MemorySettings.h"
#include "platform/PosixPlatform.h"
#include "shell/AppModel.h"
#include "shell/CommandLine.h"
#include "wizard/qt/WizardWindow.h"

namespace {

class CPaintWatch final : public QObject {
 public:
  bool eventFilter(QObject* pObject, QEvent* pEvent) override {
    if (pEvent->type() == QEvent::Paint)
      QMetaObject::invokeMethod(
          qApp, [] { std::_Exit(0); }, Qt::QueuedConnection);
    return QObject::eventFilter(pObject, pEvent);
  }
};

}  // namespace

int main(int argc, char** argv) {
  using namespace vrek;
  QApplication Application(argc, argv);
  qt::QtEvents Events;
  qt::QtDialogs Dialogs([] { return true; });
  SystemClock Clock;
  PosixEnvironment Environment;
  MemorySettings Settings;
  PosixProcesses Processes;
  DirectOutput Output;
  InitFormats();
  clsAppModel Model({&Dialogs, &Clock, &Environment, &Settings, &Processes, &Events, &Output});
  SetAppModel(&Model);
  if (!Model.TokenFile.ReadFile("QuennelV2.lng")) return 1;
  frmWizard Wizard;
  qt::WizardWindow Window(Wizard, Events);
  CPaintWatch Watch;
  Window.installEventFilter(&Watch);
  Window.Load();
  Window.show();
  return QApplication::exec();
}

// vrek: the wizard. Started by a host (-o, -n), to register (-reg) or by hand.
#include <QApplication>

#include "base/Configuration.h"
#include "platform/CommandLineText.h"
#include "platform/IniSettings.h"
#include "platform/PosixPlatform.h"
#include "platform/StandardStreams.h"
#include "shell/AppModel.h"
#include "shell/CommandLine.h"
#include "shell/ErrHandler.h"
#include "shell/ProcessEnd.h"
#include "wizard/frmWizard.h"
#include "wizard/qt/QtPlatform.h"
#include "wizard/qt/WizardWindow.h"

namespace {

using namespace vrek;

constexpr int nFailed = 1;

struct TSurroundings {
  explicit TSurroundings(char* pProgramName)
      : Application(pProgramName), Dialogs([this] { return Application.Ensure(); }) {}

  TPlatform Parts() { return {&Dialogs, &Clock, &Environment, &Settings, &Processes, &Events, &Output}; }

  qt::LazyApplication Application;
  qt::QtDialogs Dialogs;
  SystemClock Clock;
  PosixEnvironment Environment;
  IniSettings Settings;
  PosixProcesses Processes;
  qt::QtEvents Events;
  DirectOutput Output;
};

int Run(TSurroundings& Surroundings, const std::string& sCommandLine) {
  InitFormats();
  clsAppModel Model(Surroundings.Parts());
  SetAppModel(&Model);
  if (!ReadLineCommand(sCommandLine)) EndProcess(nFailed);
  if (!Model.TokenFile.ReadFile(Configuration::sLanguageFile)) {
    Surroundings.Dialogs.MessageBox("The file Quennel.lng not exist. The program will be finished.",
                                    EIcon::eCritical);
    EndProcess(nFailed);
  }
  if (!Surroundings.Application.Ensure()) {
    Surroundings.Dialogs.MessageBox("The wizard needs a display.", EIcon::eCritical);
    EndProcess(nFailed);
  }
  frmWizard Wizard;
  qt::WizardWindow Window(Wizard, Surroundings.Events);
  Window.Load();
  Window.show();
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  OpenClosedStandardStreams();
  int nExit = nFailed;
  TSurroundings Surroundings(argv[0]);
  vrek::TopLevel([&] { nExit = Run(Surroundings, CommandLineText(argc, argv)); });
  return nExit;
}

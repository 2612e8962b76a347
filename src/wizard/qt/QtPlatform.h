// What the toolkit gives the program: the application itself, message boxes, file dialogs, the event loop.
#pragma once

#include <QApplication>
#include <functional>
#include <memory>

#include "platform/Platform.h"

namespace vrek::qt {

/// Makes the toolkit's application when something is first to be shown, so that a run that shows nothing
/// needs no display. Options of the toolkit are not looked for on the command line: it is the host's.
class LazyApplication {
 public:
  explicit LazyApplication(char* pProgramName) : m_aArguments{pProgramName, nullptr} {}
  ~LazyApplication();
  /// False when there is no display to show anything on.
  bool Ensure();

 private:
  int m_nArguments = 1;
  char* m_aArguments[2];
  std::unique_ptr<QApplication> m_pApplication;
};

/// Boxes and dialogs on the window that is active. Without a display a message goes to stderr, and a file
/// dialog counts as dismissed.
class QtDialogs final : public IDialogs {
 public:
  /// Ensure: makes sure that something can be shown.
  explicit QtDialogs(std::function<bool()> Ensure) : m_Ensure(std::move(Ensure)) {}
  void MessageBox(std::string_view sText, EIcon eIcon) override;
  std::string OpenFile(std::string_view sFilter) override;
  std::string SaveFile(std::string_view sFilter, std::string_view sFilename) override;

 private:
  std::function<bool()> m_Ensure;
};

class QtEvents final : public IEvents {
 public:
  void ProcessMessages() override;
  void WaitPointer(bool bShow) override;

  /// Called before each turn of the loop; false: this turn is not needed.
  std::function<bool()> BeforeTurn;
};

}  // namespace vrek::qt

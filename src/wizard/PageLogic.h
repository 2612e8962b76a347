// What the window knows of the page logic.
#pragma once

namespace vrek {

/// Numbers of the pages, which are also those of the tabs that show them.
enum EPage {
  ePageJob = 0,
  ePageFiles = 1,
  ePageDetails = 2,
  ePagePreferences = 3,
  ePageImporting = 4,
  ePageExporting = 5,
  ePageResult = 6,
  ePageSelectStrLn = 7
};

class IPageLogic {
 public:
  virtual ~IPageLogic() = default;
  /// True: the page is to be shown.
  virtual bool IntroPage(int nPage) = 0;
  /// True: the page may be left forward.
  virtual bool ExitPage(int nPage) = 0;
  /// The window is unloaded: saves what is to outlive the run.
  virtual void Release() = 0;
};

}  // namespace vrek

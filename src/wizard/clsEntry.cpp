#include "wizard/clsEntry.h"

#include "shell/AppModel.h"
#include "wizard/frmWizard.h"

namespace vrek {

clsEntry::clsEntry(frmWizard& Window) : m_oWizard(Window) {
  for (const int nPage : {ePageFiles, ePagePreferences, ePageImporting, ePageExporting, ePageResult}) {
    Window.AddPage(nPage);
  }
  AppModel().ConversionInfo.nFilesToRead |=
      FilesToRead::nHorizontal | FilesToRead::nVertical | FilesToRead::nCrossSections;
}

}  // namespace vrek

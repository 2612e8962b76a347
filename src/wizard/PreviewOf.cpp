#include "wizard/PreviewOf.h"

#include "design_data/CAligmentsDatas.h"
#include "wizard/frmWizard.h"

namespace vrek {

TPreview PreviewOf(const frmWizard& Wizard) {
  TPreviewChoice Choice;
  Choice.dChStart = Wizard.ctlExporting.ChainageStart();
  Choice.dChEnd = Wizard.ctlExporting.ChainageEnd();
  Choice.sLayers = Wizard.ctlExporting.GetSelectedLayers();
  for (int nPage = 1; nPage <= Wizard.ctlFiles.PagesTot(); ++nPage) {
    Choice.aNames.push_back({nPage, Wizard.ctlFiles.GetName(nPage, 1)});
  }
  return Preview::MakePreview(Choice);
}

}  // namespace vrek

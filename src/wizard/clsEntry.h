// clsEntry: the link between the window and the page logic: owns a clsWizard and forwards to it.
#pragma once

#include "wizard/PageLogic.h"
#include "wizard/clsWizard.h"

namespace vrek {

class clsEntry final : public IPageLogic {
 public:
  /// Creates the page logic, then appends the pages behind the first and opens all kinds of input.
  explicit clsEntry(frmWizard& Window);

  bool IntroPage(int nPage) override { return m_oWizard.IntroPage(nPage); }
  bool ExitPage(int nPage) override { return m_oWizard.ExitPage(nPage); }
  void Release() override { m_oWizard.Release(); }

 private:
  clsWizard m_oWizard;
};

}  // namespace vrek

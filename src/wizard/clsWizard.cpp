#include "wizard/clsWizard.h"

#include "base/Configuration.h"
#include "base/FormatReal.h"
#include "base/ST.h"
#include "shell/AppModel.h"
#include "shell/CommandLine.h"
#include "shell/ErrHandler.h"
#include "shell/Services.h"
#include "wizard/frmWizard.h"

namespace vrek {
namespace {

std::string Setting(std::string_view sSection, std::string_view sKey, std::string_view sDefault) {
  return AppModel().Platform().pSettings->Read(Configuration::sSettingsApplication, sSection, sKey, sDefault);
}

void SaveSetting(std::string_view sSection, std::string_view sKey, std::string_view sText) {
  AppModel().Platform().pSettings->Write(Configuration::sSettingsApplication, sSection, sKey, sText);
}

}  // namespace

clsWizard::clsWizard(frmWizard& Window) : m_Window(Window) {
  auto& Model = AppModel();
  Model.ConverterInfo = MakeConverterInfo(FormatsSupport());
  ReadSettings();
}

void clsWizard::ReadSettings() {
  m_Window.ctlPreferences.SetToleranceHz(ST::ParseReal(Setting("Preferences", "ToleranceHz", "0.010")));
  m_Window.ctlPreferences.SetToleranceVt(ST::ParseReal(Setting("Preferences", "ToleranceVt", "0.010")));
  m_Window.ctlPreferences.DefaultVersion = Setting(Configuration::sName, "DataVersion", "");
}

void clsWizard::Release() {
  Guard("SaveSetting", [&] {
    const auto& Preferences = m_Window.ctlPreferences;
    SaveSetting("Preferences", "ToleranceHz", FormatReal(Preferences.ToleranceHz(), 3));
    SaveSetting("Preferences", "ToleranceVt", FormatReal(Preferences.ToleranceVt(), 3));
    if (!Preferences.Version().empty())
      SaveSetting(Configuration::sName, "DataVersion", Preferences.Version());
  });
}

bool clsWizard::IntroPage(int nPage) {
  Trace(">> clsWizard.IntroPage " + std::to_string(nPage));
  switch (nPage) {
    case ePageJob:
      return IntroPageJobType();
    case ePageFiles:
      return IntroPageFiles();
    case ePageDetails:
      return IntroPageDetails();
    case ePagePreferences:
      return IntroPagePreferences();
    case ePageImporting:
      return IntroPageImporting();
    case ePageExporting:
      return IntroPageExporting();
    case ePageResult:
      return IntroPageResult();
    case ePageSelectStrLn:
      return IntroPageSelectStrLn();
    default:
      return false;
  }
}

bool clsWizard::ExitPage(int nPage) {
  switch (nPage) {
    case ePageJob:
    case ePageDetails:
    case ePagePreferences:
      return true;
    case ePageFiles:
      return ExitPageFiles();
    case ePageImporting:
      return ExitPageImporting();
    case ePageExporting:
      return ExitPageExporting();
    case ePageResult:
      return ExitPageResult();
    case ePageSelectStrLn:
      return ExitPageSelectStrLn();
    default:
      return false;
  }
}

void clsWizard::ShowTitle(const char* sTitleToken, const char* sSubTitleToken) {
  m_Window.lblTitle.Caption = AppModel().GetToken(sTitleToken);
  m_Window.lblSubTitle.Caption = AppModel().GetToken(sSubTitleToken);
}

bool clsWizard::IntroPageJobType() {
  ShowTitle("LBL_JOB_TIT", "LBL_JOB_SUBTIT");
  m_Window.ctlJobType.ShowJobByTypes(AppModel().ConverterInfo.nFormatsSupport);
  return true;
}

bool clsWizard::IntroPageDetails() {
  ShowTitle("LBL_DET_TIT", "LBL_DET_SUBTIT");
  auto& Details = m_Window.ctlDetails;
  if (Details.RoadDataName().empty()) Details.RoadDataName() = AppModel().ConversionInfo.GetRoadDataName();
  if (Details.Description().empty()) Details.Description() = AppModel().ConverterInfo.sDescription;
  if (Details.Creator().empty()) Details.Creator() = GetCurrentUserName();
  Details.ShowVersion(false);
  return true;
}

bool clsWizard::IntroPagePreferences() {
  ShowTitle("LBL_PRE_TIT", "LBL_PRE_SUBTIT");
  m_Window.ctlPreferences.ShowVersion(false);
  return true;
}

}  // namespace vrek

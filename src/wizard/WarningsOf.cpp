#include "wizard/WarningsOf.h"

#include <iterator>

#include "base/FormatReal.h"
#include "base/ST.h"
#include "checks/Warnings.h"
#include "design_data/CAligmentsDatas.h"
#include "rail_tunnel/clsSuperelevation.h"
#include "shell/AppModel.h"
#include "shell/Phrase.h"
#include "wizard/frmWizard.h"

namespace vrek {
namespace {

class CCollector {
 public:
  explicit CCollector(const frmWizard& Wizard) : m_Wizard(Wizard) {}

  Warnings::TTexts Collect() {
    Add(Warnings::OfNames(Names()));
    for (int nPage = 1; nPage <= m_Wizard.ctlFiles.PagesTot(); ++nPage) {
      if (Has(nPage, AligmentType::nHz)) AddPlan(nPage);
      if (Has(nPage, AligmentType::nVt)) AddProfile(nPage);
      if (Has(nPage, AligmentType::nCr)) AddSections(nPage);
      if (Has(nPage, AligmentType::nSup)) AddCant(nPage);
    }
    return std::move(m_aTexts);
  }

 private:
  void Add(Warnings::TTexts aTexts) {
    m_aTexts.insert(m_aTexts.end(), std::make_move_iterator(aTexts.begin()),
                    std::make_move_iterator(aTexts.end()));
  }
  static bool Has(int nPage, int nBit) { return (CAligmentsDatas::GetAligmentType(nPage) & nBit) != 0; }

  // The range as offered, from the first plan; nothing when the boxes hold another: who types a range means
  // it.
  bool Offered(Warnings::TRange& Range, Warnings::TRange& Axis) const {
    for (int nPage = 1; nPage <= m_Wizard.ctlFiles.PagesTot(); ++nPage) {
      if (!Has(nPage, AligmentType::nHz)) continue;
      const auto& aHz = CAligmentsDatas::GetAligmentHz(nPage);
      if (aHz.size() < 2) return false;
      Axis = {aHz[1].dChainage, aHz.back().dChainage + aHz.back().dLength};
      const auto& aBoxes = m_Wizard.ctlExporting.txtChainage;
      if (aBoxes[0].Text != FormatReal(Axis.dStart, 3) || aBoxes[1].Text != FormatReal(Axis.dEnd, 3))
        return false;
      Range = {m_Wizard.ctlExporting.ChainageStart(), m_Wizard.ctlExporting.ChainageEnd()};
      return true;
    }
    return false;
  }

  // Names of tracks and layers go out in the code page, those of plans and profiles as UTF-8.
  std::vector<Warnings::TName> Names() const {
    const auto& Info = AppModel().ConversionInfo;
    std::vector<Warnings::TName> aNames{
        {Phrase("WARN_AS_DATA", "the name of the data"), Info.GetRoadDataName(), true,
         Phrase("WARN_DO_DATA", "give another name")},
        {Phrase("WARN_AS_AUTHOR", "the author"), Info.GetCreator(), false,
         Phrase("WARN_DO_AUTHOR", "give another author")}};
    const auto sRenamePlan = Phrase("WARN_DO_PLAN", "rename the file of the plan");
    const bool bTracks = m_Wizard.ctlJobType.JobType() >= eRailSingle;
    for (int nPage = 1; nPage <= m_Wizard.ctlFiles.PagesTot(); ++nPage) {
      const auto sPlan = m_Wizard.ctlFiles.GetName(nPage, 1);
      if (m_Wizard.ctlFiles.IsSelected(nPage, 1)) {
        aNames.push_back({Phrase("WARN_AS_ALIGMENT", "the name of an alignment"), sPlan, true, sRenamePlan});
        if (bTracks) {
          aNames.push_back({Phrase("WARN_AS_LINE", "a line of a layer"), sPlan, false, sRenamePlan});
        }
      }
      if (m_Wizard.ctlFiles.IsSelected(nPage, 2)) {
        aNames.push_back({Phrase("WARN_AS_PROFILE", "the name of a profile"),
                          m_Wizard.ctlFiles.GetName(nPage, 2), true,
                          Phrase("WARN_DO_PROFILE", "rename the file of the profile")});
      }
      if (bTracks) {
        aNames.push_back({Phrase("WARN_AS_LAYER", "the name of a layer and of its rails"),
                          m_Wizard.ctlImporting.GetText("PAGE" + std::to_string(nPage)), false,
                          Phrase("WARN_DO_LANGUAGE", "change the text in the language file")});
      }
    }
    return aNames;
  }

  void AddPlan(int nPage) {
    const auto& aHz = CAligmentsDatas::GetAligmentHz(nPage);
    const auto sName = m_Wizard.ctlFiles.GetName(nPage, 1);
    const auto sPath = m_Wizard.ctlFiles.GetFile(nPage, 1);
    if (ST::ToUpper(ST::GetFileExtension(sPath)) == "RTF") Add(Warnings::OfLastRow(sName, aHz));
    Warnings::TRange Range, Axis;
    if (Offered(Range, Axis)) Add(Warnings::OfPlan(sName, aHz, Range));
  }

  // A generated profile has samples half a metre apart, which nobody can mend.
  void AddProfile(int nPage) {
    const auto& Files = m_Wizard.ctlFiles;
    if (!Files.IsSelected(nPage, 2) || (nPage > 1 && Files.IsOptionSelected(nPage, 2))) return;
    const auto& aVt = CAligmentsDatas::GetAligmentVt(nPage);
    const auto sName = Files.GetName(nPage, 2);
    Add(Warnings::OfGrades(sName, aVt, m_Wizard.ctlPreferences.ToleranceVt()));
    Warnings::TRange Range, Axis;
    if (Offered(Range, Axis)) Add(Warnings::OfProfile(sName, aVt, Range));
  }

  void AddSections(int nPage) {
    const auto& Cr = CAligmentsDatas::GetAligmentCr(nPage);
    Add(Warnings::OfLayers(Cr));
    std::vector<double> aChainages;
    for (const auto& Section : Cr.Sections) aChainages.push_back(Section.dChainage);
    AddChainages(Warnings::eSections, m_Wizard.ctlFiles.GetName(nPage, 3), aChainages);
  }

  void AddCant(int nPage) {
    const auto oCant = CAligmentsDatas::GetAligmentSup(nPage);
    if (oCant)
      AddChainages(Warnings::eCantStations, m_Wizard.ctlFiles.GetName(nPage, 4), oCant->GetChainages());
  }

  void AddChainages(Warnings::EChainages eWhat, const std::string& sName,
                    const std::vector<double>& aChainages) {
    Warnings::TRange Range, Axis;
    if (Offered(Range, Axis)) Add(Warnings::OfChainages(eWhat, sName, aChainages, Range, Axis));
  }

  const frmWizard& m_Wizard;
  Warnings::TTexts m_aTexts;
};

}  // namespace

std::vector<std::string> WarningsOf(const frmWizard& Wizard) {
  try {
    return CCollector(Wizard).Collect();
  } catch (...) {
    return {};  // a help, no step of the conversion: what is wrong shows there
  }
}

}  // namespace vrek

#include "wizard/WarningsOf.h"

#include <filesystem>
#include <iterator>
#include <optional>

#include "base/ST.h"
#include "checks/Warnings.h"
#include "design_data/CAligmentsDatas.h"
#include "platform/TextFile.h"
#include "rail_tunnel/clsSuperelevation.h"
#include "rail_tunnel/clsTunnel.h"
#include "shell/AppModel.h"
#include "shell/ErrHandler.h"
#include "shell/Phrase.h"
#include "wizard/frmWizard.h"

namespace vrek {
namespace {

class CCollector {
 public:
  explicit CCollector(const frmWizard& Wizard) : m_Wizard(Wizard) {}

  Warnings::TTexts Collect() {
    Add([&] { return Warnings::OfNames(Names()); });
    Add([&] { return OfRange(); });
    for (const auto& Box : m_Wizard.ctlExporting.txtChainage) {
      if (m_oExtent) Add([&] { return Warnings::OfRangeText(Box.Text); });
    }
    for (int nPage = 1; nPage <= m_Wizard.ctlFiles.PagesTot(); ++nPage) {
      Try([&] { AddPage(nPage); });
    }
    return std::move(m_aTexts);
  }

 private:
  // What fails doesn't take the other warnings with it: it is logged.
  template <class TBody>
  static void Try(TBody&& Body) {
    try {
      Body();
    } catch (...) {
      Failure Caught = CurrentFailure();
      Caught.sSource = "WarningsOf";
      LogIfPossible(Caught);
    }
  }
  template <class TBody>
  void Add(TBody&& Body) {
    Try([&] {
      Warnings::TTexts aTexts = Body();
      m_aTexts.insert(m_aTexts.end(), std::make_move_iterator(aTexts.begin()),
                      std::make_move_iterator(aTexts.end()));
    });
  }
  static void LogIfPossible(const Failure& Error) {
    try {
      LogError(Error);
    } catch (...) {
      // A warning is a help, no step of the conversion, and so is the note that there is none.
    }
  }
  void AddPage(int nPage) {
    AddFiles(nPage);
    if (Has(nPage, AligmentType::nHz)) AddPlan(nPage);
    if (Has(nPage, AligmentType::nVt)) AddProfile(nPage);
    if (Has(nPage, AligmentType::nCr)) AddSections(nPage);
    if (Has(nPage, AligmentType::nSup)) AddCant(nPage);
    if (Has(nPage, AligmentType::nTnl)) AddTunnel(nPage);
  }
  static bool Has(int nPage, int nBit) { return (CAligmentsDatas::GetAligmentType(nPage) & nBit) != 0; }

  // The plans, the first of which gives the range as offered.
  Warnings::TTexts OfRange() {
    std::vector<Warnings::TAxis> aAxes;
    for (int nPage = 1; nPage <= m_Wizard.ctlFiles.PagesTot(); ++nPage) {
      if (!Has(nPage, AligmentType::nHz)) continue;
      const auto& aHz = CAligmentsDatas::GetAligmentHz(nPage);
      if (aHz.size() < 2) continue;
      aAxes.push_back({m_Wizard.ctlFiles.GetName(nPage, 1),
                       {aHz[1].dChainage, aHz.back().dChainage + aHz.back().dLength}});
    }
    if (aAxes.empty()) return {};
    const auto& Page = m_Wizard.ctlExporting;
    m_oExtent = {{Page.ChainageStart(), Page.ChainageEnd()}, aAxes.front().Range};
    return Warnings::OfRange(m_oExtent->Range, aAxes);
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

  // Listings with the ending ".rtf", whose reader takes any bytes, and texts whose lines count. A pipe can't
  // be read again.
  void AddFiles(int nPage) {
    const auto& Files = m_Wizard.ctlFiles;
    for (int nFile = 1; nFile <= 3; ++nFile) {
      if (nFile == 2 ? !HasProfileFile(nPage) : !Files.IsSelected(nPage, nFile)) continue;
      const bool bTunnel = nFile == 3 && m_Wizard.ctlJobType.JobType() == eTunnel;
      const auto sPath = Files.GetFile(nPage, nFile);
      if (std::error_code Ignored; std::filesystem::is_fifo(sPath, Ignored)) continue;
      Add([&] {
        const auto sFile = ST::GetFileName(sPath);
        return IsRtfFile(sPath) && !bTunnel ? Warnings::OfRtf(sFile, ReadWholeFile(sPath))
                                            : Warnings::OfLineEnds(sFile, CountStrayLfs(sPath));
      });
    }
  }

  // A generated profile has none; nor can anybody mend its samples, half a metre apart.
  bool HasProfileFile(int nPage) const {
    const auto& Files = m_Wizard.ctlFiles;
    return Files.IsSelected(nPage, 2) && (nPage == 1 || !Files.IsOptionSelected(nPage, 2));
  }

  static bool IsRtfFile(std::string_view sPath) { return ST::ToUpper(ST::GetFileExtension(sPath)) == "RTF"; }

  void AddPlan(int nPage) {
    const auto& aHz = CAligmentsDatas::GetAligmentHz(nPage);
    const auto sName = m_Wizard.ctlFiles.GetName(nPage, 1);
    if (IsRtfFile(m_Wizard.ctlFiles.GetFile(nPage, 1))) {
      Add([&] { return Warnings::OfLastRow(sName, aHz); });
    }
    if (m_oExtent) Add([&] { return Warnings::OfPlan(sName, aHz, *m_oExtent); });
  }

  void AddProfile(int nPage) {
    if (!HasProfileFile(nPage)) return;
    const auto& aVt = CAligmentsDatas::GetAligmentVt(nPage);
    const auto sName = m_Wizard.ctlFiles.GetName(nPage, 2);
    Add([&] { return Warnings::OfGrades(sName, aVt, m_Wizard.ctlPreferences.ToleranceVt()); });
    if (m_oExtent) Add([&] { return Warnings::OfProfile(sName, aVt, *m_oExtent); });
  }

  void AddSections(int nPage) {
    const auto& Cr = CAligmentsDatas::GetAligmentCr(nPage);
    Add([&] { return Warnings::OfLayers(Cr); });
    std::vector<double> aChainages;
    for (const auto& Section : Cr.Sections) aChainages.push_back(Section.dChainage);
    AddChainages(Warnings::eSections, m_Wizard.ctlFiles.GetName(nPage, 3), aChainages);
  }

  void AddCant(int nPage) {
    const auto oCant = CAligmentsDatas::GetAligmentSup(nPage);
    if (!oCant) return;
    const auto sName = m_Wizard.ctlFiles.GetName(nPage, 4);
    Add([&] { return Warnings::OfCants(sName, oCant->Stations()); });
    AddChainages(Warnings::eCantStations, sName, oCant->GetChainages());
  }

  void AddTunnel(int nPage) {
    const auto oTunnel = CAligmentsDatas::GetAligmentTnl(nPage);
    const auto sPath = m_Wizard.ctlFiles.GetFile(nPage, 3);
    if (oTunnel) Add([&] { return Warnings::OfTunnel(ST::GetFileName(sPath), *oTunnel); });
  }

  void AddChainages(Warnings::EChainages eWhat, const std::string& sName,
                    const std::vector<double>& aChainages) {
    if (m_oExtent) Add([&] { return Warnings::OfChainages(eWhat, sName, aChainages, *m_oExtent); });
  }

  const frmWizard& m_Wizard;
  std::optional<Warnings::TExtent> m_oExtent;  // none without a plan
  Warnings::TTexts m_aTexts;
};

}  // namespace

std::vector<std::string> WarningsOf(const frmWizard& Wizard) {
  return CCollector(Wizard).Collect();
}

}  // namespace vrek

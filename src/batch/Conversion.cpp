#include "batch/Conversion.h"

#include <algorithm>
#include <filesystem>

#include "batch/BatchPlatform.h"
#include "batch/JobFile.h"
#include "checks/CAligmentCheck.h"
#include "landxml/CLandXML.h"
#include "preview/SvgPlot.h"
#include "shell/AppModel.h"
#include "shell/CommandLine.h"
#include "shell/ErrHandler.h"
#include "shell/Phrase.h"
#include "wizard/PreviewOf.h"
#include "wizard/WarningsOf.h"
#include "wizard/frmWizard.h"

namespace vrek::batch {
namespace {

constexpr const char* sCritical = "critical";

// The application object of one job, in place for as long as this lives.
class CAppScope {
 public:
  explicit CAppScope(TPlatform Platform) : m_Model(Platform), m_pBefore(SetAppModel(&m_Model)) {}
  CAppScope(const CAppScope&) = delete;
  ~CAppScope() { SetAppModel(m_pBefore); }
  clsAppModel& Model() { return m_Model; }

 private:
  clsAppModel m_Model;
  clsAppModel* m_pBefore;
};

// Whether a last step came through. A failure is told, also where the log can't be opened.
template <class TBody>
bool Done(const char* sSource, TBody&& Body) {
  bool bDone = false;
  TopLevel([&] {
    bDone = Guard(sSource, false, [&] {
      Body();
      return true;
    });
  });
  return bDone;
}

class CConversion {
 public:
  CConversion(const TJob& Job, const TConversionOptions& Options)
      : m_Job(Job),
        m_Options(Options),
        m_Platform([this](std::string_view sText, EIcon eIcon) { AddBox(sText, eIcon); },
                   Options.sProgramDirectory, Options.bProgress),
        m_App(m_Platform.Parts()) {}

  TOutcome Run();

 private:
  void Start();
  void ChooseJob();
  bool ChooseFiles();
  void KeepFault();
  void KeepUnused();
  void TypeSlots(const TAligmentFiles& Files);
  void TypePreferences();
  void TypeExport();
  void Export();
  void Plot();
  void AddBox(std::string_view sText, EIcon eIcon) {
    m_Outcome.aMessages.push_back(
        {true, eIcon == EIcon::eCritical ? sCritical : "warning", std::string(sText), false});
  }
  void KeepCaptions(int nPage);
  std::string WhereIs(const std::string& sKey) const;
  void KeepFiles();
  void KeepSummary();
  void KeepLayers();
  void KeepUnknownLayers();
  void KeepWarning(std::string sText) { m_Outcome.aMessages.push_back({false, "", std::move(sText), true}); }
  int Page() const { return m_Window.CurrentPage(); }

  const TJob& m_Job;
  const TConversionOptions& m_Options;
  TOutcome m_Outcome;
  std::array<std::array<std::string, 4>, 3> m_aCaptions;  // of the slots of each page
  BatchPlatform m_Platform;
  CAppScope m_App;
  frmWizard m_Window;
};

void CConversion::Start() {
  auto& Model = m_App.Model();
  InitFormats(m_Job.nFormats.value_or(Configuration::nFormatsSupport));
  Model.OnLogged = [this](std::string_view sText) {
    m_Outcome.aMessages.push_back({false, "", std::string(sText), false});
  };
  Model.XmlFileToExport = m_Job.sOutput;
  Model.ConversionInfo.sJobName = m_Job.sName;
  Model.ConversionInfo.sCreator = m_Job.sCreator;
  Model.ConversionInfo.bExportOnce = true;
  bool bRead = false;
  TopLevel([&] { bRead = Model.TokenFile.ReadFile(m_Options.sLanguageFile); });
  if (!bRead) {
    const auto sPath =
        std::filesystem::path(Model.Platform().pEnvironment->ProgramDirectory()) / m_Options.sLanguageFile;
    throw UsageError("the language file " + m_Options.sLanguageFile +
                     (std::filesystem::exists(sPath) ? " can't be read" : " isn't beside the program"));
  }
  m_Platform.Events.Watch(&m_Window.ctlProgress);
  m_Window.Load();
}

void CConversion::ChooseJob() {
  const auto nJob = static_cast<std::size_t>(m_Job.nJob);
  if (Page() == ePageJob) {
    m_Window.ctlJobType.SetJobType(m_Job.nJob);
    if (m_Window.ctlJobType.optDesign[nJob].Value) m_Window.cmdNext_Click();
  }
  if (Page() != ePageFiles || m_Window.ctlJobType.JobType() != m_Job.nJob) {
    throw UsageError(std::string("the job \"") + aJobNames[nJob] + "\" isn't on offer with formats " +
                     std::to_string(FormatsSupport()) +
                     "; give --formats (1 road, 2 tunnel, 4 rail, or their sum)");
  }
}

void CConversion::TypeSlots(const TAligmentFiles& Files) {
  auto& aSlots = m_Window.ctlFiles.ctlSelectFile;
  const std::string* aPaths[] = {&Files.sHorizontal, &Files.sVertical, &Files.sThird, &Files.sCant};
  for (std::size_t n = 0; n < 4; ++n) {
    if (!aPaths[n]->empty()) aSlots[n].txtFileName_Change(*aPaths[n]);
    if (n != 1 || !Files.bVerticalOption) continue;
    aSlots[1].chkFile_Click(true);
    if (aSlots[1].chkOption.Visible) aSlots[1].chkOption_Click(true);
  }
}

bool CConversion::ChooseFiles() {
  auto& Files = m_Window.ctlFiles;
  for (int nPage = 1; nPage <= Files.PagesTot(); ++nPage) {
    Files.ShowPage(nPage);
    KeepCaptions(nPage);
    TypeSlots(m_Job.aFiles[static_cast<std::size_t>(nPage - 1)]);
  }
  m_Window.cmdNext_Click();
  if (Page() != ePageFiles) {
    KeepUnused();
    return true;
  }
  m_Outcome.sFault = std::to_string(Files.FocusPage) + "," + std::to_string(Files.FocusFile);
  KeepFault();
  return false;
}

// The wizard only moves the cursor; a script's owner wants to read which file it is.
void CConversion::KeepFault() {
  auto& Files = m_Window.ctlFiles;
  if (Files.FocusFile < 1) return;
  const auto& Slot = Files.ctlSelectFile[static_cast<std::size_t>(Files.FocusFile - 1)];
  const auto sSlot = Files.frFiles.Caption + ", " + Slot.chkFile.Caption + ": ";
  m_Outcome.sFaultText =
      sSlot + (Slot.Filename().empty() ? "no file is given" : "can't open " + Slot.Filename());
}

// A person sees that a slot is grey; whoever wrote a command line doesn't.
void CConversion::KeepUnused() {
  const auto& Files = m_Window.ctlFiles;
  for (int nPage = 1; nPage <= Files.PagesTot(); ++nPage) {
    const auto& Given = m_Job.aFiles[static_cast<std::size_t>(nPage - 1)];
    const std::string* aPaths[] = {&Given.sHorizontal, &Given.sVertical, &Given.sThird, &Given.sCant};
    for (int nFile = 2; nFile <= 4; ++nFile) {
      const auto& sPath = *aPaths[nFile - 1];
      if (sPath.empty() || Files.IsSelected(nPage, nFile)) continue;
      auto sText = nFile == 2
                       ? Phrase("WARN_NO_PLAN", "%1 is not used: it needs a horizontal alignment", {sPath})
                       : Phrase("WARN_NO_PROFILE", "%1 is not used: it needs a vertical alignment", {sPath});
      KeepWarning(std::move(sText));
    }
  }
}

void CConversion::TypePreferences() {
  auto& aBoxes = m_Window.ctlPreferences.ctlTolerance;
  const std::optional<std::string>* aTexts[] = {&m_Job.sToleranceHz, &m_Job.sToleranceVt};
  for (std::size_t n = 0; n < 2; ++n) {
    if (*aTexts[n] && !aBoxes[n].txtNumber_Change(**aTexts[n])) {
      throw UsageError("the tolerance \"" + **aTexts[n] + "\" is no number");
    }
  }
}

void CConversion::TypeExport() {
  auto& PageShown = m_Window.ctlExporting;
  if (m_Job.sFrom) PageShown.txtChainage[0].Text = *m_Job.sFrom;
  if (m_Job.sTo) PageShown.txtChainage[1].Text = *m_Job.sTo;
  if (!m_Job.aLayers) return;
  auto& aItems = PageShown.lstLayers.Items;
  for (std::size_t n = 0; n < aItems.size(); ++n) {
    const auto& aNames = *m_Job.aLayers;
    const bool bWanted = std::find(aNames.begin(), aNames.end(), aItems[n].Text) != aNames.end();
    PageShown.lstLayers_ItemCheck(static_cast<int>(n), bWanted);
  }
  KeepUnknownLayers();
}

void CConversion::Export() {
  m_Window.cmdNext_Click();
  for (const auto& Item : m_Window.ctlResult.lstWarnings.Items) KeepWarning(Item.Text);
  if (Page() != ePageResult) {
    if (!CLandXML::WroteWhole()) m_Outcome.eStatus = eNotWritten;
    return;
  }
  m_Outcome.eStatus = eNotWritten;
  if (!CLandXML::WroteWhole()) return;
  m_Outcome.bExported = Done("Commit", [&] { m_Platform.Output.Commit(); });
  if (!m_Outcome.bExported) return;
  m_Outcome.eStatus = eConverted;
  Done("KeepSummary", [&] { KeepSummary(); });  // a value that is no number has no text
  if (!m_Job.sPlot.empty()) Plot();
}

// Comes into its place whole or not at all, like the document.
void CConversion::Plot() {
  const bool bWritten = Done("Plot", [&] {
    const auto File = m_Platform.Output.Create(m_Job.sPlot);
    File->Write(SvgPlot::PlotAsSvg(PreviewOf(m_Window)));
    File->Close();
    m_Platform.Output.Commit();
  });
  if (!bWritten) m_Outcome.eStatus = eNotWritten;
}

TOutcome CConversion::Run() {
  m_Outcome.sJob = aJobNames[static_cast<std::size_t>(m_Job.nJob)];
  m_Outcome.sOutput = m_Job.sOutput;
  Start();
  ChooseJob();
  m_Outcome.bValid = ChooseFiles();
  if (!m_Outcome.bValid) return m_Outcome;
  TypePreferences();
  m_Window.cmdNext_Click();
  KeepFiles();
  m_Outcome.bImported = m_Window.ctlImporting.IsAllOk();
  m_Window.cmdNext_Click();
  if (Page() != ePageExporting) return m_Outcome;
  TypeExport();
  KeepLayers();
  if (m_Options.bCheckOnly) {
    for (auto& sText : WarningsOf(m_Window)) KeepWarning(std::move(sText));
    m_Outcome.eStatus = eConverted;
  } else {
    Export();
  }
  return m_Outcome;
}

void CConversion::KeepCaptions(int nPage) {
  const auto& aSlots = m_Window.ctlFiles.ctlSelectFile;
  for (std::size_t n = 0; n < aSlots.size(); ++n) {
    m_aCaptions.at(static_cast<std::size_t>(nPage - 1))[n] = aSlots[n].chkFile.Caption;
  }
}

// Page, slot and file of a node as "PAGE2@Vt"; "" for that of a page.
std::string CConversion::WhereIs(const std::string& sKey) const {
  constexpr std::size_t nDigit = 4, nKind = 6;  // "PAGE", the number, "@"
  if (sKey.size() <= nKind) return {};
  const auto& Files = m_Window.ctlFiles;
  const int nPage = sKey[nDigit] - '0';
  const auto sKind = sKey.substr(nKind);
  const int nFile = sKind == "Hz" ? 1 : sKind == "Vt" ? 2 : Files.IsSelected(nPage, 3) ? 3 : 4;
  const auto sSlot = m_Window.ctlImporting.GetText(sKey.substr(0, nKind - 1)) + ", " +
                     m_aCaptions.at(static_cast<std::size_t>(nPage - 1))[static_cast<std::size_t>(nFile - 1)];
  if (nFile == 2 && nPage > 1 && (Files.IsOptionSelected(nPage, 2) || Files.IsOptionSelected(1, 2))) {
    return sSlot +
           ": can't be generated; that needs this track's plan and cant table, and plan and profile of the " +
           "alignment it is made from";
  }
  return sSlot + ": " + std::filesystem::path(Files.GetFile(nPage, nFile)).filename().string();
}

void CConversion::KeepFiles() {
  for (const auto& Node : m_Window.ctlImporting.trFiles) {
    TFileResult File{Node.sKey, Node.sText, static_cast<int>(Node.eImage), {}, WhereIs(Node.sKey)};
    if (Node.eImage == EImage::eFailure) File.sReport = CAligmentCheck::GetReportText(Node.sText, Node.sKey);
    m_Outcome.aFiles.push_back(std::move(File));
  }
}

void CConversion::KeepLayers() {
  for (const auto& Item : m_Window.ctlExporting.lstLayers.Items) {
    m_Outcome.aLayers.push_back({Item.Text, Item.Checked});
  }
}

void CConversion::KeepUnknownLayers() {
  const auto& aItems = m_Window.ctlExporting.lstLayers.Items;
  std::string sOffered;
  for (const auto& Item : aItems) sOffered += (sOffered.empty() ? "" : ", ") + Item.Text;
  if (sOffered.empty()) sOffered = Phrase("WARN_NONE", "none");
  for (const auto& sName : *m_Job.aLayers) {
    if (std::any_of(aItems.begin(), aItems.end(), [&](const auto& Item) { return Item.Text == sName; })) {
      continue;
    }
    KeepWarning(Phrase("WARN_NO_LAYER",
                       "The layer \"%1\" isn't on offer, so nothing of it is written. On offer: %2.",
                       {sName, sOffered}));
  }
}

void CConversion::KeepSummary() {
  const auto& Result = m_Window.ctlResult;
  for (int nPage = 1; nPage <= Result.PagesTot(); ++nPage) {
    TPageResult PageResult{nPage, Result.GetTitle(nPage), {}};
    for (int nRow = 1; nRow <= 6; ++nRow) {
      const auto sLabel = Result.GetDescription(nPage, nRow);
      if (sLabel.empty()) continue;
      PageResult.aRows.push_back({nRow, sLabel, Result.GetValue(nPage, nRow), Result.GetUnit(nPage, nRow)});
    }
    m_Outcome.aSummary.push_back(std::move(PageResult));
  }
}

}  // namespace

int CountFailures(const TOutcome& Outcome) {
  return static_cast<int>(
      std::count_if(Outcome.aMessages.begin(), Outcome.aMessages.end(),
                    [](const TMessage& Message) { return Message.bBox && Message.sIcon == sCritical; }));
}

TOutcome RunJob(const TJob& Job, const TConversionOptions& Options) {
  if (const auto sLost = Overwritten(Job); !Options.bCheckOnly && !sLost.empty()) throw UsageError(sLost);
  return CConversion(Job, Options).Run();
}

}  // namespace vrek::batch

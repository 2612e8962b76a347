// clsWizard: what each page of the wizard decides and starts.
//
//   clsWizard.cpp             dispatch, settings, the Job, Details and Preferences pages
//   clsWizard_Files.cpp       the Files page and the tree of the Importing page
//   clsWizard_Importing.cpp   reading and checking, generated vertical alignments
//   clsWizard_Exporting.cpp   the Exporting page and the document as a whole
//   clsWizard_Result.cpp      the rows of the Result page
//   clsWizard_SelectStrLn.cpp the stringline page
//   ExportDriver*.cpp         what goes into the document
#pragma once

#include <vector>

#include "records/Elements.h"

namespace vrek {

class frmWizard;

class clsWizard {
 public:
  /// Fills the converter's identity and reads the settings into the Preferences page.
  explicit clsWizard(frmWizard& Window);

  bool IntroPage(int nPage);
  bool ExitPage(int nPage);
  /// Saves the preferences; a failure is reported with the source "SaveSetting".
  void Release();

 private:
  struct TImport;

  void ShowTitle(const char* sTitleToken, const char* sSubTitleToken);
  void ReadSettings();
  bool IntroPageJobType();
  bool IntroPageFiles();
  bool IntroPageDetails();
  bool IntroPagePreferences();
  bool IntroPageImporting();
  bool IntroPageExporting();
  bool IntroPageResult();
  bool IntroPageSelectStrLn();
  bool ExitPageFiles();
  bool ExitPageImporting();
  bool ExitPageExporting();
  bool ExitPageResult();
  bool ExitPageSelectStrLn();

  bool ValidateFiles();
  void RaiseFileFaults();
  void LayOutTree();
  void LayOutSideTrack(int nPage, const char* sTitleToken);
  void ImportPage(TImport& Import, int nPage);
  void ImportHz(int nPage);
  void ImportVt(TImport& Import, int nPage);
  void ImportCr(int nPage);
  void ImportTunnel(const TImport& Import, int nPage);
  void ImportCant(TImport& Import, int nPage);
  void GenerateTrack(const TImport& Import, int nTarget, int nSource, bool bFromCentre, const char* sTittle);
  void OfferStringLines();
  void StoreSelection();
  void LayOutResultRows();

  frmWizard& m_Window;
};

}  // namespace vrek

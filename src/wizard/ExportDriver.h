// ExportDriver: what goes into the document for each job: which alignments, in which order, and what each one
// holds. All data come from the store, the chainage limits and layers from the Exporting page; it feeds the
// progress panel and the rows of the Result page.
//
//   ExportDriver.cpp              the jobs
//   ExportDriver_Aligment.cpp     one alignment
//   ExportDriver_Layers.cpp       the groups of stringlines behind the alignments
//   ExportDriver_StringLines.cpp  alignments that are stringlines
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/StringLines.h"

namespace vrek {

class frmWizard;

/// Whether the run reads one of these kinds of input (bits of FilesToRead).
bool ReadsAny(int nKinds);

class ExportDriver {
 public:
  explicit ExportDriver(frmWizard& Window) : m_Window(Window) {}

  /// Runs the routine of a job (0 to 3); another number writes nothing and gives false. Gives the result of
  /// the last alignment written. Failures are reported with the routine's name as the source.
  bool ExportJob(int nJob);

  /// Each job's alignments, then its groups of stringlines; false when the last alignment failed.
  bool ExportRoad();
  bool ExportTunnel();
  bool ExportRailSingle();
  bool ExportRailDouble();

  /// One alignment with all its parts. A failure ends it: reported with the source "ExportAligment", false.
  bool ExportAligment(int nAligment);

  /// One group of stringlines. nCentre: index of the centre line in aNames; aExcluded: indexes, first -1 for
  /// none.
  static void ExportLayer(const std::vector<std::string>& aNames, std::string_view sLayerName, int nCentre,
                          bool bSorted, const std::vector<int>& aExcluded);

 private:
  struct TLayer {
    std::vector<std::string> aNames;
    int nCentre = 0;
    std::vector<int> aExcluded;
  };
  struct TRange {
    double dStart = 900000000000000;
    double dEnd = -900000000000000;
  };

  TLayer LayerOfSingleTrack() const;
  TLayer LayerOfTrack(int nTrack) const;
  TLayer LayerOfRoad() const;
  void ExportLayers(const std::vector<std::pair<TLayer, std::string>>& aLayers);
  bool RailsChosen(int nPage) const;
  void ExportAxis(int nAligment, int nType);
  void ExportProfile(int nAligment);
  void ExportAligmentCr(int nAligment);
  void ExportAligmentSuper(int nAligment);
  void ExportAligmentTunnel(int nAligment);
  void ExportStringLines(int nAligment, int nType);
  void ExportStringLine(TStringLines& StrLn, int i, TRange& Range, int nAligment, int nType);
  void WriteLone(TStringLine& Line, TRange& Range) const;
  void WriteChain(TStringLines& StrLn, int nHead, TRange& Range) const;
  bool WritePlan(const TStringLine& Line, TRange& Range) const;
  double ChStart() const;
  double ChEnd() const;
  void SetRows(int nAligment, int nRow, double dStart, double dEnd) const;

  frmWizard& m_Window;
};

}  // namespace vrek

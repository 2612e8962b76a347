// Alignments that are stringlines: each one chosen becomes an Alignment of its own; the links of a chain
// stand in the Alignment of their head.
#include <algorithm>

#include "base/Checked.h"
#include "design_data/CAligmentsDatas.h"
#include "geometry/Alg.h"
#include "landxml/CLandXML.h"
#include "shell/AppModel.h"
#include "wizard/ExportDriver.h"
#include "wizard/frmWizard.h"

namespace vrek {
namespace {

constexpr int nHeadOfChain = -1;

// Where a chain ends: the last chainage of its last link. A chain that bites its own tail ends with the
// round.
double EndOfChain(const TStringLines& StrLn, int nHead) {
  int i = nHead;
  for (int n = 0; n < StrLn.nCount; ++n) {
    const int nNext = Checked::At(StrLn.Lines, i).nNext;
    if (nNext == 0) break;
    i = nNext;
  }
  return Checked::At(StrLn.Lines, i).dChainageEnd;
}

}  // namespace

void ExportDriver::ExportStringLines(int nAligment, int nType) {
  auto& Progress = m_Window.ctlProgress;
  auto StrLn = CAligmentsDatas::GetAligmentStrLn(nAligment);
  Progress.Info(AppModel().GetToken("T_EXPORTING_STRLNS"));
  Progress.SetRanges(0, StrLn.nCount);
  TRange Range;
  for (int i = 1; i <= StrLn.nCount; ++i) {
    Progress.SetValue(i);
    const auto& Line = Checked::At(StrLn.Lines, i);
    const bool bSelected = StrLn.sSelected.find("$" + std::to_string(i) + "$") != std::string::npos;
    if (Line.nPrev <= 0 && bSelected) ExportStringLine(StrLn, i, Range, nAligment, nType);
  }
  CAligmentsDatas::SetAligmentStrLn(nAligment, std::move(StrLn));
}

void ExportDriver::ExportStringLine(TStringLines& StrLn, int i, TRange& Range, int nAligment, int nType) {
  auto& Line = Checked::At(StrLn.Lines, i);
  Line.bExported = true;
  const auto& First = Checked::At(Line.Hz, Alg::FindHzElement(ChStart(), Line.Hz));
  const auto& Last = Checked::At(Line.Hz, Alg::FindHzElement(ChEnd(), Line.Hz));
  const double dLength = Line.nPrev == nHeadOfChain ? EndOfChain(StrLn, i) - Line.dChainageStart
                                                    : Last.dChainage + Last.dLength - First.dChainage;
  if (!CLandXML::TagAlignment(false, Line.sName, First.dChainage, First.dChainage + dLength)) return;
  if (Line.nPrev == 0) {
    WriteLone(Line, Range);
  } else if (Line.nPrev == nHeadOfChain) {
    WriteChain(StrLn, i, Range);
  } else {
    Line.bExported = false;
  }
  const int nFiles = AppModel().ConversionInfo.nFilesToRead;
  if (nFiles & FilesToRead::nStringLinesOfSlot1) {
    SetRows(nAligment, 1, Range.dStart, Range.dEnd);
  } else if (nFiles & FilesToRead::nStringLinesOfSlot3) {
    SetRows(nAligment, 5, Range.dStart, Range.dEnd);
  }
  if (nType & AligmentType::nSup) ExportAligmentSuper(nAligment);
  if (nType & AligmentType::nTnl) ExportAligmentTunnel(nAligment);
  CLandXML::TagAlignment(true, "", 0, 0);
}

bool ExportDriver::WritePlan(const TStringLine& Line, TRange& Range) const {
  double dStart = 0, dEnd = 0;
  if (!CLandXML::TagCoordGeomIrrLn(dStart, dEnd, Line.Hz, ChStart(), ChEnd())) return false;
  Range.dStart = std::min(Range.dStart, dStart);
  Range.dEnd = std::max(Range.dEnd, dEnd);
  return true;
}

void ExportDriver::WriteLone(TStringLine& Line, TRange& Range) const {
  if (!WritePlan(Line, Range) || !CLandXML::TagProfile(false)) return;
  double dStart = 0, dEnd = 0;
  CLandXML::TagProfAlign(dStart, dEnd, Line.sName, Line.Vt, ChStart(), ChEnd());
  CLandXML::TagProfile(true);
}

void ExportDriver::WriteChain(TStringLines& StrLn, int nHead, TRange& Range) const {
  const auto& Head = Checked::At(StrLn.Lines, nHead);
  if (!WritePlan(Head, Range)) return;
  const auto EachLink = [&](auto&& Write) {
    int n = 0;
    for (int i = Head.nNext; i != 0 && n < StrLn.nCount; i = Checked::At(StrLn.Lines, i).nNext, ++n) {
      if (!Write(Checked::At(StrLn.Lines, i))) return;
    }
  };
  EachLink([&](TStringLine& Link) { return Link.bExported = WritePlan(Link, Range); });
  if (!CLandXML::TagProfile(false)) return;
  double dStart = 0, dEnd = 0;
  if (CLandXML::TagProfAlign(dStart, dEnd, Head.sName, Head.Vt, ChStart(), ChEnd())) {
    EachLink([&](TStringLine& Link) {
      return CLandXML::TagProfAlignIrrLn(dStart, dEnd, Head.sName, Link.Vt, ChStart(), ChEnd());
    });
  }
  CLandXML::TagProfile(true);
}

}  // namespace vrek

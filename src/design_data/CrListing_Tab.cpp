// The tab form of the cross-section listing: an RTF table, a section begun by two head rows (-> is a Tab). A
// row of exactly 12 fields holds a point of up to three layers.
//
//     ESTACION->1+000.000
//     COTA
//     -12.500->510.200->->->-3.500->512.000->->->-3.000->511.500->->
#include "base/ST.h"
#include "design_data/CovertData.h"
#include "design_data/ListingReaders.h"
#include "design_data/TabText.h"
#include "platform/RtfText.h"
#include "shell/ErrHandler.h"

namespace vrek::Entry {

namespace {

constexpr int nFieldLimit = 15;
constexpr int nPointRowFields = 12;

// Two numbers that are both 0 are no point.
void AddPair(CTabRow& Row, int nField, CovertData::PointList3D& aPoints) {
  const double dOffset = Row.Number(nField), dHeight = Row.Number(nField + 1);
  if (dOffset != 0 || dHeight != 0) aPoints.push_back({dOffset, dHeight});
}

void AddPoints(CTabRow& Row, CovertData::TPointLists& aLists) {
  AddPair(Row, 1, aLists[CovertData::nTaludes]);
  AddPair(Row, 5, aLists[CovertData::nRasante]);
  AddPair(Row, 9, aLists[CovertData::nSubrasante]);
}

// The section in hand.
struct TSection {
  double dChainage = 0;      // made current by the last "COTA" row
  double dNextChainage = 0;  // from the last "ESTA" row
  CovertData::TPointLists aLists;
};

void FinishSection(TSection& Section, TCrData& Cr) {
  CovertData::AddCrSection(Cr, Section.dChainage, Section.aLists);
  for (auto& aPoints : Section.aLists) aPoints.clear();
}

void ReadRows(std::string_view sText, TCrData& Cr) {
  CTabText Text(sText);
  CTabRow Row(nFieldLimit);
  TSection Section;
  bool bBegun = false;  // an "ESTA" row has been seen
  for (std::string_view sLine; Text.NextLine(sLine);) {
    Row.Cut(sLine);
    if (Row.Count() == nPointRowFields) AddPoints(Row, Section.aLists);
    const std::string sHead = ST::ToUpper(ST::Trim(Row.Field(1)).substr(0, 4));
    if (sHead == "COTA") {
      Section.dChainage = Section.dNextChainage;
    } else if (sHead == "ESTA" && Row.Count() > 1) {
      if (bBegun) FinishSection(Section, Cr);
      bBegun = true;
      Section.dNextChainage = Row.Chainage(2);
    }
  }
  FinishSection(Section, Cr);
}

}  // namespace

bool ImportCrTabbed(TCrData& Cr, std::string_view sRtf) {
  return Guard("ImportCrTabbed", false, [&] {
    CovertData::StartCr(Cr);
    ReadRows(RtfToText(sRtf), Cr);
    return Cr.Sections.size() >= 2;
  });
}

}  // namespace vrek::Entry

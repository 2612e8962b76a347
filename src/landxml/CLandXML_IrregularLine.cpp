// The plan of a stringline, whose elements are the straight pieces between its points: blocks of at most 25
// points that share their end points (60 elements: 1 to 25, 25 to 49, 49 to 60 and the end).
//
//   <CoordGeom>
//   	<IrregularLine staStart="100.000000">
//   		<Start>4471903.620000 458120.355000</Start>
//   		<End>4471813.822111 457874.224264</End>
//   		<PntList2D>4471903.620000 458120.355000 ... 4471813.822111 457874.224264 </PntList2D>
//   	</IrregularLine>
//   </CoordGeom>
#include "base/Checked.h"
#include "geometry/Alg.h"
#include "landxml/CLandXML.h"
#include "landxml/ChainageLimits.h"
#include "landxml/ElementLines.h"
#include "shell/ErrHandler.h"

namespace vrek::CLandXML {
namespace {

constexpr int nPointsOfBlock = 25;

/// One block: elements a to b; End closes it.
struct TBlock {
  int a = 0;
  int b = 0;
  bool bLast = false;  ///< the last block, which ends behind its last element
  THzPoint End;
};

THzPoint EndOf(const THzElement& Element) {
  const THzElement Hz = Alg::InRadians(Element);
  return GM::PolarPoint(GM::StartOf(Hz), Hz.dAzimuth, Hz.dLength);
}

// The pairs of a list have a blank behind each; those of a single element have none at the end.
void AddPoints(CElementLines& Lines, const THzElements& aHz, const TBlock& Block) {
  Lines.Begin(2);
  Lines.Append("<PntList2D>");
  const auto Pair = [&](const THzPoint& Point) {
    Lines.Append(Point);
    Lines.Append(" ");
  };
  if (Block.a >= Block.b) {
    Pair(GM::StartOf(Checked::At(aHz, Block.a)));
    Lines.Append(Block.End);
  } else {
    for (int i = Block.a; i <= Block.b; ++i) Pair(GM::StartOf(Checked::At(aHz, i)));
    if (Block.bLast) Pair(Block.End);
  }
  Lines.Append("</PntList2D>");
  Lines.End();
}

bool WriteBlock(const THzElements& aHz, const TBlock& Block) {
  const THzElement& First = Checked::At(aHz, Block.a);
  CElementLines Lines;
  Lines.Add(0, "<CoordGeom>");
  Lines.Add(1, "<IrregularLine staStart=\"", First.dChainage, "\">");
  Lines.Add(2, "<Start>", GM::StartOf(First), "</Start>");
  Lines.Add(2, "<End>", Block.End, "</End>");
  AddPoints(Lines, aHz, Block);
  Lines.Add(1, "</IrregularLine>");
  Lines.Add(0, "</CoordGeom>");
  return Lines.Write();
}

}  // namespace

bool TagCoordGeomIrrLn(double& dOutStart, double& dOutEnd, const THzElements& aHz, double dChStart,
                       double dChEnd) {
  if (UpperBound(aHz) < 1) return false;
  return Guard("TagCoordGeomIrrLn", false, [&] {
    const TElementRange Range = ChooseElements(aHz, dChStart, dChEnd, Alg::FindHzElement, 1);
    // The first element
    TBlock Block;
    Block.b = Range.nFirst;
    dOutStart = Checked::At(aHz, Range.nFirst).dChainage;
    bool bWritten = false;
    do {
      // The next block begins where this one ends
      Block.a = Block.b;
      Block.bLast = Block.a + nPointsOfBlock - 1 >= Range.nLast;
      Block.b = Block.bLast ? Range.nLast : Block.a + nPointsOfBlock - 1;
      const THzElement& Last = Checked::At(aHz, Block.b);
      Block.End = Block.bLast ? EndOf(Last) : GM::StartOf(Last);
      if (Block.bLast) dOutEnd = Last.dChainage + Last.dLength;
      bWritten = WriteBlock(aHz, Block);
    } while (!Block.bLast);
    return bWritten;
  });
}

}  // namespace vrek::CLandXML

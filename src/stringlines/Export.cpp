// Writes the sections of an alignment. Depth of the lines is fixed: CrossSects stands inside an Alignment.
//
//	<CrossSects>                             3 tabs
//		<CrossSect sta="100.000000">           4
//			<CrossSectSurf name="Rasante">       5, see SurfaceText
//		</CrossSect>
//	</CrossSects>
#include <algorithm>
#include <string>

#include "base/Checked.h"
#include "base/FormatReal.h"
#include "landxml/CLandXML.h"
#include "shell/ErrHandler.h"
#include "stringlines/CCrSec.h"
#include "stringlines/SurfaceText.h"

namespace vrek::CCrSec {
namespace {

std::vector<double> m_CrExport;  // chainages of the sections that SetExportData was given

struct TSectionRange {
  int nFirst = 0;
  int nLast = 0;
};

TSectionRange SectionsToExport(const TCrData& Cr, double dFrom, double dTo) {
  const int nLast = static_cast<int>(Cr.Sections.size()) - 1;
  if (dFrom == 0 && dTo == 0) return {0, nLast};
  const int nFirst = dFrom > Checked::At(Cr.Sections, 0).dChainage ? SectionIndexAt(dFrom) : 0;
  return {nFirst, dTo >= Checked::At(Cr.Sections, nLast).dChainage ? nLast : SectionIndexAt(dTo)};
}

// A layer goes out when its name stands behind a "$"; unlike in the rules no "$" is looked for behind it.
std::vector<CSurfaceText> TextsOfLayers(const TCrData& Cr, std::string_view sLines, int nFirst) {
  std::vector<CSurfaceText> aTexts;
  for (std::size_t n = 0; n < Cr.Layers.size(); ++n) {
    const bool bSelected = sLines.empty() || sLines.find("$" + Cr.Layers[n].sName) != sLines.npos;
    aTexts.emplace_back(Cr.Layers[n], n, bSelected, nFirst);
  }
  return aTexts;
}

bool IsAnySelected(const std::vector<CSurfaceText>& aTexts) {
  return std::any_of(aTexts.begin(), aTexts.end(),
                     [](const CSurfaceText& Text) { return Text.IsSelected(); });
}

}  // namespace

void SetExportData(const TCrData& Cr) {
  m_CrExport.clear();
  for (const TCrSection& Section : Cr.Sections) m_CrExport.push_back(Section.dChainage);
}

int SectionIndexAt(double dChainage) {
  const int nLast = static_cast<int>(m_CrExport.size()) - 1;
  for (int i = 1; i <= nLast; ++i) {
    const double dSection = m_CrExport[static_cast<std::size_t>(i)];
    if (dChainage < dSection) return std::max(i - 1, 1);
    if (dChainage == dSection) return i;
  }
  return nLast;
}

void Export2LandXML(double& dChStart, double& dChEnd, TCrData& Cr, std::string_view sLines, double dFrom,
                    double dTo, IProgress& Progress) {
  dChStart = dChEnd = 0;
  Guard("Export2LandXML", [&] {
    const auto [nFirst, nLast] = SectionsToExport(Cr, dFrom, dTo);
    Progress.SetRanges(nFirst, nLast);
    auto aTexts = TextsOfLayers(Cr, sLines, nFirst);
    if (!IsAnySelected(aTexts)) return;
    CLandXML::WriteLn("\t\t\t<CrossSects>");
    dChStart = Checked::At(Cr.Sections, nFirst).dChainage;
    std::string sSection;  // a section goes out whole or, on a failure, not at all
    for (int i = nFirst; i <= nLast; ++i) {
      const TCrSection& Section = Checked::At(Cr.Sections, i);
      Progress.SetValue(i);
      sSection = "\t\t\t\t<CrossSect sta=\"" + FormatReal(Section.dChainage, 6) + "\">\r\n";
      dChEnd = Section.dChainage;
      for (int j = 0; j < static_cast<int>(Section.Surfaces.size()); ++j) {
        CSurfaceText& Text = Checked::At(aTexts, Checked::At(Section.Surfaces, j).nLayer);
        if (Text.IsSelected()) Text.Append(sSection, Cr, i, j);
      }
      CLandXML::WriteLn(sSection += "\t\t\t\t</CrossSect>");
    }
    CLandXML::WriteLn("\t\t\t</CrossSects>");
  });
}

}  // namespace vrek::CCrSec

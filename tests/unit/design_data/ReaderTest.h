// What the tests of the readers share: a listing given as text goes through a file and its entry point.
#pragma once

#include <sstream>

#include "design_data/Entry.h"
#include "support/TestApp.h"

namespace vrek::test {

class ReaderTest : public AppTest {
 protected:
  /// Reads a listing given with "\n" line ends; the name's extension picks the form. Keeps the answer in
  /// bRead.
  THzElements ReadHz(std::string_view sText, const std::string& sName = "a.plt") {
    THzElements aHz;
    bRead = Entry::ImportHzAligment(aHz, WriteFile(sName, CrLf(sText)));
    return aHz;
  }
  TVtElements ReadVt(std::string_view sText, const std::string& sName = "a.alz") {
    TVtElements aVt;
    bRead = Entry::ImportVtAligment(aVt, WriteFile(sName, CrLf(sText)));
    return aVt;
  }
  TCrData ReadCr(std::string_view sText, const std::string& sName = "a.trv") {
    TCrData Cr;
    bRead = Entry::ImportCrAligment(Cr, WriteFile(sName, CrLf(sText)));
    return Cr;
  }

  /// The text of the only message box; "" when there is none, a remark when there are more.
  std::string BoxText() const {
    if (Platform.aBoxes.empty()) return "";
    return Platform.aBoxes.size() == 1 ? Platform.aBoxes[0].sText : "several boxes";
  }

  bool bRead = false;
};

/// Sections as text: "chainage: layer offset/height ...;" for each, a layer by its first letter.
inline std::string Text(const TCrData& Cr) {
  std::ostringstream Out;
  Out.imbue(std::locale::classic());
  for (const auto& Section : Cr.Sections) {
    Out << Section.dChainage << ":";
    for (const auto& Surface : Section.Surfaces) {
      Out << " " << Cr.Layers[Surface.nLayer].sName[0];
      for (const auto& Point : Surface.Points) Out << " " << Point.dOffset << "/" << Point.dHeight;
    }
    Out << ";";
  }
  return Out.str();
}

}  // namespace vrek::test

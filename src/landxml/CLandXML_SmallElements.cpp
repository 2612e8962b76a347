// Elements of one line each. But for the name of an Alignment, values go out as they are given.
#include <cmath>

#include "base/FormatReal.h"
#include "landxml/CLandXML.h"
#include "landxml/ElementLines.h"
#include "landxml/Tags.h"
#include "shell/ErrHandler.h"

namespace vrek::CLandXML {

// <Alignments>
// </Alignments>
bool TagAlignments(bool bClose) {
  return bClose ? WriteClosing("</Alignments>") : WriteOpening({"<Alignments>"});
}

// <Alignment name="..." length="1377.118729" staStart="1040.203000">
// </Alignment>
bool TagAlignment(bool bClose, std::string_view sName, double dChStart, double dChEnd) {
  if (bClose) return WriteClosing("</Alignment>");
  return Guard("CLandXML.TagAlignment", false, [&] {
    const std::string sLength = FormatReal(std::fabs(dChEnd - dChStart), nDecimals);
    const std::string sStart = FormatReal(dChStart, nDecimals);
    return WriteOpening({"<Alignment name=\"", EncodeUtf8Text(sName), "\" length=\"", sLength,
                         "\" staStart=\"", sStart, "\">"});
  });
}

// <Profile>
// </Profile>
bool TagProfile(bool bClose) {
  return bClose ? WriteClosing("</Profile>") : WriteOpening({"<Profile>"});
}

// <CrossSects>
// <CrossSects name="...">
// </CrossSects>
bool TagCrossSects(bool bClose, std::string_view sName) {
  if (bClose) return WriteClosing("</CrossSects>");
  if (sName.empty()) return WriteOpening({"<CrossSects>"});
  return WriteOpening({"<CrossSects name=\"", sName, "\">"});
}

// <CrossSect sta="12927.079000">
// <CrossSect sta="12927.079000" name="...">
// </CrossSect>
bool TagCrossSect(bool bClose, std::string_view sSta, std::string_view sName) {
  if (bClose) return WriteClosing("</CrossSect>");
  if (sName.empty()) return WriteOpening({"<CrossSect sta=\"", sSta, "\">"});
  return WriteOpening({"<CrossSect sta=\"", sSta, "\" name=\"", sName, "\">"});
}

// <CrossSectSurf name="Rails">
// </CrossSectSurf>
bool TagCrossSectSurf(bool bClose, std::string_view sName) {
  if (bClose) return WriteClosing("</CrossSectSurf>");
  return WriteOpening({"<CrossSectSurf name=\"", sName, "\">"});
}

// <Feature code="QN Stringline Layer">Left,eje,Right      opens
// <Feature code="QN Vertex Name">Left,Right</Feature>     opens and closes
// </Feature>                                              closes
bool TagFeature(bool bClose, std::string_view sCode, std::string_view sValue) {
  if (!bClose) return WriteOpening({"<Feature code=\"", sCode, "\">", sValue});
  if (sValue.empty()) return WriteClosing("</Feature>");
  return WriteParts({"<Feature code=\"", sCode, "\">", sValue, "</Feature>"});
}

// <Property label="sorted" value="NO"/>
// <Property label="sorted"/>
bool TagProperty(std::string_view sLabel, std::string_view sValue) {
  if (sValue.empty()) return WriteParts({"<Property label=\"", sLabel, "\"/>"});
  return WriteParts({"<Property label=\"", sLabel, "\" value=\"", sValue, "\"/>"});
}

}  // namespace vrek::CLandXML

#include "design_data/VtElements.h"

#include "base/Checked.h"
#include "geometry/GM.h"

namespace vrek::Entry {

void AppendVtElement(TVtElements& aVt, TVtElement Element) {
  Element.nId = UpperBound(aVt) + 1;
  aVt.push_back(Element);
}

void AppendClosingElement(TVtElements& aVt) {
  if (UpperBound(aVt) < 1) return;
  const TVtElement Last = aVt.back();
  TVtElement Closing;
  Closing.nId = Last.nId + 1;
  Closing.dChainage = Checked::Finite(Last.dChainage + Last.dLength);
  Closing.dHeight = Checked::Finite(GM::GetHeightInElement(Last, Last.dLength));
  aVt.push_back(Closing);
}

}  // namespace vrek::Entry

// What the readers of the vertical listing share.
#pragma once

#include "records/Elements.h"

namespace vrek::Entry {

/// Appends an element with the array's next index as its number.
void AppendVtElement(TVtElements& aVt, TVtElement Element);

/// Appends the element without length that marks the profile's end, where the last element ends; nothing in
/// an array without an element.
void AppendClosingElement(TVtElements& aVt);

}  // namespace vrek::Entry

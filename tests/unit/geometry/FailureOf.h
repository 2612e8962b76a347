// The number of the failure that a body ends with, 0 for none.
#pragma once

#include "base/Failure.h"

namespace vrek::test {

template <class TBody>
int FailureOf(TBody&& Body) {
  try {
    Body();
    return 0;
  } catch (const Failure& Caught) {
    return Caught.nNumber;
  }
}

}  // namespace vrek::test

// For tests of files: paths in the test's own directory, and failures by number.
#pragma once

#include "support/TestApp.h"

namespace vrek::test {

class FileTest : public AppTest {
 protected:
  std::string Path(std::string_view sName) const { return Directory.string() + "/" + std::string(sName); }

  /// Number of the failure that a routine raises; 0 when it raises none.
  static int FailureOf(const std::function<void()>& Body) {
    try {
      Body();
    } catch (const Failure& Caught) {
      return Caught.nNumber;
    }
    return 0;
  }
};

}  // namespace vrek::test

#include "base/Checked.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace vrek {
namespace {

constexpr double dInfinity = std::numeric_limits<double>::infinity();

template <class TBody>
std::string FailureOf(TBody Body) {
  try {
    (void)Body();
  } catch (const Failure& F) {
    return std::to_string(F.nNumber) + " " + F.sDescription;
  }
  return "";
}

TEST(Checked, FaultsOfTheArithmeticAreFailures) {
  EXPECT_EQ(FailureOf([] { return Checked::Divide(0, -0.0); }), "11 Division by zero");
  EXPECT_EQ(FailureOf([] { return Checked::Divide(1e300, 1e-300); }), "6 Overflow");
  EXPECT_EQ(FailureOf([] { return Checked::Sqrt(-1e-300); }), "5 Invalid procedure call or argument");
  EXPECT_EQ(FailureOf([] { return Checked::Sqrt(dInfinity); }), "6 Overflow");
  EXPECT_EQ(Checked::Divide(1, -4), -0.25);
  EXPECT_EQ(Checked::Sqrt(-0.0), 0);
}

TEST(Checked, SubscriptsOutsideAnArrayAreFailures) {
  std::vector<int> aItems{10, 11};
  EXPECT_EQ(FailureOf([&] { return Checked::At(aItems, -1); }), "9 Subscript out of range");
  EXPECT_EQ(FailureOf([&] { return Checked::At(aItems, 2); }), "9 Subscript out of range");
  EXPECT_EQ(Checked::At(aItems, 1), 11);
}

TEST(Failure, ARaisedTextStandsAsGiven) {
  EXPECT_EQ(FailureOf([]() -> int { Raise(Error::nXmlUnreadable, "line 3", "Load"); }), "10003 line 3");
  EXPECT_EQ(FailureOf([]() -> int { Raise(4711); }), "4711 Invalid procedure call or argument");
}

}  // namespace
}  // namespace vrek

#include "records/CrossSections.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vrek {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> Texts(const TCodes& aCodes) {
  std::vector<std::string> aOut;
  for (int n = 0; n < aCodes.size(); ++n) aOut.emplace_back(aCodes.TextAt(n));
  return aOut;
}

TCodes Codes(std::initializer_list<const char*> aTexts) {
  TCodes aCodes;
  for (const auto* sText : aTexts) aCodes.Append(sText);
  return aCodes;
}

TEST(Codes, GoByValueAfterTheSortAndKeepTheOrderOfEqualOnes) {
  TCodes aCodes = Codes({"3.500", "-3.500_2", "10.000", "0.000", "-3.500", "0.000_2", "-0.000"});
  for (int n = 0; n < 2; ++n) {
    aCodes.SortByValue();
    EXPECT_THAT(Texts(aCodes),
                ElementsAre("-3.500_2", "-3.500", "0.000", "0.000_2", "-0.000", "3.500", "10.000"));
  }
}

TEST(Codes, KeepTheirHandlesWhilePlacesMove) {
  const TCodes aMade = Codes({"3.500", "-3.500"});
  TCodes aCodes = aMade;
  const TCode sRight = aCodes.Find("3.500"), sLeft = aCodes.Find("-3.500");
  aCodes.SortByValue();
  EXPECT_EQ(aCodes.Place(sLeft), 0);
  EXPECT_EQ(aCodes.Place(sRight), 1);
  EXPECT_EQ(aCodes.Place(aCodes.Append("-9.000")), 2) << "behind the others though lower";
  EXPECT_THAT(Texts(aCodes), ElementsAre("-3.500", "3.500", "-9.000"));
  EXPECT_EQ(aCodes.Text(sRight), "3.500");
  EXPECT_EQ(aCodes.Find("3.500"), sRight);
  EXPECT_THAT(Texts(aMade), ElementsAre("3.500", "-3.500")) << "a copy goes its own way";
}

TEST(Codes, CountThoseThatBeginWithAnOffset) {
  const TCodes aCodes = Codes({"3.500", "-3.500", "3.500_2", "13.500", "3.500_3"});
  EXPECT_EQ(aCodes.CountBeginning("3.500"), 3);
  EXPECT_EQ(aCodes.CountBeginning("-3.500"), 1);
  EXPECT_EQ(aCodes.CountBeginning("3.501"), 0);
}

TEST(Codes, TheEmptyTextHasTheEmptyHandle) {
  const TCodes aCodes = Codes({"3.500"});
  EXPECT_EQ(aCodes.Text({}), "");
  EXPECT_EQ(aCodes.Place({}), -1);
  EXPECT_TRUE(aCodes.Find("").empty());
  EXPECT_TRUE(aCodes.Find("4.000").empty());
}

}  // namespace
}  // namespace vrek

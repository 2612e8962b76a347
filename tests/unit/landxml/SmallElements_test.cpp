#include <functional>
#include <limits>

#include "LandXmlTest.h"

namespace vrek::test {
namespace {

using namespace CLandXML;
using SmallElements = LandXmlTest;

TEST_F(SmallElements, WriteOneLineEachAndKeepTheDepth) {
  struct TCase {
    std::function<bool()> Write;
    const char* sLine;  // without the three tabs of the outer elements
    int nDepth;         // behind it, from theirs
  };
  // clang-format off
  const TCase aCases[] = {
      {[] { return TagAlignment(false, "back", 100, -50); },     "\t\t\t<Alignment name=\"back\" length=\"150.000000\" staStart=\"100.000000\">\n", 1},
      {[] { return TagCrossSects(false, "a&b"); },               "\t\t\t<CrossSects name=\"a&b\">\n", 1},
      {[] { return TagCrossSect(false, "5.0", "S"); },           "\t\t\t<CrossSect sta=\"5.0\" name=\"S\">\n", 1},
      {[] { return TagFeature(true, "C", "a,b"); },              "\t\t\t<Feature code=\"C\">a,b</Feature>\n", 0},
      {[] { return TagFeature(true, "C", ""); },                 "\t\t</Feature>\n", -1},
      {[] { return TagProperty("sorted", ""); },                 "\t\t\t<Property label=\"sorted\"/>\n", 0},
  };
  // clang-format on
  for (const TCase& Case : aCases) {
    ASSERT_TRUE(OpenFile());
    for (int i = 0; i < 3; ++i) TagProfile(false);
    const std::size_t nOuter = Disk().sBytes.size();
    EXPECT_TRUE(Case.Write()) << Case.sLine;
    EXPECT_EQ(Disk().sBytes.substr(nOuter), CrLf(Case.sLine));
    EXPECT_EQ(Tabs(), 3 + Case.nDepth) << Case.sLine;
  }
}

TEST_F(SmallElements, AlignmentWithoutALengthIsReported) {
  ASSERT_TRUE(OpenFile());
  EXPECT_FALSE(TagAlignment(false, "n", 0, std::numeric_limits<double>::infinity()));
  EXPECT_EQ(OnlyBox(), "Unhandler Error in CLandXML.TagAlignment\r\nOverflow");
  EXPECT_EQ(Tabs(), 0);
  EXPECT_EQ(Disk().sBytes, "");
}

}  // namespace
}  // namespace vrek::test

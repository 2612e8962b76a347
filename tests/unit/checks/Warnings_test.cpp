#include "checks/Warnings.h"

#include <gmock/gmock.h>

namespace vrek {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(Warnings, TellNamesThatTheDocumentCannotBear) {
  using Warnings::OfNames;
  EXPECT_THAT(OfNames({{"the author", "survey office 'B' > A", false, "x"}}), IsEmpty());
  EXPECT_THAT(OfNames({{"an alignment", "Peñ\u00e1n", true, "x"}}), IsEmpty());
  EXPECT_THAT(OfNames({{"a layer", "V\u00eda", false, "rename it"}}),
              ElementsAre("The name \"V\u00eda\" stands in the document as a layer: the document isn't valid "
                          "UTF-8. To avoid it, rename it."));
  EXPECT_THAT(OfNames({{"an alignment", "\u0141\u00f3d\u017a", true, "x"}}),
              ElementsAre(HasSubstr("question marks")));
  for (const char* sName : {"A & B", "A<B", "a \"b\"", "a\x01"}) {
    EXPECT_THAT(OfNames({{"p", sName, true, "x"}, {"q", sName, false, "x"}}),
                ElementsAre(HasSubstr("isn't well-formed")));
  }
}

TEST(Warnings, TellWhatTheRoundedRangeLeavesOut) {
  Warnings::TExtent Extent{{0.000, 100.123}, {0.0004, 100.1234}};
  const auto Of = [&](std::vector<double> aChainages) {
    return Warnings::OfChainages(Warnings::eSections, "s", aChainages, Extent);
  };
  EXPECT_THAT(Of({0, 50, 100.123}), IsEmpty());
  EXPECT_THAT(Of({50, 100.1234}), ElementsAre(AllOf(HasSubstr("1 cross-section of"), HasSubstr("rounded"))));
  EXPECT_THAT(Of({-20, -10, 50}),
              ElementsAre(AllOf(HasSubstr("2 cross-sections"), HasSubstr("-20.000, -10.000"))));
  EXPECT_THAT(Of({-7, -6, -5, -4, -3, -2}), ElementsAre(HasSubstr("-3.000 and 1 more")));
  Extent.Range.dStart = 20;
  EXPECT_THAT(Of({-10, 10, 50, 100.1234}), ElementsAre(HasSubstr("1 cross-section of")))
      << "the start was chosen, the end wasn't";
}

TEST(Warnings, TellARangeThatIsNoneOfThePlan) {
  const std::vector<Warnings::TAxis> aAxes{{"a", {100, 900}}, {"b", {500, 2000}}};
  for (const Warnings::TRange& Range :
       {Warnings::TRange{100, 900}, {600, 600}, {0, 1e6}, {900, 950}, {-5, 500}}) {
    EXPECT_THAT(Warnings::OfRange(Range, aAxes), IsEmpty()) << Range.dStart;
  }
  EXPECT_THAT(Warnings::OfRange({1000, 1500}, aAxes),
              ElementsAre(HasSubstr("The range 1000.000 to 1500.000 lies outside the plan \"a\", which goes "
                                    "from 100.000 to 900.000")));
  EXPECT_THAT(Warnings::OfRange({100, 499}, aAxes), ElementsAre(HasSubstr("\"b\"")));
  EXPECT_THAT(Warnings::OfRange({0, 50}, aAxes), testing::SizeIs(2));
  EXPECT_THAT(
      Warnings::OfRange({800, 300}, aAxes),
      ElementsAre(AllOf(HasSubstr("begins at 800.000, behind its end at 300.000"), HasSubstr("100.000 to"))));
}

TEST(Warnings, TellAChainageOfWhichAPartWasRead) {
  EXPECT_THAT(Warnings::OfRangeText(" 1200,5"), IsEmpty());
  EXPECT_THAT(Warnings::OfRangeText("1,234.5"), ElementsAre(HasSubstr("\"1,234.5\" was read as 1.234.")));
  EXPECT_THAT(Warnings::OfRangeText(""), ElementsAre(HasSubstr("\"\" was read as 0.000.")));
}

TEST(Warnings, TellElementsOutsideTheRange) {
  const THzElements aHz{{}, {1, 0, 0, 0, 0, 0, 0, 100}, {2, 100, 0, 0, 0, 0, 0, 0.0004}};
  EXPECT_THAT(Warnings::OfPlan("p", aHz, {{0, 100}, {0, 100.0004}}), IsEmpty());
  EXPECT_THAT(Warnings::OfPlan("p", aHz, {{0, 99.999}, {0, 99.9994}}), ElementsAre(HasSubstr("100.000")));
  EXPECT_THAT(Warnings::OfPlan("p", aHz, {{0, 50}, {0, 100.0004}}), IsEmpty()) << "chosen";
  EXPECT_THAT(Warnings::OfPlan("p", aHz, {{200, 300}, {200, 300}}),
              ElementsAre(HasSubstr("outside the range 200.000 to 300.000; they are left out: 0.000.")))
      << "the axis is another track's; the last stays";
  const TVtElements aVt{{}, {1, -50, 10, 0, 0, 50}, {2, 0, 10, 0, 0, 100}, {3, 100, 10, 0, 0, 0}};
  EXPECT_THAT(Warnings::OfProfile("v", aVt, {{-10, 100}, {0, 100}}), IsEmpty());
  EXPECT_THAT(Warnings::OfProfile("v", aVt, {{0, 40}, {0, 100}}),
              ElementsAre(HasSubstr("left out: -50.000.")))
      << "only the end was chosen";
  EXPECT_THAT(Warnings::OfProfile("v", aVt, {{10, 100}, {0, 100}}), IsEmpty());
}

TEST(Warnings, TellLayersThatAreNotOffered) {
  TCrData Cr;
  Cr.Layers.resize(3);
  Cr.Layers[1].sName = "Cunetas";
  Cr.Layers[1].aCodes.Append("1.000");
  Cr.Layers[2].sName = "Rasante";
  Cr.Layers[2].aCodes.Append("1.000");
  Cr.Layers[2].aCodes.Append("2.000");
  EXPECT_THAT(Warnings::OfLayers(Cr), ElementsAre(HasSubstr("\"Cunetas\" isn't offered")));
}

TEST(Warnings, TellGradesThatDoNotMeet) {
  TVtElements aVt{{}, {1, 0, 10, 0.01, 0, 100}, {2, 100, 11, 0.01, 5000, 50}, {3, 150, 20, 0, 0, 0}};
  EXPECT_THAT(Warnings::OfGrades("v", aVt, 0.01), IsEmpty());
  aVt[2].dHeight = 11.05;
  EXPECT_THAT(Warnings::OfGrades("v", aVt, 0.01),
              ElementsAre(AllOf(HasSubstr("0.050 m"), HasSubstr("at 100.000"))));
  EXPECT_THAT(Warnings::OfGrades("v", aVt, 0.06), IsEmpty());
}

TEST(Warnings, TellATableWhoseLastRowLengthensThePlan) {
  EXPECT_THAT(Warnings::OfLastRow("p", {}), IsEmpty());
  EXPECT_THAT(Warnings::OfLastRow("p", {{}, {1, 300, 0, 0, 0, 0, 0, 0}}), IsEmpty());
  EXPECT_THAT(Warnings::OfLastRow("p", {{}, {1, 300, 0, 0, 0, 0, 0, 120}}),
              ElementsAre(AllOf(HasSubstr("ends at 300.000"), HasSubstr("120.000 m longer"))));
}

TEST(Warnings, TellACantTableThatIsOutOfOrderOrInMetres) {
  const auto Of = [](std::vector<std::pair<double, double>> aRows) {
    std::vector<TCantStation> aStations;
    for (const auto& [dStation, dCant] : aRows) {
      aStations.push_back({.dStation = dStation, .dAppliedCantLeft = 0, .dAppliedCantRight = dCant});
    }
    return Warnings::OfCants("c", aStations);
  };
  EXPECT_THAT(Of({{0, 0}, {10, 0.0005}, {20, -0.095}}), IsEmpty())
      << "a ramp may begin with half a millimetre";
  EXPECT_THAT(Of({{0, 0}, {10, 0}}), IsEmpty()) << "no cant at all";
  EXPECT_THAT(Of({{0, 0}, {20, 0.1}, {10, 0.1}, {10, 0}, {30, 0}}),
              ElementsAre(HasSubstr("don't rise, at 10.000, 10.000:")));
  EXPECT_THAT(Of({{0, 0}, {10, -0.000095}}), ElementsAre(HasSubstr("exceeds 0.095 mm")));
}

TEST(Warnings, TellAnRtfFileThatIsNoneOrNotWhole) {
  for (const char* sBytes : {"\xef\xbb\xbf{\\rtf1 a}", " {\\rtf1 a}", "a table", ""}) {
    EXPECT_THAT(Warnings::OfRtf("a.rtf", sBytes), ElementsAre(HasSubstr("\"a.rtf\" doesn't begin as RTF")));
  }
  EXPECT_THAT(Warnings::OfRtf("a.rtf", "{\\rtf1 {a} b}\r\n"), IsEmpty());
  EXPECT_THAT(Warnings::OfRtf("a.rtf", "{\\rtf1 {a} b"),
              ElementsAre(HasSubstr("\"a.rtf\" ends in the middle")));
}

TEST(Warnings, TellLineEndsThatEndNothing) {
  EXPECT_THAT(Warnings::OfLineEnds("a.trv", 0), IsEmpty());
  EXPECT_THAT(Warnings::OfLineEnds("a.trv", 4),
              ElementsAre(AllOf(HasSubstr("\"a.trv\""), HasSubstr("(4 times)"))));
}

}  // namespace
}  // namespace vrek

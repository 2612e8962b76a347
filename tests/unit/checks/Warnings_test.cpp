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
  const Warnings::TRange Axis{0.0004, 100.1234}, Range{0.000, 100.123};
  const auto Of = [&](std::vector<double> aChainages) {
    return Warnings::OfChainages(Warnings::eSections, "s", aChainages, Range, Axis);
  };
  EXPECT_THAT(Of({0, 50, 100.123}), IsEmpty());
  EXPECT_THAT(Of({50, 100.1234}), ElementsAre(AllOf(HasSubstr("1 cross-section of"), HasSubstr("rounded"))));
  EXPECT_THAT(Of({-20, -10, 50}),
              ElementsAre(AllOf(HasSubstr("2 cross-sections"), HasSubstr("-20.000, -10.000"))));
  EXPECT_THAT(Of({-7, -6, -5, -4, -3, -2}), ElementsAre(HasSubstr("-3.000 and 1 more")));
}

TEST(Warnings, TellElementsOutsideTheRange) {
  const THzElements aHz{{}, {1, 0, 0, 0, 0, 0, 0, 100}, {2, 100, 0, 0, 0, 0, 0, 0.0004}};
  EXPECT_THAT(Warnings::OfPlan("p", aHz, {0, 100}), IsEmpty());
  EXPECT_THAT(Warnings::OfPlan("p", aHz, {0, 99.999}), ElementsAre(HasSubstr("100.000")));
  EXPECT_THAT(Warnings::OfPlan("p", aHz, {200, 300}), ElementsAre(HasSubstr("left out: 0.000.")))
      << "the last stays";
  const TVtElements aVt{{}, {1, -50, 10, 0, 0, 50}, {2, 0, 10, 0, 0, 100}, {3, 100, 10, 0, 0, 0}};
  EXPECT_THAT(Warnings::OfProfile("v", aVt, {-10, 100}), IsEmpty());
  EXPECT_THAT(Warnings::OfProfile("v", aVt, {0, 100}), ElementsAre(HasSubstr("left out: -50.000.")));
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

}  // namespace
}  // namespace vrek

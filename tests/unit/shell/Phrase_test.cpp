#include "shell/Phrase.h"

#include "support/TestApp.h"

namespace vrek {
namespace {

using PhraseTest = test::AppTest;

TEST_F(PhraseTest, PutsThePartsIntoTheTextOfTheLanguageFile) {
  WriteFile("words.lng", "#\r\nWORD = %2 vor %1, 5 %\r\n");
  EXPECT_EQ(Phrase("WORD", "%1 before %2", {"a", "%1"}), "a before %1");
  ASSERT_TRUE(Model.TokenFile.ReadFile("words.lng"));
  EXPECT_EQ(Phrase("WORD", "%1 before %2", {"a", "%1"}), "%1 vor a, 5 %");
  EXPECT_EQ(Phrase("WORD", "", {"a"}), "%2 vor a, 5 %");
  SetAppModel(nullptr);
  EXPECT_EQ(Phrase("WORD", "%1 before %2", {"a", "b"}), "a before b");
}

}  // namespace
}  // namespace vrek

#include "platform/CommandLineText.h"

#include <gtest/gtest.h>

#include <vector>

namespace vrek {
namespace {

std::string TextOf(std::vector<const char*> aArguments) {
  aArguments.insert(aArguments.begin(), "/opt/vrek/vrek");
  return CommandLineText(static_cast<int>(aArguments.size()), aArguments.data());
}

TEST(CommandLineText, JoinsTheArgumentsAndQuotesTheValues) {
  EXPECT_EQ(TextOf({}), "");
  EXPECT_EQ(TextOf({"-o", "/my files/a.xml", "-n", "Obra 1"}), R"(-o "/my files/a.xml" -n "Obra 1")");
  EXPECT_EQ(TextOf({"-o", R"("a.xml")", "-n", ""}), R"(-o "a.xml" -n "")");
  EXPECT_EQ(TextOf({"-n", R"(a"b)"}), R"(-n a"b)");
  EXPECT_EQ(TextOf({"-o", "-n", "x"}), R"(-o "-n" x)");
  EXPECT_EQ(TextOf({"-x", "a b", "-o"}), "-x a b -o");
}

}  // namespace
}  // namespace vrek

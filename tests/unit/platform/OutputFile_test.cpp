#include "platform/OutputFile.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <csignal>

#include "support/OrdinaryUser.h"
#include "unit/platform/OwnDirectory.h"

namespace vrek {
namespace {

using test::FailureOf;

class OutputFile : public test::OwnDirectory {};

TEST_F(OutputFile, HoldsAllBytesInTheirOrder) {
  std::string sExpected;
  auto pFile = CreateOutputFile(Write("out.xml", "what stood there before, longer"));
  for (std::size_t n : {1u, 1000u, 1u << 20, 3u, (1u << 20) + 1, 5'000'000u, 7u, 0u, 2u}) {
    const std::string sPiece(n, static_cast<char>('a' + n % 26));
    pFile->Write(sPiece);
    sExpected += sPiece;
  }
  pFile->Close();
  EXPECT_TRUE(Read("out.xml") == sExpected);
}

TEST_F(OutputFile, IsOnDiskAfterFlushAndAfterItsEnd) {
  auto pFile = CreateOutputFile(Path("out.xml"));
  pFile->Write("a");
  pFile->Flush();
  EXPECT_EQ(Read("out.xml"), "a");
  pFile->Write("c");
  EXPECT_EQ(Read("out.xml"), "a");
  pFile.reset();
  EXPECT_EQ(Read("out.xml"), "ac");
}

TEST_F(OutputFile, SaysWhyItCannotBeCreated) {
  Write("plain", "x");
  EXPECT_EQ(FailureOf([&] { CreateOutputFile(Path("nowhere/out.xml")); }), 76);
  EXPECT_EQ(FailureOf([&] { CreateOutputFile(Path("plain/out.xml")); }), 76);
  EXPECT_EQ(FailureOf([&] { CreateOutputFile(Path("")); }), 75);
  EXPECT_EQ(FailureOf([&] { CreateOutputFile(""); }), 75);
  EXPECT_EQ(FailureOf([&] { CreateOutputFile(Path("out.xml") + '\0'); }), 75);
}

TEST_F(OutputFile, NeedsPermission) {
  std::filesystem::permissions(Write("locked", "x"), std::filesystem::perms::owner_read);
  const test::OrdinaryUser User(Path(""));
  EXPECT_EQ(FailureOf([&] { CreateOutputFile(Path("locked")); }), 70);
}

TEST_F(OutputFile, AFullDiskIsAFailureWhereverItShows) {
  const std::string sLarge(2u << 20, 'x');
  EXPECT_EQ(FailureOf([] {
              const auto pFile = CreateOutputFile("/dev/full");
              pFile->Write("x");
              pFile->Close();
            }),
            61);
  EXPECT_EQ(FailureOf([] {
              const auto pFile = CreateOutputFile("/dev/full");
              pFile->Write("x");
              pFile->Flush();
            }),
            61);
  EXPECT_EQ(FailureOf([&] { CreateOutputFile("/dev/full")->Write(sLarge); }), 61);
  EXPECT_EQ(FailureOf([] { CreateOutputFile("/dev/full")->Write("the end of its life is quiet"); }), 0);
}

TEST_F(OutputFile, DropsWhatFailedAndTriesLaterBytesAfresh) {
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit Before{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &Before), 0);
  auto pFile = CreateOutputFile(Path("out.xml"));
  pFile->Write("first,");
  pFile->Flush();
  const rlimit Small{6, Before.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &Small);
  pFile->Write("lost,");
  const auto nFailure = FailureOf([&] { pFile->Flush(); });
  ::setrlimit(RLIMIT_FSIZE, &Before);
  EXPECT_EQ(nFailure, 75);
  pFile->Write("last");
  pFile->Close();
  EXPECT_EQ(Read("out.xml"), "first,last");
}

}  // namespace
}  // namespace vrek

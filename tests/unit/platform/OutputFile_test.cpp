#include "platform/OutputFile.h"

#include <sys/resource.h>

#include <csignal>

#include "support/OrdinaryUser.h"
#include "unit/platform/FileTest.h"

namespace vrek {
namespace {

class OutputFile : public test::FileTest {};

TEST_F(OutputFile, HoldsAllBytesInTheirOrder) {
  std::string sExpected;
  auto pFile = CreateOutputFile(WriteFile("out.xml", "what stood there before, longer"));
  for (std::size_t n : {1u, 1000u, 1u << 20, 3u, (1u << 20) + 1, 5'000'000u, 7u, 0u, 2u}) {
    const std::string sPiece(n, static_cast<char>('a' + n % 26));
    pFile->Write(sPiece);
    sExpected += sPiece;
  }
  pFile->Close();
  EXPECT_TRUE(ReadFile(Path("out.xml")) == sExpected);
}

TEST_F(OutputFile, IsOnDiskAfterFlushAndAfterItsEnd) {
  auto pFile = CreateOutputFile(Path("out.xml"));
  pFile->Write("a");
  pFile->Flush();
  EXPECT_EQ(ReadFile(Path("out.xml")), "a");
  pFile->Write("c");
  EXPECT_EQ(ReadFile(Path("out.xml")), "a");
  pFile.reset();
  EXPECT_EQ(ReadFile(Path("out.xml")), "ac");
}

TEST_F(OutputFile, SaysWhyItCannotBeCreated) {
  WriteFile("plain", "x");
  std::filesystem::permissions(WriteFile("locked", "x"), std::filesystem::perms::owner_read);
  const test::OrdinaryUser User(Directory);
  if (!User.ReachesFolder()) GTEST_SKIP() << "only root gets here";
  const std::pair<std::string, int> aCases[] = {{Path("nowhere/out.xml"), Error::nPathNotFound},
                                                {Path("plain/out.xml"), Error::nPathNotFound},
                                                {Path(""), Error::nPathFileAccess},
                                                {"", Error::nPathFileAccess},
                                                {Path("out.xml") + '\0', Error::nPathFileAccess},
                                                {Path("locked"), Error::nPermissionDenied}};
  for (const auto& [sPath, nNumber] : aCases)
    EXPECT_EQ(FailureOf([&] { CreateOutputFile(sPath); }), nNumber) << sPath;
}

TEST_F(OutputFile, AFullDiskIsAFailureWhereverItShows) {
  const auto Full = [](const std::string& sBytes, void (IOutputFile::*Finish)()) {
    return FailureOf([&] {
      const auto pFile = CreateOutputFile("/dev/full");
      pFile->Write(sBytes);
      if (Finish != nullptr) (pFile.get()->*Finish)();
    });
  };
  EXPECT_EQ(Full("x", &IOutputFile::Close), Error::nDiskFull);
  EXPECT_EQ(Full("x", &IOutputFile::Flush), Error::nDiskFull);
  EXPECT_EQ(Full(std::string(2u << 20, 'x'), nullptr), Error::nDiskFull);
  EXPECT_EQ(Full("the end of its life is quiet", nullptr), 0);
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
  EXPECT_EQ(nFailure, Error::nDiskFull);
  pFile->Write("last");
  pFile->Close();
  EXPECT_EQ(ReadFile(Path("out.xml")), "first,last");
}

}  // namespace
}  // namespace vrek

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

#include "platform/PosixPlatform.h"

namespace vrek {

std::vector<std::string> SplitCommand(std::string_view sCommand) {
  std::vector<std::string> aWords;
  bool bInWord = false, bInQuotes = false;
  for (const char c : sCommand) {
    if (c == ' ' && !bInQuotes) {
      bInWord = false;
      continue;
    }
    if (!bInWord) aWords.emplace_back();
    bInWord = true;
    if (c == '"') {
      bInQuotes = !bInQuotes;
    } else {
      aWords.back() += c;
    }
  }
  return aWords;
}

void PosixProcesses::RunAndWait(std::string_view sCommand) {
  std::vector<std::string> aWords = SplitCommand(sCommand);
  if (aWords.empty()) return;
  std::vector<char*> aArguments;
  for (std::string& sWord : aWords) aArguments.push_back(sWord.data());
  aArguments.push_back(nullptr);

  pid_t nChild = 0;
  if (::posix_spawnp(&nChild, aArguments[0], nullptr, nullptr, aArguments.data(), ::environ) != 0) return;
  while (::waitpid(nChild, nullptr, 0) < 0 && errno == EINTR) {
  }
}

}  // namespace vrek

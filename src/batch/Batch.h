// The batch command as a whole, for main and for tests.
#pragma once

#include <iosfwd>
#include <string>

namespace vrek::batch {

/// Runs the command line: documents to their files, JSON to Out, words for people to Err. Gives the exit
/// status. sProgramDirectory: where the language file stands; empty for the executable's own directory.
int RunBatch(int argc, const char* const* argv, std::ostream& Out, std::ostream& Err,
             const std::string& sProgramDirectory = {});

}  // namespace vrek::batch

// The three streams that every program is started with.
#pragma once

namespace vrek {

/// Opens /dev/null for each of standard input, output and error that whoever started the program has closed.
/// To be called first: else the document would get the number of the closed stream, and a message its place
/// in there.
void OpenClosedStandardStreams() noexcept;

}  // namespace vrek

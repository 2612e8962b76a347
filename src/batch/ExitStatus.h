// Exit status of the batch command.
#pragma once

namespace vrek::batch {

enum EExitStatus {
  eConverted = 0,   ///< the document is written (or, with check, every file is good)
  eRefused = 1,     ///< a file was refused or a check failed; nothing was written
  eUsage = 2,       ///< wrong options, a wrong job file, or an installation without its language file
  eNotWritten = 3,  ///< the document could not be written whole; an earlier one is untouched
};

/// A status in words, for a line behind the name of a job.
inline const char* InWords(int nStatus, bool bCheckOnly) {
  switch (nStatus) {
    case eConverted:
      return bCheckOnly ? "good" : "converted";
    case eRefused:
      return "refused";
    case eUsage:
      return "wrong job file";
    default:
      return "not written";
  }
}

}  // namespace vrek::batch

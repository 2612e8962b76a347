// Failures on their way to the user and the log.
#pragma once

#include <exception>
#include <new>
#include <string_view>
#include <utility>

#include "base/Failure.h"

namespace vrek {

/// Shows a failure in a message box or logs it, by its number; in a loop that CRepeatedFailures watches,
/// once. Never throws, except when the log can't be opened: then the failure of that. Without an application
/// object the text goes to stderr.
void ErrHandler(const Failure& Error);

/// Appends an error entry of two lines to the log. A log that can't be opened is a failure.
void LogError(const Failure& Error);

/// Appends a message entry of one line to the log. A log that can't be opened is a failure.
void LogMessage(std::string_view sMessage);

/// Takes progress marks of the reading and writing routines; does nothing with them.
inline void Trace(std::string_view /*sMessage*/, unsigned char /*nLevel*/ = 0) {}

/// The failure in flight, as a value; call only inside a catch block. Library exceptions become 7 or 5.
Failure CurrentFailure();

/// Runs a body that gives a value. On any failure: names sSource as the source, calls ErrHandler, gives
/// Fallback.
template <class TResult, class TBody>
TResult Guard(std::string_view sSource, TResult Fallback, TBody&& Body) {
  try {
    return Body();
  } catch (...) {
    Failure Caught = CurrentFailure();
    Caught.sSource = sSource;
    ErrHandler(Caught);
    return Fallback;
  }
}

/// The same for a body without a value.
template <class TBody>
void Guard(std::string_view sSource, TBody&& Body) {
  try {
    Body();
  } catch (...) {
    Failure Caught = CurrentFailure();
    Caught.sSource = sSource;
    ErrHandler(Caught);
  }
}

/// The last step of ErrHandler: "Unhandler Error in ...", critical icon, then the log. Never throws.
void ReportUnhandled(const Failure& Error) noexcept;

/// Runs a body at the top of the program: a failure that no routine below caught is reported as ErrHandler's
/// last step does it, under the source that it has. Gives whether the body came through.
template <class TBody>
bool TopLevel(TBody&& Body) {
  try {
    Body();
    return true;
  } catch (...) {
    ReportUnhandled(CurrentFailure());
    return false;
  }
}

}  // namespace vrek

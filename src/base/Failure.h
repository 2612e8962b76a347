// Failure: the one way to fail. Thrown by value; caught by the routine that has a failure path (see
// shell/ErrHandler.h, Guard), which names itself as the source.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vrek {

/// Numbers of failures. Those below 1000 are faults of the machine or of the arithmetic.
namespace Error {
inline constexpr std::int32_t nInvalidCall = 5;  ///< "Invalid procedure call or argument"; also "no number"
inline constexpr std::int32_t nOverflow = 6;     ///< a number too large
inline constexpr std::int32_t nOutOfMemory = 7;
inline constexpr std::int32_t nSubscript = 9;  ///< a subscript outside an array
inline constexpr std::int32_t nDivisionByZero = 11;
inline constexpr std::int32_t nTypeMismatch = 13;  ///< text where a number must stand
inline constexpr std::int32_t nFileNotFound = 53;
inline constexpr std::int32_t nDiskFull = 61;
inline constexpr std::int32_t nInputPastEnd = 62;  ///< reading past the end of a file
inline constexpr std::int32_t nPermissionDenied = 70;
inline constexpr std::int32_t nPathFileAccess = 75;   ///< any other trouble with a path
inline constexpr std::int32_t nPathNotFound = 76;     ///< the folder isn't there
inline constexpr std::int32_t nObjectNotSet = 91;     ///< a missing XML attribute
inline constexpr std::int32_t nUserCancelled = 2222;  ///< Cancel during the export of cross-sections
inline constexpr std::int32_t nNotAllFilled = 10000;  ///< reserved
inline constexpr std::int32_t nSameName = 10001;      ///< reserved
inline constexpr std::int32_t nXmlElementMissing = 10002;
inline constexpr std::int32_t nXmlUnreadable = 10003;  ///< the description is the parser's reason
inline constexpr std::int32_t nNotTheExpectedFile = 10011;
inline constexpr std::int32_t nAssertion =
    20000;  ///< a state that must not occur, or data that are not there
inline constexpr std::int32_t nCantContent = 20001;
inline constexpr std::int32_t nCantVersion = 20002;
inline constexpr std::int32_t nFilesPage = 30000;  ///< private to the Files page; never reported
}  // namespace Error

/// What a routine throws. All texts UTF-8. An empty source is filled by the routine that catches.
struct Failure {
  std::int32_t nNumber = Error::nInvalidCall;
  std::string sDescription;
  std::string sSource;
};

/// The standing description of a fault of the machine, such as "Division by zero" for 11; the text of 5
/// for a number without one of its own.
std::string_view StandardDescription(std::int32_t nNumber);

/// Throws a Failure with the standing description of its number.
[[noreturn]] void Raise(std::int32_t nNumber);

/// Throws a Failure with its own description and, where given, source.
[[noreturn]] void Raise(std::int32_t nNumber, std::string_view sDescription, std::string_view sSource = {});

}  // namespace vrek

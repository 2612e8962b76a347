#include "shell/ErrHandler.h"

#include <fcntl.h>

#include <cstdio>
#include <ctime>
#include <stdexcept>
#include <string>

#include "base/CodePage.h"
#include "base/Configuration.h"
#include "platform/Descriptor.h"
#include "shell/AppModel.h"
#include "shell/RepeatedFailures.h"
#include "shell/Services.h"

namespace vrek {
namespace {

/// The token of a failure that the user reads about in his own language; empty for all others.
std::string_view TokenOf(std::int32_t nNumber) {
  switch (nNumber) {
    case Error::nNotAllFilled:
      return "E_NOTFILLALL";
    case Error::nSameName:
      return "E_SAMENAME";
    case Error::nXmlElementMissing:
      return "E_NOTFINDXMLELM";
    case Error::nXmlUnreadable:
      return "E_OPENLANDXML";
    case Error::nNotTheExpectedFile:
      return "E_NOVALIDFILE";
    case Error::nCantContent:
      return "E_FILE_SUPER";
    case Error::nCantVersion:
      return "E_FILE_SUPER_VER";
    default:
      return {};
  }
}

void ShowBox(std::string_view sText, EIcon eIcon) {
  AppModel().Platform().pDialogs->MessageBox(sText, eIcon);
}

std::string TokenText(const Failure& Error, std::string_view sToken) {
  std::string sText = AppModel().GetToken(sToken);
  if (Error.nNumber == Error::nXmlUnreadable) sText += "\r\n" + Error.sDescription;
  return sText;
}

std::string Located(std::string_view sIntroduction, const Failure& Error) {
  return std::string(sIntroduction) + Error.sSource + "\r\n" + Error.sDescription;
}

void HandleAssertion(const Failure& Error) {
  if (AppModel().DebugMode) {
    ShowBox(Located("ASSERT in ", Error), EIcon::eWarning);
  } else {
    LogError(Error);
  }
}

/// "==== 11-18-2026  09:15:02 ====", local time.
std::string HeaderLine() {
  const std::tm Now = AppModel().Platform().pClock->Now();
  char aText[64];
  const std::size_t nLength = std::strftime(aText, sizeof aText, "==== %m-%d-%Y  %H:%M:%S ====", &Now);
  return {aText, nLength};
}

/// Each entry opens and closes the file, and goes out in one piece, so that a crash loses nothing already
/// written and two converters don't mix their lines.
void AppendToLog(std::string_view sEntry) {
  const std::string sPath = GetTempDirectory() + std::string(Configuration::sLogFile);
  const std::string sBytes = CodePage::FromUtf8(sEntry);
  // Without waiting for whoever would read a pipe of this name.
  const int nFlags = O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK;
  const Descriptor File(::open(sPath.c_str(), nFlags, 0666));
  if (File.Get() < 0) Raise(FailureNumber(errno));
  const ssize_t nWritten = ::write(File.Get(), sBytes.data(), sBytes.size());
  if (nWritten < 0) Raise(FailureNumber(errno));
  if (static_cast<std::size_t>(nWritten) != sBytes.size()) Raise(Error::nDiskFull);
}

void TellLogged(const std::string& sText) {
  if (AppModel().OnLogged) AppModel().OnLogged(sText);
}

/// For a failure before there is an application object, or when even its box or log fails.
void PrintLastResort(const Failure& Error) noexcept {
  std::fprintf(stderr, "Unhandler Error in %s\n%s\n", Error.sSource.c_str(), Error.sDescription.c_str());
}

}  // namespace

void ErrHandler(const Failure& Error) {
  if (!CRepeatedFailures::IsNews(Error)) return;
  if (!HasAppModel()) {
    PrintLastResort(Error);
  } else if (const std::string_view sToken = TokenOf(Error.nNumber); !sToken.empty()) {
    ShowBox(TokenText(Error, sToken), EIcon::eWarning);
  } else if (Error.nNumber == Error::nAssertion) {
    HandleAssertion(Error);
  } else {
    ShowBox(Located("Unhandler Error in ", Error), EIcon::eCritical);
    LogError(Error);
  }
}

void LogError(const Failure& Error) {
  const std::string sLine =
      "Error: " + std::to_string(Error.nNumber) + " " + Error.sDescription + " in " + Error.sSource;
  TellLogged(sLine);
  AppendToLog(HeaderLine() + "\r\n" + sLine + "\r\n");
  Trace(sLine);
}

void LogMessage(std::string_view sMessage) {
  const std::string sLine = "Msg " + std::string(sMessage);
  TellLogged(sLine);
  AppendToLog(sLine + "\r\n");
}

Failure CurrentFailure() {
  try {
    throw;
  } catch (const Failure& Caught) {
    return Caught;
  } catch (const std::bad_alloc&) {
    return {Error::nOutOfMemory, std::string(StandardDescription(Error::nOutOfMemory)), {}};
  } catch (const std::length_error&) {
    return {Error::nOutOfMemory, std::string(StandardDescription(Error::nOutOfMemory)), {}};
  } catch (...) {
    return {Error::nInvalidCall, std::string(StandardDescription(Error::nInvalidCall)), {}};
  }
}

void ReportUnhandled(const Failure& Error) noexcept {
  try {
    ShowBox(Located("Unhandler Error in ", Error), EIcon::eCritical);
  } catch (...) {
    PrintLastResort(Error);
  }
  try {
    LogError(Error);
  } catch (...) {
    // The user has been told above; there is nobody left to report to.
  }
}

}  // namespace vrek

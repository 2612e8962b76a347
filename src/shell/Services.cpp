#include "shell/Services.h"

#include "shell/AppModel.h"
#include "shell/ErrHandler.h"

namespace vrek {

std::string GetTempDirectory() {
  return AppModel().Platform().pEnvironment->TempDirectory();
}

std::string GetCurrentUserName() {
  return AppModel().Platform().pEnvironment->UserName();
}

bool ExistFile(const std::string& sFilename) {
  return CanOpenForReading(sFilename);
}

std::string SiblingProgram(std::string_view sName) {
  const auto sPath = AppModel().Platform().pEnvironment->ProgramDirectory() + "/" + std::string(sName);
  return sPath.find(' ') == sPath.npos ? sPath : "\"" + sPath + "\"";
}

void ShellAndWait(std::string_view sCommand) {
  AppModel().Platform().pProcesses->RunAndWait(sCommand);
}

CTextFile OpenTextFile(const std::string& sPath) {
  CTextFile File(sPath);
  if (File.EndsLinesWithLf()) {
    try {
      LogMessage(sPath + " ends its lines with LF; they are read as such.");
    } catch (const Failure&) {
      // The note is a courtesy: a log that can't be written doesn't make the file unreadable.
    }
  }
  return File;
}

}  // namespace vrek

// The few services of the platform that the program reaches through the application object.
#pragma once

#include <string>
#include <string_view>

#include "platform/TextFile.h"

namespace vrek {

/// The temporary directory with its closing separator; empty when there is none.
std::string GetTempDirectory();

/// The name of the user logged on; empty if there is none.
std::string GetCurrentUserName();

/// True when the file can be opened for reading; false for a folder or an empty name. No failure.
bool ExistFile(const std::string& sFilename);

/// How a command line names a program that is installed beside this one: its path, in quotes where that holds
/// a blank.
std::string SiblingProgram(std::string_view sName);

/// Runs a command line and waits for its end. Whether it could be started isn't looked at.
void ShellAndWait(std::string_view sCommand);

/// Opens a listing, tunnel or language file. One whose lines end with LF alone is noted in the log.
CTextFile OpenTextFile(const std::string& sPath);

}  // namespace vrek

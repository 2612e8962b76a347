// What the program needs of its surroundings, each behind a small interface: a window front, the batch
// command and the tests put their own in. All texts are UTF-8.
#pragma once

#include <ctime>
#include <memory>
#include <string>
#include <string_view>

#include "platform/OutputFile.h"

namespace vrek {

enum class EIcon { eWarning, eCritical };

/// Message boxes and file dialogs.
class IDialogs {
 public:
  virtual ~IDialogs() = default;
  /// Shows a text with an OK button and waits for it.
  virtual void MessageBox(std::string_view sText, EIcon eIcon) = 0;
  /// Filter: descriptions and patterns separated by bars, "(*.PLT;*.RTF)|*.plt;*.rtf|(*.*)|*.*". "" when
  /// dismissed.
  virtual std::string OpenFile(std::string_view sFilter) = 0;
  virtual std::string SaveFile(std::string_view sFilter, std::string_view sFilename) = 0;
};

/// Local time.
class IClock {
 public:
  virtual ~IClock() = default;
  virtual std::tm Now() const = 0;
  /// What the document bears.
  virtual std::tm DocumentTime() const { return Now(); }
};

/// Who runs the program, and where.
class IEnvironment {
 public:
  virtual ~IEnvironment() = default;
  virtual std::string UserName() const = 0;  ///< empty if there is none
  virtual std::string ProgramDirectory()
      const = 0;  ///< of the executable, links resolved, without a closing separator
  virtual std::string TempDirectory() const = 0;  ///< with its closing separator, or empty
};

/// Per-user settings: application, section, key to text.
class ISettingsStore {
 public:
  virtual ~ISettingsStore() = default;
  virtual std::string Read(std::string_view sApplication, std::string_view sSection, std::string_view sKey,
                           std::string_view sDefault) = 0;
  /// Creates what doesn't exist. A store that can't be written is a failure.
  virtual void Write(std::string_view sApplication, std::string_view sSection, std::string_view sKey,
                     std::string_view sText) = 0;
};

/// Sibling programs.
class IProcesses {
 public:
  virtual ~IProcesses() = default;
  /// Starts a command line, split at blanks (double quotes hold a word together), never through a shell, and
  /// waits for its end. A program that can't be started is passed over without a word.
  virtual void RunAndWait(std::string_view sCommand) = 0;
};

/// The window's event loop.
class IEvents {
 public:
  virtual ~IEvents() = default;
  virtual void ProcessMessages() = 0;
  virtual void WaitPointer(bool bShow) = 0;
};

/// Where output documents go.
class IOutputFiles {
 public:
  virtual ~IOutputFiles() = default;
  /// Creates or truncates a file. Failures: 70, 75, 76, 61.
  virtual std::unique_ptr<IOutputFile> Create(const std::string& sPath) = 0;
};

/// One of each. The caller owns them and keeps them alive for the run.
struct TPlatform {
  IDialogs* pDialogs = nullptr;
  IClock* pClock = nullptr;
  IEnvironment* pEnvironment = nullptr;
  ISettingsStore* pSettings = nullptr;
  IProcesses* pProcesses = nullptr;
  IEvents* pEvents = nullptr;
  IOutputFiles* pOutputFiles = nullptr;
};

}  // namespace vrek

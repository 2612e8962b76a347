// The user's settings, one readable file for each application: $XDG_CONFIG_HOME/<Application>/settings.ini,
// or below ~/.config. Written whole and renamed into place, one writer at a time, so that converters that
// save at once lose nothing.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "platform/Platform.h"

namespace vrek {

class IniSettings final : public ISettingsStore {
 public:
  /// Folder: the one that holds the folders of the applications.
  explicit IniSettings(std::filesystem::path Folder = UserFolder()) : m_Folder(std::move(Folder)) {}

  /// A file that isn't there or can't be read gives the default.
  std::string Read(std::string_view sApplication, std::string_view sSection, std::string_view sKey,
                   std::string_view sDefault) override;

  /// Failures: 70, 75, 76, 61; the file is then as it was.
  void Write(std::string_view sApplication, std::string_view sSection, std::string_view sKey,
             std::string_view sText) override;

  /// $XDG_CONFIG_HOME where it is an absolute path, else ~/.config; empty for a user without a home.
  static std::filesystem::path UserFolder();

 private:
  std::filesystem::path FileOf(std::string_view sApplication) const;

  std::filesystem::path m_Folder;
};

}  // namespace vrek

// AppModel: the one object that carries what the whole run shares.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Platform.h"
#include "shell/LanguageFile.h"

namespace vrek {

/// The identity of this converter.
struct CConverterInfo {
  int eType = 0;
  std::string sName;
  std::string sDescription;
  int nFormatsSupport = 0;  ///< jobs on offer: 1 road, 2 tunnel, 4 rail
  std::string sVersion;     ///< reserved, never set
  int nJobTypesNumber = 0;  ///< how many job types are offered
};

/// The identity with the jobs of a mask: bits 1 and 2 offer one job each, bit 4 two.
CConverterInfo MakeConverterInfo(int nFormatsSupport);

/// Kinds of input the wizard asks for, bits of nFilesToRead.
namespace FilesToRead {
inline constexpr int nHorizontal = 1, nVertical = 2, nCrossSections = 4, nStringLinesOfSlot1 = 8,
                     nStringLinesOfSlot3 = 32;
}

/// The details of the current conversion.
struct CConversionInfo {
  std::string sJobName;  ///< given by -n; empty when none was given
  std::string sCreator;  ///< given by a script; empty: the user's name
  int nFilesToRead = 0;
  bool bExportOnce = false;  ///< nobody exports again: the imported cross-sections may be used up

  /// Who is named as the document's author.
  std::string GetCreator() const;
  /// sJobName, or the base name of the output file.
  std::string GetRoadDataName() const;
};

class clsAppModel {
 public:
  explicit clsAppModel(TPlatform Platform) : m_Platform(Platform) {}

  const TPlatform& Platform() const { return m_Platform; }

  /// The display text of a token; the token itself when the language file has none.
  std::string GetToken(std::string_view sToken) const { return TokenFile.GetToken(sToken); }

  std::string XmlFileToExport;  ///< full path of the output file
  bool DebugMode = false;       ///< true on a stand-alone run
  CConverterInfo ConverterInfo;
  CConversionInfo ConversionInfo;
  clsLanguageFile TokenFile;
  std::function<void(std::string_view)> OnLogged;  ///< told of each log entry, for the batch command

 private:
  TPlatform m_Platform;
};

/// The object of the run. Before SetAppModel: failure 91.
clsAppModel& AppModel();

/// Whether there is one.
bool HasAppModel();

/// Puts an object in place (nullptr takes it away); gives the one before. The caller owns it.
clsAppModel* SetAppModel(clsAppModel* pModel);

}  // namespace vrek

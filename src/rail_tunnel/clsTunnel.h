// clsTunnel: the profiles of a bore. Their text passes through to the output; only their chainages are looked
// at.
#pragma once

#include <string>
#include <vector>

#include "base/NotGiven.h"

namespace vrek {

class clsTunnel {
 public:
  /// Reads a tunnel file. Failures are reported with the source "clsTunnel.Load" and give false.
  bool Load(const std::string& sFilename);

  /// First and last chainage. Without profiles: failure 9.
  double GetChainageStart() const;
  double GetChainageEnd() const;
  std::vector<double> GetChainages() const { return m_aChainages; }

  /// Whether the text leaves the document around it well-formed; nothing refuses it if not.
  bool IsWellFormed() const;

  /// Writes the file's text as one line. Limits have no effect. Failures are reported, and give false.
  bool ExportToLandXml(double& rChainageStart, double& rChainageEnd, double dChStart = dNotGiven,
                       double dChEnd = dNotGiven) const;

 private:
  std::vector<double> m_aChainages;  // from 0, rising
  std::string m_sXml;                // the file's lines joined, without the declaration; UTF-8 inside
};

}  // namespace vrek

// What a long routine reports to: the progress panel, or nothing.
#pragma once

#include <string_view>

namespace vrek {

class IProgress {
 public:
  virtual ~IProgress() = default;
  virtual void Tittle(std::string_view sText) = 0;
  virtual void Info(std::string_view sText) = 0;
  virtual void ShowCancel(bool bShow) = 0;
  virtual void ShowProgressBar(bool bShow) = 0;
  virtual void SetRanges(double dMin, double dMax) = 0;
  virtual void SetValue(double dValue) = 0;
  virtual bool CancelPressed() const = 0;
  virtual void Reset() = 0;
};

/// For callers that show nothing and can't be cancelled.
class NoProgress final : public IProgress {
 public:
  void Tittle(std::string_view) override {}
  void Info(std::string_view) override {}
  void ShowCancel(bool) override {}
  void ShowProgressBar(bool) override {}
  void SetRanges(double, double) override {}
  void SetValue(double) override {}
  bool CancelPressed() const override { return false; }
  void Reset() override {}
};

}  // namespace vrek

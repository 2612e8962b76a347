// What a long routine reports to: the progress panel, or nothing.
#pragma once

#include <string_view>

namespace vrek {

class IProgress {
 public:
  virtual ~IProgress() = default;
  /// What the work is, UTF-8; stays until the next one.
  virtual void Tittle(std::string_view sText) = 0;
  /// What it does just now, UTF-8.
  virtual void Info(std::string_view sText) = 0;
  virtual void ShowCancel(bool bShow) = 0;
  virtual void ShowProgressBar(bool bShow) = 0;
  /// The range that the bar stands for.
  virtual void SetRanges(double dMin, double dMax) = 0;
  /// How far it is, counted from 0 whatever the range began with. Cheap enough for each turn of a loop.
  virtual void SetValue(double dValue) = 0;
  /// Whether the user has asked to stop, since the last Reset.
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

// Dialogs and events for a run without a screen.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Platform.h"

namespace vrek {

/// Hands each message box to a callback instead of waiting for an answer; every file dialog is dismissed.
class HeadlessDialogs final : public IDialogs {
 public:
  using TOnMessage = std::function<void(std::string_view sText, EIcon eIcon)>;
  explicit HeadlessDialogs(TOnMessage OnMessage) : m_OnMessage(std::move(OnMessage)) {}

  void MessageBox(std::string_view sText, EIcon eIcon) override {
    if (m_OnMessage) m_OnMessage(sText, eIcon);
  }
  std::string OpenFile(std::string_view) override { return {}; }
  std::string SaveFile(std::string_view, std::string_view) override { return {}; }

 private:
  TOnMessage m_OnMessage;
};

/// No event loop, no pointer.
class NoEvents final : public IEvents {
 public:
  void ProcessMessages() override {}
  void WaitPointer(bool) override {}
};

}  // namespace vrek

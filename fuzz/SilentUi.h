#pragma once

#include "UserInterface.h"

namespace folionet::fuzz {

// Nobody is there: nothing is shown and nothing answered.
class SilentUi : public UserInterface {
 public:
  void ShowMessage(const Message& message) override { m_length += message.text.size(); }
  bool AskYesNo(const std::string& /*title*/, const std::string& /*text*/) override { return false; }
  std::optional<std::string> AskText(const InputBox& /*box*/) override { return std::nullopt; }
  void ShowErrorReport(const ErrorReport& report) override { m_length += report.extraInfo.size(); }
  void SetPanel(int /*panel*/, std::string_view text) override { m_length += text.size(); }

 private:
  std::size_t m_length = 0;
};

}  // namespace folionet::fuzz

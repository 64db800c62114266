#pragma once

#include <functional>
#include <string>
#include <vector>

#include "colormodel/MessageBox.h"

namespace lumo::testing {

// Records every message instead of showing it. `WhileShown` runs inside the modal
// box, to model events that arrive while it is open.
class RecordingMessageBox : public MessageBox {
 public:
  struct Message {
    std::string Prompt;
    std::int32_t Style;
    std::string Title;
  };

  std::int32_t MsgBox(const std::string& prompt, std::int32_t style, const std::string& title) override {
    Shown.push_back({prompt, style, title});
    if (WhileShown) WhileShown();
    return 1;
  }

  std::vector<std::string> Prompts() const {
    std::vector<std::string> prompts;
    for (const Message& m : Shown) prompts.push_back(m.Prompt);
    return prompts;
  }

  std::vector<Message> Shown;
  std::function<void()> WhileShown;
};

}  // namespace lumo::testing

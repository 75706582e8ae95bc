#pragma once

#include <iostream>
#include <string>
#include <vector>

#include "surface/IDialogs.h"

namespace qv {

// Message boxes of a headless run: the text is kept for the caller to print on standard
// error, and a question gets its default answer, No.
class CliDialogs : public IDialogs {
 public:
  Answer MsgBox(const std::string& text, MsgStyle style, const std::string& /*title*/) override {
    messages.push_back(text);
    return style == MsgStyle::YesNoStop || style == MsgStyle::YesNoQuestion ? questionAnswer : Answer::Ok;
  }
  // Prints and forgets what was shown.
  void Flush() {
    for (const auto& m : messages) std::cerr << "quorvale-cli: " << m << "\n";
    messages.clear();
  }
  std::vector<std::string> messages;
  Answer questionAnswer = Answer::No;  // a command that confirms by itself sets Yes
};

}  // namespace qv

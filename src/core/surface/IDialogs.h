#pragma once

#include <string>

namespace qv {

enum class MsgStyle { Plain, Information, Stop, YesNoStop, YesNoQuestion };
enum class Answer { Ok, Yes, No };

// Message boxes. The program's boxes bear its name as their title.
class IDialogs {
 public:
  virtual ~IDialogs() = default;
  virtual Answer MsgBox(const std::string& text, MsgStyle style, const std::string& title) = 0;
};

}  // namespace qv

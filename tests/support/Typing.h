#pragma once

#include <QStringList>

#include "InputAsker.h"

namespace qv::test {

// Answers the input boxes from a queue, as a user would type (Cancel once it is empty), and
// keeps the title and prompt of each box asked.
struct Typing {
  explicit Typing(QStringList answers = {}) : next(std::move(answers)) {
    MainInputAsker() = [this](QWidget*, const InputRequest& r) {
      titles << r.title;
      prompts << r.prompt;
      return next.isEmpty() ? QString() : next.takeFirst();
    };
  }
  ~Typing() { MainInputAsker() = AskWithInputDialog; }
  QStringList next, titles, prompts;
};

}  // namespace qv::test

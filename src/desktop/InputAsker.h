#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace qv {

// What the program asks in an input box: its title, the question and the text proposed.
struct InputRequest {
  QString title;
  QString prompt;
  QString text;
};
// The text given, or an empty text for Cancel (which a caller takes as "no name").
using InputAsker = std::function<QString(QWidget* parent, const InputRequest&)>;

// Qt's input box, modal over the parent.
QString AskWithInputDialog(QWidget* parent, const InputRequest& request);
// The asker every dialog of the program uses; tests answer it themselves.
InputAsker& MainInputAsker();

}  // namespace qv

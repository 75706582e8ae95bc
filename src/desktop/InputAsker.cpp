#include "InputAsker.h"

#include <QInputDialog>

namespace qv {

QString AskWithInputDialog(QWidget* parent, const InputRequest& request) {
  bool ok = false;
  const QString text = QInputDialog::getText(parent, request.title, request.prompt, QLineEdit::Normal, request.text, &ok);
  return ok ? text : QString();
}

InputAsker& MainInputAsker() {
  static InputAsker asker = AskWithInputDialog;
  return asker;
}

}  // namespace qv

#include "QtMessageBoxes.h"

#include <QMessageBox>

namespace qv {

Answer QtMessageBoxes::MsgBox(const std::string& text, MsgStyle style, const std::string& title) {
  const QString caption = QString::fromStdString(title), body = QString::fromStdString(text);
  switch (style) {
    case MsgStyle::YesNoStop:
      return QMessageBox::critical(parent_, caption, body, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
                     QMessageBox::Yes
                 ? Answer::Yes
                 : Answer::No;
    case MsgStyle::YesNoQuestion:
      return QMessageBox::question(parent_, caption, body, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
                     QMessageBox::Yes
                 ? Answer::Yes
                 : Answer::No;
    case MsgStyle::Stop: QMessageBox::critical(parent_, caption, body); break;
    case MsgStyle::Information: QMessageBox::information(parent_, caption, body); break;
    case MsgStyle::Plain: {
      QMessageBox box(QMessageBox::NoIcon, caption, body, QMessageBox::Ok, parent_);
      box.exec();
      break;
    }
  }
  return Answer::Ok;
}

}  // namespace qv

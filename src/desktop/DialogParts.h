#pragma once

#include <QStringList>

class QDialog;
class QHBoxLayout;
class QPushButton;
class QTreeWidget;

namespace qv {

// Pieces the program's dialogs share.

// A button named as its control, which Enter does not press unless it is the default.
QPushButton* NamedButton(const char* name, const char* text);
// Each column as wide as its widest text and a gap, so texts are never cut and never touch;
// the first column stretches over what is left.
void FitColumns(QTreeWidget* list);
// A list of rows under column headings, the program's way: no tree lines, rows of one
// height, the whole row marked.
QTreeWidget* NewRowList(const char* name, const QStringList& columns);
// The row at the foot of a dialog: its default "Close" button, on the right, accepting it.
QHBoxLayout* CloseRow(QDialog* dialog);

}  // namespace qv

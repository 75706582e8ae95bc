#pragma once

class QPushButton;
class QTreeWidget;

namespace qv {

// Pieces the program's dialogs share.

// A button named as its control, which Enter does not press unless it is the default.
QPushButton* NamedButton(const char* name, const char* text);
// Each column after the first as wide as its widest text and a gap, so texts never touch.
void FitColumns(QTreeWidget* list);

}  // namespace qv

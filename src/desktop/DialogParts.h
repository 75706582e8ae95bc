#pragma once

class QPushButton;
class QTreeWidget;

namespace qv {

// Pieces the program's dialogs share.

// A button named as its control, which Enter does not press unless it is the default.
QPushButton* NamedButton(const char* name, const char* text);
// Each column as wide as its widest text and a gap, so texts are never cut and never touch;
// the first column stretches over what is left.
void FitColumns(QTreeWidget* list);

}  // namespace qv

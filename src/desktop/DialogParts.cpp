#include "DialogParts.h"

#include <QPushButton>
#include <QTreeWidget>

namespace qv {

QPushButton* NamedButton(const char* name, const char* text) {
  auto* b = new QPushButton(text);
  b->setObjectName(name);
  b->setAutoDefault(false);
  return b;
}

void FitColumns(QTreeWidget* list) {
  for (int c = 1; c < list->columnCount(); ++c) {
    list->resizeColumnToContents(c);
    list->setColumnWidth(c, list->columnWidth(c) + 16);
  }
}

}  // namespace qv

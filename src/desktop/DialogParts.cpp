#include "DialogParts.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTreeWidget>
#include <algorithm>

namespace qv {

QPushButton* NamedButton(const char* name, const char* text) {
  auto* b = new QPushButton(text);
  b->setObjectName(name);
  b->setAutoDefault(false);
  return b;
}

void FitColumns(QTreeWidget* list) {
  constexpr int kGap = 16;
  int width = std::max(static_cast<const QAbstractItemView*>(list)->sizeHintForColumn(0), list->header()->sectionSizeHint(0)) + kGap;
  for (int c = 1; c < list->columnCount(); ++c) {
    list->resizeColumnToContents(c);
    list->setColumnWidth(c, list->columnWidth(c) + kGap);
    width += list->columnWidth(c);
  }
  // The first column takes the room left: the list is made wide enough for its longest
  // name too, within the screen.
  width += 2 * list->frameWidth() + list->verticalScrollBar()->sizeHint().width();
  list->setMinimumWidth(std::min(width, list->screen()->availableGeometry().width() * 4 / 5));
}

QTreeWidget* NewRowList(const char* name, const QStringList& columns) {
  auto* list = new QTreeWidget;
  list->setObjectName(name);
  list->setHeaderLabels(columns);
  list->setRootIsDecorated(false);
  list->setUniformRowHeights(true);
  list->setAllColumnsShowFocus(true);
  return list;
}

QHBoxLayout* CloseRow(QDialog* dialog) {
  auto* close = NamedButton("cmdClose", "Close");
  close->setDefault(true);
  QObject::connect(close, &QPushButton::clicked, dialog, &QDialog::accept);
  auto* row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(close);
  return row;
}

}  // namespace qv

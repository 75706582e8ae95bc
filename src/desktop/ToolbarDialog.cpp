#include "ToolbarDialog.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "CardPainter.h"
#include "MainWindow.h"
#include "session/CommandTable.h"
#include "session/Commands.h"
#include "session/Program.h"

namespace qv {

ToolbarDialog::ToolbarDialog(MainWindow& main) : QDialog(&main), main_(main), list_(new QListWidget) {
  setWindowTitle("Customize Toolbar");
  setModal(true);

  list_->setObjectName("lvTool");
  list_->setIconSize(QSize(24, 24));
  list_->setUniformItemSizes(true);
  list_->setSpacing(1);
  for (int id = 1; id <= kToolbarButtons; ++id) {
    const ToolbarButtonDef& b = ToolbarButton(id);
    auto* item = new QListWidgetItem(CommandIcon(QString::fromUtf8(b.key)), QString::fromUtf8(b.caption), list_);
    item->setData(Qt::UserRole, QString::fromUtf8(b.key));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
  }
  LoadChecks();
  connect(list_, &QListWidget::itemChanged, this, &ToolbarDialog::CheckChanged);

  auto* defaults = new QPushButton("Load Defaults");
  defaults->setObjectName("cmdDefault");
  auto* selectAll = new QPushButton("Select All");
  selectAll->setObjectName("cmdSelectAll");
  auto* close = new QPushButton("Close");
  close->setObjectName("Command1");
  close->setDefault(true);
  connect(defaults, &QPushButton::clicked, this, &ToolbarDialog::LoadDefaults);
  connect(selectAll, &QPushButton::clicked, this, &ToolbarDialog::SelectAll);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);

  auto* buttons = new QVBoxLayout;
  buttons->addWidget(defaults);
  buttons->addWidget(selectAll);
  buttons->addStretch();
  buttons->addWidget(close);
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(list_, 1);
  layout->addLayout(buttons);
  resize(400, 480);

  main_.app().cSound.Toolbar();
}

void ToolbarDialog::LoadChecks() {
  loading_ = true;
  for (int row = 0; row < list_->count(); ++row)
    list_->item(row)->setCheckState(ButtonShown(main_.app().cRegistry, row + 1) ? Qt::Checked : Qt::Unchecked);
  loading_ = false;
}

void ToolbarDialog::CheckChanged(QListWidgetItem* item) {
  if (loading_) return;
  SetButtonShown(main_.app().cRegistry, item->data(Qt::UserRole).toString().toStdString(),
                 item->checkState() == Qt::Checked);
  // Read back, so a write the settings refused does not leave a check that is not kept.
  LoadChecks();
  main_.RefreshToolbar();
}

void ToolbarDialog::LoadDefaults() {
  for (int id = 1; id <= kToolbarButtons; ++id) {
    const ToolbarButtonDef& b = ToolbarButton(id);
    SetButtonShown(main_.app().cRegistry, b.key, b.fallback == 1);
  }
  LoadChecks();
  main_.RefreshToolbar();
}

void ToolbarDialog::SelectAll() {
  for (int id = 1; id <= kToolbarButtons; ++id) SetButtonShown(main_.app().cRegistry, ToolbarButton(id).key, true);
  LoadChecks();
  main_.RefreshToolbar();
}

}  // namespace qv

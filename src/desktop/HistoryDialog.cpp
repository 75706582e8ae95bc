#include "HistoryDialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>
#include <filesystem>

#include "DialogParts.h"
#include "JournalModel.h"
#include "session/HistoryReport.h"
#include "session/Program.h"
#include "settings/Settings.h"

namespace qv {

HistoryDialog::HistoryDialog(Program& app, const FileChooser& choose, QWidget* parent)
    : QDialog(parent),
      app_(app),
      choose_(choose),
      model_(new JournalModel(app, JournalModel::Kind::History, this)),
      list_(new QTreeView) {
  setObjectName("frmHistory");
  setWindowTitle("Game History");
  setModal(true);
  list_->setObjectName("lvHistory");
  list_->setModel(model_);
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAllColumnsShowFocus(true);
  list_->setSelectionMode(QAbstractItemView::NoSelection);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  const QFontMetrics fm(list_->font());
  list_->header()->resizeSection(0, fm.horizontalAdvance("00000") + 16);
  list_->header()->resizeSection(1, fm.horizontalAdvance("Foundation (Pile 00, Card 000)") + 16);
  list_->header()->resizeSection(2, fm.horizontalAdvance("Foundation (Pile 00, Card 000)") + 16);
  list_->header()->resizeSection(3, fm.horizontalAdvance("Cards") + 24);

  // The record on the table when the window opens is bold; the undone ones above it olive.
  const int current = app_.cEngine.GetTransID();
  model_->SetCurrent(current);
  model_->SetMarked(current - 1);
  // Once the list has its size, the bold row stands in its middle.
  if (current > 0)
    QTimer::singleShot(0, list_, [this, current] {
      list_->scrollTo(model_->index(current - 1, 0), QAbstractItemView::PositionAtCenter);
    });

  auto* exportButton = NamedButton("cmdExport", "Export");
  auto* close = NamedButton("cmdClose", "Close");
  close->setDefault(true);
  connect(exportButton, &QPushButton::clicked, this, &HistoryDialog::Export);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(exportButton);
  buttons->addWidget(close);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(list_, 1);
  layout->addLayout(buttons);
  resize(list_->header()->length() + 48, 420);
  app_.cSound.History();
}

void HistoryDialog::Export() {
  const auto& gp = app_.cGamePlay;
  FileRequest request;
  request.save = true;
  request.caption = "Export Game History";
  request.folder = QString::fromStdString(SaveInitDir(app_));
  request.fileName = QString::fromStdString(gp.GameName() + "-" + gp.GameNo().Text() + ".txt");
  request.filters = {" Game History (*.txt)"};
  request.defaultSuffix = "txt";
  const std::string path = choose_(this, request).toStdString();
  std::error_code ec;
  // A cancelled dialog, or a folder that is not there, writes nothing and says nothing.
  if (path.empty() || !std::filesystem::is_directory(std::filesystem::path(path).parent_path(), ec)) return;
  std::string error;
  if (ExportHistory(app_, path, &error)) {
    app_.MsgBox("Successfully Exported", MsgStyle::Information);
    return;
  }
  app_.MsgBox("The game history could not be exported to \"" + path + "\": " + error + ".", MsgStyle::Stop);
}

}  // namespace qv

#include "SoundsDialog.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "DialogParts.h"
#include "FileCommands.h"
#include "session/Program.h"

namespace qv {

namespace {

QIcon Mark(bool set) {
  QPixmap p(32, 32);
  p.fill(Qt::transparent);
  QPainter g(&p);
  g.setRenderHint(QPainter::Antialiasing);
  const QColor ink = set ? QColor(30, 110, 60) : QColor(150, 150, 150);
  g.setPen(Qt::NoPen);
  g.setBrush(ink);
  // A loudspeaker; waves beside it when a sound is set, a stroke through it when none.
  g.drawPolygon(QPolygonF({QPointF(4, 12), QPointF(10, 12), QPointF(17, 5), QPointF(17, 27), QPointF(10, 20), QPointF(4, 20)}));
  g.setBrush(Qt::NoBrush);
  g.setPen(QPen(ink, 2.4, Qt::SolidLine, Qt::RoundCap));
  if (set) {
    g.drawArc(QRectF(14, 9, 10, 14), -50 * 16, 100 * 16);
    g.drawArc(QRectF(14, 4, 16, 24), -50 * 16, 100 * 16);
  } else {
    g.drawLine(QPointF(21, 11), QPointF(29, 21));
    g.drawLine(QPointF(29, 11), QPointF(21, 21));
  }
  return QIcon(p);
}

}  // namespace

QIcon SoundsDialog::SetMark() {
  static const QIcon icon = Mark(true);
  return icon;
}
QIcon SoundsDialog::UnsetMark() {
  static const QIcon icon = Mark(false);
  return icon;
}

SoundsDialog::SoundsDialog(Program& app, QWidget* parent)
    : QDialog(parent),
      app_(app),
      tree_(new QTreeWidget),
      path_(new QLineEdit),
      browse_(NamedButton("cmdBrowse", "Browse")),
      play_(NamedButton("cmdPlay", "Play")),
      apply_(NamedButton("cmdApply", "Apply")),
      remove_(NamedButton("cmdRemove", "Remove")) {
  setWindowTitle("Sounds");
  setModal(true);
  tree_->setObjectName("tvSound");
  tree_->setHeaderHidden(true);
  auto* root = new QTreeWidgetItem(tree_, {"Sound Schemes"});
  QTreeWidgetItem* group = nullptr;
  for (const SoundEvent& e : SoundEvents()) {
    if (!group || group->text(0) != e.group) {
      group = new QTreeWidgetItem(root, {e.group});
      group->setExpanded(true);
    }
    auto* node = new QTreeWidgetItem(group, {e.label});
    node->setData(0, kTagRole, QString(e.key));
    node->setIcon(0, app.cSound.GetSound(e.key).empty() ? UnsetMark() : SetMark());
  }
  root->setExpanded(true);
  path_->setObjectName("Text1");
  path_->setReadOnly(true);
  auto* close = NamedButton("cmdClose", "Close");
  close->setDefault(true);
  connect(tree_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) { NodeChosen(item); });
  connect(browse_, &QPushButton::clicked, this, &SoundsDialog::Browse);
  connect(play_, &QPushButton::clicked, this, [this] { app_.cSound.Play(path_->text().toStdString()); });
  connect(apply_, &QPushButton::clicked, this, &SoundsDialog::Apply);
  connect(remove_, &QPushButton::clicked, this, &SoundsDialog::Remove);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);

  auto* buttons = new QHBoxLayout;
  for (QPushButton* b : {browse_, play_, apply_, remove_}) buttons->addWidget(b);
  buttons->addStretch();
  buttons->addWidget(close);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tree_, 1);
  layout->addWidget(path_);
  layout->addLayout(buttons);
  resize(460, 560);

  tree_->setCurrentItem(root);
  for (QPushButton* b : {apply_, play_, remove_}) b->setEnabled(false);
  app_.cSound.Sounds();
}

QString SoundsDialog::Key() const {
  QTreeWidgetItem* item = tree_->currentItem();
  return item ? item->data(0, kTagRole).toString() : QString();
}

void SoundsDialog::NodeChosen(QTreeWidgetItem* item) {
  const bool event = item && item->data(0, kTagRole).isValid();
  path_->setText(event ? QString::fromStdString(app_.cSound.GetSound(Key().toStdString())) : QString());
  browse_->setEnabled(event);
  play_->setEnabled(event && !path_->text().isEmpty());
  remove_->setEnabled(event && !path_->text().isEmpty());
}

void SoundsDialog::Browse() {
  FileRequest request;
  request.caption = "Browse";
  request.folder = QString::fromStdString(app_.cData.ProgramFolder());
  request.filters = {"Sound Files (*.wav)"};
  const QString chosen = MainFileChooser()(this, request);
  if (chosen.isEmpty() || !app_.cFileSys.Exists(chosen.toStdString())) return;
  path_->setText(chosen);
  apply_->setEnabled(true);
  play_->setEnabled(true);
}

void SoundsDialog::Apply() {
  const QString key = Key();
  if (!key.isEmpty() && app_.cFileSys.Exists(path_->text().toStdString())) {
    app_.cSound.SetSound(key.toStdString(), path_->text().toStdString());
    tree_->currentItem()->setIcon(0, SetMark());
    remove_->setEnabled(true);
  }
  apply_->setEnabled(false);
}

void SoundsDialog::Remove() {
  const QString key = Key();
  if (key.isEmpty()) return;
  path_->clear();
  app_.cSound.SetSound(key.toStdString(), "");
  tree_->currentItem()->setIcon(0, UnsetMark());
  remove_->setEnabled(false);
  play_->setEnabled(false);
}

}  // namespace qv

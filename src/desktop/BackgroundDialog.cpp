#include "BackgroundDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QImageReader>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTreeView>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <filesystem>

#include "BackgroundPainter.h"
#include "DialogParts.h"
#include "FileCommands.h"
#include "InputAsker.h"
#include "lists/ValidName.h"
#include "session/Program.h"
#include "settings/BackgroundSettings.h"
#include "settings/Settings.h"
#include "settings/mCustomize.h"

namespace qv {

namespace {

const QSize kPreview(240, 160);
const char* const kSchemeTitle = "Color Schemes";

QString Q(const std::string& s) { return QString::fromStdString(s); }
std::string S(const QString& s) { return s.toStdString(); }

bool SameIgnoringCase(const std::string& a, const std::string& b) { return Q(a).compare(Q(b), Qt::CaseInsensitive) == 0; }

QLabel* PreviewLabel(const char* name) {
  auto* label = new QLabel;
  label->setObjectName(name);
  label->setFixedSize(kPreview);
  label->setAlignment(Qt::AlignCenter);
  label->setFrameShape(QFrame::StyledPanel);
  label->setWordWrap(true);
  return label;
}

QListWidget* NamedList(const char* name) {
  auto* list = new QListWidget;
  list->setObjectName(name);
  return list;
}

// A list beside its preview, with room below for a tab's own controls.
QWidget* ListAndPreview(QWidget* list, QLabel* preview, QLayout* below = nullptr) {
  auto* page = new QWidget;
  auto* side = new QVBoxLayout;
  side->addWidget(preview);
  if (below) side->addLayout(below);
  side->addStretch();
  auto* row = new QHBoxLayout(page);
  row->addWidget(list, 1);
  row->addLayout(side);
  return page;
}

QPixmap GradientPixmap(QSize size, qreal dpr, QColor top, QColor bottom) {
  QPixmap p = QPixmap::fromImage(BackgroundPainter::Gradient(size * dpr, top, bottom));
  p.setDevicePixelRatio(dpr);
  return p;
}

QColor ToQColor(Rgb c) { return QColor(c.r, c.g, c.b); }

}  // namespace

BackgroundDialog::BackgroundDialog(Program& app, QWidget* parent)
    : QDialog(parent),
      app_(app),
      tabs_(new QTabWidget),
      tile_(new QCheckBox("Tile Background")),
      timer_(new QComboBox),
      apply_(NamedButton("cmdApply", "Apply")),
      texture_(TextureIndex(app)),
      color_(ColorIndex(app)),
      image_(ImageIndex(app)),
      fade_(app.cRegistry.Get(setting::FadeIndex) == 1 ? 1 : 0),
      scheme_(SchemeFile(app)),
      custImage_(CustImageFile(app)),
      folderFile_(ImageFolderFile(app)) {
  setWindowTitle("Customize Background");
  setModal(true);
  colours_ = ReadScheme(scheme_).value_or(kDefaultScheme);

  tabs_->setObjectName("SSTab1");
  tabs_->addTab(TexturesTab(), "Textures");
  tabs_->addTab(ColorsTab(), "Colors");
  tabs_->addTab(PicturesTab(), "Pictures");
  tabs_->addTab(SchemesTab(), "Color Schemes");
  tabs_->addTab(CustomImagesTab(), "Custom Images");
  tabs_->addTab(FoldersTab(), "Image Folders");

  tile_->setObjectName("chkTile");
  tile_->setChecked(app.cRegistry.Get(setting::EnableTile) == 1);
  connect(tile_, &QCheckBox::toggled, this, &BackgroundDialog::Changed);
  timer_->setObjectName("imcTimer");
  timer_->addItems({"None", "5 Seconds", "15 Seconds", "1 Minute", "Game", "Session"});
  const int wp = app.cRegistry.Get(setting::WPTimerValue);
  timer_->setCurrentIndex(wp >= 0 && wp <= 5 ? wp : 4);
  connect(timer_, &QComboBox::currentIndexChanged, this, &BackgroundDialog::Changed);
  auto* every = new QGroupBox("Change Background Every");
  (new QHBoxLayout(every))->addWidget(timer_);

  auto* ok = NamedButton("cmdOK", "OK");
  ok->setDefault(true);
  auto* cancel = NamedButton("cmdCancel", "Cancel");
  connect(ok, &QPushButton::clicked, this, [this] {
    Apply();
    accept();
  });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(apply_, &QPushButton::clicked, this, &BackgroundDialog::Apply);

  auto* bottom = new QHBoxLayout;
  bottom->addWidget(tile_);
  bottom->addWidget(every);
  bottom->addStretch();
  bottom->addWidget(ok);
  bottom->addWidget(cancel);
  bottom->addWidget(apply_);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tabs_, 1);
  layout->addLayout(bottom);

  const int back = app.cRegistry.Get(setting::BackIndex);
  tabs_->setCurrentIndex(back >= 0 && back <= 5 ? back : 1);
  connect(tabs_, &QTabWidget::currentChanged, this, &BackgroundDialog::TabChanged);
  TabChanged(tabs_->currentIndex());
  apply_->setEnabled(false);
  loading_ = false;
  resize(720, 440);
  app_.cSound.Background();
}

BackgroundDialog::~BackgroundDialog() = default;

void BackgroundDialog::Changed() {
  if (!loading_) apply_->setEnabled(true);
}

void BackgroundDialog::TabChanged(int tab) {
  tile_->setEnabled(tab == 2 || tab == 4 || tab == 5);
  apply_->setEnabled(tab != app_.cRegistry.Get(setting::BackIndex));
  if (tab == 5 && folderFiles_->count() == 0) apply_->setEnabled(false);
}

void BackgroundDialog::Preview(QLabel* label, const QPixmap& picture) {
  label->setPixmap(picture);
}

void BackgroundDialog::PreviewFile(QLabel* label, const std::string& path) {
  QImageReader reader(Q(path));
  reader.setAutoTransform(true);
  const QImage image = reader.read();
  if (image.isNull()) {
    label->setText("This picture cannot be shown: the file is missing or is not a picture.");
    return;
  }
  const qreal dpr = devicePixelRatioF();
  QPixmap p = QPixmap::fromImage(image.scaled(kPreview * dpr, Qt::KeepAspectRatio, Qt::SmoothTransformation));
  p.setDevicePixelRatio(dpr);
  label->setPixmap(p);
}

QWidget* BackgroundDialog::TexturesTab() {
  texTree_ = new QTreeWidget;
  texTree_->setObjectName("tvTex");
  texTree_->setHeaderHidden(true);
  texPreview_ = PreviewLabel("PicTex");
  auto* root = new QTreeWidgetItem(texTree_, {"Textures"});
  const auto groups = app_.cImages.TextureGroups();
  QTreeWidgetItem* current = nullptr;
  for (size_t g = 1; g < groups.size(); ++g) {
    auto* group = new QTreeWidgetItem(root, {Q(groups[g])});
    int number = 0;
    for (int i = 1; i <= app_.cImages.TextureCount(); ++i) {
      if (app_.cImages.TextureGroup(i) != static_cast<int>(g)) continue;
      auto* node = new QTreeWidgetItem(group, {QString("%1 %2").arg(Q(groups[g])).arg(++number)});
      node->setData(0, kTagRole, i);
      if (i == texture_) current = node;
    }
  }
  texTree_->expandAll();
  auto show = [this] {
    const qreal dpr = devicePixelRatioF();
    QPixmap tile = QPixmap::fromImage(BackgroundPainter::Texture(texture_, dpr));
    QPixmap p(kPreview * dpr);
    p.setDevicePixelRatio(dpr);
    QPainter(&p).drawTiledPixmap(QRect(QPoint(), kPreview), tile);
    Preview(texPreview_, p);
  };
  connect(texTree_, &QTreeWidget::currentItemChanged, this, [this, show](QTreeWidgetItem* item) {
    if (!item || !item->data(0, kTagRole).isValid()) return;
    texture_ = item->data(0, kTagRole).toInt();
    show();
    Changed();
  });
  if (current) texTree_->setCurrentItem(current);
  show();
  return ListAndPreview(texTree_, texPreview_);
}

QWidget* BackgroundDialog::ColorsTab() {
  colorList_ = NamedList("lvColor");
  colorPreview_ = PreviewLabel("PicColor");
  fadeBox_ = new QCheckBox("Fade Background");
  fadeBox_->setObjectName("chkFade");
  fadeBox_->setChecked(fade_ == 1);
  for (int i = 1; i <= app_.cImages.ColorCount(); ++i) {
    auto* row = new QListWidgetItem(Q(app_.cImages.ColorName(i)), colorList_);
    row->setData(kTagRole, i);
    QPixmap swatch(16, 16);
    swatch.fill(ToQColor(app_.cImages.ColorValue(i)));
    row->setIcon(swatch);
  }
  auto show = [this] {
    const QColor top = ToQColor(app_.cImages.ColorValue(color_));
    Preview(colorPreview_, GradientPixmap(kPreview, devicePixelRatioF(), top, fade_ ? QColor(0, 0, 0) : top));
  };
  connect(colorList_, &QListWidget::currentRowChanged, this, [this, show](int row) {
    if (row < 0) return;
    color_ = row + 1;
    show();
    Changed();
  });
  connect(fadeBox_, &QCheckBox::toggled, this, [this, show](bool on) {
    fade_ = on ? 1 : 0;
    show();
    Changed();
  });
  colorList_->setCurrentRow(color_ - 1);
  show();
  auto* below = new QVBoxLayout;
  below->addWidget(fadeBox_);
  return ListAndPreview(colorList_, colorPreview_, below);
}

QWidget* BackgroundDialog::PicturesTab() {
  imageList_ = NamedList("lvLarge");
  imagePreview_ = PreviewLabel("PicLarge");
  for (int i = 1; i <= app_.cImages.ImageCount(); ++i)
    (new QListWidgetItem(Q(app_.cImages.ImageName(i)), imageList_))->setData(kTagRole, i);
  auto show = [this] {
    const qreal dpr = devicePixelRatioF();
    QPixmap p = QPixmap::fromImage(BackgroundPainter::Picture(image_, 1).scaled(kPreview * dpr, Qt::KeepAspectRatio,
                                                                                Qt::SmoothTransformation));
    p.setDevicePixelRatio(dpr);
    Preview(imagePreview_, p);
  };
  connect(imageList_, &QListWidget::currentRowChanged, this, [this, show](int row) {
    if (row < 0) return;
    image_ = row + 1;
    show();
    Changed();
  });
  imageList_->setCurrentRow(image_ - 1);
  show();
  return ListAndPreview(imageList_, imagePreview_);
}

QWidget* BackgroundDialog::SchemesTab() {
  schemeList_ = NamedList("lvScheme");
  schemePreview_ = PreviewLabel("PicCustCol");
  schemePreview_->setFixedSize(kPreview.width(), 80);
  auto* grid = new QHBoxLayout;
  const char* names[] = {"lbTopR", "lbTopG", "lbTopB", "lbBotR", "lbBotG", "lbBotB"};
  for (int half = 0; half < 2; ++half) {
    auto* frame = new QGroupBox(half == 0 ? "Top Color" : "Bottom Color");
    auto* rows = new QGridLayout(frame);
    for (int k = 0; k < 3; ++k) {
      const int i = half * 3 + k;
      sliders_[i] = new QSlider(Qt::Horizontal);
      sliders_[i]->setObjectName(QString("Slider%1").arg(i + 1));
      sliders_[i]->setRange(0, 255);
      sliderLabels_[i] = new QLabel;
      sliderLabels_[i]->setObjectName(names[i]);
      sliderLabels_[i]->setMinimumWidth(80);
      rows->addWidget(sliderLabels_[i], k, 0);
      rows->addWidget(sliders_[i], k, 1);
      connect(sliders_[i], &QSlider::valueChanged, this, [this] { SliderMoved(); });
    }
    grid->addWidget(frame);
  }
  auto* save = NamedButton("cmdSave", "Save As..");
  auto* del = NamedButton("cmdDelete", "Delete");
  connect(save, &QPushButton::clicked, this, &BackgroundDialog::SaveScheme);
  connect(del, &QPushButton::clicked, this, &BackgroundDialog::DeleteScheme);
  connect(schemeList_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
    if (item) SchemeChosen(S(item->data(kTagRole).toString()));
  });
  FillSchemes();
  SchemeChosen(scheme_);

  auto* page = new QWidget;
  auto* top = new QHBoxLayout;
  top->addWidget(schemeList_, 1);
  auto* side = new QVBoxLayout;
  side->addWidget(schemePreview_);
  side->addWidget(save);
  side->addWidget(del);
  side->addStretch();
  top->addLayout(side);
  auto* layout = new QVBoxLayout(page);
  layout->addLayout(top, 1);
  layout->addLayout(grid);
  return page;
}

void BackgroundDialog::FillSchemes() {
  const QSignalBlocker quiet(schemeList_);
  schemeList_->clear();
  for (const std::string& path : SchemeFiles(app_)) {
    auto* row = new QListWidgetItem(Q(std::filesystem::path(path).filename().string()), schemeList_);
    row->setData(kTagRole, Q(path));
    if (path == scheme_) schemeList_->setCurrentItem(row);
  }
}

void BackgroundDialog::SchemeChosen(const std::string& path) {
  scheme_ = path;
  const auto read = ReadScheme(path);
  schemeTouched_ = read.has_value();
  colours_ = read.value_or(kDefaultScheme);
  for (int i = 0; i < 6; ++i) {
    const QSignalBlocker quiet(sliders_[i]);
    sliders_[i]->setValue(colours_[i]);
  }
  SliderMoved();
  schemeTouched_ = read.has_value();
  Changed();
}

void BackgroundDialog::SliderMoved() {
  static const char* const kChannels[] = {"Red", "Green", "Blue"};
  for (int i = 0; i < 6; ++i) {
    colours_[i] = sliders_[i]->value();
    sliderLabels_[i]->setText(QString("%1 (%2)").arg(kChannels[i % 3]).arg(colours_[i]));
  }
  schemeTouched_ = true;
  Preview(schemePreview_, GradientPixmap(schemePreview_->size(), devicePixelRatioF(), ToQColor(SchemeTop(colours_)),
                                         ToQColor(SchemeBottom(colours_))));
  Changed();
}

void BackgroundDialog::SaveScheme() {
  QString name = "Color Scheme 1";
  std::string path;
  for (;;) {
    name = MainInputAsker()(this, {kSchemeTitle, "Please Enter a Name", name});
    if (name.isEmpty()) return;
    if (IsValidName(S(name))) break;
    app_.surface.dialogs.MsgBox("Name should not contain these characters : /\\:*?\"<>|", MsgStyle::Stop, kSchemeTitle);
  }
  path = (std::filesystem::path(app_.cData.SchemeFolder()) / S(name)).string();
  if (app_.cFileSys.Exists(path) &&
      app_.surface.dialogs.MsgBox("A scheme already exists with the name \"" + S(name) + "\". Do you want to overwrite ?",
                                  MsgStyle::YesNoStop, kSchemeTitle) == Answer::No)
    return;
  scheme_ = path;
  schemeTouched_ = true;
  if (!WriteScheme(app_.cFileSys, path, colours_))
    app_.MsgBox("The scheme \"" + S(name) + "\" cannot be saved.", MsgStyle::Stop);
  FillSchemes();
  Changed();
}

void BackgroundDialog::DeleteScheme() {
  const std::string fallback = app_.cData.DefaultSchemeFile();
  if (SameIgnoringCase(scheme_, fallback)) {
    app_.surface.dialogs.MsgBox("Default Scheme cannot be deleted.", MsgStyle::Stop, kSchemeTitle);
    return;
  }
  if (app_.cFileSys.Exists(scheme_)) app_.cFileSys.Delete(scheme_);
  scheme_ = fallback;
  FillSchemes();
  SchemeChosen(scheme_);
}

QWidget* BackgroundDialog::CustomImagesTab() {
  custList_ = NamedList("lvCustImg");
  custPreview_ = PreviewLabel("picCustImg");
  if (!app_.cFunc.IsExists(0, custImage_)) app_.cFunc.AddtoLIST(0, app_.cData.DefaultCustImageFile());
  auto* add = NamedButton("cmdAddPic", "Add");
  auto* remove = NamedButton("cmdRemovePic", "Remove");
  connect(add, &QPushButton::clicked, this, &BackgroundDialog::AddPicture);
  connect(remove, &QPushButton::clicked, this, &BackgroundDialog::RemovePicture);
  connect(custList_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
    if (!item) return;
    custImage_ = S(item->data(kTagRole).toString());
    PreviewFile(custPreview_, custImage_);
    Changed();
  });
  FillCustomImages();
  auto* below = new QHBoxLayout;
  below->addWidget(add);
  below->addWidget(remove);
  return ListAndPreview(custList_, custPreview_, below);
}

void BackgroundDialog::FillCustomImages() {
  const std::string current = custImage_;
  custList_->clear();
  const auto list = app_.cFunc.GetLIST(0);
  for (size_t i = 1; i < list.size(); ++i) {
    if (!app_.cFileSys.Exists(list[i])) continue;
    auto* row = new QListWidgetItem(Q(list[i]), custList_);
    row->setToolTip(Q(list[i]));
    row->setData(kTagRole, Q(list[i]));
  }
  // The first row, then the current file's row.
  custList_->setCurrentRow(0);
  for (int r = 0; r < custList_->count(); ++r)
    if (SameIgnoringCase(S(custList_->item(r)->data(kTagRole).toString()), current)) custList_->setCurrentRow(r);
}

void BackgroundDialog::AddPicture() {
  FileRequest request;
  request.caption = "Add a Picture";
  request.folder = Q(CustImageInitDir(app_));
  request.filters = {"Pictures (*.bmp *.jpg *.jpeg *.gif *.png)"};
  const QString chosen = MainFileChooser()(this, request);
  if (chosen.isEmpty() || !app_.cFileSys.Exists(S(chosen))) return;
  if (app_.cFunc.GetLIST(0).size() > static_cast<size_t>(cFunc::GetLIST_Max()) && !app_.cFunc.IsExists(0, S(chosen))) {
    app_.MsgBox("The list of pictures is full. Remove a picture before you add another.", MsgStyle::Information);
    return;
  }
  app_.cFunc.AddtoLIST(0, S(chosen));
  custImage_ = S(chosen);
  app_.cRegistry.Set(setting::CustImageInitDir, std::filesystem::path(custImage_).parent_path().string());
  FillCustomImages();
  Changed();
}

void BackgroundDialog::RemovePicture() {
  const std::string fallback = app_.cData.DefaultCustImageFile();
  if (SameIgnoringCase(custImage_, fallback)) {
    app_.MsgBox("Default Picture cannot be deleted.", MsgStyle::Stop);
    return;
  }
  app_.cFunc.RemoveListItem(0, custImage_);
  custImage_ = fallback;
  app_.cRegistry.Set(setting::CustImageFile, custImage_);
  FillCustomImages();
}

QWidget* BackgroundDialog::FoldersTab() {
  folders_ = new QFileSystemModel(this);
  folders_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
  folders_->setRootPath("/");
  folderTree_ = new QTreeView;
  folderTree_->setObjectName("Dir1");
  folderTree_->setModel(folders_);
  for (int c = 1; c < folders_->columnCount(); ++c) folderTree_->hideColumn(c);
  folderTree_->setHeaderHidden(true);
  folderFiles_ = NamedList("File1");
  folderPreview_ = PreviewLabel("picImageFolder");
  connect(folderTree_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& index) { ShowFolder(folders_->filePath(index)); });
  connect(folderFiles_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
    if (!item) return;
    folderFile_ = S(item->data(kTagRole).toString());
    PreviewFile(folderPreview_, folderFile_);
    Changed();
  });
  const QString folder = Q(std::filesystem::path(folderFile_).parent_path().string());
  ShowFolder(folder);
  folderTree_->setCurrentIndex(folders_->index(folder));
  folderTree_->scrollTo(folders_->index(folder));

  auto* frame = new QGroupBox("Select a Folder");
  auto* lists = new QHBoxLayout(frame);
  lists->addWidget(folderTree_, 3);
  lists->addWidget(folderFiles_, 2);
  auto* page = new QWidget;
  auto* row = new QHBoxLayout(page);
  row->addWidget(frame, 1);
  auto* side = new QVBoxLayout;
  side->addWidget(folderPreview_);
  side->addStretch();
  row->addLayout(side);
  return page;
}

void BackgroundDialog::ShowFolder(const QString& folder) {
  folderFiles_->clear();
  for (const std::string& path : PictureFiles(S(folder))) {
    auto* row = new QListWidgetItem(Q(std::filesystem::path(path).filename().string()), folderFiles_);
    row->setData(kTagRole, Q(path));
    if (path == folderFile_) folderFiles_->setCurrentItem(row);
  }
  if (loading_) return;
  apply_->setEnabled(folderFiles_->count() > 0);
}

void BackgroundDialog::Apply() {
  apply_->setEnabled(false);
  auto& reg = app_.cRegistry;
  reg.Set(setting::BackIndex, tabs_->currentIndex());
  reg.Set(setting::EnableTile, tile_->isChecked() ? 1 : 0);
  reg.Set(setting::TextureIndex, texture_);
  reg.Set(setting::ColorIndex, color_);
  reg.Set(setting::FadeIndex, fade_);
  reg.Set(setting::ImageIndex, image_);
  if (schemeTouched_) WriteScheme(app_.cFileSys, scheme_, colours_);
  reg.Set(setting::SchemeFile, scheme_);
  reg.Set(setting::CustImageFile, custImage_);
  reg.Set(setting::ImageFolderFile, folderFile_);
  reg.Set(setting::WPTimerValue, timer_->currentIndex());
  ApplyBackground(app_);
}

}  // namespace qv

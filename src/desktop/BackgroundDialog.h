#pragma once

#include <QDialog>
#include <array>
#include <string>

#include "settings/ColorScheme.h"

class QCheckBox;
class QComboBox;
class QFileSystemModel;
class QLabel;
class QListWidget;
class QPushButton;
class QSlider;
class QTabWidget;
class QTreeView;
class QTreeWidget;

namespace qv {

class Program;

// Customize Background: a kind of background on each of six tabs, the tiling, and how
// often the background changes by itself. Nothing is stored before Apply or OK, except
// that removing the current custom picture stores the default one at once.
class BackgroundDialog : public QDialog {
  Q_OBJECT
 public:
  static constexpr int kTagRole = Qt::UserRole;  // a texture's, colour's or picture's index; a file's path
  explicit BackgroundDialog(Program& app, QWidget* parent = nullptr);
  ~BackgroundDialog() override;

  void Apply();
  void SaveScheme();
  void DeleteScheme();
  void AddPicture();
  void RemovePicture();
  // The Image Folders tab shows `folder` and its pictures.
  void ShowFolder(const QString& folder);

 private:
  QWidget* TexturesTab();
  QWidget* ColorsTab();
  QWidget* PicturesTab();
  QWidget* SchemesTab();
  QWidget* CustomImagesTab();
  QWidget* FoldersTab();
  void TabChanged(int tab);
  void Changed();
  void FillSchemes();
  void SchemeChosen(const std::string& path);
  void SliderMoved();
  void FillCustomImages();
  void Preview(QLabel* label, const QPixmap& picture);
  void PreviewFile(QLabel* label, const std::string& path);

  Program& app_;
  QTabWidget* tabs_;
  QCheckBox* tile_;
  QComboBox* timer_;
  QPushButton* apply_;
  // What the dialog holds until Apply.
  int texture_, color_, image_, fade_;
  std::string scheme_, custImage_, folderFile_;
  Scheme colours_{};
  bool schemeTouched_ = false;  // a scheme that does not read is rewritten only after a slider moved
  // Tabs' controls.
  QTreeWidget* texTree_;
  QListWidget *colorList_, *imageList_, *schemeList_, *custList_, *folderFiles_;
  QLabel *texPreview_, *colorPreview_, *imagePreview_, *schemePreview_, *custPreview_, *folderPreview_;
  QCheckBox* fadeBox_;
  std::array<QSlider*, 6> sliders_{};
  std::array<QLabel*, 6> sliderLabels_{};
  QTreeView* folderTree_;
  QFileSystemModel* folders_;
  bool loading_ = true;
};

}  // namespace qv

#pragma once

#include <QDialog>
#include <QTimer>

class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace qv {

class Program;

// "Organize Favorites": the favourites tree, with folders made, renamed, deleted and games
// moved between them or played. Every change goes to disk first; the tree is then read again.
class OrgFavDialog : public QDialog {
  Q_OBJECT
 public:
  explicit OrgFavDialog(Program& app, QWidget* parent = nullptr);
  ~OrgFavDialog() override;

  enum Tag { RFLD, FLD, FL };
  static constexpr int kPathRole = Qt::UserRole;
  static constexpr int kTagRole = Qt::UserRole + 1;
  // Sets the buttons from the chosen node; the tick of tmrFav.
  void EnableButtons();

 private:
  void Fill();
  void ShowDetails();
  std::string ChosenPath() const;
  Tag ChosenTag() const;
  void Create();
  void Rename();
  void Delete();
  void Move();
  void Play();

  Program& app_;
  QTreeWidget* tree_;
  std::array<QLabel*, 4> gameLabels_{};  // before the frames, which fill them
  std::array<QLabel*, 4> folderLabels_{};
  QGroupBox* gameFrame_;
  QGroupBox* folderFrame_;
  QComboBox* folders_;
  QPushButton *rename_, *delete_, *play_, *move_;
  QTimer tmrFav_;
};

}  // namespace qv

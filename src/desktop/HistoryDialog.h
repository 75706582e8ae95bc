#pragma once

#include <QDialog>

#include "FileCommands.h"

class QTreeView;

namespace qv {

class JournalModel;
class Program;

// Game History: every record of the journal, read only, with the report's export.
class HistoryDialog : public QDialog {
  Q_OBJECT
 public:
  HistoryDialog(Program& app, const FileChooser& choose, QWidget* parent = nullptr);

 private:
  void Export();

  Program& app_;
  FileChooser choose_;
  JournalModel* model_;
  QTreeView* list_;
};

}  // namespace qv

#pragma once

#include <QDialog>
#include <QString>

class QCheckBox;
class QComboBox;

namespace qv {

class Program;
struct IntSetting;

// Options: every control writes its setting the moment it changes, so there is nothing
// to confirm; Close only closes.
class OptionsDialog : public QDialog {
  Q_OBJECT
 public:
  explicit OptionsDialog(Program& app, QWidget* parent = nullptr);

  // The i-th random range (1 to 15): 10^i - 1 with thousands commas, whatever the locale.
  static QString RangeText(int i);

 private:
  QCheckBox* Check(const char* name, const char* caption, const IntSetting& s);

  Program& app_;
  QComboBox* range_;
};

}  // namespace qv

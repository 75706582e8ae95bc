#include "OptionsDialog.h"

#include "DialogParts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

#include "SolverPage.h"
#include "lists/Recent.h"
#include "session/Program.h"

namespace qv {

namespace {
constexpr int kRanges = 15;

QLabel* Heading(const char* name, const char* text) {
  auto* label = new QLabel(text);
  label->setObjectName(name);
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  return label;
}

QLabel* Note(const char* name, const char* text) {
  auto* label = new QLabel(text);
  label->setObjectName(name);
  label->setWordWrap(true);
  return label;
}

// A page's controls indented under their headings, as one column from the top.
QVBoxLayout* Page(QTabWidget* tabs, const char* title) {
  auto* page = new QWidget;
  auto* layout = new QVBoxLayout(page);
  layout->setContentsMargins(14, 12, 14, 12);
  layout->setSpacing(6);
  tabs->addTab(page, title);
  return layout;
}

QHBoxLayout* Indented(QVBoxLayout* page, int extra = 0) {
  auto* row = new QHBoxLayout;
  row->setContentsMargins(18 + extra, 0, 0, 0);
  page->addLayout(row);
  return row;
}
}  // namespace

QString OptionsDialog::RangeText(int i) {
  QString text;
  for (int digit = 0; digit < i; ++digit) {
    if (digit > 0 && (i - digit) % 3 == 0) text += ',';
    text += '9';
  }
  return text;
}

namespace {
// How far a check box's text stands from its left edge: a note under it lines up with the text.
int CheckTextIndent(const QWidget* w) {
  return w->style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, w) +
         w->style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, w);
}

// The Clear Now buttons and the recent list each one clears.
struct ClearButton {
  const char* name;
  int list;
};
constexpr ClearButton kClearButtons[] = {{"cmdrSave", kRecentSaved}, {"cmdrOpen", kRecentOpened},
                                         {"cmdrPlay", kRecentPlayed}};

// A list with nothing in it has nothing to clear.
void EnableClearButtons(QWidget* dialog, const Program& app) {
  for (const ClearButton& b : kClearButtons)
    if (auto* button = dialog->findChild<QPushButton*>(b.name)) button->setEnabled(GetRecentCount(app, b.list) > 0);
}
}  // namespace

QCheckBox* OptionsDialog::Check(const char* name, const char* caption, const IntSetting& s) {
  auto* box = new QCheckBox(caption);
  box->setObjectName(name);
  box->setChecked(app_.cRegistry.Get(s) == 1);
  // Only the user's clicks store: setting the check from the settings stores nothing.
  connect(box, &QCheckBox::clicked, this, [this, &s](bool on) { app_.cRegistry.Set(s, on ? 1 : 0); });
  return box;
}

OptionsDialog::OptionsDialog(Program& app, QWidget* parent) : QDialog(parent), app_(app), range_(new QComboBox) {
  setWindowTitle("Options");
  setModal(true);
  auto* tabs = new QTabWidget;
  tabs->setObjectName("SSTab1");

  QVBoxLayout* general = Page(tabs, "General");
  general->addWidget(Heading("Label13", "Display Options"));
  for (QCheckBox* box : {Check("chkTime", "Show Game Time ", setting::ShowTime),
                         Check("chkScore", "Show Game Score", setting::ShowScore),
                         Check("chkMoves", "Show Game Moves", setting::ShowMoves),
                         Check("chkCardsLeft", "Show Cards Left", setting::ShowCardsLeft)})
    Indented(general)->addWidget(box);
  general->addSpacing(10);
  general->addWidget(Heading("Label2", "While exiting the Game"));
  Indented(general)->addWidget(Check("chkGameSave", "Save unfinished game and restart it in next session",
                                     setting::GameSave));
  general->addStretch();

  QVBoxLayout* random = Page(tabs, "Random ");
  random->addWidget(Heading("Label3", "Random Range Selection"));
  range_->setObjectName("imcRange");
  for (int i = 1; i <= kRanges; ++i) range_->addItem(RangeText(i));
  const int stored = app_.cRegistry.Get(setting::RangeIndex);
  range_->setCurrentIndex(stored >= 1 && stored <= kRanges ? stored - 1 : -1);
  connect(range_, &QComboBox::currentIndexChanged, this, [this](int index) {
    if (index >= 0) app_.cRegistry.Set(setting::RangeIndex, index + 1);
  });
  auto* label1 = new QLabel("Select Random Range ");
  label1->setObjectName("Label1");
  label1->setBuddy(range_);
  QHBoxLayout* rangeRow = Indented(random);
  rangeRow->addWidget(label1);
  rangeRow->addWidget(range_);
  rangeRow->addStretch();
  random->addSpacing(6);
  Indented(random)->addWidget(Note("Label4",
                                   "When you select a game with random game number, radom generator will generate a "
                                   "game number between 0 and this number."));
  random->addStretch();

  QVBoxLayout* autoSave = Page(tabs, "AutoSave");
  autoSave->addWidget(Heading("Label14", "AutoSave Options"));
  Indented(autoSave)->addWidget(Check("chkInc", "Enable Incomplete AutoSave", setting::EnableInc));
  const int underText = CheckTextIndent(this);
  Indented(autoSave, underText)->addWidget(Note("Label5",
                                     "If this option is enabled then it will save all lost or unfinised games to "
                                     "Incomplete AutoSave folder. "));
  autoSave->addSpacing(8);
  Indented(autoSave)->addWidget(Check("chkFin", "Enable Finished AutoSave", setting::EnableFin));
  Indented(autoSave, underText)->addWidget(Note("Label6",
                                     "If this option is enabled then it will save all Won games to Finished AutoSave "
                                     "folder. "));
  autoSave->addStretch();

  QVBoxLayout* recent = Page(tabs, "Recent List");
  struct RecentRow {
    const char *heading, *headingText, *note, *noteText, *button;
  };
  const RecentRow rows[] = {
      {"Label7", "Clear Recently Saved List", "Label8",
       "Clear Recent List containing info of all recently saved games.", "cmdrSave"},
      {"Label9", "Clear Recently Opened List", "Label10",
       "Clear Recent List containing info of all recently opened games.", "cmdrOpen"},
      {"Label11", "Clear Recently Played List", "Label12",
       "Clear Recent List containing info of all recently played games.", "cmdrPlay"},
  };
  for (int i = 0; i < 3; ++i) {
    const RecentRow& r = rows[i];
    recent->addWidget(Heading(r.heading, r.headingText));
    QHBoxLayout* row = Indented(recent);
    row->addWidget(Note(r.note, r.noteText), 1);
    auto* clear = new QPushButton("Clear Now");
    clear->setObjectName(r.button);
    const int list = kClearButtons[i].list;
    connect(clear, &QPushButton::clicked, this, [this, list] {
      if (app_.MsgBox("Are you sure you want to clear this recent list ?", MsgStyle::YesNoStop) != Answer::Yes)
        return;
      ClearRecent(app_, list);
      app_.MsgBox("Successfully Cleared", MsgStyle::Information);
      EnableClearButtons(this, app_);
    });
    row->addWidget(clear, 0, Qt::AlignVCenter);
    recent->addSpacing(8);
  }
  recent->addStretch();
  AddSolverPage(tabs, app_);

  auto* buttons = CloseRow(this);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tabs);
  layout->addLayout(buttons);
  setMinimumWidth(470);
  adjustSize();
  EnableClearButtons(this, app_);

  app_.cSound.Options();
}

}  // namespace qv

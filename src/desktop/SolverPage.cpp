#include "SolverPage.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

#include "session/Program.h"
#include "settings/SettingKeys.h"
#include "solver/TableVerdict.h"

namespace qv {

namespace {
QSpinBox* Spin(const char* name, int lo, int hi, int value, const char* suffix) {
  auto* spin = new QSpinBox;
  spin->setObjectName(name);
  spin->setRange(lo, hi);
  spin->setValue(value);
  spin->setSuffix(suffix);
  return spin;
}
}  // namespace

void AddSolverPage(QTabWidget* tabs, Program& app) {
  auto* page = new QWidget;
  auto* layout = new QVBoxLayout(page);
  layout->setContentsMargins(14, 12, 14, 12);
  auto* heading = new QLabel("Solver");
  QFont bold = heading->font();
  bold.setBold(true);
  heading->setFont(bold);
  layout->addWidget(heading);

  auto* show = new QCheckBox("Show whether the game can still be won");
  show->setObjectName("chkSolver");
  show->setChecked(SolverIndicatorOn(app));
  QObject::connect(show, &QCheckBox::clicked, page,
                   [&app](bool on) { app.cRegistry.Set(setting::SolverIndicator, on ? 1 : 0); });
  layout->addWidget(show);

  const SolverBudget budget = SolverBudgetOf(app);
  auto* seconds = Spin("spnSolverSeconds", 1, 60, static_cast<int>(budget.ms / 1000), " s");
  auto* mb = Spin("spnSolverMB", 64, 2048, static_cast<int>(budget.mb), " MB");
  mb->setSingleStep(64);
  QObject::connect(seconds, &QSpinBox::valueChanged, page,
                   [&app](int v) { app.cRegistry.Set(setting::SolverSeconds, v); });
  QObject::connect(mb, &QSpinBox::valueChanged, page, [&app](int v) { app.cRegistry.Set(setting::SolverMB, v); });
  auto* form = new QFormLayout;
  form->setContentsMargins(18, 6, 0, 0);
  form->addRow("Time for each position:", seconds);
  form->addRow("Memory for each position:", mb);
  layout->addLayout(form);
  auto* note = new QLabel(
      "After each move the game is searched in the background. \"winnable\": a way to win was found and "
      "played through; \"lost\": every position that can still be reached was searched; \"unknown\": the "
      "time or memory ran out first.");
  note->setObjectName("lblSolverNote");
  note->setWordWrap(true);
  layout->addSpacing(8);
  layout->addWidget(note);
  layout->addStretch();
  tabs->addTab(page, "Solver");
}

}  // namespace qv

#include "RulesDialog.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include "MainWindow.h"
#include "created/StudioGames.h"
#include "session/Program.h"

namespace qv {

namespace {

// The controls of each line of the page: its fixed text and the label filled beside it.
constexpr const char* kNames[][2] = {{"lbGame", ""},         {"Label2", ""},         {"Label4", "Label1"},
                                     {"Label8", ""},         {"Label7", "lbFound"},  {"Label5", ""},
                                     {"Label9", "lbTab"},    {"Label6", "lbHOrder"}, {"lbTab2", "lbMOrder"},
                                     {"Label11", "lbMOrder1"}, {"lbSpaceGen", "lbSpace"}, {"Label3", ""},
                                     {"lbMulti", ""}};
// Lines whose filled label continues them on a second line, not beside them.
bool OnSecondLine(size_t line) { return line == 8 || line == 9; }
// Headings of the page's parts.
bool Heading(size_t line) { return line == 2 || line == 3 || line == 11; }

QLabel* Label(const std::string& text, const char* name, bool bold) {
  auto* label = new QLabel(QString::fromStdString(text));
  label->setObjectName(name);
  label->setWordWrap(true);
  if (bold) {
    QFont f = label->font();
    f.setBold(true);
    label->setFont(f);
  }
  return label;
}

}  // namespace

RulesDialog::RulesDialog(Program& app, QWidget* parent) : QDialog(parent) {
  setObjectName("frmRules");
  setWindowTitle("Rules");
  auto* layout = new QVBoxLayout(this);
  const auto page = RulesPage(app.cCustom);
  for (size_t i = 0; i < page.size(); ++i) {
    const RulesLine& line = page[i];
    QLabel* text = Label(line.text, kNames[i][0], Heading(i));
    if (i == 0) {
      QFont big = text->font();
      big.setPointSizeF(big.pointSizeF() * 1.8);
      big.setBold(true);
      text->setFont(big);
    }
    if (!*kNames[i][1]) {
      layout->addWidget(text);
      continue;
    }
    QLabel* value = Label(line.value, kNames[i][1], !OnSecondLine(i) && !Heading(i));
    if (OnSecondLine(i)) {
      auto* block = new QVBoxLayout;
      block->setSpacing(0);
      block->addWidget(text);
      value->setContentsMargins(24, 0, 0, 0);
      block->addWidget(value);
      layout->addLayout(block);
    } else {
      auto* row = new QHBoxLayout;
      text->setWordWrap(false);
      row->addWidget(text);
      row->addWidget(value, 1);
      layout->addLayout(row);
    }
  }
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
  setMinimumWidth(520);
}

void ShowRulesWindow(MainWindow& main, bool modal) {
  if (auto* open = main.findChild<RulesDialog*>("frmRules")) delete open;
  if (modal) {
    RulesDialog(main.app(), QApplication::activeModalWidget() ? QApplication::activeModalWidget() : &main).exec();
    return;
  }
  auto* rules = new RulesDialog(main.app(), &main);
  rules->setAttribute(Qt::WA_DeleteOnClose);
  rules->setModal(false);
  rules->adjustSize();
  // Beside the table where the screen has room, else over its right edge.
  const QRect room = main.screen()->availableGeometry();
  const QRect frame = main.frameGeometry();
  int x = frame.right() + 8;
  if (x + rules->width() > room.right()) x = room.right() - rules->width();
  rules->move(x, std::max(room.top(), frame.top()));
  rules->show();
}

}  // namespace qv

#include "SessionStatDialog.h"

#include <QChartView>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "DialogParts.h"
#include "ScoreTables.h"
#include "StatCharts.h"
#include "scores/Players.h"
#include "scores/ScoreText.h"
#include "session/Program.h"

namespace qv {

namespace {

QString Q(const std::string& s) { return QString::fromStdString(s); }
const QColor kRunning(120, 0, 0);

void Paint(QTreeWidgetItem* item) {
  for (int c = 0; c < item->columnCount(); ++c) item->setForeground(c, kRunning);
}

// Seconds from a general date to now; 0 when the text does not read.
long long SecondsSince(const std::string& date, std::time_t now) {
  std::tm tm{};
  int month = 0, day = 0, year = 0, h = 0, m = 0, s = 0;
  char half[3] = "";
  if (std::sscanf(date.c_str(), "%d/%d/%d %d:%d:%d %2s", &month, &day, &year, &h, &m, &s, half) != 7) return 0;
  tm.tm_year = year - 1900, tm.tm_mon = month - 1, tm.tm_mday = day;
  tm.tm_hour = h % 12 + (std::string(half) == "PM" ? 12 : 0), tm.tm_min = m, tm.tm_sec = s;
  tm.tm_isdst = -1;
  const std::time_t start = std::mktime(&tm);
  return start < 0 ? 0 : std::max<long long>(0, now - start);
}

}  // namespace

QLabel* SessionStatDialog::Label(const char* name) {
  auto* label = new QLabel;
  label->setObjectName(name);
  return label;
}

SessionStatDialog::SessionStatDialog(Program& app, QWidget* parent)
    : QDialog(parent),
      app_(app),
      session_(NewScoreList("lvSession", {"Game", "Game No", "Player", "Time", "Moves", "Status", "Score"})),
      details_(NewScoreList("lvSesChart", {"No.", "Time", "Moves", "Score"})),
      summary_(NewChartView("chSummary")),
      chart_(NewChartView("chChart")),
      timer_(new QTimer(this)),
      sesStarted_(Label("lblSesStarted")),
      sesPlayed_(Label("lblSesPlayed")),
      sesWon_(Label("lblSesWon")),
      sesLost_(Label("lblSesLost")),
      sesScore_(Label("lblsesScore")),
      sesMoves_(Label("lblSesMoves")),
      sesElapsed_(Label("lblSesElapsedTime")),
      gameStarted_(Label("lblGameStarted")),
      gameName_(Label("lblGameName")),
      gameNo_(Label("lblGameNo")),
      gameScore_(Label("lblGameScore")),
      gameMoves_(Label("lblGameMoves")),
      gameTime_(Label("lblGameTime")),
      player_(Label("lblPlayer")) {
  setWindowTitle("Session Statistics");
  setModal(true);
  auto* thisGame = new QGroupBox("This Game");
  auto* gameLines = new QVBoxLayout(thisGame);
  for (QLabel* l : {gameStarted_, gameName_, gameNo_, gameScore_, gameMoves_, gameTime_, player_}) gameLines->addWidget(l);
  auto* thisSession = new QGroupBox("This Session");
  auto* sesLines = new QVBoxLayout(thisSession);
  for (QLabel* l : {sesStarted_, sesPlayed_, sesWon_, sesLost_, sesScore_, sesMoves_, sesElapsed_}) sesLines->addWidget(l);

  auto* summaryPage = new QWidget;
  auto* summaryLayout = new QVBoxLayout(summaryPage);
  summaryLayout->addWidget(session_, 1);
  auto* lower = new QHBoxLayout;
  lower->addWidget(thisGame);
  lower->addWidget(thisSession);
  lower->addWidget(summary_, 1);
  summaryLayout->addLayout(lower, 1);

  auto* detailsPage = new QWidget;
  auto* detailsLayout = new QHBoxLayout(detailsPage);
  detailsLayout->addWidget(details_, 2);
  auto* chartSide = new QVBoxLayout;
  chartSide->addWidget(chart_, 1);
  auto* refresh = NamedButton("cmdRefresh", "Refresh Chart");
  chartSide->addWidget(refresh, 0, Qt::AlignRight);
  detailsLayout->addLayout(chartSide, 3);

  auto* tabs = new QTabWidget;
  tabs->setObjectName("SSTab1");
  tabs->addTab(summaryPage, "Summary");
  tabs->addTab(detailsPage, "Session Details");
  connect(refresh, &QPushButton::clicked, this, &SessionStatDialog::Refresh);
  auto* buttons = CloseRow(this);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tabs);
  layout->addLayout(buttons);
  resize(820, 580);

  FillSummary();
  FillDetails();
  FillThisGame();
  timer_->setObjectName("Timer1");
  connect(timer_, &QTimer::timeout, this, &SessionStatDialog::Tick);
  timer_->start(500);
  app_.cSound.SessionStat();
}

void SessionStatDialog::FillSummary() {
  const cScore& s = app_.cScore;
  const TotalsRec t = s.SessionTotals();
  sesStarted_->setText("Started : " + Q(app_.cData.SesStartTime()));
  sesPlayed_->setText("Games Played : " + QString::number(s.SesTop()));
  sesWon_->setText("Games Won : " + QString::number(t.Won));
  sesLost_->setText("Games Lost : " + QString::number(t.Lost));
  sesScore_->setText("Total Score : " + QString::number(t.Score));
  sesMoves_->setText("Total Moves : " + QString::number(t.Moves));
  sesElapsed_->setText("Time Elapsed : " +
                       Q(FormatSeconds(SecondsSince(app_.cData.SesStartTime(), app_.surface.clock.Now()))));
  for (int i = 1; i <= s.SesTop(); ++i) {
    const ScoreRec& r = s.SesItem(i);
    session_->addTopLevelItem(new QTreeWidgetItem({Q(r.GameName), Q(r.GameNo.Text()), Q(r.Player),
                                                   Q(FormatSeconds(r.Time)), QString::number(r.Moves),
                                                   Q(StatusText(r.Won)), QString::number(r.Score)}));
  }
  ShowPie(summary_, {{"Won : " + QString::number(t.Won), t.Won}, {"Lost : " + QString::number(t.Lost), t.Lost}});
  const cGamePlay& gp = app_.cGamePlay;
  if (!gp.Game_Running()) return;
  auto* running = new QTreeWidgetItem({Q(gp.GameName()), Q(gp.GameNo().Text()), Q(GetCurPlayer(app_.cRegistry)),
                                       Q(gp.TimeString()), QString::number(gp.Moves()), "Running",
                                       QString::number(gp.Score())});
  Paint(running);
  session_->addTopLevelItem(running);
  session_->scrollToItem(running);
}

void SessionStatDialog::FillDetails() {
  const cScore& s = app_.cScore;
  table_ = QList<QList<qreal>>(3);
  for (int i = 1; i <= s.SesTop(); ++i) {
    const ScoreRec& r = s.SesItem(i);
    details_->addTopLevelItem(new QTreeWidgetItem(
        {QString::number(i), Q(FormatSeconds(r.Time)), QString::number(r.Moves), QString::number(r.Score)}));
    table_[0] << r.Score, table_[1] << r.Moves, table_[2] << r.Time;
  }
  // The last row is the running game's, empty when none runs.
  const cGamePlay& gp = app_.cGamePlay;
  if (gp.Game_Running()) {
    table_[0] << gp.Score(), table_[1] << gp.Moves(), table_[2] << gp.Time();
    auto* running = new QTreeWidgetItem({QString::number(s.SesTop() + 1), Q(gp.TimeString()),
                                         QString::number(gp.Moves()), QString::number(gp.Score())});
    Paint(running);
    details_->addTopLevelItem(running);
    details_->scrollToItem(running);
  }
  ShowChart();
}

void SessionStatDialog::ShowChart() { ShowLines(chart_, {"Score", "Moves", "Time"}, table_); }

void SessionStatDialog::FillThisGame() {
  const cGamePlay& gp = app_.cGamePlay;
  gameStarted_->setText("Game Started : " + Q(gp.Game_StartTime()));
  gameName_->setText("Game : " + Q(gp.GameName()));
  gameNo_->setText("Game Number : " + Q(gp.GameNo().Text()));
  gameScore_->setText("Score : " + QString::number(gp.Score()));
  gameMoves_->setText("Moves : " + QString::number(gp.Moves()));
  gameTime_->setText("Time Elapsed : " + Q(gp.TimeString()));
  player_->setText("Player Name : " + Q(GetCurPlayer(app_.cRegistry)));
}

void SessionStatDialog::Tick() {
  sesElapsed_->setText("Time Elapsed : " +
                       Q(FormatSeconds(SecondsSince(app_.cData.SesStartTime(), app_.surface.clock.Now()))));
  const cGamePlay& gp = app_.cGamePlay;
  if (!gp.Game_Running()) return;
  const int row = app_.cScore.SesTop();
  if (QTreeWidgetItem* item = session_->topLevelItem(row)) {
    item->setText(3, Q(gp.TimeString()));
    item->setText(6, QString::number(gp.Score()));
  }
  if (QTreeWidgetItem* item = details_->topLevelItem(row)) {
    item->setText(1, Q(gp.TimeString()));
    item->setText(3, QString::number(gp.Score()));
  }
  gameScore_->setText("Score : " + QString::number(gp.Score()));
  gameTime_->setText("Time Elapsed : " + Q(gp.TimeString()));
}

void SessionStatDialog::Refresh() {
  const cGamePlay& gp = app_.cGamePlay;
  if (!gp.Game_Running() || table_[0].isEmpty()) return;
  table_[0].last() = gp.Score(), table_[1].last() = gp.Moves(), table_[2].last() = gp.Time();
  ShowChart();
}

}  // namespace qv

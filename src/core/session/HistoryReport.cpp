#include "session/HistoryReport.h"

#include "scores/Players.h"
#include "session/MoveText.h"
#include "session/Program.h"
#include "session/SavedGameFile.h"

namespace qv {

HistoryHead HistoryHeadOf(const Program& app) {
  const cGamePlay& gp = app.cGamePlay;
  return {gp.GameName(), gp.GameNo(), GetCurPlayer(app.cRegistry), gp.Moves(), gp.TimeString(), gp.Score(),
          GeneralDate(app.surface.clock.Now())};
}

std::string HistoryLine(const cEngine& e, int id) {
  const std::string cards = CardsText(e, id);
  return NumberField(id) + "  " + SourceText(e, id, 1) + "  ->" + DestText(e, id, 1) + "  " + cards +
         (e.mCards(id) == 0 ? " Card" : " Cards") + " Moved";
}

std::string HistoryReport(const HistoryHead& head, const cEngine& e) {
  std::string out;
  out.reserve(300 + e.GetTransTop() * 80);
  auto line = [&out](const std::string& s) { out += s, out += "\r\n"; };
  line("Game Name: " + head.GameName);
  line("Game Number: " + GameNoField(head.GameNo));
  line("Player: " + head.Player);
  line("Moves: " + NumberField(head.Moves));
  line("Time: " + head.Time);
  line("Score: " + NumberField(head.Score));
  line("Date :" + head.Date);
  line("-------Game History-------");
  for (int id = 1; id <= e.GetTransTop(); ++id) line(HistoryLine(e, id));
  return out;
}

bool ExportHistory(Program& app, const std::string& fName, std::string* error) {
  return app.cFileSys.WriteText(fName, HistoryReport(HistoryHeadOf(app), app.cEngine), error);
}

}  // namespace qv

#include "StateJson.h"

#include <cstdio>

#include "session/MoveText.h"
#include "session/Program.h"

namespace qv {

std::string JsonText(const std::string& s) {
  std::string out = "\"";
  for (unsigned char c : s) {
    if (c == '"' || c == '\\') {
      out += '\\';
      out += static_cast<char>(c);
    } else if (c < 0x20) {
      char buf[8];
      std::snprintf(buf, sizeof buf, "\\u%04x", c);
      out += buf;
    } else {
      out += static_cast<char>(c);
    }
  }
  return out + "\"";
}

namespace {

const char* Bool(bool b) { return b ? "true" : "false"; }

std::string Pile(const Program& app, int cell, int pile) {
  const Table& t = app.cPlay.table();
  std::string out = "[";
  for (int q = 0; q <= t.GetTop(cell, pile); ++q) {
    const int pic = t.GetPicID(cell, pile, q);
    const CardRec& c = t.Card(pic);
    if (q > 0) out += ",";
    out += "{\"pic\":" + std::to_string(pic) + ",\"id\":" + std::to_string(t.Deck()[pic]) +
           ",\"num\":" + std::to_string(c.Num) + ",\"suit\":" + std::to_string(c.Suit) +
           ",\"suitpile\":" + std::to_string(c.Suitpile) + ",\"up\":" + Bool(c.FaceMode) + "}";
  }
  return out + "]";
}

}  // namespace

std::string StateJson(const Program& app) {
  const auto& gp = app.cGamePlay;
  const bool onTable = gp.Game_Status() != 0 && app.cPlay.table().Exists();
  std::string out = "{";
  out += "\"game\":" + JsonText(gp.GameName());
  out += ",\"number\":" + JsonText(gp.GameNo().Text());
  out += ",\"number_typed\":" + std::string(Bool(gp.GameNo().IsTyped()));
  out += ",\"status\":" + std::to_string(gp.Game_Status());
  out += ",\"running\":" + std::string(Bool(gp.Game_Running()));
  out += ",\"paused\":" + std::string(Bool(gp.PauseStatus()));
  out += ",\"time\":" + std::to_string(gp.Time());
  out += ",\"moves\":" + std::to_string(gp.Moves());
  out += ",\"score\":" + std::to_string(gp.Score());
  out += ",\"percentage\":" + std::to_string(onTable ? gp.Percentage() : 0);
  out += ",\"cards_left\":" + std::to_string(onTable ? gp.CardsLeft() : 0);
  out += ",\"trans_id\":" + std::to_string(app.cEngine.GetTransID());
  out += ",\"trans_top\":" + std::to_string(app.cEngine.GetTransTop());
  out += ",\"tableau\":[";
  for (int p = 0; onTable && p < app.cGames.Piles(0); ++p) out += (p > 0 ? "," : "") + Pile(app, 0, p);
  out += "],\"stock\":" + (onTable ? Pile(app, 1, 0) : std::string("[]"));
  out += ",\"foundations\":[";
  for (int f = 0; f < 8; ++f) out += (f > 0 ? "," : "") + (onTable ? Pile(app, 3, f) : std::string("[]"));
  return out + "]}";
}

std::string MovesJson(const Program& app) {
  std::string out = "[";
  for (int n = 0; n <= app.cEngine.GetTransTop(); ++n) {
    const QuickMoveRow row = QuickMoveRowOf(app, n);
    out += (n ? "," : "") + std::string("{\"moves\":") + JsonText(row.moves) + ",\"source\":" + JsonText(row.source) +
           ",\"destination\":" + JsonText(row.destination) + ",\"cards\":" + JsonText(row.cards) +
           ",\"inner\":" + (row.inner ? "true" : "false") + "}";
  }
  return out + "]";
}

}  // namespace qv

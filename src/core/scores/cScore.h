#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "scores/ScoreRec.h"
#include "session/cData.h"

namespace qv {

class Program;

// The score store: one file per player, "<AppDir><name>.sre", a line per ended game. The
// files are read into ScoreList while a statistics window is open; TopList is the one
// working top-20 list; SesList holds the games of this run and is never written.
class cScore {
 public:
  // Built before the settings object: reads nothing here.
  explicit cScore(Program& app) : app_(app) {}

  // Appends the game on the table to the current player's file.
  void AddScore(int16_t mWon);
  // Fills TopList by score: of equal scores the later entry stands higher.
  void Sort(const std::string& gName, const std::string& Player, int16_t Won);
  // Fills TopList from won games by time or by moves, lowest first.
  void FinSort(bool Time, bool Moves);
  void OpenScore(const std::string& Player);
  void CloseScore();
  void OpenAllScore();
  // Asks first; true when the files were deleted.
  bool ClearStat();
  int32_t ScoreTop() const { return static_cast<int32_t>(list_.size()); }
  void AddSesGame(int16_t mWon);
  int16_t SesTop() const { return static_cast<int16_t>(ses_.size()); }
  // Writes the report to a file the user chose; false (and no message) when it fails.
  bool ExportStat(const std::string& path);

  TotalsRec AllTotals() const;
  TotalsRec GameTotals(const std::string& gName) const;
  TotalsRec PlayerTotals(const std::string& Player) const;
  PeriodRec PeriodTotals(const std::string& date, const std::string& interval) const;
  PeriodRec PeriodTotals(const CivilDate& day, const std::string& interval) const;
  TotalsRec SessionTotals() const;
  const ScoreRec& ScoreItem(int32_t i) const { return list_[i - 1]; }
  ScoreRec GameItem(const std::string& gName, int n) const;
  ScoreRec TopItem(int i) const;
  const ScoreRec& SesItem(int i) const { return ses_[i - 1]; }

  // The score file of a player, beside the data folder; every path of a player's file is
  // formed here. Asked for writing, the folders above it are made.
  std::string ScoreFile(const std::string& player, FolderUse use = FolderUse::Read) const;
  // Lines the last reading passed over, as "file: line n".
  const std::vector<std::string>& Skipped() const { return skipped_; }

 private:
  void Insert(int slot, int32_t entry);

  Program& app_;
  std::vector<ScoreRec> list_;
  std::array<int32_t, 21> top_{};  // entries of list_ from 1, 0 for an empty slot; slot 0 unused
  std::vector<ScoreRec> ses_;
  std::vector<std::string> skipped_;
  bool toldWriteFailure_ = false;
};

// The statistics report, byte for byte, of what ScoreList holds.
std::string ScoreReport(const Program& app);

}  // namespace qv

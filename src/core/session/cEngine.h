#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "session/TransRec.h"

namespace qv {

class Program;

// The journal of a game: one record per card move, in the order of play, with a cursor.
// Records 1 to TransID are on the table; TransID + 1 to TransTop are undone and can be redone.
class cEngine {
 public:
  // The cursor and the top are 16-bit, so a journal holds at most this many records;
  // a step that would cross it is not begun, and a file with more is not a game.
  static constexpr int kMaxRecords = 32767;

  explicit cEngine(Program& app);

  void SaveTrans(int PicID, int DCell, int DPile, int DPos, int mCards, int tMod);
  // Writes the game on the table, the undone records left out; false with a reason if it failed.
  bool SavetoFile(const std::string& fName, std::string* error = nullptr);
  // Replaces the journal with a file's records, all standing undone; the journal is left as
  // it was when the file does not read.
  bool LoadFile(const std::string& fName, std::string* error = nullptr);
  void LoadRecords(const std::vector<TransRec>& records);

  // Speed is in and out: a step of several records sets the caller's speed to 2.
  bool Undo(int& Speed);
  bool Redo(int& Speed);
  void UndoAll(int& Speed);
  void RedoAll(int& Speed);
  // Walks by whole steps to Pos. Without glide every card is placed at once, steps of
  // several records too: a slider dragged over the journal shows each position at once.
  void MoveTo(int Pos, bool glide = true);

  int GetTransID() const { return TransID; }
  int GetTransTop() const { return TransTop; }
  bool UndoPossible() const { return TransID >= 1; }
  bool RedoPossible() const { return TransID < TransTop; }
  bool MoveStarted() const { return TransTop >= 1; }
  bool HasRoomFor(int records) const { return TransID + records <= kMaxRecords; }
  void StartMulti() { MultiOn = 1; }
  void EndMulti();
  void ClearTRANS();
  int TotalGoalCards() const;

  const TransRec& Record(int id) const { return TRANS[id]; }
  int16_t PicID(int id) const { return TRANS[id].PicID; }
  int16_t SCell(int id) const { return TRANS[id].SCell; }
  int16_t SPile(int id) const { return TRANS[id].SPile; }
  int16_t SPos(int id) const { return TRANS[id].SPos; }
  int16_t DCell(int id) const { return TRANS[id].DCell; }
  int16_t DPile(int id) const { return TRANS[id].DPile; }
  int16_t DPos(int id) const { return TRANS[id].DPos; }
  int16_t mCards(int id) const { return TRANS[id].mCards; }
  int16_t Multi(int id) const { return TRANS[id].Multi; }
  int GetTransMax() const { return TransMax; }
  // Counts every change of the journal, so a copy of the game can tell that it is behind.
  int Revision() const { return revision_; }

 private:
  void Grow();

  Program& app_;
  int TransTop = 0;
  int TransID = 0;
  std::vector<TransRec> TRANS;  // record 0 is an empty guard
  int TransMax = 0;
  int16_t MultiOn = 0;
  int revision_ = 0;
  bool glideSteps_ = true;  // a step of several records moves at speed 2
};

}  // namespace qv

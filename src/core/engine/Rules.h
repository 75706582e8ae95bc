#pragma once

namespace qv {

class Table;
class cGames;

// The rule book of the table. Everything is read from the definition and the table
// at the moment of the question; the rules keep no state.

// Do the mCards cards above PicID in its tableau pile form a group with it?
bool IsSequence(const Table& t, const cGames& g, int PicID, int mCards);
// May card C (alone or the foot of a group) be laid on tableau pile Pile by hand?
// The caller skips the pile that C lies on.
bool TableauAccepts(const Table& t, const cGames& g, int Pile, int C);
// Does foundation pile f accept card C by double-click?
bool FoundationAccepts(const Table& t, const cGames& g, int f, int C);
// Do the 13 top cards of tableau pile p form a completed set?
bool HasSetOnTop(const Table& t, const cGames& g, int p);

}  // namespace qv

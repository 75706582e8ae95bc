#pragma once

#include <QString>
#include <QStringList>

#include "scores/ScoreRec.h"

class QComboBox;
class QTreeWidget;

namespace qv {

class Program;

// Pieces the statistics windows share.

// A cell of a score list by its column heading: "S No." is the slot, "Date" the short date,
// "Time" h:mm:ss, "Status" Won or Lost, the others the record's fields.
QString ScoreCell(const ScoreRec& r, const QString& column, int slot = 0);
// A list of rows with these headings, named as its control.
QTreeWidget* NewScoreList(const char* name, const QStringList& columns);
// The column whose cells stand out (bold, dark red), as the list is ranked by it.
void MarkColumn(QTreeWidget* list, int column);
// Selectors: every game of the list, and every player in slot order; `first` leads when given.
QComboBox* NewSelector(const char* name);
void FillGames(const Program& app, QComboBox* box, const QString& first = {});
void FillPlayers(const Program& app, QComboBox* box, const QString& first = {});
// Selects the item of that text when there is one.
void SelectText(QComboBox* box, const QString& text);

}  // namespace qv

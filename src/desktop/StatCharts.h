#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

class QChartView;

namespace qv {

// The statistics windows' charts: still (no animation), legible at their default size.

QChartView* NewChartView(const char* name);
// Labelled slices, such as "Won : 3" and "Lost : 5"; all zeros show an empty ring.
void ShowPie(QChartView* view, const QList<QPair<QString, qreal>>& slices);
// One bar for each value, named below it.
void ShowBars(QChartView* view, const QStringList& names, const QList<qreal>& values);
// One line for each series (its values in `columns[i]`), with a legend; points are named by
// `xNames` when given, else numbered from 1.
void ShowLines(QChartView* view, const QStringList& series, const QList<QList<qreal>>& columns,
               const QStringList& xNames = {});

}  // namespace qv

#include "StatCharts.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QLineSeries>
#include <QPieSeries>
#include <QValueAxis>
#include <algorithm>

namespace qv {

namespace {

QChart* FreshChart(QChartView* view) {
  auto* chart = new QChart;
  chart->setAnimationOptions(QChart::NoAnimation);
  chart->setMargins(QMargins(4, 4, 4, 4));
  chart->setBackgroundRoundness(0);
  QChart* old = view->chart();
  view->setChart(chart);
  delete old;
  return chart;
}

// A value axis from 0 that ends on a round figure, with whole-number labels.
QValueAxis* CountAxis(qreal top) {
  auto* axis = new QValueAxis;
  axis->setRange(0, std::max<qreal>(top * 1.08, 1));  // room for the labels above the bars
  axis->setLabelFormat("%.0f");
  axis->applyNiceNumbers();
  // Small counts get a line for each whole number, never two lines labelled alike.
  if (axis->max() <= 5) axis->setTickCount(int(axis->max()) + 1);
  return axis;
}

}  // namespace

QChartView* NewChartView(const char* name) {
  auto* view = new QChartView;
  view->setObjectName(name);
  view->setRenderHint(QPainter::Antialiasing);
  view->setMinimumSize(260, 200);
  FreshChart(view);
  return view;
}

void ShowPie(QChartView* view, const QList<QPair<QString, qreal>>& slices) {
  QChart* chart = FreshChart(view);
  auto* series = new QPieSeries;
  for (const auto& [label, value] : slices) {
    QPieSlice* slice = series->append(label, std::max<qreal>(value, 0));
    slice->setLabelVisible(true);
  }
  chart->addSeries(series);
  chart->legend()->setVisible(false);
}

void ShowBars(QChartView* view, const QStringList& names, const QList<qreal>& values) {
  QChart* chart = FreshChart(view);
  auto* set = new QBarSet("");
  set->setLabelColor(Qt::black);
  qreal top = 0;
  for (qreal v : values) {
    set->append(std::max<qreal>(v, 0));
    top = std::max(top, v);
  }
  auto* series = new QBarSeries;
  series->append(set);
  series->setLabelsVisible(true);
  series->setLabelsPosition(QAbstractBarSeries::LabelsOutsideEnd);
  chart->addSeries(series);
  auto* x = new QBarCategoryAxis;
  x->append(names);
  chart->addAxis(x, Qt::AlignBottom);
  series->attachAxis(x);
  QValueAxis* y = CountAxis(top);
  chart->addAxis(y, Qt::AlignLeft);
  series->attachAxis(y);
  chart->legend()->setVisible(false);
}

void ShowLines(QChartView* view, const QStringList& names, const QList<QList<qreal>>& columns,
               const QStringList& xNames) {
  QChart* chart = FreshChart(view);
  qreal top = 0, bottom = 0;
  qsizetype points = 0;
  QList<QLineSeries*> lines;
  for (qsizetype s = 0; s < names.size(); ++s) {
    auto* line = new QLineSeries;
    line->setName(names[s]);
    line->setPointsVisible(true);
    const QList<qreal>& values = columns.value(s);
    for (qsizetype i = 0; i < values.size(); ++i) {
      line->append(xNames.isEmpty() ? i + 1 : i, values[i]);
      top = std::max(top, values[i]);
      bottom = std::min(bottom, values[i]);
    }
    points = std::max(points, values.size());
    chart->addSeries(line);
    lines.append(line);
  }
  QAbstractAxis* x;
  if (!xNames.isEmpty()) {
    auto* categories = new QBarCategoryAxis;
    categories->append(xNames);
    x = categories;
  } else {
    auto* numbers = new QValueAxis;
    numbers->setRange(1, std::max<qsizetype>(points, 2));
    numbers->setLabelFormat("%.0f");
    // Whole numbers only, at most about ten of them.
    numbers->setTickType(QValueAxis::TicksDynamic);
    numbers->setTickAnchor(1);
    numbers->setTickInterval(std::max<qsizetype>(1, (points + 9) / 10));
    x = numbers;
  }
  chart->addAxis(x, Qt::AlignBottom);
  QValueAxis* y = CountAxis(top);
  if (bottom < 0) {
    y->setMin(bottom);
    y->applyNiceNumbers();
  }
  chart->addAxis(y, Qt::AlignLeft);
  for (QLineSeries* line : lines) line->attachAxis(x), line->attachAxis(y);
  chart->legend()->setAlignment(Qt::AlignBottom);
}

}  // namespace qv

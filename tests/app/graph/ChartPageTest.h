#pragma once

#include "app/graph/GraphViewController.h"
#include "app/graph/PulseView.h"
#include "support/ReadingPageTest.h"

namespace zel {

/// The chart page of P1, who has sixty days of readings from 01/03/2026, each a mmHg higher.
class ChartPageTest : public ReadingPageTest {
protected:
    ChartPageTest();
    /// Days as "yyyyMMdd".
    void openChart(const QString& begin, const QString& end);
    void showDays(const QString& begin, const QString& end);
    QString shown() const; ///< "begin-end"
    PulseView& pulse() { return find<PulseView>("PulseView"); }
    ChartView& blood() { return find<ChartView>("BloodView"); }
    /// The file's comments of P1, each as "begin-end degree text".
    QStringList inFile();
    /// The comment strip at a time.
    QPoint strip(const QString& time);
    static void send(QWidget& to, QEvent::Type type, QPoint where);
    static void drag(QWidget& from, QPoint press, QPoint release);
    /// The comment icon, to the strip.
    void dropIcon(const QString& time);
    /// Adds to the text in the panel, and goes back to the chart.
    void comment(const QString& words);
};

} // namespace zel

#include "app/graph/HistogramView.h"

#include <algorithm>
#include <cmath>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// "Systolic pressure, mmHg: most often 120 to 129, 34 % of the readings."
QString mostFrequent(const QString& name, const HistogramMeasure& measure) {
    constexpr int classWidth = 10;
    const auto* const most = std::ranges::max_element(measure.share);
    const int from = static_cast<int>(most - measure.share.begin()) * classWidth;
    if (*most <= 0) return {};
    return qtTrId("spokenFrequent")
        .arg(name)
        .arg(from)
        .arg(from + classWidth - 1)
        .arg(std::lround(*most * 100));
}

} // namespace

HistogramView::HistogramView(const DataStore& dataStore, const DisplayPeriod& displayPeriod, QWidget* parent)
    : PictureView(u"HistogramView"_s, qtTrId("histogramView"), parent), store(dataStore),
      period(displayPeriod) {
    reload();
}

void HistogramView::read() {
    figures = calcHistogram(store.getReadingForCurID(), period.selection(), figures);
    offScale = histogramOffScale(store.getReadingForCurID(), period.selection());
    setAccessibleDescription(words());
    invalidate();
}

Picture HistogramView::makePicture(const Rect& rect) { return drawHistogram(figures, offScale, rect); }

QString HistogramView::words() const {
    QStringList lines{qtTrId("readingCount", static_cast<int>(figures.total))};
    if (figures.total > 0)
        lines << mostFrequent(qtTrId("spokenSys"), figures.sys)
              << mostFrequent(qtTrId("spokenDia"), figures.dia)
              << mostFrequent(qtTrId("spokenPulse"), figures.pulse);
    const std::array names{qtTrId("spokenSys"), qtTrId("spokenDia"), qtTrId("spokenPulse")};
    for (std::size_t panel = 0; panel < names.size(); ++panel) {
        const QString beyond = offScaleText(offScale[panel]);
        if (!beyond.isEmpty()) lines << qtTrId("infoLine").arg(names[panel], beyond);
    }
    return lines.join(u'\n');
}

} // namespace zel

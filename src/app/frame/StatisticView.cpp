#include "app/frame/StatisticView.h"

#include "chart/DrawStatistic.h"
#include "chart/Drawing.h"
#include "chart/PicturePainter.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zel {

namespace {

constexpr double letterHeight = 14; ///< of the table's texts, in its own units

/// Black on paper; on a screen in the colour that its background asks for.
Picture inColour(Picture picture, const QColor& color) {
    for (PictureItem& item : picture)
        if (auto* line = std::get_if<TextLine>(&item)) line->attribute.color = color;
    return picture;
}

/// What the table takes, in its own units, whatever it shows.
Size tableSize(bool showMap) {
    constexpr double ample = 400;
    double right = 0, bottom = ample;
    for (const PictureItem& item : drawStatistic({}, showMap, {0, 0, ample, ample})) {
        const auto* line = std::get_if<TextLine>(&item);
        if (!line) continue;
        right = std::max(right, line->origin.x + textSize(line->text, line->attribute).width);
        bottom = std::min(bottom, line->origin.y);
    }
    return {right + 2, ample - bottom + 2};
}

} // namespace

StatisticView::StatisticView(const DataStore& dataStore, const DisplayPeriod& displayPeriod, QWidget* parent)
    : QWidget(parent), store(dataStore), period(displayPeriod) {
    setObjectName(QStringLiteral("statisticView"));
    setAccessibleName(qtTrId("statisticPanel"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

StatisticFigures StatisticView::figures() const {
    return calcStatistic(store.getReadingForCurID(), period.selection(), showsMap());
}

void StatisticView::calc() {
    setAccessibleDescription(words(figures()));
    updateGeometry();
    update();
}

QSize StatisticView::sizeHint() const {
    const Size natural = tableSize(showsMap());
    const double scale = fontMetrics().height() / letterHeight;
    return {static_cast<int>(std::ceil(natural.width * scale)),
            static_cast<int>(std::ceil(natural.height * scale))};
}

void StatisticView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Size natural = tableSize(showsMap());
    const double scale = std::min(width() / natural.width, height() / natural.height);
    painter.scale(scale, scale);
    const Picture picture = drawStatistic(figures(), showsMap(), {0, 0, natural.width, natural.height});
    paintPicture(painter, inColour(picture, palette().color(QPalette::WindowText)), natural.height);
}

std::vector<QStringList> StatisticView::spokenRows() const {
    const StatisticFigures statistic = figures();
    const auto row = [](const QString& name, const MeasureStatistic& measure) {
        return QStringList{name, maxString(static_cast<std::uint32_t>(measure.average)),
                           minString(measure.minimum), maxString(measure.maximum)};
    };
    return {{accessibleName(), qtTrId("average"), qtTrId("min"), qtTrId("max")},
            row(qtTrId("spokenSys"), statistic.sys),
            row(qtTrId("spokenDia"), statistic.dia),
            row(qtTrId("spokenPulse"), statistic.pulse),
            row(showsMap() ? qtTrId("spokenMap") : qtTrId("spokenPP"), statistic.mapOrPP)};
}

QString StatisticView::words(const StatisticFigures& statistic) const {
    QStringList lines;
    const auto add = [&lines](const QString& name, const MeasureStatistic& measure) {
        const auto average = static_cast<std::uint32_t>(measure.average);
        lines += qtTrId("spokenMeasure")
                     .arg(name, maxString(average), minString(measure.minimum), maxString(measure.maximum));
    };
    add(qtTrId("spokenSys"), statistic.sys);
    add(qtTrId("spokenDia"), statistic.dia);
    add(qtTrId("spokenPulse"), statistic.pulse);
    add(showsMap() ? qtTrId("spokenMap") : qtTrId("spokenPP"), statistic.mapOrPP);
    return lines.join(u'\n');
}

} // namespace zel

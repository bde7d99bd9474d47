#include "report/LeftOutList.h"

#include "report/FieldText.h"
#include "store/ManualReading.h"

namespace zel {

namespace {

const TextAttribute titleFont{.size = 12, .bold = true};
const TextAttribute reasonFont{};
constexpr double belowTitle = 6;

Rect bodyOf(const Rect& rect) {
    return {rect.x, rect.y, rect.width, rect.height - lineHeight(titleFont) - belowTitle};
}

QString headOf(const ReadingModel& reading, const SettingModel& settings) {
    const QString head = qtTrId("reportLeftOutReading")
                             .arg(reading.strDisplayDate(settings), reading.strDisplayTime(settings))
                             .arg(reading.sys)
                             .arg(reading.dia)
                             .arg(reading.pulse);
    return reading.isManual ? head + qtTrId(", ") + qtTrId("remarkManual") : head;
}

} // namespace

LeftOutPages layOutLeftOut(const ReportSource& report, const LeftOutScope& scope, const Rect& rect) {
    LeftOutPages list;
    std::vector<TextItem> items;
    list.readings = leftOutReadings(report, scope);
    items.reserve(list.readings.size());
    for (const ReadingModel* reading : list.readings) {
        list.reasons.push_back(wrapped(printable(describeExclusion(*reading)), rect.width, reasonFont));
        items.push_back(
            {static_cast<int>(list.reasons.back().size()), 2 * lineHeight(reasonFont) + 2 * textPartMargin});
    }
    list.pages = textPages(items, bodyOf(rect).height, lineHeight(reasonFont), 2 * textPartMargin);
    return list;
}

void drawLeftOut(Picture& picture, const ReportSource& report, const LeftOutPages& list, const Rect& rect,
                 int page) {
    picture.emplace_back(FillRect{rect, Qt::white});
    const auto index = static_cast<std::size_t>(page) - 1;
    if (index >= list.pages.size()) return;
    const Rect body = bodyOf(rect);
    fieldText(picture, qtTrId("reportLeftOutTitle", static_cast<int>(list.readings.size())),
              {rect.x, rect.top() - lineHeight(titleFont)}, rect.width, titleFont);
    double top = body.top();
    for (const TextPart& part : list.pages[index]) {
        top -= part.height;
        drawTextPart(picture, {body.x, top, body.width, part.height},
                     {headOf(*list.readings[part.item], report.settings), {}}, list.reasons[part.item], part);
        picture.emplace_back(StraightLine{{body.x, top}, {body.right(), top}, 0.5, Qt::gray});
    }
}

} // namespace zel

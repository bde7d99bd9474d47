#include "app/graph/BPInfoView.h"

#include "app/widgets/PageHeading.h"
#include "app/widgets/Style.h"
#include "store/ManualReading.h"

#include <QGridLayout>

#include <algorithm>
#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestComment = 240;
constexpr int gap = Style::near; ///< between mark and panel

QString arrhythmiaTitle(const ReadingModel& reading, const DataStore& store) {
    if (reading.isAFib()) return qtTrId("afib");
    return reading.isPad() || store.getTargetString().startsWith("pad"_L1) ? qtTrId("pad") : qtTrId("ihd");
}

QString shortened(const QString& comment) {
    const QString text = comment.simplified();
    return text.size() <= longestComment ? text : text.left(longestComment - 1) + u'…';
}

} // namespace

ReadingInfo readingInfo(const ReadingModel& reading, const DataStore& store) {
    const SettingModel& setting = store.getSetting();
    const auto mmHg = [](std::uint32_t value) { return qtTrId("valueMmHg").arg(value); };
    const bool showPP = setting.showPPorMap == 0;
    ReadingInfo info{
        {qtTrId("columnDate"), reading.strDisplayDate(setting)},
        {qtTrId("columnTime"), reading.strDisplayTime(setting)},
        {qtTrId("infoSys"), mmHg(reading.sys)},
        {qtTrId("infoDia"), mmHg(reading.dia)},
        {qtTrId("infoPulse"), qtTrId("valuePulse").arg(reading.pulse)},
        {showPP ? qtTrId("pp") : qtTrId("map"), mmHg(showPP ? reading.pp : reading.map)},
        {qtTrId("columnMam"), reading.mam == 1 ? qtTrId("answerYes") : qtTrId("answerNo")},
        {arrhythmiaTitle(reading, store), reading.strDisplayPad()},
    };
    if (const QString remark = describeRemark(reading); !remark.isEmpty())
        info.emplace_back(qtTrId("infoRemark"), shortened(remark));
    if (reading.comment) info.emplace_back(qtTrId("columnComment"), shortened(reading.comment->comment));
    return info;
}

QString spokenInfo(const ReadingInfo& info) {
    QStringList lines;
    for (const auto& [title, value] : info)
        lines += qtTrId("infoLine").arg(title, value);
    return lines.join(u'\n');
}

QPoint placeBeside(const QRect& mark, const QSize& panel, const QRect& window) {
    const auto inside = [](int at, int length, int from, int to) {
        return std::max(from, std::min(at, to - length + 1));
    };
    const QPoint free(inside(mark.left(), panel.width(), window.left(), window.right()),
                      inside(mark.top(), panel.height(), window.top(), window.bottom()));
    const std::array places{
        QPoint(mark.right() + gap, free.y()), QPoint(mark.left() - gap - panel.width(), free.y()),
        QPoint(free.x(), mark.top() - gap - panel.height()), QPoint(free.x(), mark.bottom() + gap)};
    const auto fits = [&](QPoint place) { return window.contains(QRect(place, panel)); };
    const auto* const found = std::ranges::find_if(places, fits);
    return found == places.end() ? free : *found;
}

BPInfoView::BPInfoView(QWidget* window) : QFrame(window), lines(new QGridLayout(this)) {
    setObjectName(u"BPInfoView"_s);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    setAttribute(Qt::WA_TransparentForMouseEvents); // the pointer stays with the mark
    lines->setContentsMargins(Style::near, Style::near, Style::near, Style::near);
    lines->setHorizontalSpacing(Style::apart);
    lines->setVerticalSpacing(Style::none);
    hide();
}

void BPInfoView::addRow() {
    const auto row = static_cast<int>(rows.size());
    rows.push_back({new QuietLabel({}, this), new QLabel(this)});
    rows.back().value->setTextFormat(Qt::PlainText);
    rows.back().value->setMaximumWidth(fontMetrics().averageCharWidth() * 36);
    lines->addWidget(rows.back().title, row, 0, Qt::AlignTop | Qt::AlignLeft);
    lines->addWidget(rows.back().value, row, 1);
}

/// The labels are kept: to make them anew takes longer than all else when the pointer runs along the marks.
void BPInfoView::fill(const ReadingInfo& info) {
    while (rows.size() < info.size())
        addRow();
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const auto [title, value] = rows[row];
        const bool used = row < info.size();
        title->setText(used ? info[row].first : QString());
        value->setText(used ? info[row].second : QString());
        value->setWordWrap(value->text().size() > 24);
        value->setMinimumWidth(value->wordWrap() ? fontMetrics().averageCharWidth() * 30 : 0);
        title->setVisible(used);
        value->setVisible(used);
    }
}

void BPInfoView::showReading(const ReadingInfo& info, const QRect& mark) {
    fill(info);
    setAccessibleName(spokenInfo(info));
    ensurePolished();
    lines->activate();
    const QSize natural = sizeHint();
    const QSize wanted(natural.width(),
                       std::max(natural.height(), lines->totalHeightForWidth(natural.width())));
    resize(wanted.boundedTo(parentWidget()->size()));
    move(placeBeside(mark, size(), parentWidget()->rect()));
    show();
    raise();
}

} // namespace zel

#include "app/frame/PeriodBar.h"

#include "app/widgets/DayEdit.h"
#include "app/widgets/FlowLayout.h"
#include "app/widgets/Mnemonic.h"
#include "app/widgets/SeenName.h"
#include "app/widgets/Style.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

#include <array>

namespace zel {

using namespace Qt::StringLiterals;

struct PeriodBar::Choice {
    int tag;
    QString name;
    QString text;
    QString spoken;
    QString hint;
};

namespace {
constexpr int gap = Style::wide, gapInGroup = Style::near, gapBetweenLines = Style::none;
}

PeriodBar::PeriodBar(const DataStore& dataStore, DisplayPeriod& displayPeriod, MessagePanel& messagePanel,
                     QWidget* parent)
    : QWidget(parent), store(dataStore), period(displayPeriod), panel(messagePanel),
      beginDay(new DayEdit(u"beginDay"_s, qtTrId("periodBegin"), this)),
      endDay(new DayEdit(u"endDay"_s, qtTrId("periodEnd"), this)), choices(new QButtonGroup(this)),
      halves(new QButtonGroup(this)), btnAverage(new QCheckBox(qtTrId("includeUndated"), this)),
      parts(new FlowLayout(this)) {
    setObjectName(u"periodBar"_s);
    setAccessibleName(qtTrId("periodBar"));
    parts->setGaps(gap, gapBetweenLines);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    btnAverage->setObjectName(u"btnAverage"_s);
    nameAsSeen(*btnAverage, btnAverage->text());
    // Undated readings beside All, on which they depend; in this order two lines are enough on a small
    // screen.
    for (QWidget* part : {makeDays(), makeHalves(), makePeriods(), static_cast<QWidget*>(btnAverage)})
        parts->addWidget(part);
    connect(btnAverage, &QCheckBox::clicked, &period, &DisplayPeriod::setIncludeNoDatetimeData);
    connect(&store, &DataStore::reloaded, this, &PeriodBar::UpdateUIBySetting);
    connect(&period, &DisplayPeriod::changed, this, &PeriodBar::showPeriod);
    UpdateUIBySetting();
}

QWidget* PeriodBar::makeDays() {
    auto* days = new QWidget(this);
    auto* row = new QHBoxLayout(days);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Style::near);
    for (const auto& [title, edit] :
         {std::pair(qtTrId("periodFrom"), beginDay), {qtTrId("periodTo"), endDay}}) {
        auto* label = new QLabel(title, days);
        label->setBuddy(edit);
        nameAsSeen(*edit, title, edit->accessibleName());
        row->addWidget(label);
        row->addWidget(edit);
        connect(edit, &DayEdit::refused, this, &PeriodBar::refuse);
    }
    // A typed or refused end has the begin's words; only one that was chosen in the calendar has its own.
    connect(beginDay, &DayEdit::confirmed, this, [this] { pick(qtTrId("BeginDate")); });
    connect(endDay, &DayEdit::confirmed, this,
            [this](bool inCalendar) { pick(inCalendar ? qtTrId("EndDate") : qtTrId("BeginDate")); });
    return days;
}

QWidget* PeriodBar::makePeriods() {
    const auto last = [](PeriodChoice choice, const QString& days) {
        return Choice{static_cast<int>(choice), u"viewLast"_s + days, qtTrId("viewLast").arg(days),
                      qtTrId("viewLastName").arg(days), qtTrId("viewLastHint").arg(days)};
    };
    const std::array table{
        last(PeriodChoice::last7, u"7"_s), last(PeriodChoice::last30, u"30"_s),
        last(PeriodChoice::last90, u"90"_s),
        Choice{static_cast<int>(PeriodChoice::measuringWeek),
               u"viewWeek"_s,
               qtTrId("viewWeek"),
               {},
               qtTrId("viewWeekHint")},
        Choice{
            static_cast<int>(PeriodChoice::all), u"viewAll"_s, qtTrId("viewAll"), {}, qtTrId("viewAllHint")}};
    connect(choices, &QButtonGroup::idClicked, this,
            [this](int tag) { period.choose(static_cast<PeriodChoice>(tag)); });
    return makeGroup(*choices, qtTrId("viewDays"), table);
}

QWidget* PeriodBar::makeHalves() {
    const auto half = [](HalfOfDay tag, const QString& name, const QString& text, const QString& hint) {
        return Choice{static_cast<int>(tag), name, text, {}, hint};
    };
    const std::array table{half(HalfOfDay::both, u"viewBoth"_s, qtTrId("viewBoth"), qtTrId("viewBothHint")),
                           half(HalfOfDay::morning, u"amOnly"_s, qtTrId("viewAM"), qtTrId("viewAMHint")),
                           half(HalfOfDay::evening, u"pmOnly"_s, qtTrId("viewPM"), qtTrId("viewPMHint"))};
    connect(halves, &QButtonGroup::idClicked, this,
            [this](int tag) { period.setHalfOfDay(static_cast<HalfOfDay>(tag)); });
    return makeGroup(*halves, qtTrId("viewHalf"), table);
}

QWidget* PeriodBar::makeGroup(QButtonGroup& group, const QString& title, std::span<const Choice> table) {
    auto* box = new QWidget(this);
    box->setAccessibleName(title);
    auto* row = new FlowLayout(box);
    row->setGaps(gapInGroup, gapBetweenLines);
    for (const Choice& choice : table) {
        auto* button = new QRadioButton(choice.text, box);
        button->setObjectName(choice.name);
        button->setToolTip(choice.hint);
        nameAsSeen(*button, choice.text, choice.spoken);
        group.addButton(button, choice.tag);
        row->addWidget(button);
    }
    return box;
}

void PeriodBar::addOption(QWidget& option) { parts->addWidget(&option); }

void PeriodBar::LoadData() {
    period.adjustViewAll();
    period.setChangeUser(false);
    showPeriod();
}

void PeriodBar::UpdateUIBySetting() {
    for (DayEdit* edit : {beginDay, endDay})
        edit->setFormat(store.getSetting().dateFormat);
    showPeriod();
}

void PeriodBar::showPeriod() {
    beginDay->showDay(period.getTimePeriod().begin);
    endDay->showDay(period.getTimePeriod().end);
    const int chosen = static_cast<int>(period.getChoice());
    choices->setExclusive(false); // so that none can be shown selected
    for (QAbstractButton* choice : choices->buttons())
        choice->setChecked(choices->id(choice) == chosen);
    choices->setExclusive(true);
    halves->button(static_cast<int>(period.getHalfOfDay()))->setChecked(true);
    btnAverage->setChecked(period.getIncludeNoDatetimeData());
    offerUndated();
}

/// What is out of reach says why, and how to get there.
void PeriodBar::offerUndated() {
    const bool isAll = period.getChoice() == PeriodChoice::all;
    btnAverage->setEnabled(isAll);
    btnAverage->setToolTip(isAll ? qtTrId("includeUndatedHint") : qtTrId("viewChoiceNeeded"));
    nameAsSeen(*btnAverage, btnAverage->text());
}

void PeriodBar::pick(const QString& refusal) {
    if (period.pickTimePeriod(beginDay->day(), endDay->day())) return;
    refuse(refusal);
}

void PeriodBar::refuse(const QString& why) {
    showPeriod(); // before the message, which takes the focus from the field
    panel.ShowMessage(why, qtTrId("DateError"));
}

} // namespace zel

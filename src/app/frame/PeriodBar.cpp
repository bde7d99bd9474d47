#include "app/frame/PeriodBar.h"

#include "app/widgets/DayEdit.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

#include <algorithm>
#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {
constexpr int gap = 16;
}

PeriodBar::PeriodBar(const DataStore& dataStore, DisplayPeriod& displayPeriod, MessagePanel& messagePanel,
                     QWidget* parent)
    : QWidget(parent), store(dataStore), period(displayPeriod), panel(messagePanel),
      beginDay(new DayEdit(u"beginDay"_s, qtTrId("periodBegin"), this)),
      endDay(new DayEdit(u"endDay"_s, qtTrId("periodEnd"), this)), choices(new QButtonGroup(this)),
      btnAverage(new QCheckBox(qtTrId("includeUndated"), this)) {
    setObjectName(u"periodBar"_s);
    setAccessibleName(qtTrId("periodBar"));
    parts = new QBoxLayout(QBoxLayout::LeftToRight, this);
    parts->setContentsMargins(0, 0, 0, 0);
    parts->setSpacing(gap);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* first = new QHBoxLayout;
    first->setSpacing(gap);
    first->addLayout(makeDays());
    first->addLayout(makeChoices());
    first->addStretch(1);
    parts->addLayout(first, 0);
    parts->addLayout(makeOptions(), 1);
    connect(&store, &DataStore::reloaded, this, &PeriodBar::UpdateUIBySetting);
    connect(&period, &DisplayPeriod::changed, this, &PeriodBar::showPeriod);
    UpdateUIBySetting();
}

QBoxLayout* PeriodBar::makeDays() {
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    for (const auto& [title, edit] :
         {std::pair(qtTrId("periodFrom"), beginDay), {qtTrId("periodTo"), endDay}}) {
        auto* label = new QLabel(title, this);
        label->setBuddy(edit);
        row->addWidget(label);
        row->addWidget(edit);
    }
    // A typed or refused end has the begin's words; only one that was chosen in the calendar has its own.
    connect(beginDay, &DayEdit::confirmed, this, [this] { pick(qtTrId("BeginDate")); });
    connect(endDay, &DayEdit::confirmed, this,
            [this](bool inCalendar) { pick(inCalendar ? qtTrId("EndDate") : qtTrId("BeginDate")); });
    return row;
}

QBoxLayout* PeriodBar::makeChoices() {
    struct Choice {
        ViewSelection tag;
        QString name;
        QString text;
    };
    const std::array table{Choice{ViewSelection::viewAll, u"viewAll"_s, qtTrId("viewAll")},
                           Choice{ViewSelection::amOnly, u"amOnly"_s, qtTrId("viewAM")},
                           Choice{ViewSelection::pmOnly, u"pmOnly"_s, qtTrId("viewPM")}};
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    for (const Choice& choice : table) {
        auto* button = new QRadioButton(choice.text, this);
        button->setObjectName(choice.name);
        button->setAccessibleName(QString(choice.text).remove(u'&'));
        choices->addButton(button, static_cast<int>(choice.tag));
        row->addWidget(button);
    }
    choices->button(static_cast<int>(ViewSelection::viewAll))->setToolTip(qtTrId("viewAllHint"));
    connect(choices, &QButtonGroup::idClicked, this,
            [this](int tag) { period.setSelectViewIndex(static_cast<ViewSelection>(tag)); });
    return row;
}

QBoxLayout* PeriodBar::makeOptions() {
    btnAverage->setObjectName(u"btnAverage"_s);
    btnAverage->setAccessibleName(btnAverage->text());
    connect(btnAverage, &QCheckBox::clicked, &period, &DisplayPeriod::setIncludeNoDatetimeData);
    options = new QHBoxLayout;
    options->setSpacing(gap);
    options->addWidget(btnAverage);
    options->addStretch(1);
    return options;
}

void PeriodBar::addOption(QWidget& option) { options->insertWidget(options->count() - 1, &option); }

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
    const int selected = static_cast<int>(period.getSelectViewIndex());
    choices->setExclusive(false); // so that none can be shown selected
    for (QAbstractButton* choice : choices->buttons())
        choice->setChecked(choices->id(choice) == selected);
    choices->setExclusive(true);
    btnAverage->setChecked(period.getIncludeNoDatetimeData());
    offerChoices(selected >= 1);
}

/// What is out of reach says why, and how to get there.
void PeriodBar::offerChoices(bool isViewChosen) {
    const QString instead = qtTrId("viewChoiceNeeded");
    for (const auto& [part, hint] :
         {std::pair<QAbstractButton*, QString>(choices->button(static_cast<int>(ViewSelection::amOnly)),
                                               qtTrId("viewAMHint")),
          {choices->button(static_cast<int>(ViewSelection::pmOnly)), qtTrId("viewPMHint")},
          {btnAverage, qtTrId("includeUndatedHint")}}) {
        part->setEnabled(isViewChosen);
        part->setToolTip(isViewChosen ? hint : instead);
    }
}

void PeriodBar::pick(const QString& refusal) {
    if (period.pickTimePeriod(beginDay->day(), endDay->day())) return;
    showPeriod(); // before the message, which takes the focus from the field
    panel.ShowMessage(refusal, qtTrId("DateError"));
}

QSize PeriodBar::minimumSizeHint() const {
    const QSize first = parts->itemAt(0)->minimumSize(), second = options->minimumSize();
    return {std::max(first.width(), second.width()), QWidget::minimumSizeHint().height()};
}

/// In two lines where one is too narrow.
void PeriodBar::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const int inOneLine = parts->itemAt(0)->sizeHint().width() + gap + options->sizeHint().width();
    const bool fits = width() >= inOneLine;
    parts->setDirection(fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    parts->setSpacing(fits ? gap : gap / 2);
}

} // namespace zel

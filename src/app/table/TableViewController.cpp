#include "app/table/TableViewController.h"

#include "app/frame/CommentViewController.h"
#include "app/frame/PeriodBar.h"
#include "app/frame/ReadingActions.h"
#include "app/frame/ReadingFrame.h"
#include "app/table/KeptSelection.h"
#include "app/table/LimitBar.h"
#include "app/table/ReadingColumns.h"
#include "app/table/ReadingTableItemView.h"
#include "app/table/ReadingTableModel.h"
#include "app/widgets/EmptyState.h"
#include "app/widgets/QuietTable.h"
#include "app/widgets/Style.h"
#include "app/widgets/TableLook.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

namespace {
/// The table gives way to the lines below it, however many they are.
class ListPage final : public QWidget {
public:
    using QWidget::QWidget;
    [[nodiscard]] bool hasHeightForWidth() const override { return false; }
};
} // namespace

TableViewController::TableViewController(const Parts& needed)
    : parts(needed), readingModelArray(new ReadingTableModel(needed.store, this)),
      tblReadings(new QuietTable(this)),
      noReadings(new EmptyState(u"noReadings"_s, u":/icons/tableBtn.InactiveImg.svg"_s, this)),
      noneInPeriod(new EmptyState(u"noneInPeriod"_s, u":/icons/tableBtn.InactiveImg.svg"_s, this)),
      list(new ListPage(this)), listOrAdvice(new QStackedWidget(this)),
      frame(new ReadingFrame({needed.store, needed.period, needed.panel, needed.clock}, *listOrAdvice, this)),
      btnShowMam(new QCheckBox(qtTrId("showMam"), this)), btnShowPad(new QCheckBox(this)),
      readingActions(new ReadingActions(
          {needed.store, needed.panel, needed.clock}, [this] { return chosenReadings(); }, *listOrAdvice)) {
    setObjectName(u"TableViewController"_s);
    setAccessibleName(qtTrId("pageReadings"));
    build();
    connect(&parts.store, &DataStore::reloaded, this, &TableViewController::reload);
    connect(&parts.store, &DataStore::currentIDChanged, this, &TableViewController::reload);
    connect(&parts.period, &DisplayPeriod::changed, this, &TableViewController::reload);
    connect(&parts.store, &DataStore::viewLimitsChanged, readingModelArray, &ReadingTableModel::refreshTexts);
    connect(&parts.status, &MonitorStatus::changed, this, &TableViewController::setPadTitle);
    connect(&frame->comments(), &CommentViewController::commentSelected, this,
            &TableViewController::refreshTable);
    reload();
}

void TableViewController::build() {
    dressReadings();
    addBoxes();
    addActions();
    noReadings->setTexts(qtTrId("NoData"), qtTrId("NoDataAdvice"));
    noneInPeriod->setTexts(qtTrId("noneInPeriod"), qtTrId("noneInPeriodAdvice"));
    auto* rows = new QVBoxLayout(list);
    rows->setContentsMargins({});
    rows->setSpacing(Style::tight);
    rows->addWidget(tblReadings, 1);
    rows->addWidget(new LimitBar(parts.store, parts.panel, list));
    for (QWidget* each : {list, static_cast<QWidget*>(noReadings), static_cast<QWidget*>(noneInPeriod)})
        listOrAdvice->addWidget(each);
    setFocusProxy(tblReadings);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(frame);
}

void TableViewController::dressReadings() {
    tblReadings->setObjectName(u"tblReadings"_s);
    tblReadings->setAccessibleName(qtTrId("readingList"));
    tblReadings->setModel(readingModelArray);
    dressTable(*tblReadings);
    tblReadings->setItemDelegate(new ReadingTableItemView(*readingModelArray, parts.store, *tblReadings));
    tblReadings->setAlternatingRowColors(false);
    tblReadings->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tblReadings->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    arrangement = new ReadingColumns(*tblReadings);
    connect(arrangement, &ReadingColumns::sorted, this, &TableViewController::followSorting);
    tblReadings->installEventFilter(this);
    connect(tblReadings, &QTableView::clicked, this, &TableViewController::chooseComment);
    connect(tblReadings->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &TableViewController::refreshTable); // the line under the row that the keys move
}

void TableViewController::addBoxes() {
    const auto add = [this](QCheckBox* box, const QString& name, int column) {
        box->setObjectName(name);
        box->setChecked(true);
        connect(box, &QCheckBox::toggled, tblReadings, [this, column](bool shown) {
            tblReadings->setColumnHidden(column, !shown);
            arrangement->layOut();
            if (!shown) arrangement->sortByDateInsteadOf(column);
        });
        frame->periodBar().addOption(*box);
    };
    btnShowMam->setAccessibleName(btnShowMam->text());
    add(btnShowMam, u"btnShowMam"_s, ReadingTableModel::mam);
    add(btnShowPad, u"btnShowPad"_s, ReadingTableModel::mark);
    auto* button = new QToolButton(this);
    button->setObjectName(u"btnNewReading"_s);
    button->setDefaultAction(readingActions->newReading());
    button->setAccessibleName(button->text());
    button->setToolTip(qtTrId("newReadingHint"));
    button->setFocusPolicy(Qt::StrongFocus);
    frame->periodBar().addOption(*button);
}

void TableViewController::addActions() {
    auto* copy = new QAction(qtTrId("copyRows"), tblReadings);
    copy->setObjectName(u"copyRows"_s);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &TableViewController::copyRows);
    auto* all = new QAction(qtTrId("selectAllRows"), tblReadings);
    all->setObjectName(u"selectAllRows"_s);
    all->setShortcut(QKeySequence::SelectAll);
    all->setShortcutContext(Qt::WidgetShortcut);
    connect(all, &QAction::triggered, tblReadings, &QTableView::selectAll);
    tblReadings->addActions(QList{copy, all} + readingActions->actions());
    for (QWidget* advice : {noReadings, noneInPeriod})
        advice->addAction(readingActions->newReading());
    for (QWidget* each : {static_cast<QWidget*>(tblReadings), static_cast<QWidget*>(noReadings),
                          static_cast<QWidget*>(noneInPeriod)})
        each->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(tblReadings->selectionModel(), &QItemSelectionModel::selectionChanged, readingActions,
            &ReadingActions::update);
    connect(readingActions, &ReadingActions::readingStored, this, &TableViewController::showStored);
}

/// Its row, if it has one; where it has none, the words say why.
void TableViewController::showStored(const ReadingModel& reading) {
    emit said(storedInWords(reading, parts.period.selection(), parts.store.getSetting()));
    for (int row = 0; row < readingModelArray->rowCount(); ++row) {
        const ReadingModel* listed = readingModelArray->readingAt(row);
        if (!listed || listed->RecID != reading.RecID || !listed->isSame(reading)) continue;
        tblReadings->selectRow(row);
        return tblReadings->scrollTo(tblReadings->currentIndex());
    }
}

/// What is selected stays so where it can, of the same patient. Who looks at the latest readings goes on to
/// see them.
void TableViewController::listReadings() {
    QScrollBar& scrolled = *tblReadings->verticalScrollBar();
    const int value = scrolled.value();
    const bool wasAtEnd = value == scrolled.maximum();
    const KeptSelection kept(*tblReadings, *readingModelArray);
    const bool isSamePatient =
        std::exchange(listedPatient, parts.store.getCurrentID()) == parts.store.getCurrentID();
    readingModelArray->reload(parts.period.selection());
    frame->setNote(readingModelArray->cutNote());
    QWidget* shown = list;
    if (parts.store.getReadingForCurID().empty())
        shown = noReadings;
    else if (readingModelArray->rowCount() == 0)
        shown = noneInPeriod;
    listOrAdvice->setCurrentWidget(shown);
    if (isSamePatient) kept.restore(*tblReadings, *readingModelArray);
    tblReadings->scrollToBottom(); // lays the rows out, too
    if (!wasAtEnd || !readingModelArray->isByDate()) scrolled.setValue(value);
    readingActions->update();
    setPadTitle();
}

void TableViewController::LoadData() {
    readingModelArray->refreshTexts();
    frame->LoadData();
    reload();
    // The latest reading is what people come for; the table gets its size after this.
    QMetaObject::invokeMethod(this, &TableViewController::showMostWanted, Qt::QueuedConnection);
}

/// In another order than by date it is what stands first.
void TableViewController::showMostWanted() {
    if (readingModelArray->isByDate())
        tblReadings->scrollToBottom();
    else
        tblReadings->scrollToTop();
}

/// Who has chosen a reading goes on to see it.
void TableViewController::followSorting() {
    if (tblReadings->selectionModel()->hasSelection())
        tblReadings->scrollTo(tblReadings->currentIndex());
    else
        showMostWanted();
}

void TableViewController::UpdateUIBySetting() {
    frame->UpdateUIBySetting();
    readingModelArray->refreshTexts();
}

void TableViewController::setHWButtons(bool) { setPadTitle(); }

bool TableViewController::leave() { return frame->comments().leave(); }

bool TableViewController::isEdited() const { return frame->comments().isEdited(); }

void TableViewController::checkToSaveComment() { frame->comments().checkToSaveComment(); }

bool TableViewController::readyToPrint() { return frame->comments().finish(); }

QJsonArray TableViewController::saveQuietly() { return frame->comments().saveQuietly(); }

bool TableViewController::takeUp(const QJsonObject& draft) {
    frame->comments().takeUp(draft);
    return true;
}

void TableViewController::refreshTable() { tblReadings->viewport()->update(); }

bool TableViewController::getShowMam() const { return btnShowMam->isChecked(); }

bool TableViewController::getShowPad() const { return btnShowPad->isChecked(); }

void TableViewController::setPadTitle() {
    const bool monitorDecides = !readingModelArray->isAFib() && !readingModelArray->isPad();
    const auto entitle = [this](const QString& title, const QString& box) {
        readingModelArray->setMarkTitle(title);
        btnShowPad->setText(box);
        btnShowPad->setAccessibleName(box);
    };
    if (readingModelArray->isAFib() || (monitorDecides && parts.status.state().isAFib))
        entitle(qtTrId("afib"), qtTrId("show afib readings"));
    else if (parts.store.getTargetString().startsWith("pad"_L1))
        entitle(qtTrId("pad"), qtTrId("show pad readings"));
    else
        entitle(qtTrId("ihd"), qtTrId("show ihd readings"));
}

void TableViewController::chooseComment(const QModelIndex& index) {
    if (!index.isValid() || !frame->isDisplayingComment()) return;
    if (const CommentModel* comment = readingModelArray->rowAt(index.row()).comment)
        frame->comments().setCommentScroll(QString(comment->CommentID)); // the list is read anew meanwhile
}

/// Of the rows that are selected, in their order; days without a reading are none.
std::vector<const ReadingModel*> TableViewController::chosenReadings() const {
    std::vector<const ReadingModel*> chosen;
    if (!tblReadings->selectionModel()) return chosen;
    for (const QItemSelectionRange& range : tblReadings->selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            if (const ReadingModel* reading = readingModelArray->readingAt(row)) chosen.push_back(reading);
    return chosen;
}

void TableViewController::copyRows() {
    std::vector<int> rows, columns;
    for (const QModelIndex& row : tblReadings->selectionModel()->selectedRows())
        rows.push_back(row.row());
    if (rows.empty()) return;
    std::ranges::sort(rows);
    for (int place = 0; place < ReadingTableModel::columnTotal; ++place) {
        const int column = tblReadings->horizontalHeader()->logicalIndex(place);
        if (!tblReadings->isColumnHidden(column)) columns.push_back(column);
    }
    QGuiApplication::clipboard()->setText(tabSeparated(*readingModelArray, rows, columns));
}

bool TableViewController::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) arrangement->layOut();
    if (event->type() != QEvent::KeyPress) return PageController::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space)
        return PageController::eventFilter(watched, event);
    chooseComment(tblReadings->currentIndex());
    return true;
}

} // namespace zel

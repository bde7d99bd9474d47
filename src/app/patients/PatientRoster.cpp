#include "app/patients/PatientRoster.h"

#include "app/patients/PatientFilter.h"
#include "app/patients/PatientInputs.h"
#include "app/widgets/EmptyState.h"
#include "app/widgets/QuietTable.h"
#include "app/widgets/Style.h"
#include "app/widgets/TableLook.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QShortcut>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// Keeps the chosen row in sight, unless it has been scrolled out of it.
class RosterTable final : public QuietTable {
public:
    using QuietTable::QuietTable;

protected:
    void resizeEvent(QResizeEvent* event) override {
        const QRect seen({}, event->oldSize());
        const bool wasInSight = seen.intersects(visualRect(currentIndex()));
        QuietTable::resizeEvent(event);
        if (wasInSight) scrollTo(currentIndex());
    }
};

} // namespace

PatientRoster::PatientRoster(const DataStore& patients, QWidget* parent)
    : QWidget(parent), roster(new PatientTableModel(patients, this)), found(new PatientFilter(*roster, this)),
      searchPatients(new QLineEdit(this)), tblPatients(new RosterTable(this)),
      noneFound(new EmptyState(u"noPatientFound"_s, u":/icons/patientBtn.InactiveImg.svg"_s, this)),
      listOrAdvice(new QStackedWidget(this)) {
    build();
    setFocusProxy(tblPatients);
    connect(searchPatients, &QLineEdit::textChanged, this, &PatientRoster::search);
    connect(searchPatients, &QLineEdit::returnPressed, this, &PatientRoster::chooseFirst);
    connect(tblPatients->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
        if (!isMoving && selectedID() != selected) emit wanted();
    });
    const auto* find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, searchPatients, [this] { searchPatients->setFocus(); });
}

void PatientRoster::build() {
    searchPatients->setObjectName(u"searchPatients"_s);
    searchPatients->setAccessibleName(qtTrId("searchPatients"));
    setPlaceholder(*searchPatients, qtTrId("searchPatients"));
    searchPatients->setToolTip(qtTrId("searchPatientsHint"));
    searchPatients->setClearButtonEnabled(true);
    searchPatients->installEventFilter(this);
    tblPatients->setObjectName(u"tblPatients"_s);
    tblPatients->setAccessibleName(qtTrId("patientList"));
    tblPatients->setModel(found);
    dressTable(*tblPatients);
    tblPatients->setSelectionMode(QAbstractItemView::SingleSelection);
    tblPatients->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const int column : {PatientTableModel::ID, PatientTableModel::birth})
        tblPatients->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Fixed);
    noneFound->setTexts(qtTrId("noPatientFound"), qtTrId("noPatientFoundAdvice"));
    listOrAdvice->addWidget(tblPatients);
    listOrAdvice->addWidget(noneFound);
    setMinimumWidth(fontMetrics().averageCharWidth() * 30);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Style::near);
    column->addWidget(searchPatients);
    column->addWidget(listOrAdvice, 1);
}

void PatientRoster::reload(bool withNewPatient) {
    const QScopedValueRollback moving(isMoving, true);
    const QRect mark = tblPatients->visualRect(tblPatients->currentIndex());
    scrolled = {tblPatients->verticalScrollBar()->value(), tblPatients->viewport()->rect().intersects(mark)};
    roster->reload(withNewPatient);
}

void PatientRoster::select(const QString& ID) {
    const QScopedValueRollback moving(isMoving, true);
    auto kept = std::exchange(scrolled, std::nullopt);
    if (selected != ID) kept.reset();
    selected = ID;
    const QModelIndex row = placeOf(ID);
    if (row.isValid())
        tblPatients->selectRow(row.row());
    else
        tblPatients->selectionModel()->clear();
    if (kept) tblPatients->verticalScrollBar()->setValue(kept->value);
    if (!kept || kept->isMarkInView) tblPatients->scrollTo(row);
}

void PatientRoster::showAll() { searchPatients->clear(); }

QModelIndex PatientRoster::placeOf(const QString& ID) const {
    return found->mapFromSource(roster->index(roster->rowOf(ID), 0));
}

bool PatientRoster::isListed(const QString& ID) const { return placeOf(ID).isValid(); }

void PatientRoster::showSelected() {
    if (!isListed(selected)) showAll();
    tblPatients->scrollTo(placeOf(selected));
}

QString PatientRoster::selectedID() const {
    const QModelIndex row = tblPatients->currentIndex();
    return row.isValid() ? roster->IDAt(found->mapToSource(row).row()) : QString();
}

QString PatientRoster::neighbourOf(const QString& ID) const {
    const int row = roster->rowOf(ID);
    const int next = row + 1 < roster->rowCount() ? row + 1 : row - 1;
    return row < 0 || next < 0 ? QString() : roster->IDAt(next);
}

void PatientRoster::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layOutColumns();
}

/// An ID as a monitor keeps it is seen whole, unless that left no room for names; dates of birth give way
/// first.
void PatientRoster::layOutColumns() {
    constexpr int padding = 2 * Style::near + Style::tight, leastName = 18;
    const QFontMetrics metrics = tblPatients->fontMetrics();
    QHeaderView& columns = *tblPatients->horizontalHeader();
    const int whole = metrics.averageCharWidth() * 14;
    const auto titleWidth = [&](int column) {
        const QString title = roster->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        return metrics.horizontalAdvance(title) + padding;
    };
    const int birth =
        std::max(metrics.horizontalAdvance(u"00/00/0000"_s) + padding, titleWidth(PatientTableModel::birth));
    columns.resizeSection(PatientTableModel::ID,
                          std::min({whole, width() * 2 / 5, width() - titleWidth(PatientTableModel::name)}));
    columns.resizeSection(PatientTableModel::birth, birth);
    columns.setSectionHidden(PatientTableModel::birth,
                             width() < whole + birth + metrics.averageCharWidth() * leastName);
}

/// Narrowing the list chooses nobody: the patient in the editor stays, in the list or not.
void PatientRoster::search(const QString& text) {
    {
        const QScopedValueRollback moving(isMoving, true);
        found->search(text);
    }
    tblPatients->doItemsLayout(); // or there would be no way yet to scroll
    select(selected);
    const bool isNone = found->rowCount() == 0 && roster->rowCount() > 0;
    listOrAdvice->setCurrentWidget(isNone ? static_cast<QWidget*>(noneFound) : tblPatients);
}

void PatientRoster::chooseFirst() {
    if (found->rowCount() == 0) return;
    tblPatients->setFocus();
    if (!tblPatients->currentIndex().isValid()) tblPatients->selectRow(0);
}

bool PatientRoster::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Down) chooseFirst();
    if (key == Qt::Key_Escape) showAll();
    return key == Qt::Key_Down || key == Qt::Key_Escape;
}

} // namespace zel

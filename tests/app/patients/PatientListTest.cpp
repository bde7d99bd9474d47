#include "app/patients/PatientViewController.h"
#include "support/MonitorTest.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>
#include <QTest>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class PatientListTest : public MonitorTest {
protected:
    PatientListTest() { startsPlugged = false; }
    void add(const QString& ID, const QString& familyName, const QString& givenNames, const QString& born) {
        PatientModel patient;
        patient.ID = ID;
        patient.FamilyName = familyName;
        patient.GivenNames = givenNames;
        patient.DateOfBirth = StrToDate(born, u"yyyyMMdd"_s);
        ASSERT_TRUE(store.addXMLPatient(patient));
    }
    /// P1 Aa to P60 Ch, two letters each.
    void addMany() {
        for (int number = 0; number < 60; ++number)
            add(u'P' + QString::number(number + 1),
                QString(QChar(u'A' + number / 26)) + QChar(u'a' + number % 26), u"Kim"_s, {});
        ASSERT_TRUE(store.loadXML());
    }
    void start(QSize size = {1200, 760}) {
        attach();
        show(new PatientViewController({store, status, *worker, panel, clock}), size);
        page("PatientViewController").setFocus();
        QCoreApplication::processEvents();
    }
    QTableView& table() { return find<QTableView>("tblPatients"); }
    QString cell(int row, int column, int role = Qt::DisplayRole) {
        return table().model()->index(row, column).data(role).toString();
    }
    bool isChosenInSight() {
        QCoreApplication::processEvents();
        const QRect mark = table().visualRect(table().currentIndex());
        return mark.isValid() && table().viewport()->rect().contains(mark.center());
    }
    void search(const QString& words) {
        find<QLineEdit>("searchPatients").setFocus();
        find<QLineEdit>("searchPatients").clear();
        QTest::keyClicks(&find<QLineEdit>("searchPatients"), words);
    }
};

} // namespace

TEST_F(PatientListTest, namesAndDatesOfBirthAreShownAsPeopleWriteThem) {
    add(u"P1"_s, u"Adams"_s, u"Kim"_s, u"19560307"_s);
    add(u"P2"_s, u"Baker"_s, {}, {});
    ASSERT_TRUE(store.loadXML());
    const QByteArray file = dataFile();
    start();
    EXPECT_EQ(cell(0, 0), u"Adams, Kim"_s);
    EXPECT_EQ(cell(1, 0), u"Baker"_s) << "no comma without given names";
    EXPECT_EQ(cell(1, 2), QString());
    for (const auto& [format, text] : {std::pair(u"dd mm yyyy"_s, u"07/03/1956"_s),
                                       {u"mm dd yyyy"_s, u"03/07/1956"_s},
                                       {u"yyyy mm dd"_s, u"1956/03/07"_s}}) {
        store.getSetting().dateFormat = format;
        EXPECT_EQ(cell(0, 2), text);
        EXPECT_TRUE(cell(0, 2, Qt::ToolTipRole).contains(text));
    }
    for (const QString& words : {u"adams, kim"_s, u"Adams,Kim"_s, u"kim adams"_s}) {
        search(words);
        EXPECT_EQ(table().model()->rowCount(), 1) << qPrintable(words);
    }
    EXPECT_EQ(dataFile(), file);
}

TEST_F(PatientListTest, datesOfBirthGiveWayToNamesInANarrowList) {
    add(u"P1"_s, u"Adams"_s, u"Kim"_s, u"19560307"_s);
    ASSERT_TRUE(store.loadXML());
    start({700, 500});
    EXPECT_TRUE(table().isColumnHidden(2));
    const int letter = table().fontMetrics().averageCharWidth();
    window().resize(letter * 220, 500);
    QCoreApplication::processEvents();
    EXPECT_FALSE(table().isColumnHidden(2));
    EXPECT_GE(table().columnWidth(0), letter * 16);
    EXPECT_GE(table().columnWidth(2), table().fontMetrics().horizontalAdvance(u"07/03/1956"_s) + 16);
}

TEST_F(PatientListTest, theChosenOneStaysInSightWhenTheWindowIsResized) {
    addMany();
    start({1200, 900});
    table().selectRow(15);
    ASSERT_TRUE(isChosenInSight());
    for (const int height : {400, 900, 300}) {
        window().resize(1200, height);
        EXPECT_TRUE(isChosenInSight()) << height;
    }
    table().verticalScrollBar()->setValue(table().verticalScrollBar()->maximum());
    ASSERT_FALSE(isChosenInSight());
    window().resize(1200, 350);
    EXPECT_FALSE(isChosenInSight()) << "who looks elsewhere is left there";
}

TEST_F(PatientListTest, theChosenOneStaysInSightWhenItIsRenamedAndWhenASearchEnds) {
    addMany();
    start({1200, 500});
    table().selectRow(0);
    type("FamilyName", u"Zeta"_s);
    click("btnSavePatient");
    EXPECT_EQ(cell(table().currentIndex().row(), 0), u"Zeta, Kim"_s);
    EXPECT_EQ(table().currentIndex().row(), 59);
    EXPECT_TRUE(isChosenInSight()) << "at the other end of the list";
    search(u"ze"_s);
    ASSERT_EQ(table().model()->rowCount(), 1);
    search({});
    EXPECT_TRUE(isChosenInSight());
    table().verticalScrollBar()->setValue(0);
    type("FamilyName", u"Zetas"_s);
    click("btnSavePatient");
    EXPECT_TRUE(isChosenInSight()) << "also after scrolling elsewhere";
}

TEST_F(PatientListTest, aSearchThatLeavesOutWhoIsRenamedEndsAndNoOther) {
    addMany();
    start({1200, 500});
    search(u"Ab"_s);
    table().selectRow(0);
    type("FamilyName", u"Xi"_s);
    click("btnSavePatient");
    EXPECT_EQ(find<QLineEdit>("searchPatients").text(), QString());
    EXPECT_EQ(cell(table().currentIndex().row(), 0), u"Xi, Kim"_s);
    EXPECT_TRUE(isChosenInSight());
    search(u"Ac"_s); // leaves out who is in the editor
    type("FamilyName", u"Xis"_s);
    click("btnSavePatient");
    EXPECT_EQ(find<QLineEdit>("searchPatients").text(), u"Ac"_s) << "somebody else is looked for";
}

} // namespace zel

#include "AppFixture.h"
#include "app/ReadingTableModel.h"

#include <QTableView>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class PagesTest : public AppTest {
protected:
    PagesTest() {
        addPatient(u"P1"_s, u"Adams"_s);
        addPatient(u"P2"_s, u"Baker"_s);
    }
    void storeReadings(const QString& ID, const ReadingList& readings) {
        store.setCurrentID(ID);
        ASSERT_TRUE(store.newDataTransfer(readings));
    }
    static ReadingModel reading(const QString& date, std::uint32_t sys) {
        ReadingModel made;
        made.ReadingDate = StrToDate(date, u"yyyyMMddHHmm"_s);
        made.sys = sys;
        made.dia = 80;
        made.pulse = 65;
        made.map = 93;
        made.pp = sys - 80;
        return made;
    }
    QString cell(int row, int column) {
        return find<QTableView>("tblReadings").model()->index(row, column).data().toString();
    }
    QString spoken(int row, int column) {
        const QAbstractItemModel* model = find<QTableView>("tblReadings").model();
        return model->data(model->index(row, column), Qt::AccessibleTextRole).toString();
    }
    QString title(int column) {
        return find<QTableView>("tblReadings").model()->headerData(column, Qt::Horizontal).toString();
    }
};

} // namespace

TEST_F(PagesTest, theTableListsReadingsByDateAndEqualDatesAsTheyWereStored) {
    storeReadings(u"P1"_s, {reading(u"202603050800"_s, 131), reading(u"202603010800"_s, 121),
                            reading(u"202603050800"_s, 132)});
    startsPlugged = false;
    start();
    click("tableBtn");
    const auto& table = find<QTableView>("tblReadings");
    ASSERT_EQ(table.model()->rowCount(), 3);
    QStringList systolic;
    for (int row = 0; row < 3; ++row)
        systolic += cell(row, ReadingTableModel::sys);
    EXPECT_EQ(systolic, (QStringList{u"121"_s, u"131"_s, u"132"_s}));
    EXPECT_EQ(cell(0, ReadingTableModel::date), u"01/03/2026"_s);
}

TEST_F(PagesTest, theTableFollowsTheSettings) {
    storeReadings(u"P1"_s, {reading(u"202603050800"_s, 131)});
    startsPlugged = false;
    for (const auto& [setting, words, value] :
         {std::tuple(0U, qtTrId("pp"), u"51"_s), std::tuple(1U, qtTrId("map"), u"93"_s)}) {
        store.getSetting().showPPorMap = setting;
        start();
        click("tableBtn");
        EXPECT_EQ(title(ReadingTableModel::mapOrPP), qtTrId("columnPressure").arg(words));
        EXPECT_EQ(cell(0, ReadingTableModel::mapOrPP), value);
        app.reset();
    }
}

TEST_F(PagesTest, theMarkColumnIsTitledByReadingsThenByMonitorThenByTarget) {
    plan.model = "41"; // reports atrial fibrillation
    startConnected();
    EXPECT_EQ(title(ReadingTableModel::mark), qtTrId("afib"));
    ReadingModel padReading = reading(u"202603050800"_s, 131);
    padReading.Arrhythmia = 2;
    storeReadings(u"P1"_s, {padReading});
    app->displayAfterDataTransfer();
    EXPECT_EQ(title(ReadingTableModel::mark), qtTrId("pad"));
    EXPECT_EQ(spoken(0, ReadingTableModel::mark), u"Yes"_s);
    ReadingModel afibReading = reading(u"202603060800"_s, 131);
    afibReading.Arrhythmia = 4;
    storeReadings(u"P1"_s, {afibReading});
    app->displayAfterDataTransfer();
    EXPECT_EQ(title(ReadingTableModel::mark), qtTrId("afib"));
    EXPECT_EQ(spoken(1, ReadingTableModel::mark), u"No"_s);
}

TEST_F(PagesTest, theSelectionIsKeptByIDWhenTheRosterIsReadAnew) {
    startsPlugged = false;
    start();
    EXPECT_EQ(store.getCurrentID(), u"P1"_s) << "the first patient, as nobody was selected";
    press(Qt::Key_Down);
    ASSERT_EQ(store.getCurrentID(), u"P2"_s);
    addPatient(u"P0"_s, u"Aaron"_s);
    EXPECT_EQ(store.getCurrentID(), u"P2"_s);
    EXPECT_EQ(find<QTableView>("tblPatients").currentIndex().row(), 2);
    ASSERT_TRUE(store.deleteXMLPatient(u"P2"_s));
    ASSERT_TRUE(store.loadXML());
    EXPECT_EQ(store.getCurrentID(), u"P0"_s);
}

TEST_F(PagesTest, pagesFollowTheSelectedPatient) {
    storeReadings(u"P2"_s, {reading(u"202603050800"_s, 131), reading(u"202603010800"_s, 121)});
    store.setCurrentID(u"P1"_s);
    startsPlugged = false;
    start();
    click("tableBtn");
    EXPECT_TRUE(page("noReadings").isVisible());
    click("patientBtn");
    press(Qt::Key_Down);
    click("graphBtn");
    const auto* detail = page("GraphViewController").findChild<QLabel*>(u"lblDetail"_s);
    EXPECT_EQ(detail->text(), u"2 readings, from 01/03/2026 to 05/03/2026"_s);
}

} // namespace zel

#include "app/widgets/Spoken.h"

#include "app/widgets/SeenName.h"
#include "support/WidgetTest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class DrawnTable final : public QWidget, public SpokenTable {
public:
    [[nodiscard]] std::vector<QStringList> spokenRows() const override { return rows; }
    std::vector<QStringList> rows{{u"Figures"_s, u"lowest"_s, u"highest"_s}, {u"Pulse"_s, u"61"_s, u"72"_s}};
};

class SpokenTest : public WidgetTest {
protected:
    SpokenTest() { QAccessible::installFactory(makeSpoken); }
    ~SpokenTest() override { QAccessible::removeFactory(makeSpoken); }
    static QAccessibleInterface& of(QObject& widget) {
        return *QAccessible::queryAccessibleInterface(&widget);
    }
    static QString said(QAccessibleInterface* node) {
        return node ? node->text(QAccessible::Name) : u"nothing"_s;
    }
};

} // namespace

TEST_F(SpokenTest, AListIsCalledByItsCaptionAndHoldsWhatIsChosen) {
    QComboBox list;
    list.addItems({u"No"_s, u"Yes"_s});
    nameAsSeen(list, u"&Smoker:"_s, u"of cigarettes"_s);
    int told = 0;
    QObject::connect(&list, &QComboBox::activated, &list, [&told] { ++told; });
    QAccessibleInterface& node = of(list);
    EXPECT_EQ(said(&node), u"Smoker"_s);
    EXPECT_EQ(node.text(QAccessible::Description), u"of cigarettes"_s);
    EXPECT_EQ(node.textInterface()->text(0, 99), u"No"_s);
    node.actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(node.text(QAccessible::Value), u"Yes"_s);
    EXPECT_EQ(told, 1) << "as if the user had chosen it";
    list.setEnabled(false);
    node.actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
    EXPECT_EQ(list.currentIndex(), 1);
}

TEST_F(SpokenTest, AValueIsNamedByItsCaptionAlsoWhereSomebodyAskedBefore) {
    auto* both = new QWidget;
    auto* caption = new QLabel(u"Readings"_s, both);
    auto* value = new QLabel(u"62"_s, both);
    of(*value);
    speakAsValue(*value, *caption);
    QAccessibleInterface& node = of(*value);
    EXPECT_EQ(said(&node), u"Readings"_s);
    ASSERT_TRUE(node.textInterface());
    EXPECT_EQ(node.textInterface()->text(0, node.textInterface()->characterCount()), u"62"_s);
    ASSERT_EQ(node.relations().size(), 1);
    EXPECT_EQ(node.relations().front().first->object(), caption);
    delete both;
}

TEST_F(SpokenTest, ATabIsPressedAndSaysWhetherItIsTheChosenOne) {
    QPushButton tab(u"Chart"_s);
    speakAs(tab, QAccessible::PageTab);
    tab.setCheckable(true);
    QAccessibleInterface& node = of(tab);
    EXPECT_EQ(node.role(), QAccessible::PageTab);
    EXPECT_FALSE(node.state().selected);
    node.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(node.state().selected);
    tab.setEnabled(false);
    EXPECT_TRUE(node.actionInterface()->actionNames().isEmpty());
}

TEST_F(SpokenTest, ABoxAndARadioButtonAreClickedAndNotOnlyTurned) {
    QCheckBox box;
    QRadioButton radio;
    for (QAbstractButton* button :
         {static_cast<QAbstractButton*>(&box), static_cast<QAbstractButton*>(&radio)}) {
        int clicks = 0;
        QObject::connect(button, &QAbstractButton::clicked, button, [&clicks] { ++clicks; });
        button->setShortcut(Qt::ALT | Qt::Key_U);
        QAccessibleInterface& node = of(*button);
        const QString action = node.actionInterface()->actionNames().value(0);
        EXPECT_FALSE(node.state().checked);
        node.actionInterface()->doAction(action);
        EXPECT_TRUE(node.state().checked);
        EXPECT_EQ(clicks, 1);
        EXPECT_EQ(node.actionInterface()->keyBindingsForAction(action), QStringList{u"Alt+U"_s});
    }
}

TEST_F(SpokenTest, ADrawnTableHasHeadingsAndCellsThatFollowIt) {
    DrawnTable drawn;
    QAccessibleInterface& node = of(drawn);
    QAccessibleTableInterface* table = node.tableInterface();
    ASSERT_TRUE(table);
    EXPECT_EQ(table->rowCount(), 1);
    EXPECT_EQ(table->columnCount(), 2);
    QAccessibleInterface* highest = table->cellAt(0, 1);
    EXPECT_EQ(said(highest), u"72"_s);
    EXPECT_EQ(said(highest->tableCellInterface()->columnHeaderCells().value(0)), u"highest"_s);
    EXPECT_EQ(said(highest->tableCellInterface()->rowHeaderCells().value(0)), u"Pulse"_s);
    EXPECT_EQ(node.child(node.indexOfChild(highest)), highest);
    drawn.rows[1][2] = u"80"_s;
    EXPECT_EQ(said(table->cellAt(0, 1)), u"80"_s);
    EXPECT_FALSE(table->cellAt(1, 0));
    EXPECT_FALSE(node.child(6));
    drawn.rows.clear();
    EXPECT_EQ(node.childCount(), 0);
    EXPECT_FALSE(table->cellAt(0, 0));
}

} // namespace zel

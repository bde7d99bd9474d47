#include "store/ViewLimits.h"

#include "DataStoreTest.h"

namespace zel {
namespace {

using namespace Qt::StringLiterals;

struct ViewLimitsTest : DataStoreTest {
    QString choice = QFileInfo{path}.path() + u"/View.json"_s;

    ViewLimitsTest() { EXPECT_TRUE(store.load()); }
    void write(const QByteArray& text) const {
        QFile file{choice};
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
};

TEST_F(ViewLimitsTest, TheChoiceLastsAndStandsOutsideTheDataFile) {
    EXPECT_EQ(store.viewLimits(), ViewLimits{});
    const QByteArray before = readFile(path).value();
    int changes = 0;
    QObject::connect(&store, &DataStore::viewLimitsChanged, &store, [&changes] { ++changes; });
    for (const LimitChoice chosen :
         {LimitChoice::home, LimitChoice::office, LimitChoice::low, LimitChoice::own}) {
        const ViewLimits wanted{chosen, {150, 0}};
        ASSERT_TRUE(store.chooseViewLimits(wanted));
        EXPECT_EQ(readViewLimits(path), wanted);
        ASSERT_TRUE(store.load());
        EXPECT_EQ(store.viewLimits(), wanted);
    }
    EXPECT_EQ(changes, 4);
    EXPECT_EQ(store.viewLimits().limits(), (LimitPair{150, 0}));
    EXPECT_EQ(readFile(path).value(), before);
    EXPECT_EQ(store.chooseViewLimits({LimitChoice::own, {80, 90}}).error().code,
              StoreErrorCode::invalidRecord);
    EXPECT_EQ(store.viewLimits().own, (LimitPair{150, 0}));
    EXPECT_EQ(changes, 4);
}

TEST_F(ViewLimitsTest, AChoiceThatCannotBeReadLeavesTheUsualLimitsAndIsTold) {
    const auto record = [](const char* chosen, const char* sys, const char* dia) {
        return QByteArray(R"({"highFrom": )") + chosen + R"(, "ownSystolic": )" + sys
               + R"(, "ownDiastolic": )" + dia + '}';
    };
    write(record(R"("own")", "150", "95"));
    ASSERT_TRUE(store.load());
    EXPECT_EQ(store.viewLimits().limits(), (LimitPair{150, 95}));
    for (const QByteArray& text :
         {QByteArray(), QByteArray("{"), record(R"("most")", "150", "95"), record("2", "150", "95"),
          record(R"("own")", "95", "150"), record(R"("own")", "150.5", "95"), record(R"("own")", "-1", "95"),
          record(R"("home")", "4294967431", "85"),
          QByteArray(100'000, ' ') + record(R"("own")", "150", "95")}) {
        write(text);
        ASSERT_TRUE(store.load());
        EXPECT_EQ(store.viewLimits(), ViewLimits{}) << text.left(80).constData();
        ASSERT_FALSE(store.viewLimitsRead()) << text.left(80).constData();
        EXPECT_EQ(store.viewLimitsRead().error().path, choice);
    }
    ASSERT_TRUE(store.chooseViewLimits({LimitChoice::low, {}}));
    EXPECT_TRUE(store.viewLimitsRead());
    ASSERT_TRUE(QFile::remove(choice) && QDir().mkdir(choice));
    EXPECT_FALSE(store.chooseViewLimits({LimitChoice::office, {}}));
    EXPECT_EQ(store.viewLimits().choice, LimitChoice::office) << "until the program ends";
}

TEST_F(ViewLimitsTest, WhatAnotherProgramChoosesIsShownAndKept) {
    ASSERT_TRUE(writeViewLimits(path, {LimitChoice::office, {150, 95}}));
    ASSERT_TRUE(store.chooseViewLimits({.choice = LimitChoice::low}))
        << "the own limits are as they were here";
    EXPECT_EQ(readViewLimits(path), (ViewLimits{LimitChoice::low, {150, 95}}));
    EXPECT_EQ(store.viewLimits(), (ViewLimits{LimitChoice::low, {150, 95}}));
    ASSERT_TRUE(writeViewLimits(path, {LimitChoice::home, {150, 95}}));
    ASSERT_TRUE(store.chooseViewLimits({LimitChoice::low, {140, 90}}));
    EXPECT_EQ(readViewLimits(path), (ViewLimits{LimitChoice::home, {140, 90}}));
    write(R"({"highFrom": "low", "ownSystolic": 140, "ownDiastolic": 90, "zoom": [2]})");
    ASSERT_TRUE(store.chooseViewLimits({LimitChoice::office, {140, 90}}));
    EXPECT_EQ(readViewLimits(path), (ViewLimits{LimitChoice::office, {140, 90}}));
    EXPECT_TRUE(readFile(choice).value().contains("zoom")) << "what this program does not know";

    ASSERT_TRUE(writeViewLimits(path, {LimitChoice::own, {150, 95}}));
    ASSERT_TRUE(store.takeChanges());
    EXPECT_EQ(store.viewLimits(), (ViewLimits{LimitChoice::own, {150, 95}}));
    ASSERT_TRUE(QFile::remove(choice) && QDir().mkdir(choice));
    EXPECT_FALSE(store.chooseViewLimits({LimitChoice::office, {150, 95}}));
    ASSERT_TRUE(store.takeChanges());
    EXPECT_EQ(store.viewLimits().choice, LimitChoice::office) << "what could not be written stays chosen";
}

} // namespace
} // namespace zel

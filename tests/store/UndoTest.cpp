#include "DataStoreTest.h"
#include "store/ElementText.h"
#include "support/FullDisk.h"

#include <random>

namespace zel {
namespace {

using enum StoreErrorCode;

const QByteArray ofBoth =
    "<SystemSetting own='1'><SysStandard>0150</SysStandard><ShowPPorMap>0</ShowPPorMap></SystemSetting>"
    "<!-- by hand --><Patient rank='2'><ID>A</ID><FamilyName>Smith</FamilyName>"
    "<GivenNames>Margaret</GivenNames><Address>old</Address><Weight> 1e3 </Weight><Own>a "
    "line&#13;another<Deep/></Own>"
    "<PatientNotes/></Patient><Patient><ID>Z</ID><FamilyName>Zorn</FamilyName><Address/></Patient>"
    "<MeasureRec><ID>A</ID><RecID>1000001</RecID><Sys>120</Sys></MeasureRec>"
    "<MeasureRec><ID>Z</ID><RecID>1000002</RecID><Sys>121</Sys></MeasureRec>"
    "<MeasureRec tag='x'><ID>A</ID><RecID>1000003</RecID><Sys>122</Sys><Own/></MeasureRec><Foreign/>"
    "<Comment><ID>A</ID><CommentID>10001</CommentID><Degree>2</Degree><Comment>one</Comment></Comment>"
    "<Comment><ID>Z</ID><CommentID>10002</CommentID><Comment>of Z</Comment></Comment>"
    "<Comment><ID>A</ID><Comment>without a number</Comment></Comment>"
    "<DataTransferLog><ID>A</ID><RecID>100001</RecID></DataTransferLog>";

const StepName settings{StepKind::changeSettings, {}, {}, {}};

StepName of(StepKind kind, const QString& subject = u"Smith, Margaret"_s, const QString& ID = u"A"_s) {
    return {kind, subject, ID, {}};
}

StepName ofReadings(StepKind kind, std::size_t count) {
    StepName name = of(kind);
    name.count = count;
    return name;
}

struct UndoTest : DataStoreTest {
    QString imported = home.filePath(u"more.xml"_s);

    UndoTest() {
        write(imported, "<ZEL><Patient><ID>I</ID><FamilyName>Im</FamilyName></Patient>"
                        "<Comment><ID>I</ID><CommentID>10001</CommentID><Comment>a&#13;b</Comment></Comment>"
                        "<MeasureRec><ID>I</ID><RecID>5</RecID></MeasureRec>"
                        "<MeasureRec><ID>I</ID><RecID>6</RecID></MeasureRec></ZEL>");
        setData();
    }
    void setData() {
        dataFile(ofBoth);
        ASSERT_TRUE(store.load());
        store.setCurrentID(u"A"_s);
    }
    /// All elements with their attributes, in order, however the file is laid out.
    [[nodiscard]] std::string elements() const {
        const auto document = XmlDocument::parse(content());
        return document ? rawText(document->root()).toStdString() : "unreadable";
    }
    /// What another program does to the file.
    void elsewhere(const QByteArray& before, const QByteArray& after) {
        QByteArray changed = content();
        ASSERT_TRUE(changed.contains(before)) << before.constData();
        write(path, changed.replace(before, after));
    }
    void changePatient(const QString& ID, const QString& notes) {
        PatientModel edited = *store.getPatientByID(ID);
        const PatientModel asRead = edited;
        edited.PatientNotes = edited.Address = notes;
        ASSERT_TRUE(store.saveXMLPatient(edited, asRead));
    }
    void changeComment(std::size_t index, const QString& text) {
        CommentModel edited = *store.getCommentForCurID().at(index);
        const CommentModel asRead = edited;
        edited.comment = text;
        ASSERT_TRUE(store.saveCommentToXML(edited, asRead));
    }
    void dropComment(std::size_t index) {
        store.setSelectedComment(store.getCommentForCurID().at(index)->CommentID);
        ASSERT_TRUE(store.deleteSelectedCommentToXML());
    }
    void changeSetting(std::uint32_t limit) {
        SettingModel wanted = std::as_const(store).getSetting();
        wanted.sysStandard = limit;
        using enum DataStore::WithoutPlace;
        ASSERT_TRUE(store.changeSetting(std::as_const(store).getSetting(), wanted, leaveOut));
    }
    /// Kind, subject and patient of the next step to be undone; null: there is none.
    [[nodiscard]] std::optional<StepName> nextUndo() const {
        if (!store.changes().undoable()) return std::nullopt;
        StepName name = store.changes().undoable()->name;
        name.commentID = QString{};
        return name;
    }
    struct Act {
        StepName name;
        std::function<void()> act;
    };
    /// One of each kind, on the file as it is at first.
    [[nodiscard]] std::vector<Act> acts() {
        using enum StepKind;
        return {
            {of(addPatient, u"New, Given"_s, u"N"_s),
             [this] { ASSERT_TRUE(store.addXMLPatient(patient(u"N"_s, u"New"_s))); }},
            {of(editPatient), [this] { changePatient(u"A"_s, u" typed\n"_s); }},
            {of(deletePatient), [this] { ASSERT_TRUE(store.deleteXMLPatient(u"A"_s)); }},
            {of(addComment), [this] { ASSERT_TRUE(store.addCommentForCurID({})); }},
            {of(editComment), [this] { changeComment(1, u"typed"_s); }},
            {of(editComment), [this] { changeComment(0, {}); }},
            {of(deleteComment), [this] { dropComment(0); }},
            {of(importPatients, u"more.xml"_s, u"I"_s), [this] { ASSERT_TRUE(store.importXml(imported)); }},
            {settings, [this] { changeSetting(130); }},
            {ofReadings(excludeReadings, 2),
             [this] { ASSERT_TRUE(store.excludeReadings(store.getReadingForCurID(), u"cuff"_s)); }},
            {ofReadings(addReading, 1),
             [this] {
                 ASSERT_TRUE(store.addReading(
                     u"A"_s, {std::chrono::floor<Instant::duration>(clock.now()), 120, 80, 70}));
             }},
        };
    }
    StoreErrorCode undone() {
        const StoreResult result = store.undo();
        return result ? noStep : result.error().code;
    }
};

TEST_F(UndoTest, EveryStepIsTakenBackAndMadeAgainToTheLetter) {
    for (const auto& [name, act] : acts()) {
        SCOPED_TRACE(describe(name).toStdString());
        setData();
        const std::string before = elements();
        act();
        const std::string after = elements();
        ASSERT_NE(before, after);
        EXPECT_EQ(nextUndo(), name);
        for (int times = 0; times < 2; ++times) {
            ASSERT_TRUE(store.undo());
            EXPECT_EQ(elements(), before);
            ASSERT_NE(store.changes().redoable(), nullptr);
            EXPECT_EQ(store.changes().redoable()->name.kind, name.kind);
            ASSERT_TRUE(store.redo());
            EXPECT_EQ(elements(), after);
        }
    }
}

TEST_F(UndoTest, WhatOthersWroteSinceStays) {
    for (const auto& [name, act] : acts()) {
        SCOPED_TRACE(describe(name).toStdString());
        setData();
        const std::string before = elements();
        act();
        store.setCurrentID(u"Z"_s);
        ASSERT_EQ(store.newDataTransfer({reading(177)}).value_or(TransferCounts{0}).added, 1U);
        elsewhere("<FamilyName>Zorn</FamilyName>", "<FamilyName>Zander</FamilyName>");
        elsewhere("<Foreign", "<Another/><Foreign");
        if (content().contains("<FamilyName>Smith<")) elsewhere(">Smith<", ">Smythe<");
        if (content().contains("<Degree>2<")) elsewhere("<Degree>2<", "<Degree>3<");
        EXPECT_EQ(nextUndo(), name) << "a download is no step";
        const QByteArray others = content();
        ASSERT_TRUE(store.undo());
        for (const char* kept : {"<FamilyName>Zander<", "<Another", "<Sys>177<"})
            EXPECT_TRUE(content().contains(kept)) << kept;
        EXPECT_EQ(content().contains("Smythe"), others.contains("Smythe"));
        EXPECT_EQ(content().contains("<Degree>3<"), others.contains("<Degree>3<"));
        EXPECT_EQ(content().contains("<ID>A<"), QByteArray{before.c_str()}.contains("<ID>A<"));
        ASSERT_TRUE(store.redo());
        const auto flat = [](const QByteArray& file) {
            return rawText(XmlDocument::parse(file)->root()).toStdString();
        };
        EXPECT_EQ(elements(), flat(others));
        store.setCurrentID(u"A"_s);
    }
}

TEST_F(UndoTest, StepThatTheFileRefusesChangesNothingAndIsDropped) {
    struct Case {
        const char* what;
        std::function<void()> act, meanwhile;
        StoreErrorCode why;
    };
    const auto all = acts();
    const auto addPatient = all[0].act, edit = all[1].act, remove = all[2].act, editsComment = all[4].act,
               emptiesComment = all[5].act, removesComment = all[6].act, import = all[7].act;
    const std::vector<Case> cases{
        {"edited field", edit, [this] { elsewhere("<Address> typed", "<Address>theirs"); }, stepChanged},
        {"edited patient", edit, [this] { elsewhere("<ID>A</ID>", "<ID>B</ID>"); }, stepGone},
        {"deleted", remove, [this] { elsewhere("<Foreign", "<Patient><ID>A</ID></Patient><Foreign"); },
         stepPatientKnown},
        {"added patient", addPatient, [this] { elsewhere("<FamilyName>New<", "<FamilyName>Newer<"); },
         stepChanged},
        {"reading of the added", addPatient,
         [this] { ASSERT_TRUE(store.newDataTransfer(u"N"_s, {reading(1)})); }, stepHasRecords},
        {"comment's text", editsComment, [this] { elsewhere(">typed<", ">theirs<"); }, stepChanged},
        {"comment", emptiesComment, [this] { elsewhere("<CommentID>10001<", "<CommentID>10009<"); },
         stepGone},
        {"comment that another one is like by now", emptiesComment,
         [this] {
             elsewhere("<Degree>2<", "<Degree>3<");
             elsewhere("</ZEL>", "<Comment><ID>A</ID><CommentID>10001</CommentID></Comment></ZEL>");
         },
         stepChanged},
        {"deleted comment's patient", removesComment,
         [this] { elsewhere("<ID>A</ID>\n        <FamilyName>", "<ID>B</ID><FamilyName>"); },
         stepPatientGone},
        {"deleted comment, put back by a copy", removesComment, [this] { dataFile(ofBoth); }, stepThere},
        {"imported reading", import, [this] { elsewhere("<RecID>6<", "<RecID>7<"); }, stepGone},
        {"reading of the imported", import,
         [this] { ASSERT_TRUE(store.newDataTransfer(u"I"_s, {reading(1)})); }, stepHasRecords},
    };
    for (const auto& [what, act, meanwhile, why] : cases) {
        SCOPED_TRACE(what);
        setData();
        changeSetting(131);
        act();
        meanwhile();
        const QByteArray before = content();
        EXPECT_EQ(undone(), why);
        EXPECT_EQ(content(), before);
        EXPECT_TRUE(isStepRefusal(why));
        EXPECT_EQ(nextUndo(), settings) << "does not stand in the way of the others";
        EXPECT_EQ(store.changes().redoable(), nullptr);
        if (why == stepThere) continue; // that copy has other settings, too
        EXPECT_TRUE(store.undo());
    }
}

TEST_F(UndoTest, WhatAnotherProgramHasSetBackAlreadyIsNoHindrance) {
    changePatient(u"A"_s, u" typed"_s);
    elsewhere("<Address> typed", "<Address>old");
    EXPECT_TRUE(store.undo());
    EXPECT_TRUE(content().contains("<Address>old<"));
    EXPECT_FALSE(content().contains(" typed"));
}

TEST_F(UndoTest, ADeletedPatientComesBackInItsPlaceAlsoWhereItsNeighbourHasGone) {
    const QByteArray set = "<SystemSetting/>", y = "<Patient><ID>Y</ID></Patient>",
                     z = "<Patient><ID>Z</ID></Patient>", a = "<Patient><ID>A</ID></Patient>",
                     readings = "<MeasureRec><ID>A</ID><RecID>1</RecID></MeasureRec>"
                                "<MeasureRec><ID>A</ID><RecID>2</RecID></MeasureRec>",
                     ofY = "<MeasureRec><ID>Y</ID><RecID>9</RecID></MeasureRec>";
    const struct {
        const char* what;
        QByteArray before, meanwhile, after;
    } cases[]{
        {"it stood first", a + readings + z + set, z + set, a + readings + z + set},
        {"behind the last of each kind", set + y + z + a + readings + ofY, set + y + ofY,
         set + y + a + ofY + readings},
        {"at the end where there is none of its kind", set + y + z + a + readings, set + y,
         set + y + a + readings},
    };
    for (const auto& [what, before, meanwhile, after] : cases) {
        SCOPED_TRACE(what);
        dataFile(before);
        ASSERT_TRUE(store.load());
        ASSERT_TRUE(store.deleteXMLPatient(u"A"_s));
        dataFile(meanwhile);
        ASSERT_TRUE(store.undo());
        const std::string done = elements();
        dataFile(after);
        EXPECT_EQ(done, elements());
    }
}

TEST_F(UndoTest, RedoOfADeletionLeavesNobodysReadings) {
    ASSERT_TRUE(store.deleteXMLPatient(u"A"_s));
    ASSERT_TRUE(store.undo());
    ASSERT_EQ(store.newDataTransfer(u"A"_s, {reading(1)}).value_or(TransferCounts{0}).added, 1U);
    const QByteArray before = content();
    EXPECT_EQ(store.redo().error().code, stepHasRecords);
    EXPECT_EQ(content(), before);
}

TEST_F(UndoTest, FailedWriteLeavesFileAndStepsAsTheyWere) {
    ASSERT_TRUE(store.deleteXMLPatient(u"A"_s));
    const QByteArray before = content();
    {
        const FullDisk full{static_cast<rlim_t>(before.size() + 10)};
        EXPECT_EQ(undone(), sizeLimit);
    }
    EXPECT_EQ(content(), before);
    EXPECT_EQ(nextUndo(), of(StepKind::deletePatient));
    EXPECT_TRUE(store.undo());
    EXPECT_TRUE(store.validIDinXML(u"A"_s));
}

TEST_F(UndoTest, OnlyWhatChangedTheFileIsAStepAndANewOneEndsRedo) {
    int told = 0;
    QObject::connect(&store, &DataStore::historyChanged, [&told] { ++told; });
    EXPECT_EQ(undone(), noStep);
    EXPECT_EQ(store.redo().error().code, noStep);
    changeComment(0, u"one"_s); // as it is
    changeSetting(150);
    const PatientModel same = *store.getPatientByID(u"A"_s);
    ASSERT_TRUE(store.saveXMLPatient(same, same));
    EXPECT_EQ(nextUndo(), std::nullopt);
    EXPECT_EQ(told, 0);
    changeSetting(130);
    changeSetting(131);
    ASSERT_TRUE(store.undo());
    EXPECT_EQ(std::as_const(store).getSetting().sysStandard, 130U) << "read anew";
    ASSERT_EQ(store.newDataTransfer({reading(177)}).value_or(TransferCounts{0}).added, 1U);
    EXPECT_NE(store.changes().redoable(), nullptr) << "a download disturbs no step";
    changePatient(u"Z"_s, u"typed"_s);
    EXPECT_EQ(store.changes().redoable(), nullptr);
    EXPECT_EQ(told, 4);
    const auto copy = store.backups().create();
    ASSERT_TRUE(store.restoreBackup(copy.value()));
    EXPECT_EQ(nextUndo(), std::nullopt) << "another document";
}

struct RandomUndoTest : UndoTest, testing::WithParamInterface<unsigned> {
    std::mt19937 random{GetParam()};
    int made = 0;
    std::size_t below(std::size_t bound) { return random() % bound; }
    [[nodiscard]] QString text() { return QString::number(++made); }
    /// But Z, whom another program works on, unless there is nobody else.
    QString anyone() {
        const auto& patients = store.getPatientArray();
        const QString ID = patients.at(below(patients.size())).ID;
        return ID == "Z"_L1 && store.validIDinXML(u"A"_s) ? u"A"_s : ID;
    }
    void withAComment(const std::function<void(std::size_t)>& act) {
        store.setCurrentID(anyone());
        if (const auto count = store.getCommentForCurID().size(); count > 0) act(below(count));
    }
    void makeAStep() {
        const std::function<void()> steps[]{
            [&] { ASSERT_TRUE(store.addXMLPatient(patient(text(), text()))); },
            [&] { changePatient(anyone(), text()); },
            [&] {
                const QString ID = anyone();
                if (ID == "Z"_L1) return;
                ASSERT_TRUE(store.deleteXMLPatient(ID));
            },
            [&] { std::ignore = store.importXml(imported); },
            [&] { changeSetting(100 + static_cast<std::uint32_t>(++made)); },
            [&] { withAComment([&](std::size_t) { ASSERT_TRUE(store.addCommentForCurID({})); }); },
            [&] { withAComment([&](std::size_t which) { changeComment(which, text()); }); },
            [&] { withAComment([&](std::size_t which) { dropComment(which); }); },
        };
        steps[below(std::size(steps))]();
        ASSERT_TRUE(store.loadXML());
    }
};

TEST_P(RandomUndoTest, UndoingAllGivesTheFirstFileAndRedoingAllTheLast) {
    std::vector<std::string> files{elements()};
    while (files.size() < 14) {
        makeAStep();
        if (elements() != files.back()) files.push_back(elements());
    }
    if (GetParam() % 2 != 0) elsewhere("Zorn", "Zander"); // meanwhile
    const auto expected = [&](std::size_t at) {
        QByteArray file = QByteArray::fromStdString(files[at]);
        return GetParam() % 2 != 0 ? file.replace("Zorn", "Zander").toStdString() : files[at];
    };
    for (std::size_t at = files.size() - 1; at-- > 0;) {
        ASSERT_EQ(undone(), noStep);
        ASSERT_EQ(elements(), expected(at)) << at;
    }
    EXPECT_EQ(nextUndo(), std::nullopt);
    for (std::size_t at = 1; at < files.size(); ++at) {
        ASSERT_TRUE(store.redo());
        ASSERT_EQ(elements(), expected(at)) << at;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUndoTest, testing::Range(1U, 9U));

} // namespace
} // namespace zel

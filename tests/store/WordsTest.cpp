// What the user is told, in the program's own words.
#include "store/Backups.h"
#include "store/PatientImport.h"
#include "store/PressureLimits.h"
#include "store/SettingKeys.h"
#include "store/StoreError.h"
#include "store/XmlDocument.h"
#include "support/RealTexts.h"

#include <gmock/gmock.h>

#include <set>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

/// Empty for words that a user can read.
std::string unlikeWords(const QString& words) {
    const bool isSentence = words.contains(u' ') && !words.contains(u'%');
    return isSentence ? "" : words.toStdString();
}

TEST(Words, EachErrorOfTheStoreHasItsOwn) {
    const RealTexts texts;
    std::set<QString> said;
    for (int code = 0; code <= static_cast<int>(StoreErrorCode::sameFileName); ++code) {
        const StoreError error{static_cast<StoreErrorCode>(code), u"/a/file"_s, u"the system's words"_s};
        const QString words = describe(error);
        EXPECT_EQ(unlikeWords(words), "") << code;
        EXPECT_TRUE(words.endsWith(u"\nthe system's words"_s)) << code;
        EXPECT_TRUE(said.insert(words).second) << words.toStdString();
        EXPECT_EQ(unlikeWords(describeExport(error)), "") << code;
        const bool isOfData = words.contains(u"data file"_s) && error.code != StoreErrorCode::isDataFile
                              && !isStepRefusal(error.code);
        EXPECT_TRUE(!isOfData || describeExport(error).contains(u"/a/file"_s)) << code;
    }
    for (const auto code :
         {StoreErrorCode::notFlushed, StoreErrorCode::notWritable, StoreErrorCode::writeFailed}) {
        const StoreError error{code, u"/a/file"_s, {}};
        EXPECT_NE(describeExport(error), describe(error)) << "no word of the data file";
        EXPECT_FALSE(describe(error).endsWith(u'\n'));
    }
    const StoreError full{StoreErrorCode::diskFull, u"/a/file"_s, {}};
    EXPECT_EQ(describeExport(full), describe(full));
    EXPECT_EQ(describeWithin(u"Not done: %1"_s, full), u"Not done: "_s + describe(full));
    const StoreError unsure{StoreErrorCode::notFlushed, u"/a/file"_s, {}};
    EXPECT_EQ(describeWithin(u"Not done: %1"_s, unsure), describe(unsure)) << "it is done";
}

TEST(Words, EachRefusalOfAnImportNamesTheFileAndThePatient) {
    const RealTexts texts;
    std::set<QString> said;
    for (int code = 0; code <= static_cast<int>(ImportRefusalCode::notStored); ++code) {
        const auto refusal = static_cast<ImportRefusalCode>(code);
        const bool namesPatient = refusal == ImportRefusalCode::badID
                                  || refusal == ImportRefusalCode::sameIDTwice
                                  || refusal == ImportRefusalCode::alreadyKnown;
        const QString words =
            describe({refusal, u"/a/file"_s, namesPatient ? u"P-17"_s : QString{}, u"why"_s});
        EXPECT_EQ(unlikeWords(words), "") << code;
        EXPECT_TRUE(words.startsWith(u"/a/file: "_s) && words.endsWith(u"\nwhy"_s)) << words.toStdString();
        EXPECT_EQ(words.contains(u"P-17"_s), namesPatient) << words.toStdString();
        EXPECT_TRUE(said.insert(words).second) << words.toStdString();
    }
    EXPECT_FALSE(describe({ImportRefusalCode::noID, u"/a/file"_s, {}, {}}).endsWith(u'\n'));
}

TEST(Words, WhatACopyHolds) {
    const RealTexts texts;
    EXPECT_EQ(describe({1, 2, noDay}, u"dd/MM/yyyy"_s), u"1 patient, 2 readings"_s);
    EXPECT_EQ(describe({2, 1, DayNumber{20'759}}, u"dd/MM/yyyy"_s),
              u"2 patients, 1 reading, the last of 02/11/2026"_s);
}

TEST(Words, WhatASettingTakes) {
    const RealTexts texts;
    QStringList taken;
    for (const SettingKey& key : settingKeys())
        taken += key.allowed();
    EXPECT_EQ(taken, (QStringList{u"one of “dd mm yyyy”, “mm dd yyyy”, “yyyy mm dd”"_s,
                                  u"one of “12-hours”, “24-hours”"_s, u"one of “kg / cm”, “lb / in”"_s,
                                  u"one of 0, 1"_s, u"one of 0, 1"_s, u"one of 0, 1"_s,
                                  u"0 for none, or a whole number from 60 to 260"_s,
                                  u"0 for none, or a whole number from 30 to 160"_s,
                                  u"any text without control characters"_s}));
    EXPECT_EQ(describe(LimitProblem::systolic),
              u"The systolic limit is 0 for none, or a whole number from 60 to 260."_s);
    EXPECT_EQ(describe(LimitProblem::diastolic),
              u"The diastolic limit is 0 for none, or a whole number from 30 to 160."_s);
    EXPECT_EQ(describe(LimitProblem::order), u"The diastolic limit has to be below the systolic one."_s);
}

TEST(Words, WhatIsWrongWithAFile) {
    const RealTexts texts;
    for (const auto& [file, words] : {
             std::pair{QByteArray{"<ZEL>\n<A>\n</B></ZEL>"}, "Near line 3: "},
             {"<ZEL>\n\n\n<A></B></ZEL>", "Near line 4: "},
             {"<ZEL a='1' a='2'/>", "An element has the same attribute twice."},
             {"<ZEL/><ZEL/>", "It holds more than one root element."},
             {"<!-- none -->", "It holds no element."},
             {"text<ZEL/>", "It holds text outside its root element."},
             {"<ZEL/><![CDATA[text]]>", "It holds text outside its root element."},
             {"<ZEL/><!DOCTYPE ZEL>", "A declaration stands where none may be."},
             {"<ZEL/><?xml version='1.0'?>", "A declaration stands where none may be."},
             {"<ZEL>\x01</ZEL>", "It holds a control character, which such a file may not."},
             {"<ZEL>&x;</ZEL>", "It refers to an entity or a character that is not taken; "},
             {"<?xml version='1.0' encoding='no-such'?><ZEL/>", "Its encoding, no-such, is not known."},
             {"<ZEL>\xFF</ZEL>", "It holds bytes that are not in its encoding, UTF-8."},
             {"<ZEL>" + QByteArray{"<a>"}.repeated(100) + QByteArray{"</a>"}.repeated(100) + "</ZEL>",
              "Its elements lie within each other by more than 100 levels."},
         }) {
        const auto document = XmlDocument::parse(file);
        ASSERT_FALSE(document) << file.left(60).constData();
        EXPECT_THAT(document.error().toStdString(), testing::StartsWith(words));
    }
}

} // namespace
} // namespace zel

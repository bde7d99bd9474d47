#include "store/Languages.h"

#include "DataStoreTest.h"
#include "store/LanguageChoice.h"
#include "support/RealTexts.h"

#include <QLibraryInfo>

#include <sys/stat.h>

namespace zel {
namespace {

QString languageIn(const QString& variables) {
    QProcessEnvironment environment;
    for (const QString& variable : variables.split(u' ', Qt::SkipEmptyParts))
        environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    return systemLanguage(environment).tag.toString();
}

TEST(LanguagesTest, TheEnvironmentDecidesOfMessages) {
    const std::pair<const char*, const char*> cases[]{
        {"", "en"},
        {"LANG=de_DE.UTF-8", "de"},
        {"LANG=de", "de"},
        {"LANG=de_AT@euro", "de"},
        {"LANG=de_DE.UTF-8 LC_MESSAGES=fr_CH.UTF-8", "fr"},
        {"LANG=de_DE.UTF-8 LC_MESSAGES= LC_TIME=it_IT", "de"},
        {"LANG=de_DE.UTF-8 LC_MESSAGES=fr_FR LC_ALL=pl_PL", "pl"},
        {"LANG=de_DE.UTF-8 LANGUAGE=it:fr", "it"},
        {"LANG=de_DE.UTF-8 LANGUAGE=ja:es_MX:fr", "es"},
        {"LANG=ja_JP.UTF-8 LANGUAGE=", "en"},
        {"LANG=ja_JP.UTF-8 LANGUAGE=ja:ko", "en"},
        {"LANG=C.UTF-8 LANGUAGE=de", "en"},
        {"LANG=de_DE.UTF-8 LC_ALL=C", "en"},
        {"LANG=zh_TW.UTF-8", "zh_TW"},
        {"LANG=zh_HK.UTF-8", "zh_TW"},
        {"LANG=zh_CN.UTF-8", "en"},
        {"LANG=zh_SG.UTF-8 LANGUAGE=zh-Hant", "zh_TW"},
        {"LANG=zh_HK.UTF-8 LANGUAGE=zh-Hans-HK:zh", "en"},
        {"LANG=nonsense", "en"},
        {"LANG=dewey_DE", "en"},
    };
    for (const auto& [variables, tag] : cases)
        EXPECT_EQ(languageIn(QString::fromUtf8(variables)).toStdString(), tag) << variables;
}

TEST(LanguagesTest, TheOptionGoesBeforeTheChoiceAndTheChoiceBeforeTheSystem) {
    const RealTexts texts;
    QProcessEnvironment polish;
    polish.insert(u"LANG"_s, u"pl_PL.UTF-8"_s);
    struct Case {
        QStringList arguments;
        QString chosen;
        const char *tag, *words, *problem;
    };
    const Case cases[]{
        {{u"readings"_s, u"--all"_s}, {}, "pl", "readings --all", ""},
        {{u"readings"_s}, u"it"_s, "it", "readings", ""},
        {{u"readings"_s}, u"xx"_s, "pl", "readings", ""},
        {{u"--language"_s, u"de"_s, u"readings"_s}, u"it"_s, "de", "readings", ""},
        {{u"readings"_s, u"--language=zh-Hant"_s}, u"it"_s, "zh_TW", "readings", ""},
        {{u"readings"_s, u"--language"_s}, u"it"_s, "it", "readings", "needs a language"},
        {{u"--language="_s}, {}, "pl", "", "needs a language"},
        {{u"--language"_s, u"tlh"_s},
         {},
         "pl",
         "",
         "no language “tlh”; the languages are de, en, es, fr, it, pl, zh_TW"},
        {{u"--language=de"_s, u"--language"_s, u"fr"_s}, {}, "de", "", "only once"},
    };
    for (const auto& [arguments, chosen, tag, words, problem] : cases) {
        const LanguageOption option = takeLanguageOption(arguments);
        const std::string what = arguments.join(u' ').toStdString();
        EXPECT_EQ(option.words.join(u' ').toStdString(), words) << what;
        EXPECT_EQ(languageOfRun(option, chosen, polish).tag.toString().toStdString(), tag) << what;
        EXPECT_EQ(languageProblem(option).isEmpty(), *problem == '\0') << what;
        EXPECT_TRUE(languageProblem(option).contains(QString::fromUtf8(problem))) << what;
    }
}

TEST(LanguagesTest, ATextThatATableLacksIsEnglish) {
    EXPECT_EQ(textLocale(), QLocale::c());
    const RealTexts texts(Language{"xx"_L1, u"no such table"});
    EXPECT_EQ(qtTrId("remarkExcluded"), u"left out: %1"_s);
    EXPECT_EQ(textLocale().language(), QLocale::English);
}

TEST(LanguagesTest, EachLanguageHasATableOfItsOwn) {
    for (const Language& language : languages()) {
        const RealTexts texts(language);
        EXPECT_EQ(qtTrId("languageTag"), language.tag);
        EXPECT_EQ(textLocale(), QLocale(language.tag.toString())) << language.tag.data();
        EXPECT_NE(textLocale(), QLocale::c()) << language.tag.data();
        EXPECT_EQ(&languageOfRun({}, language.tag.toString(), {}), languageFor(language.tag.toString()));
    }
}

TEST(LanguagesTest, QtSpeaksTheLanguageWhereItsTablesAreInstalled) {
    if (!QFile::exists(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + u"/qtbase_de.qm"_s))
        GTEST_SKIP() << "qt6-translations-l10n";
    const auto cancel = [] { return QCoreApplication::translate("QPlatformTheme", "Cancel"); };
    for (const auto& [tag, words] : {std::pair{"de", "Abbrechen"}, {"zh_TW", "取消"}, {"en", "Cancel"}}) {
        const RealTexts texts(*languageFor(QString::fromLatin1(tag)));
        EXPECT_EQ(cancel(), QString::fromUtf8(words)) << tag;
    }
    EXPECT_EQ(cancel(), u"Cancel"_s) << "no table is left behind";
}

struct LanguageChoiceTest : testing::Test {
    QTemporaryDir home;
    QString file = languageFile(home.path());
};

TEST_F(LanguageChoiceTest, TheChoiceLastsAndIsItsUsersAlone) {
    EXPECT_EQ(file, home.path() + u"/.config/zel/Language.json"_s);
    EXPECT_EQ(readLanguageChoice(file), QString());
    for (const auto& tag : {u"zh_TW"_s, u"de"_s, QString()}) {
        ASSERT_TRUE(writeLanguageChoice(file, tag));
        EXPECT_EQ(readLanguageChoice(file), tag);
    }
    struct stat status {};
    ASSERT_EQ(::stat(file.toUtf8().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
    EXPECT_EQ(writeLanguageChoice(file, u"tlh"_s).error().code, StoreErrorCode::invalidRecord);
    EXPECT_EQ(readLanguageChoice(file), QString());
    QFile(home.path() + u"/.config/zel.file"_s).open(QFile::WriteOnly);
    EXPECT_FALSE(writeLanguageChoice(home.path() + u"/.config/zel.file/Language.json"_s, u"de"_s));
}

TEST_F(LanguageChoiceTest, TheConfigurationMayStandElsewhere) {
    qputenv("XDG_CONFIG_HOME", "/somewhere");
    EXPECT_EQ(languageFile(u"/home/a"_s), u"/somewhere/zel/Language.json"_s);
    qputenv("XDG_CONFIG_HOME", "not/whole");
    EXPECT_EQ(languageFile(u"/home/a"_s), u"/home/a/.config/zel/Language.json"_s);
    qunsetenv("XDG_CONFIG_HOME");
}

TEST_F(LanguageChoiceTest, AChoiceThatCannotBeReadIsTold) {
    for (const QByteArray& text :
         {QByteArray(), QByteArray("{"), QByteArray(R"({"language": "tlh"})"),
          QByteArray(R"({"language": 3})"), QByteArray("{}"), QByteArray(R"(["de"])"),
          QByteArray(100'000, ' ') + R"({"language": "de"})"}) {
        DataStoreTest::write(file, text);
        const auto read = readLanguageChoice(file);
        ASSERT_FALSE(read) << text.left(40).constData();
        EXPECT_TRUE(describeUnreadLanguage(read.error()).contains(u"LanguageUnread"_s));
        EXPECT_EQ(read.error().path, file);
    }
    ASSERT_TRUE(QFile::remove(file) && QDir().mkdir(file));
    EXPECT_FALSE(readLanguageChoice(file));
    EXPECT_FALSE(writeLanguageChoice(file, u"de"_s));
}

} // namespace
} // namespace zel

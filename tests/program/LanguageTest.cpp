// Which language a command of the program as it is started speaks.
#include "support/EndsWithTest.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

struct Spoken {
    const char *lang, *chosen, *option;
    QByteArray words;
};

class ProgramLanguageTest : public testing::Test {
protected:
    /// What `zel patients --add`, which lacks an option, says on standard error.
    QByteArray complaint(const Spoken& spoken) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const auto& name : {u"LC_ALL"_s, u"LC_MESSAGES"_s, u"LANGUAGE"_s, u"XDG_CONFIG_HOME"_s})
            environment.remove(name);
        environment.insert(u"HOME"_s, home.path());
        environment.insert(u"LANG"_s, QString::fromLatin1(spoken.lang));
        QFile::remove(file);
        if (spoken.chosen) choose(spoken.chosen);
        QProcess program;
        program.setProcessEnvironment(environment);
        endWithTest(program);
        QStringList arguments{u"patients"_s, u"--add"_s};
        if (spoken.option) arguments.prepend(QString::fromLatin1(spoken.option));
        program.start(QCoreApplication::applicationDirPath() + u"/../../zel"_s, arguments);
        EXPECT_TRUE(program.waitForFinished(60'000));
        EXPECT_EQ(program.exitCode(), 2);
        return program.readAllStandardError();
    }
    void choose(const char* content) const {
        ASSERT_TRUE(QDir().mkpath(home.path() + u"/.config/zel"_s));
        QFile made(file);
        ASSERT_TRUE(made.open(QFile::WriteOnly));
        made.write(content);
    }

    QTemporaryDir home;
    QString file = home.path() + u"/.config/zel/Language.json"_s;
};

} // namespace

TEST_F(ProgramLanguageTest, theOptionTheChoiceAndTheSystemDecideInThisOrder) {
    const char* const polish = R"({"language": "pl"})";
    const Spoken cases[]{
        {"C.UTF-8", nullptr, nullptr, "is missing"},
        {"de_DE.UTF-8", nullptr, nullptr, "fehlt"},
        {"zh_HK.UTF-8", nullptr, nullptr, "未指定"},
        {"de_DE.UTF-8", R"({"language": ""})", nullptr, "fehlt"},
        {"de_DE.UTF-8", polish, nullptr, "brak"},
        {"de_DE.UTF-8", polish, "--language=en", "is missing"},
        {"de_DE.UTF-8", R"({"language": "tlh"})", nullptr, "Language.json"},
        {"de_DE.UTF-8", nullptr, "--language=tlh", "tlh"},
    };
    for (const Spoken& spoken : cases) {
        const QByteArray said = complaint(spoken);
        EXPECT_TRUE(said.toLower().contains(spoken.words.toLower()))
            << spoken.lang << ' ' << (spoken.chosen ? spoken.chosen : "") << ": " << said.constData();
    }
}

} // namespace zel

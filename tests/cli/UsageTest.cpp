#include "cli/CliTest.h"
#include "cli/CommandLine.h"
#include "cli/Commands.h"

#include <QByteArrayList>
#include <QFile>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;
using testing::HasSubstr;

namespace {

QStringList words(const char* line) { return QString::fromUtf8(line).split(u' ', Qt::SkipEmptyParts); }

TEST_F(CliTest, WrongUsageSaysWhatIsWrongAndTouchesNothing) {
    const std::pair<const char*, const char*> cases[] = {
        {"frobnicate", "no command 'frobnicate'"},
        {"", "command is missing"},
        {"monitor --frobnicate", "frobnicate"},
        {"monitor extra", "'extra' is not expected"},
        {"backup", "list, create, or restore"},
        {"backup restore", "list, create, or restore"},
        {"backup folder a --none", "list, create, or restore"},
        {"backup list --none", "list, create, or restore"},
        {"backup list all", "list, create, or restore"},
        {"monitor --erase", "--yes"},
        {"monitor --yes", "--erase"},
        {"monitor --set-clock --erase --yes", "at a time"},
        {"monitor --set-clock --send-id A", "at a time"},
        {"monitor --send-id", "send-id"},
        {"monitor --send-id ABCDEFGHIJKL", "1 to 11"},
        {"monitor --send-id Ä1", "1 to 11"},
        {"monitor --wait", "wait"},
        {"monitor --wait 1.5", "whole number"},
        {"monitor --wait -1", "whole number"},
        {"monitor --wait 86401", "whole number"},
        {"monitor -erase", "--yes"},
        {"monitor --wait 5 --wait 6", "more than once"},
        {"--simulated-monitor= monitor", "name of a file"},
        {"patients --id A", "--add"},
        {"--language tlh patients", "no language “tlh”"},
        {"patients --language", "needs a language"},
        {"patients --language de --language fr", "only once"},
        {"patients --add --family-name F --given-names G", "--id is missing"},
        {"patients --add --id A --given-names G", "--family-name is missing"},
        {"patients --add --id A --family-name F", "--given-names is missing"},
        {"patients --add --id - --family-name F --given-names G", "--id must not"},
        {"patients --add --id twelve-signs --family-name F --given-names G", "--id must be 1 to 11"},
        {"patients --add --id Müller --family-name F --given-names G", "--id must be 1 to 11"},
        {"patients --add --id A --family-name - --given-names G", "--family-name must not"},
        {"patients --add --id A --family-name F --given-names \tG", "--given-names must not"},
        {"patients --add --id A\u0085B --family-name F --given-names G", "--id must not"},
        {"patients --wait 5", "wait"},
        {"download", "--patient is missing"},
        {"download --patient=", "--patient is missing"},
        {"download --patient A --patient B", "more than once"},
        {"download --patient A --yes", "yes"},
        {"download --patient A --wait soon", "whole number"},
        {"readings", "--patient is missing"},
        {"readings --patient A --from 2026-02-30", "'2026-02-30'"},
        {"readings --patient A --to 2026-2-3", "'2026-2-3'"},
        {"readings --patient A --to yesterday", "'yesterday'"},
        {"readings --patient A --from 2026-03-02 --to 2026-03-01", "after"},
        {"readings --patient A --am --pm", "--am or --pm"},
        {"readings --exclude 1 --reason x", "--patient is missing"},
        {"readings --patient A --exclude 1", "--reason is missing"},
        {"readings --patient A --exclude 1 --reason= ", "--reason is missing"},
        {"readings --patient A --exclude= --reason x", "--exclude is missing"},
        {"readings --patient A --exclude 1 --include 1", "--exclude and --include"},
        {"readings --patient A --include 1 --from 2026-01-01", "--include and --from"},
        {"readings --patient A --include 1 --numbers", "--include and --numbers"},
        {"readings --patient A --delete 1 --sys 120", "--delete and --sys"},
        {"readings --patient A --change 1", "at least one of"},
        {"readings --patient A --reason x", "--reason goes with"},
        {"readings --patient A --pulse 60", "--change"},
        {"readings --patient A --add --date 2026-11-20 --time 07:00 --sys 120 --dia 80",
         "--pulse is missing"},
        {"readings --patient A --add --date 2026-11-20 --time 7:00 --sys 120 --dia 80 --pulse 60",
         "no such date"},
        {"readings --patient A --add --date 2026-11-20 --time 24:00 --sys 120 --dia 80 --pulse 60",
         "no such date"},
        {"readings --patient A --add --date 2026-11-22 --time 07:00 --sys 120 --dia 80 --pulse 60", "future"},
        {"readings --patient A --add --date 2026-11-20 --time 07:00 --sys 1e2 --dia 80 --pulse 60",
         "systolic"},
        {"readings --patient A --add --date 2026-11-20 --time 07:00 --sys 120 --dia -80 --pulse 60",
         "diastolic"},
        {"readings --patient A --add --date 2026-11-20 --time 07:00 --sys 80 --dia 80 --pulse 60", "below"},
        {"readings --patient A --add --date 2026-11-20 --time 07:00 --sys 120 --dia 80 --pulse 4294967356",
         "pulse"},
        {"readings --patient A --last 0", "'0'"},
        {"readings --patient A --last 36526", "'36526'"},
        {"readings --patient A --last 7.0", "'7.0'"},
        {"readings --patient A --last +7", "'+7'"},
        {"statistics --patient A --last 7 --from 2026-03-01", "--from or --last"},
        {"statistics", "--patient is missing"},
        {"statistics --patient A --am", "am"},
        {"statistics --patient A --from 2026-13-01", "'2026-13-01'"},
        {"average --patient A --rule ESH", "esh, nice, aha"},
        {"average --patient A --to 2026-02-30", "'2026-02-30'"},
        {"export-xml", "folder to export to is missing"},
        {"export-xml / extra", "'extra' is not expected"},
        {"export-xml / --patient=", "--patient is missing"},
        {"export-csv /", "--patient is missing"},
        {"export-csv / --patient A --patient B", "more than once"},
        {"import", "file to import is missing"},
        {"import --force a.xml", "force"},
        {"settings SysStandard=1", "not expected"},
    };
    for (const auto& [line, reason] : cases) {
        SCOPED_TRACE(line);
        const Outcome outcome = zel(words(line));
        EXPECT_EQ(outcome.status, 2);
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err, HasSubstr(reason));
        EXPECT_THAT(outcome.err, HasSubstr("--help'"));
    }
    EXPECT_FALSE(QFile::exists(dataFile()));
}

TEST_F(CliTest, HelpTellsOfEveryCommandAndOption) {
    const Outcome overall = zel({u"--help"_s});
    EXPECT_EQ(overall.status, 0);
    for (const cli::Command& command : cli::commands()) {
        SCOPED_TRACE(command.name);
        EXPECT_THAT(overall.out, HasSubstr(command.name));
        const Outcome own = zel({QString::fromLatin1(command.name), u"--help"_s});
        EXPECT_EQ(own.status, 0);
        for (const QCommandLineOption& option : command.options())
            EXPECT_THAT(own.out, HasSubstr("  --" + option.names().constFirst().toStdString() + " "));
    }
    EXPECT_EQ(zel({u"--version"_s}).out, "zel " ZEL_VERSION "\n");
}

TEST(CommandLine, OpensTheWindowUnlessThereIsACommandOrAnUnknownWord) {
    const std::pair<const char*, bool> cases[] = {
        {"", false},
        {"--simulated-monitor", false},
        {"--simulated-monitor=plan.json", false},
        {"-platform offscreen", false},
        {"monitor", true},
        {"readings --patient A", true},
        {"export-xml DIR", true},
        {"--simulated-monitor=plan.json monitor", true},
        {"--simulated-monitor download --patient A", true},
        {"--language de", false},
        {"--reset-view", false},
        {"--language=de --simulated-monitor", false},
        {"--language de patients", true},
        {"--help", true},
        {"-h", true},
        {"--version", true},
        {"frobnicate", true},
    };
    for (const auto& [line, isCommand] : cases) {
        SCOPED_TRACE(line);
        QByteArrayList texts{"zel"};
        for (const QString& word : words(line))
            texts += word.toUtf8();
        std::vector<char*> arguments(static_cast<std::size_t>(texts.size()));
        std::ranges::transform(texts, arguments.begin(), [](QByteArray& text) { return text.data(); });
        EXPECT_EQ(cli::isCommand(static_cast<int>(arguments.size()), arguments.data()), isCommand);
    }
}

} // namespace

} // namespace zel

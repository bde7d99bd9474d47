#include "cli/Usage.h"

namespace zel::cli {

using namespace Qt::StringLiterals;

Arguments takeSimulatedMonitor(const QStringList& arguments) {
    const auto option = "--simulated-monitor"_L1;
    Arguments taken;
    for (const QString& word : arguments) {
        if (word == option)
            taken.simulatedMonitor = u""_s;
        else if (word.startsWith(option + u'='))
            taken.simulatedMonitor = word.mid(option.size() + 1), taken.hasEmptyPlan = word.endsWith(u'=');
        else
            taken.words += word;
    }
    return taken;
}

tl::expected<std::unique_ptr<QCommandLineParser>, Failure> parseOptions(const Command& command,
                                                                        const QStringList& words) {
    auto parser = std::make_unique<QCommandLineParser>();
    parser->setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser->addOption(QCommandLineOption(QStringList{u"h"_s, u"help"_s}));
    parser->addOptions(command.options());
    if (!parser->parse(QStringList(u"zel"_s) + words)) return wrongUsage(parser->errorText());
    if (const QStringList extra = parser->positionalArguments().mid(command.mostWords); !extra.isEmpty())
        return wrongUsage(qtTrId("CliUnexpectedWord").arg(extra.constFirst()));
    for (const QCommandLineOption& option : command.options()) {
        const QString name = option.names().constFirst();
        if (parser->values(name).size() > 1 && name != QLatin1StringView{command.repeatable})
            return wrongUsage(qtTrId("CliOptionTwice").arg(name));
    }
    return parser;
}

void complain(Surroundings& around, const QString& program, const QString& words) {
    printLine(around.err, program + u": "_s + words);
}

tl::expected<QString, Failure> requiredValue(const Request& request, const QString& option) {
    if (const QString value = request.options.value(option); !value.isEmpty()) return value;
    return wrongUsage(qtTrId("CliOptionMissing").arg(option));
}

QCommandLineOption flag(const QString& name) { return QCommandLineOption(name); }

QCommandLineOption valued(const QString& name) { return {name, QString(), u"value"_s}; }

} // namespace zel::cli

#include "cli/Commands.h"
#include "cli/OpenStore.h"
#include "cli/Usage.h"
#include "store/PressureLimits.h"
#include "store/SettingKeys.h"

#include <QSet>

#include <algorithm>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

/// One of the settings with its new value.
struct Assignment {
    const SettingKey* key;
    QString value;
};
using Assignments = std::vector<Assignment>;

/// On one line: a line end becomes "\n", a backslash "\\".
QString escaped(QString text) { return text.replace(u'\\', "\\\\"_L1).replace(u'\n', "\\n"_L1); }

/// Undoes escaped(); a backslash before anything else stays.
QString unescaped(const QString& text) {
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar next = text[i] == u'\\' && i + 1 < text.size() ? text[i + 1] : QChar{};
        if (next == u'n' || next == u'\\') {
            plain += next == u'n' ? u'\n' : u'\\';
            ++i;
        } else {
            plain += text[i];
        }
    }
    return plain;
}

QString keyNames() {
    QStringList names;
    for (const SettingKey& key : settingKeys())
        names += QLatin1StringView{key.name};
    return names.join(u", "_s);
}

tl::expected<Assignment, Failure> assignment(const QString& word) {
    const auto middle = word.indexOf(u'=');
    if (middle < 0) return wrongUsage(qtTrId("CliSettingForm").arg(word));
    const QString name = word.left(middle);
    const SettingKey* key = settingKey(name);
    if (!key) return wrongUsage(qtTrId("CliSettingUnknown").arg(name, keyNames()));
    return Assignment{key, unescaped(word.mid(middle + 1))};
}

tl::expected<Assignments, Failure> assignments(const Request& request) {
    Assignments all;
    QSet<const SettingKey*> seen;
    for (const QString& word : request.options.values(u"set"_s)) {
        const auto one = assignment(word);
        if (!one) return tl::unexpected(one.error());
        const QString name = QLatin1StringView{one->key->name};
        if (seen.contains(one->key)) return wrongUsage(qtTrId("CliSettingTwice").arg(name));
        SettingModel trial;
        if (!one->key->set(trial, one->value))
            return wrongUsage(qtTrId("CliSettingValue").arg(name, one->key->allowed(), one->value));
        seen.insert(one->key);
        all.push_back(*one);
    }
    return all;
}

void print(const SettingKey& key, const SettingModel& setting, Surroundings& around) {
    printLine(around.out, QLatin1StringView{key.name} + u": "_s + escaped(key.text(setting)));
}

/// The first of the settings that the file does not keep, since one of an older version may have no place for
/// it; null if all are as \p meant.
const SettingKey* notKept(const Assignments& wanted, const SettingModel& meant, const SettingModel& kept) {
    const auto found = std::ranges::find_if(
        wanted, [&](const Assignment& one) { return one.key->text(kept) != one.key->text(meant); });
    return found == wanted.end() ? nullptr : found->key;
}

/// Whether one of the limits is changed, and what is wrong with the two then: one may be wrong only beside
/// the other, which stands in the file.
std::optional<LimitProblem> limitsRefused(const SettingModel& before, const SettingModel& meant) {
    if (before.sysStandard == meant.sysStandard && before.diaStandard == meant.diaStandard)
        return std::nullopt;
    return limitProblem(meant.sysStandard, meant.diaStandard);
}

/// All of them or none, and no others.
CommandResult change(const Assignments& wanted, Surroundings& around) {
    const OpenedStore opened = openStoreForWriting(around);
    if (!opened) return tl::unexpected(opened.error());
    DataStore& store = **opened;
    const SettingModel shown = store.getSetting();
    SettingModel meant = shown;
    for (const auto& [key, value] : wanted)
        key->set(meant, value);
    if (const auto problem = limitsRefused(shown, meant)) return failed(describe(*problem));
    const auto kept = store.changeSetting(shown, meant, DataStore::WithoutPlace::changeNothing);
    if (!kept) return failed(describe(kept.error()));
    if (const SettingKey* lost = notKept(wanted, meant, *kept))
        return failed(qtTrId("CliSettingNotKept").arg(QLatin1StringView{lost->name}));
    for (const Assignment& one : wanted)
        print(*one.key, meant, around);
    return {};
}

CommandResult listSettings(Surroundings& around) {
    const OpenedStore store = openStore(around);
    if (!store) return tl::unexpected(store.error());
    for (const SettingKey& key : settingKeys())
        print(key, (*store)->getSetting(), around);
    return {};
}

CommandResult runSettings(const Request& request, Surroundings& around) {
    if (!request.options.isSet(u"set"_s)) return listSettings(around);
    const auto wanted = assignments(request);
    if (!wanted) return tl::unexpected(wanted.error());
    return change(*wanted, around);
}

} // namespace

Command settingsCommand() {
    return {"settings",
            [] { return qtTrId("CliHelpSettings"); },
            [] { return QList{valued(u"set"_s)}; },
            runSettings,
            0,
            "set"};
}

} // namespace zel::cli

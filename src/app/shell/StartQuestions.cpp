#include "app/shell/StartQuestions.h"

#include "store/CopyContent.h"
#include "store/LanguageChoice.h"
#include "store/Privacy.h"
#include "store/SecondFolder.h"

#include <optional>
#include <tuple>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// The others are of a file that is only out of reach, or of a thing in its place.
bool isDamage(StoreErrorCode code) {
    using enum StoreErrorCode;
    return code == notParsed || code == readFailed || code == tooLarge;
}

/// Of the copies beside the data file; where there is none, one of the second folder joins them.
std::optional<ReadBackup> newestReadable(const DataStore& store, const Clock& clock) {
    const Backups& backups = store.backups();
    if (auto near = backups.newest()) return near;
    const auto second = secondFolder(store.getZELXMLPath()).value_or(std::nullopt);
    if (!second) return std::nullopt;
    for (const Backup& copy : second->list()) {
        if (!contentOfCopy(second->path(copy.name))) continue;
        const auto now = std::chrono::floor<std::chrono::milliseconds>(clock.now());
        const auto name = fetchCopy(backups.folder(), second->path(copy.name), now);
        return name ? backups.newest() : std::nullopt;
    }
    return std::nullopt;
}

} // namespace

void StartQuestions::offerBackup(const StoreError& damage) {
    const auto newest = isDamage(damage.code) ? newestReadable(parts.store, parts.clock) : std::nullopt;
    const QString why = describe(damage);
    if (!newest) return parts.panel.ShowMessage(why, qtTrId("dataFileUnreadable"));
    const QString holds =
        describe(newest->content, std::as_const(parts.store).getSetting().shownDateFormat());
    const QString question = why + u"\n\n"_s + qtTrId("backupOffered").arg(newest->copy.name, holds);
    if (parts.panel.AskToErase(question, qtTrId("dataFileUnreadable"))) goBackTo(newest->copy);
}

void StartQuestions::goBackTo(const Backup& copy) {
    const auto kept = parts.store.restoreBackup(copy.name);
    if (!kept) return parts.panel.ShowMessage(describe(kept.error()), qtTrId("Warning"));
    emit restored(copy.name, *kept);
}

void StartQuestions::offerPrivacy() {
    const QStringList open = readableByOthers(parts.store.getZELXMLPath());
    if (open.isEmpty()) return;
    const auto more = open.size() - 1;
    const QString which =
        more == 0 ? open.first() : qtTrId("privacyAskedMore").arg(open.first(), QString::number(more));
    parts.panel.interject(this, [this, question = qtTrId("privacyAsked").arg(which)] {
        if (parts.panel.AskMessage(question, qtTrId("privacyTitle"))) keepOthersOut();
    });
}

void StartQuestions::keepOthersOut() {
    QStringList left;
    for (const StoreError& error : makePrivate(parts.store.getZELXMLPath()))
        left += describe(error);
    std::ignore = parts.store.takeChanges(); // or the new mode would be taken for another program's change
    if (left.isEmpty()) return emit said(qtTrId("privacyMended"));
    parts.panel.ShowMessage(left.join(u'\n'), qtTrId("Warning"));
}

void StartQuestions::tellUnreadLanguage() {
    if (const auto chosen = readLanguageChoice(parts.languageFile); !chosen)
        parts.panel.ShowMessage(describeUnreadLanguage(chosen.error()), qtTrId("Warning"));
}

} // namespace zel

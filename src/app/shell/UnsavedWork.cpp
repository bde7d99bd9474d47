#include "app/shell/UnsavedWork.h"

#include "app/shell/UnsavedFile.h"
#include "app/widgets/Log.h"

#include <QJsonObject>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

void UnsavedWork::keep() {
    const UnsavedFile file(parts.store.getZELXMLPath());
    QJsonArray drafts = file.read();
    const auto before = drafts.size();
    for (PageController* page : parts.pages) {
        for (const QJsonValue unsaved : page->saveQuietly()) {
            QJsonObject draft = unsaved.toObject();
            draft[u"page"_s] = page->objectName();
            if (!drafts.contains(draft)) drafts.append(draft); // one that was taken up is still there
        }
    }
    if (drafts.size() == before) return;
    if (const StoreResult kept = file.write(drafts); !kept)
        qCWarning(lcApp, "What was typed could not be kept: %s", qUtf8Printable(describe(kept.error())));
}

void UnsavedWork::offer() {
    const UnsavedFile file(parts.store.getZELXMLPath());
    QJsonArray left;
    for (const QJsonValue draft : file.read())
        if (!isSettled(draft.toObject())) left.append(draft);
    if (parts.isClosing()) return; // keep() has written what is to be offered again
    if (const StoreResult kept = file.write(left); !kept)
        parts.panel.ShowMessage(describe(kept.error()), qtTrId("Warning"));
}

/// \return false if it is to be offered again; nothing is dropped by an answer that changes nothing elsewhere
bool UnsavedWork::isSettled(const QJsonObject& draft) {
    const QString name = draft[u"name"_s].toString();
    const QString title = qtTrId("unsavedTitle");
    const auto page =
        std::ranges::find(parts.pages, draft[u"page"_s].toString(), &PageController::objectName);
    if (parts.isClosing() || page == parts.pages.end()) return false;
    if (!parts.panel.AskMessage(qtTrId("unsavedFound").arg(name), title))
        return !parts.isClosing() && parts.panel.AskToErase(qtTrId("unsavedDelete").arg(name), title);
    return (*page)->takeUp(draft);
}

} // namespace zel

#pragma once

#include "analysis/ReadingSelection.h"
#include "store/Clock.h"
#include "store/DataStore.h"
#include "store/MessagePanel.h"

#include <QAction>
#include <QList>

#include <functional>
#include <vector>

namespace zel {

/// What can be done with the readings that are chosen in a view: leave them out and take them in again, and
/// type in, change or delete one's own.
class ReadingActions final : public QObject {
    Q_OBJECT
public:
    struct Parts {
        DataStore& store;
        MessagePanel& panel;
        const Clock& clock;
    };
    using Readings = std::vector<const ReadingModel*>;
    /// The actions take their keys in \p view. \p chosen: none are chosen for an empty list.
    ReadingActions(const Parts& needed, std::function<Readings()> chosen, QWidget& view);

    /// Others are chosen, or they have changed: tells which actions make sense.
    void update();
    [[nodiscard]] const QList<QAction*>& actions() const { return all; }
    [[nodiscard]] QAction* newReading() const { return typeInAction; }

signals:
    /// A reading that was typed in or changed, as it is in the store now.
    void readingStored(const ReadingModel& reading);

private:
    QAction* add(const QString& name, const QString& text, const QKeySequence& keys,
                 void (ReadingActions::*act)());
    [[nodiscard]] ReadingList copies(bool (*isMeant)(const ReadingModel&)) const;
    void leaveOut();
    void takeIn();
    void typeIn();
    void change();
    void remove();
    void tellStored(const ManualReading& typed);
    bool isDone(const StoreResult& result) const;
    template <class Result>
    [[nodiscard]] QString refusalOf(const Result& result) const;

    Parts parts;
    std::function<Readings()> chosenNow;
    QWidget& shownIn;
    QList<QAction*> all;
    QAction* leaveOutAction;
    QAction* takeInAction;
    QAction* typeInAction;
    QAction* changeAction;
    QAction* removeAction;
};

/// That the reading is stored, and whether a view of that selection shows it.
[[nodiscard]] QString storedInWords(const ReadingModel& reading, const ReadingSelection& selection,
                                    const SettingModel& settings);

/// "20/11/2026 07:05, 150/90, pulse 70" for one; "3 readings" for several.
[[nodiscard]] QString readingsInWords(const ReadingList& readings, const SettingModel& settings);

} // namespace zel

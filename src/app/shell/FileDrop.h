#pragma once

#include "app/widgets/FileChooser.h"
#include "store/DataStore.h"

#include <QList>
#include <QObject>
#include <QUrl>

class QDropEvent;

namespace zel {

class ImportController;

/// Files that are dropped anywhere on the window are imported, as if they had been looked for; also on a
/// field, which would take their names for text. Nothing is asked before the other program has its answer,
/// nor while a question stands: what was dropped by then waits for its end.
class FileDrop final : public QObject {
    Q_OBJECT
public:
    struct Parts {
        DataStore& store;
        MessagePanel& panel;
        FileChooser& chooser;
    };
    /// \p over takes the drops, and is what the dialogs stand over.
    FileDrop(const Parts& needed, QWidget* over);

signals:
    void imported(); ///< the data file holds new patients

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] static bool isWanted(const QDropEvent& event);
    [[nodiscard]] static bool refuse(QDropEvent& event);
    void takeSoon();
    void takeWaiting();
    void take(const QList<QUrl>& dropped);

    MessagePanel& panel;
    QWidget* window;
    ImportController* importer;
    bool isWelcome =
        false; ///< what is dragged just now; thousands of names are read once, not with each move
    bool isRefused = false; ///< a question stood when it came over the window
    QList<QUrl> waiting;    ///< dropped, and not taken yet
};

} // namespace zel

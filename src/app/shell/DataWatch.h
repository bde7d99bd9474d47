#pragma once

#include "app/widgets/StillKeyboard.h"
#include "store/DataStore.h"

#include <QTimer>

#include <chrono>

namespace zel {

/// Sees that the window shows what other programs and other machines change in the data file. It looks at the
/// file's time and size at intervals and whenever the window is turned to: a share tells nobody what other
/// machines do. The file is read when nobody is typing, dragging or answering.
class DataWatch final : public QObject {
    Q_OBJECT
public:
    /// \param interval between two looks; the keyboard is still for as long before the file is read
    DataWatch(DataStore& store, QWidget& window, std::chrono::milliseconds interval);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void shown();      ///< what another program changed
    void unreadable(); ///< for now: what is shown stays
    void readable();   ///< again, and as it was

private:
    void look();
    void takeChanges();

    DataStore& store;
    QTimer timer;
    StillKeyboard keyboard;
    bool isWaiting = false; ///< for the keyboard
    bool isUnreadable = false;
};

} // namespace zel

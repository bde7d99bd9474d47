#pragma once

#include "app/widgets/BackgroundJobs.h"
#include "app/widgets/StillKeyboard.h"
#include "store/DataStore.h"

#include <QTimer>

#include <chrono>
#include <functional>

namespace zel {

/// Sees that the window shows what other programs and other machines change in the data file. It looks at the
/// file's time and size at intervals and whenever the window is turned to: a share tells nobody what other
/// machines do. The look is taken on a thread of its own, since a share may not answer at all; the file is
/// read when it has answered and nobody is typing, dragging or answering.
class DataWatch final : public QObject {
    Q_OBJECT
public:
    using Look = std::function<FileStamp(const QString& path)>;
    struct Timing {
        /// Between two looks; the keyboard is still for as long before the file is read.
        std::chrono::milliseconds interval;
        std::chrono::milliseconds patience{10000}; ///< with a look, before the file is told as unreadable
    };
    DataWatch(DataStore& store, QWidget& window, const Timing& timing, Look looking = stampOf);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void shown();      ///< what another program changed
    void unreadable(); ///< for now: what is shown stays
    void readable();   ///< again, and as it was

private:
    void look();
    void looked(const FileStamp& seen);
    void tellUnreadable();
    void takeChanges();

    DataStore& store;
    Look looking;
    QTimer timer;
    QTimer waited; ///< runs while a look is under way that has not been told
    StillKeyboard keyboard;
    bool isLooking = false;
    bool isWaiting = false; ///< for the keyboard
    bool isUnreadable = false;
    BackgroundJobs jobs{std::chrono::milliseconds{0}}; // the end waits for no look
};

} // namespace zel

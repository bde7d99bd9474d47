#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <chrono>
#include <deque>
#include <functional>

namespace zel {

/// Calls what waits for it, one after the other, while no key of the program has been touched for a time.
class StillKeyboard final : public QObject {
public:
    explicit StillKeyboard(std::chrono::milliseconds stillness);

    /// Never before it returns; dropped when \p context dies.
    void whenStill(QObject* context, std::function<void()> call);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void callWaiting();

    struct Call {
        QPointer<QObject> context;
        std::function<void()> call;
    };
    QTimer touched; ///< runs while the keyboard is not still
    std::deque<Call> waiting;
    bool isCalling = false;
};

} // namespace zel

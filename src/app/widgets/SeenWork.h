#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace zel {

/// What a widget does whenever something has changed: at once while it shows, else once, as soon as it does.
/// A page that nobody sees costs nothing then, however often its readings change.
class SeenWork final : public QObject {
public:
    /// A member of \p shown.
    SeenWork(QWidget& shown, std::function<void()> work);
    /// Something has changed.
    void want();

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void doNow();

    QWidget& widget;
    std::function<void()> work;
    bool isWanted = false;
};

} // namespace zel

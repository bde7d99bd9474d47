#pragma once

#include <QFrame>

#include <chrono>

namespace zel {

/// The program's name card over the middle of the window while the program starts. It blocks nothing: keys
/// and clicks go to what lies under it, and the first one takes it away.
class SplashWindow final : public QFrame {
    Q_OBJECT
public:
    explicit SplashWindow(QWidget* window);
    /// Shows the card for \p duration at most.
    void showSplash(std::chrono::milliseconds duration);

signals:
    void splashClosed(); ///< once

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void build();
    void place();
    void closeSplash();
};

} // namespace zel

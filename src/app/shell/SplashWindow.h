#pragma once

#include <QDialog>

#include <chrono>

namespace zel {

/// The program's name card, shown over everything while the program starts.
class SplashWindow final : public QDialog {
    Q_OBJECT
public:
    explicit SplashWindow(QWidget* parent);
    /// Shows the card for \p duration; nothing can be done meanwhile.
    void showSplash(std::chrono::milliseconds duration);
    void reject() override {} ///< it closes by itself only

signals:
    void splashClosed();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void closeSplash();
};

} // namespace zel

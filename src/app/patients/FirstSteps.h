#pragma once

#include "app/device/MonitorStatus.h"

#include <QWidget>

class QGridLayout;
class QLabel;
class QPushButton;

namespace zel {

/// Stands where the roster has nobody yet: the three steps to the first readings, and a way to try them.
class FirstSteps final : public QWidget {
    Q_OBJECT
public:
    FirstSteps(const MonitorStatus& monitorStatus, bool offersDemonstration, QWidget* parent);
    /// Takes no room behind what it would stand for.
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void newWanted();
    void demonstrationWanted();

private:
    /// \return the step's mark
    QLabel* addStep(QGridLayout& grid, int number, const QString& text, QWidget* below);
    QPushButton* makeButton(const QString& name, const QString& text);
    QWidget* makeDemonstration();
    void showMonitor();

    const MonitorStatus& status;
    QLabel* lblMonitor;
    QLabel* lblMonitorStep = nullptr;
};

} // namespace zel

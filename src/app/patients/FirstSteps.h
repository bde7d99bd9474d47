#pragma once

#include "app/device/MonitorStatus.h"

#include <QWidget>

class QGridLayout;
class QLabel;
class QPushButton;

namespace zel {

/// Stands where the roster has nobody yet: the three steps to the first readings, a way to try them, and one
/// back to the patients whom a copy of the data file holds.
class FirstSteps final : public QWidget {
    Q_OBJECT
public:
    FirstSteps(const MonitorStatus& monitorStatus, bool offersDemonstration, QWidget* parent);
    /// The newest copy with patients, and what it holds, both for the user; empty: there is none.
    void tellCopy(const QString& name, const QString& holds);
    /// Takes no room behind what it would stand for.
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void newWanted();
    void demonstrationWanted();
    void backupsWanted();

private:
    /// \return the step's mark
    QLabel* addStep(QGridLayout& grid, int number, const QString& text, QWidget* below);
    QPushButton* makeButton(const QString& name, const QString& text);
    QWidget* makeDemonstration();
    QWidget* makeCopyNote();
    void showMonitor();

    const MonitorStatus& status;
    QLabel* lblMonitor;
    QLabel* lblMonitorStep = nullptr;
    QLabel* lblCopy = nullptr;
    QWidget* copyNote;
};

} // namespace zel

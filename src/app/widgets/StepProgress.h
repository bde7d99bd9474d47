#pragma once

#include <QDialog>
#include <QTimer>

#include <functional>

class QLabel;
class QProgressBar;
class QPushButton;

namespace zel {

/// Does a job of many steps, one in each turn of the event loop, under a window that shows how far it is and
/// lets the user cancel it. A job of few steps is done at once, without the window.
class StepProgress final : public QDialog {
    Q_OBJECT
public:
    StepProgress(const QString& name, QWidget* parent);

    struct Job {
        QString title;
        int total = 0;
        int quickTotal = 0;                ///< up to so many steps are done at once
        std::function<void(int)> step;     ///< by the step's number, from 0
        std::function<void(int)> finished; ///< with the number of steps done; less than total when cancelled
    };
    void run(Job next);
    /// The user's way out (Esc, the close button, Cancel): no further step is begun.
    void reject() override { finish(); }

private:
    void build();
    void runQuickly();
    void stepOnce();
    void showDone();
    void finish();

    Job job;
    int done = 0;
    QTimer turn;
    QLabel* lblStep;
    QProgressBar* barProgress;
    QPushButton* btnCancel;
};

} // namespace zel

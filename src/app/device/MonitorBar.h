#pragma once

#include "app/device/MonitorNotice.h"
#include "app/device/MonitorStatus.h"

#include <QFrame>
#include <QTimer>

#include <optional>

class QLabel;
class QPushButton;

namespace zel {

/// Says at the head of the window whose monitor is connected and offers what is done next. It comes with the
/// monitor's ID, follows it and goes with it, and never takes the focus; F6 goes there, Esc closes it.
class MonitorBar final : public QFrame {
    Q_OBJECT
public:
    MonitorBar(const MonitorStatus& monitorStatus, const DataStore& dataStore, QWidget* parent);
    /// Until another ID, or the monitor once more, comes.
    void dismiss();

signals:
    void downloadWanted(const QString& ID);
    void newPatientWanted(const QString& ID);

private:
    void build();
    void makeKeys();
    QPushButton* makeButton(const QString& name, const QString& text);
    void follow();
    void say(const MonitorNotice& notice);
    void enableButtons();

    const MonitorStatus& status;
    const DataStore& store;
    QTimer afterRelease;
    MonitorNotice said;
    std::optional<QString> dismissed; ///< the ID that the bar was closed for
    QLabel* lblTitle;
    QLabel* lblText;
    QPushButton* downloadButton = nullptr;
    QPushButton* newPatientButton = nullptr;
    QPushButton* closeButton = nullptr;
};

} // namespace zel

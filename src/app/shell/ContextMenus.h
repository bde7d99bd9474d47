#pragma once

#include <QList>
#include <QObject>

class QMenu;
class QWidget;

namespace zel {

/// The menus that come with the right mouse button, or its key, over the list of patients and the panel of
/// comments. The chart and the table have their own, fields have Qt's.
class ContextMenus final : public QObject {
    Q_OBJECT
public:
    /// \p ofPatient: what else can be done with the patient who is chosen
    ContextMenus(QWidget& window, const QList<QAction*>& ofPatient);

private:
    void offer(QWidget& over, QMenu& menu);

    QWidget& shown;
};

} // namespace zel

// Preloaded into a program: says through a pipe that the main window has been painted, the patients with it
// where it has a list of them, and that the event loop is free; then the program ends.

#include <QApplication>
#include <QMainWindow>
#include <QPaintEvent>
#include <QTableView>
#include <QTimer>

#include <unistd.h>

namespace {

bool isUsable(const QObject* painted) {
    const auto* widget = qobject_cast<const QWidget*>(painted);
    const auto* window = widget ? qobject_cast<const QMainWindow*>(widget->window()) : nullptr;
    if (!window || !window->isVisible()) return false;
    const auto* list = window->findChild<QTableView*>(QStringLiteral("tblPatients"));
    return list ? widget == list->viewport() && list->model()->rowCount() > 0 : widget == window;
}

void tell() {
    const char done = 'x';
    _exit(write(qEnvironmentVariableIntValue("ZEL_FIRST_PAINT_FD"), &done, 1) == 1 ? 0 : 1);
}

class FirstPaint final : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint && isUsable(object)) QTimer::singleShot(0, tell);
        return false;
    }
};

void watchPaints() { qApp->installEventFilter(new FirstPaint(qApp)); }

Q_COREAPP_STARTUP_FUNCTION(watchPaints)

} // namespace

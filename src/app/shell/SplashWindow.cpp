#include "app/shell/SplashWindow.h"

#include "app/widgets/Log.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/Style.h"

#include <QCoreApplication>
#include <QEvent>
#include <QIcon>
#include <QInputMethodEvent>
#include <QLabel>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// A key that is a shortcut arrives as an override first, and perhaps as nothing else.
bool isBeginning(const QEvent& event) {
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
    case QEvent::Wheel: return true;
    case QEvent::InputMethod: { // one without a text only tidies up
        const auto& composed = static_cast<const QInputMethodEvent&>(event);
        return !composed.preeditString().isEmpty() || !composed.commitString().isEmpty();
    }
    default: return false;
    }
}

} // namespace

SplashWindow::SplashWindow(QWidget* window) : QFrame(window) {
    setObjectName(u"splash"_s);
    setAccessibleName(qtTrId("AP_Title"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    build();
    hide();
}

void SplashWindow::build() {
    auto* picture = new QLabel(this);
    picture->setPixmap(QIcon(u":/icons/zel.svg"_s).pixmap(Style::largeIcon, Style::largeIcon));
    auto* name = new QLabel(qtTrId("programName"), this);
    Style::setType(*name, Style::Type::title);
    auto* purpose = new QLabel(qtTrId("programPurpose"), this);
    auto* version = new QuietLabel(qtTrId("programVersion").arg(QLatin1String(ZEL_VERSION)), this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Style::wide, Style::wide, Style::wide, Style::wide);
    column->setSpacing(Style::near);
    for (QLabel* label : {picture, name, purpose, static_cast<QLabel*>(version)})
        column->addWidget(label, 0, Qt::AlignHCenter);
    column->insertStretch(3, 1);
}

void SplashWindow::showSplash(std::chrono::milliseconds duration) {
    qCInfo(lcApp, "show slash");
    show();
    place();
    QCoreApplication::instance()->installEventFilter(this);
    QTimer::singleShot(duration, this, &SplashWindow::closeSplash);
}

void SplashWindow::place() {
    const QSize card = sizeHint().expandedTo({fontMetrics().averageCharWidth() * 60, 280});
    resize(card.boundedTo(parentWidget()->size()));
    move((parentWidget()->width() - width()) / 2, (parentWidget()->height() - height()) / 2);
    raise();
}

bool SplashWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize) place();
    if (isBeginning(*event)) closeSplash();
    return false;
}

void SplashWindow::closeSplash() {
    if (isHidden()) return;
    QCoreApplication::instance()->removeEventFilter(this);
    qCInfo(lcApp, "close slash");
    hide();
    emit splashClosed();
}

void SplashWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.fillRect(0, height() - Style::tight, width(), Style::tight, palette().highlight());
    painter.setPen(Style::border(palette()));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace zel

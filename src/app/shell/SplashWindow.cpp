#include "app/shell/SplashWindow.h"

#include "app/shell/WindowPlacement.h"
#include "app/widgets/Log.h"
#include "app/widgets/PageHeading.h"
#include "app/widgets/Style.h"

#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

namespace zel {

using namespace Qt::StringLiterals;

SplashWindow::SplashWindow(QWidget* parent) : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint) {
    setObjectName(u"splash"_s);
    setWindowTitle(qtTrId("AP_Title"));
    setAccessibleName(qtTrId("AP_Title"));
    setModal(true);
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
    setFixedSize(sizeHint().expandedTo({fontMetrics().averageCharWidth() * 60, 280}));
}

void SplashWindow::showSplash(std::chrono::milliseconds duration) {
    qCInfo(lcApp, "show slash");
    AdjustWindowFitToScreen(*this, true);
    open();
    QTimer::singleShot(duration, this, &SplashWindow::closeSplash);
}

void SplashWindow::closeSplash() {
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

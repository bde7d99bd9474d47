#include "support/WidgetTest.h"

#include "app/widgets/Mnemonic.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QTest>
#include <QThread>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

void TestClock::sleep(std::chrono::microseconds duration) {
    if (stands)
        QThread::msleep(1);
    else
        manual.sleep(duration);
}

WidgetTest::WidgetTest()
    : store({.home = home.path(), .applicationFolder = home.path(), .templateFolder = u":/templates"_s},
            clock),
      loaded(store.load()) {}

void WidgetTest::show(QWidget* content, QSize size) {
    host = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(host.get());
    layout->setContentsMargins({});
    layout->addWidget(content);
    host->resize(size);
    host->show();
    host->activateWindow();
    waitFor([this] { return host->isActiveWindow(); });
}

void WidgetTest::addPatient(const QString& ID, const QString& familyName) {
    PatientModel patient;
    patient.ID = ID;
    patient.FamilyName = familyName;
    patient.GivenNames = u"Kim"_s;
    ASSERT_TRUE(store.saveXMLPatient(patient));
    ASSERT_TRUE(store.loadXML());
}

void WidgetTest::waitFor(const std::function<bool()>& condition) {
    ASSERT_TRUE(QTest::qWaitFor(condition, 20000));
}

void WidgetTest::click(const char* name) { QTest::mouseClick(&find<QWidget>(name), Qt::LeftButton); }

void WidgetTest::type(const char* field, const QString& text) {
    auto& input = find<QWidget>(field);
    input.setFocus();
    QTest::keyClick(&input, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&input, Qt::Key_Delete);
    QTest::keyClicks(&input, text);
}

void WidgetTest::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* focused = QApplication::focusWidget();
    QTest::keyClick(focused ? focused : &window(), key, modifiers);
}

void WidgetTest::rollOver(QWidget& widget) {
    const QPoint inside(5, 5);
    QWheelEvent step(inside, widget.mapToGlobal(inside), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                     false);
    QSpontaneKeyEvent::setSpontaneous(&step); // or it would end here, whether it is taken or not
    QApplication::instance()->notify(&widget, &step);
}

void WidgetTest::expectNamed(const QWidget& parent) {
    int controls = 0;
    for (const QWidget* control : parent.findChildren<QWidget*>()) {
        if (control->focusPolicy() == Qt::NoFocus || control->objectName().startsWith(u"qt_"_s)) continue;
        if (control->window() != parent.window()) continue;
        ++controls;
        EXPECT_FALSE(control->objectName().isEmpty()) << control->metaObject()->className();
        EXPECT_FALSE(control->accessibleName().isEmpty()) << qPrintable(control->objectName());
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        if (button && std::ranges::any_of(button->text(), [](QChar c) { return c.isLetter(); })) {
            EXPECT_EQ(button->accessibleName(), withoutMnemonic(button->text()))
                << qPrintable(button->objectName());
        }
    }
    EXPECT_GT(controls, 0);
    for (const auto* label : parent.findChildren<QLabel*>()) {
        QString seen = withoutMnemonic(label->text()).remove(u':').trimmed();
        if (seen.endsWith(u"\u00A0*"_s)) seen.chop(2); // the mark of what has to be filled in
        if (label->buddy()) {
            EXPECT_TRUE(label->buddy()->accessibleName().startsWith(seen)) << qPrintable(seen);
        }
    }
}

QByteArray WidgetTest::dataFile() const {
    QFile file(store.getZELXMLPath());
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

void WidgetTest::replaceDataFile(const QByteArray& content) const {
    QFile file(store.getZELXMLPath());
    ASSERT_TRUE(file.open(QFile::WriteOnly | QFile::Truncate));
    file.write(content);
}

} // namespace zel

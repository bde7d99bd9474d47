#pragma once

#include "store/DataStore.h"
#include "support/ManualClock.h"
#include "support/ScriptedPanel.h"

#include <QLabel>
#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <memory>

namespace zel {

/// A clock whose sleeps take no time, or that stands still, so that no deadline is ever reached.
class TestClock final : public Clock {
public:
    [[nodiscard]] WallTime now() const override { return manual.now(); }
    void sleep(std::chrono::microseconds duration) override;
    void advance(std::chrono::microseconds step) { manual.advance(step); }
    std::atomic<bool> stands = false;

private:
    ManualClock manual;
};

/// Widgets in a window of their own, over a data file of their own, driven like a user does.
class WidgetTest : public testing::Test {
protected:
    WidgetTest();
    /// The window goes first, before what the test itself owns and the widgets point at.
    void TearDown() override { host.reset(); }

    /// Shows the widget in a window of this size; the window owns it.
    void show(QWidget* content, QSize size = {1200, 760});
    [[nodiscard]] virtual QWidget& window() { return *host; }

    void addPatient(const QString& ID, const QString& familyName);
    void waitFor(const std::function<bool()>& condition);
    template <class W>
    W& find(const char* name) {
        auto* widget = window().findChild<W*>(QLatin1String(name));
        if (!widget) qFatal("no widget %s", name);
        return *widget;
    }
    QWidget& page(const char* name) { return find<QWidget>(name); }
    QString text(const char* name) { return find<QLabel>(name).text(); }
    void click(const char* name);
    /// Replaces what stands in a field by key strokes.
    void type(const char* field, const QString& text);
    /// To whatever has the focus.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// One step of the mouse wheel, downwards, with the pointer over it.
    static void rollOver(QWidget& widget);
    /// Each widget inside that takes the focus has a name, which is what is written on it or before it.
    static void expectNamed(const QWidget& parent);
    QByteArray dataFile() const;
    void replaceDataFile(const QByteArray& content) const;

    QTemporaryDir home;
    TestClock clock;
    ScriptedPanel panel;
    DataStore store;
    StoreResult loaded; ///< how the file was read at first
    std::unique_ptr<QWidget> host;
};

} // namespace zel

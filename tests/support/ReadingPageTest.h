#pragma once

#include "analysis/DisplayPeriod.h"
#include "support/WidgetTest.h"

#include <QCoreApplication>

class QPlainTextEdit;

namespace zel {

/// Readings and comments, and what a user does on a page that shows them.
class ReadingSteps {
protected:
    explicit ReadingSteps(DataStore& dataStore) : records(dataStore) {}
    ~ReadingSteps() = default;
    [[nodiscard]] virtual QWidget& readingPage() = 0;

    /// "yyyyMMddHHmm"
    static Instant at(const QString& date) {
        return StrToDate(date, QStringLiteral("yyyyMMddHHmm")).value_or(Instant{});
    }
    /// Of its values, only the systolic and the pulse pressure differ.
    static ReadingModel reading(const QString& date, std::uint32_t sys);
    void storeReadings(const QString& ID, const ReadingList& readings);
    /// Days as "yyyyMMdd".
    void addComment(const QString& ID, const QString& begin, const QString& end, const QString& text);
    /// A year of P1's readings, morning and evening, the last on 20/03/2026.
    void storeYear();
    /// Three readings of P1 and two comments, the first on a day with a reading and one without.
    void storeComments();
    QString stored(const QString& commentID);

    template <class W>
    W& part(const char* name) {
        auto* widget = readingPage().findChild<W*>(QLatin1String(name));
        if (!widget) qFatal("no widget %s", name);
        return *widget;
    }
    QPlainTextEdit& editor();
    /// A button's mark, wherever it stands in the room that the button has.
    void clickPart(const char* name);
    /// As a user does: by "click" at its start, "Tab", "Shift+Tab" or "Ctrl+A" after a click.
    static void enter(QWidget& field, const QByteArray& how);
    void typeDay(const char* field, const QString& digits);
    QString dayIn(const char* field);
    /// At the end of the comment.
    void typeComment(const QString& text);

private:
    DataStore& records;
};

/// A page of one patient's readings over a period, which follows patient and file as in the whole program.
class ReadingPageTest : public WidgetTest, protected ReadingSteps {
protected:
    ReadingPageTest();
    [[nodiscard]] QWidget& readingPage() override { return window(); }

    /// Shows a page, or a part of one, as if its tab had been pressed.
    template <class Page>
    void open(Page* shown, QSize size = {1300, 750}) {
        show(shown, size);
        shown->setFocus();
        follow(*shown);
        shown->LoadData();
        QCoreApplication::processEvents();
    }

    DisplayPeriod period{std::chrono::floor<std::chrono::milliseconds>(clock.now())};

private:
    void follow(QWidget& shown);
};

} // namespace zel

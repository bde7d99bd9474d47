// Prints through the print window and the system's print queue. tests/printing/run sets the queue up.
#include "app/printing/PrintController.h"
#include "report/ReportPdf.h"
#include "support/FullDisk.h"
#include "support/ScriptedChooser.h"
#include "support/WidgetTest.h"

#include <QComboBox>
#include <QDir>
#include <QProcess>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

QString printed() { return qEnvironmentVariable("ZEL_PRINTED"); }

QByteArray outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(30000));
    return process.exitCode() == 0 ? process.readAllStandardOutput() : QByteArray();
}

/// The page as the eye sees it from afar, upright: the outlines of its letters do not matter.
QImage pageOf(const QString& pdf, int page, bool isTurned) {
    const QTemporaryDir folder;
    const QString number = QString::number(page);
    outputOf(u"pdftoppm"_s, {u"-r"_s, u"40"_s, u"-gray"_s, u"-f"_s, number, u"-l"_s, number, u"-singlefile"_s,
                             pdf, folder.filePath(u"page"_s)});
    QImage image(folder.filePath(u"page.pgm"_s));
    if (isTurned) image = image.transformed(QTransform().rotate(90));
    return image.scaled(image.size() / 5, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// Mean difference of two pages, in grey steps of 255.
double difference(const QImage& a, const QImage& b) {
    if (a.isNull() || a.size() != b.size()) return 255;
    double sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            sum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
    return sum / a.width() / a.height();
}

class PrintQueueTest : public WidgetTest {
protected:
    PrintQueueTest() {
        EXPECT_TRUE(loaded);
        chooser.pdf = home.filePath(u"saved.pdf"_s);
        addPatient(u"P1"_s, u"Adams"_s);
        store.setCurrentID(u"P1"_s);
        ReadingList readings;
        for (int i = 0; i < 70; ++i) {
            ReadingModel& reading = readings.emplace_back();
            reading.ReadingDate = StrToDate(u"202603010800"_s, u"yyyyMMddHHmm"_s).value_or(Instant{})
                                  + std::chrono::hours(12 * i);
            reading.sys = 120 + static_cast<std::uint32_t>(i);
            reading.dia = 80;
            reading.pulse = 60;
        }
        EXPECT_TRUE(store.newDataTransfer(readings));
        EXPECT_TRUE(store.loadXML());
        period.setCurrentReadingTimePeriod(store.getReadingForCurID());
    }
    [[nodiscard]] QWidget& window() override { return printing; }
    /// Prints the first section of the tab. \return the path of what the queue made of it
    QString printFrom(int tab) {
        return whatComesOut([&] {
            printing.showPrintPreview(tab, {}, PrintPurpose::printer);
            click("savePdf");
            click("printAndClose");
        });
    }
    QString whatComesOut(const std::function<void()>& print) {
        QDir folder(printed());
        const QStringList before = folder.entryList({u"*.pdf"_s});
        print();
        EXPECT_TRUE(panel.messages.empty()) << qPrintable(panel.messages.join(u'\n'));
        QString made;
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                folder.refresh();
                for (const QString& name : folder.entryList({u"*.pdf"_s}))
                    if (!before.contains(name)) made = folder.filePath(name);
                return !made.isEmpty() && !outputOf(u"pdfinfo"_s, {made}).isEmpty();
            },
            30000));
        return made;
    }
    /// The job of that number as the program handed it over.
    static QString spooled(int number) {
        return qEnvironmentVariable("ZEL_SPOOLED") + u"/d%1-001"_s.arg(number, 5, 10, QChar(u'0'));
    }

    DisplayPeriod period{std::chrono::floor<std::chrono::milliseconds>(clock.now())};
    ScriptedChooser chooser;
    SystemPrinters printers;
    PrintController printing{{store, period, clock, panel, chooser, printers}, nullptr};
};

} // namespace

TEST_F(PrintQueueTest, theQueueIsKnownAndIsTheDefault) {
    const QString name = qEnvironmentVariable("ZEL_PRINTER");
    EXPECT_EQ(printers.names(), QStringList({name, name + u"/two"_s}));
    EXPECT_EQ(printers.defaultName(), qEnvironmentVariable("ZEL_PRINTER"));
    EXPECT_EQ(printers.paper(printers.defaultName()).id(), QPageSize::A4);
}

TEST_F(PrintQueueTest, whatIsPrintedIsWhatIsSaved) {
    struct Case {
        int tab;
        int pages;
        const char* size;
        const char* says;
        bool isTurned; ///< the printer puts landscape on upright paper
    };
    int job = 0;
    for (const Case& c : {Case{2, 3, "595 x 842", "189", false}, Case{0, 1, "842 x 595", "Adams", true}}) {
        const QString paper = printFrom(c.tab);
        const QString saved = home.filePath(u"saved.pdf"_s), handedOver = spooled(++job);
        for (const QString& pdf : {saved, handedOver, paper})
            EXPECT_TRUE(outputOf(u"pdfinfo"_s, {pdf})
                            .replace(" ", "")
                            .contains("Pages:" + QByteArray::number(c.pages) + '\n'))
                << qPrintable(pdf);
        EXPECT_TRUE(outputOf(u"pdfinfo"_s, {handedOver}).contains(c.size));
        EXPECT_TRUE(outputOf(u"pdftotext"_s, {handedOver, u"-"_s}).contains(c.says));
        for (int page = 1; page <= c.pages; ++page) {
            const QImage file = pageOf(saved, page, false), onPaper = pageOf(paper, page, c.isTurned);
            QImage blank = file;
            blank.fill(Qt::white);
            EXPECT_LT(difference(file, onPaper) * 4, difference(file, blank))
                << "page " << page << " of tab " << c.tab;
        }
    }
}

TEST_F(PrintQueueTest, anInstanceOfAPrinterPrintsAsItIsSet) {
    auto source = printSource(store, period, clock, {});
    ASSERT_TRUE(source);
    const PrintView view(std::move(*source), QPageSize(QPageSize::A4));
    ASSERT_EQ(view.getTotalPages(Section::SWStatistics), 4);
    const QString paper = whatComesOut([&] {
        EXPECT_EQ(printers.print(printers.defaultName() + u"/two"_s, view, Section::SWStatistics),
                  PrintResult::printed);
    });
    EXPECT_TRUE(outputOf(u"pdfinfo"_s, {paper}).replace(" ", "").contains("Pages:2\n"))
        << "four, two on a sheet";
}

TEST_F(PrintQueueTest, aJobThatCannotBeFinishedIsTakenBack) {
    const auto jobs = [] {
        return QDir(qEnvironmentVariable("ZEL_SPOOLED")).entryList({u"d*-001"_s}).size();
    };
    auto source = printSource(store, period, clock, {});
    ASSERT_TRUE(source);
    const PrintView view(std::move(*source), QPageSize(QPageSize::A4));
    const qsizetype before = jobs();
    {
        const FullDisk full(3000);
        EXPECT_EQ(printers.print(printers.defaultName(), view, Section::table), PrintResult::failed);
    }
    outputOf(u"lpstat"_s, {u"-o"_s}); // the queue has taken what there is
    EXPECT_EQ(jobs(), before);
}

TEST_F(PrintQueueTest, aPrinterThatIsGoneIsSaidAndNoOtherPrints) {
    const QStringList before = QDir(printed()).entryList();
    auto source = printSource(store, period, clock, {});
    ASSERT_TRUE(source);
    const PrintView view(std::move(*source), QPageSize(QPageSize::A4));
    EXPECT_EQ(printers.print(u"Gone"_s, view, Section::table), PrintResult::noPrinter);
    EXPECT_EQ(QDir(printed()).entryList(), before);
}

} // namespace zel

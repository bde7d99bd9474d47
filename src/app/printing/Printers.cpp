#include "app/printing/Printers.h"

#include "report/ReportPainter.h"

#include <QLocale>
#include <QPrinter>
#include <QPrinterInfo>

namespace zel {

namespace {

QPageSize usualPaper() {
    const bool isLetter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize(isLetter ? QPageSize::Letter : QPageSize::A4);
}

bool isKnown(const QString& printer) { return !QPrinterInfo::printerInfo(printer).isNull(); }

} // namespace

QStringList SystemPrinters::names() const { return QPrinterInfo::availablePrinterNames(); }

QString SystemPrinters::defaultName() const { return QPrinterInfo::defaultPrinterName(); }

QPageSize SystemPrinters::paper(const QString& printer) const {
    const QPageSize own = QPrinterInfo::printerInfo(printer).defaultPageSize();
    const bool isOffered = own.id() == QPageSize::A4 || own.id() == QPageSize::Letter;
    return isOffered ? own : usualPaper();
}

PrintResult SystemPrinters::print(const QString& name, const PrintView& view, Section section) {
    if (view.getTotalPages(section) == 0) return PrintResult::noData;
    // A printer that is made for a name that is not known would be the default one.
    const QPrinterInfo info = QPrinterInfo::printerInfo(name);
    if (info.isNull()) return PrintResult::noPrinter;
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setDocName(facts(section).text()); // others see the queue: no name, no ID
    if (!paintReport(printer, view, {&section, 1})) return PrintResult::failed;
    // The job is handed over without an answer.
    return isKnown(name) ? PrintResult::printed : PrintResult::noPrinter;
}

} // namespace zel

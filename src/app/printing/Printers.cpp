#include "app/printing/Printers.h"

#include "app/printing/PrintQueue.h"
#include "report/ReportPdf.h"
#include "report/UsualPaper.h"

#include <QPrinterInfo>

namespace zel {

namespace {

bool isKnown(const QString& printer) { return !QPrinterInfo::printerInfo(printer).isNull(); }

} // namespace

QStringList SystemPrinters::names() const { return QPrinterInfo::availablePrinterNames(); }

QString SystemPrinters::defaultName() const { return QPrinterInfo::defaultPrinterName(); }

QPageSize SystemPrinters::paper(const QString& printer) const {
    const QPageSize own = QPrinterInfo::printerInfo(printer).defaultPageSize();
    const bool isOffered = own.id() == QPageSize::A4 || own.id() == QPageSize::Letter;
    return isOffered ? own : usualPaper(paperLocale());
}

PrintResult SystemPrinters::print(const QString& name, const PrintView& view, Section section) {
    if (view.getTotalPages(section) == 0) return PrintResult::noData;
    if (!isKnown(name)) return PrintResult::noPrinter;
    const auto pdf = makePdf(view, {&section, 1});
    // Others see the queue: no name, no ID.
    const bool isQueued =
        pdf && queueJob(name, {facts(section).text(), *pdf, view.paper(), getOrientation(section)});
    if (isQueued) return PrintResult::printed;
    return isKnown(name) ? PrintResult::failed : PrintResult::noPrinter;
}

} // namespace zel

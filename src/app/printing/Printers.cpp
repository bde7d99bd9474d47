#include "app/printing/Printers.h"

#include "app/printing/PrintQueue.h"
#include "report/ReportPdf.h"

#include <QLocale>
#include <QPrinterInfo>

#include <algorithm>
#include <array>

namespace zel {

namespace {

/// Of the desktop, as its other programs ask for it.
QString paperLocale() {
    for (const char* variable : {"LC_ALL", "LC_PAPER", "LANG"})
        if (!qEnvironmentVariableIsEmpty(variable)) return qEnvironmentVariable(variable);
    return {};
}

bool isKnown(const QString& printer) { return !QPrinterInfo::printerInfo(printer).isNull(); }

} // namespace

QPageSize usualPaper(const QString& locale) {
    using enum QLocale::Country;
    constexpr std::array onLetter{UnitedStates, Canada,    Mexico,   PuertoRico, Philippines,
                                  Bolivia,      Chile,     Colombia, CostaRica,  ElSalvador,
                                  Guatemala,    Nicaragua, Panama,   Venezuela};
    // A name without a country is about a language alone.
    const bool isLetter =
        locale.contains(u'_') && std::ranges::find(onLetter, QLocale(locale).territory()) != onLetter.end();
    return QPageSize(isLetter ? QPageSize::Letter : QPageSize::A4);
}

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

#pragma once

#include "app/printing/Printers.h"

namespace zel {

/// Printers that the test names, and what was printed on them, as "printer: section".
class ScriptedPrinters final : public Printers {
public:
    QStringList names() const override { return known; }
    QString defaultName() const override { return known.value(0); }
    QPageSize paper(const QString&) const override { return QPageSize(QPageSize::A4); }
    PrintResult print(const QString& printer, const PrintView& view, Section section) override {
        if (view.getTotalPages(section) == 0) return PrintResult::noData;
        if (!known.contains(printer)) return PrintResult::noPrinter;
        printed += printer + QStringLiteral(": ") + QLatin1StringView(facts(section).key);
        return PrintResult::printed;
    }

    QStringList known;
    QStringList printed;
};

} // namespace zel

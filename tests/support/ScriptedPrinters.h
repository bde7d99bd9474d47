#pragma once

#include "app/printing/Printers.h"

#include <functional>

namespace zel {

/// Printers that the test names, and what was printed on them, as "printer: section".
class ScriptedPrinters final : public Printers {
public:
    QStringList names() const override { return known; }
    QString defaultName() const override { return usual; }
    QPageSize paper(const QString& printer) const override {
        return QPageSize(printer == onLetter ? QPageSize::Letter : QPageSize::A4);
    }
    PrintResult print(const QString& printer, const PrintView& view, Section section) override {
        if (view.getTotalPages(section) == 0) return PrintResult::noData;
        if (!known.contains(printer)) return PrintResult::noPrinter;
        if (fails) return PrintResult::failed;
        whenPrinted(view);
        printed += printer + QStringLiteral(": ") + QLatin1StringView(facts(section).key);
        return PrintResult::printed;
    }

    QStringList known;
    QString usual; ///< the default one, where there is one
    QString onLetter;
    bool fails = false;
    QStringList printed;
    std::function<void(const PrintView&)> whenPrinted = [](const PrintView&) {};
};

} // namespace zel

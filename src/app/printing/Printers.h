#pragma once

#include "report/PrintView.h"

#include <QStringList>

namespace zel {

enum class PrintResult {
    printed,   ///< the print system has taken the job
    noData,    ///< the section has no page
    noPrinter, ///< the printer is not known, or no longer
    failed,    ///< the print system did not take the job, and there is none
};

/// What can be printed on. The window asks the system, tests script it.
class Printers {
public:
    virtual ~Printers() = default;
    [[nodiscard]] virtual QStringList names() const = 0;
    /// Empty if the system names none.
    [[nodiscard]] virtual QString defaultName() const = 0;
    /// A4 or Letter: what the printer prints on by default, or what is usual where the user lives.
    [[nodiscard]] virtual QPageSize paper(const QString& printer) const = 0;
    /// Prints all pages of the section, without a dialog.
    [[nodiscard]] virtual PrintResult print(const QString& printer, const PrintView& view,
                                            Section section) = 0;
};

/// The printers of the system.
class SystemPrinters final : public Printers {
public:
    [[nodiscard]] QStringList names() const override;
    [[nodiscard]] QString defaultName() const override;
    [[nodiscard]] QPageSize paper(const QString& printer) const override;
    [[nodiscard]] PrintResult print(const QString& printer, const PrintView& view, Section section) override;
};

} // namespace zel

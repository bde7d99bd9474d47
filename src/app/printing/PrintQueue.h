#pragma once

#include <QPageLayout>
#include <QString>

namespace zel {

/// A document that is whole before any printer hears of it.
struct PrintJob {
    QString title; ///< others see the queue
    QByteArray pdf;
    QPageSize paper; ///< A4 or Letter
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
};

/// Puts the job into the queue of a printer of the system, on top of what the printer's user has set for it.
/// \return false if the queue did not take it; there is no job then
[[nodiscard]] bool queueJob(const QString& printer, const PrintJob& job);

} // namespace zel

#pragma once

#include <QDialog>
#include <QStringList>

class QComboBox;

namespace zel {

/// The printer-choice dialog. Modal; made on first use and kept, and with it the choice.
class PrinterController final : public QDialog {
    Q_OBJECT
public:
    explicit PrinterController(QWidget* parent);

    /// Offers the printers, with \p current selected if it is among them.
    void showPrinters(const QStringList& names, const QString& current);
    /// The printer that was chosen last; empty before any was.
    [[nodiscard]] const QString& chosen() const { return printerName; }
    /// OK: keeps what is selected. Cancel keeps what was chosen before.
    void accept() override;

private:
    QComboBox* printerList;
    QString printerName;
};

} // namespace zel

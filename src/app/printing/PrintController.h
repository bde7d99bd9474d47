#pragma once

#include "app/printing/PrintSource.h"
#include "app/printing/Printers.h"
#include "app/widgets/FileChooser.h"
#include "store/MessagePanel.h"

#include <QDialog>

namespace zel {

class PrinterController;
class PrintForm;

/// What the print window was opened for.
enum class PrintPurpose { printer, pdf };

/// The sections that are offered to whoever prints from the main window's tab.
[[nodiscard]] std::vector<Section> printOptions(int tab);

/// The print window: a section, its pages one at a time, the printer or a file. Modal; made on first use and
/// kept.
class PrintController final : public QDialog {
    Q_OBJECT
public:
    struct Parts {
        const DataStore& store;
        const DisplayPeriod& period;
        const Clock& clock;
        MessagePanel& panel;
        FileChooser& chooser;
        Printers& printers;
    };
    PrintController(const Parts& needed, QWidget* parent);
    ~PrintController() override;

    /// Opens the window on the current patient. \p tab and \p views are the main window's.
    void showPrintPreview(int tab, const ScreenViews& views, PrintPurpose purpose);
    /// None where nothing is offered.
    [[nodiscard]] std::optional<Section> getPrintOption() const;
    void gotoNextPage();
    void gotoPreviousPage();
    /// The chosen printer, or the default one; empty if there is none.
    [[nodiscard]] QString getPrinter() const;
    /// Prints and closes the window; it stays open when printing failed.
    void printAndClose();
    /// Cancel, Esc and the window's close button.
    void cancelPrint() { QDialog::reject(); }
    void reject() override { cancelPrint(); }

signals:
    void said(const QString& text); ///< how it went

private:
    void build();
    void addShortcuts();
    void setPrintOption();
    void comboBoxSelectionDidChange();
    void showSelection();
    void showPreview();
    void addPhysicianInfo(bool need);
    void printerSelection();
    void readAnew();
    [[nodiscard]] bool print();
    void savePdf();

    Parts parts;
    ScreenViews views;
    std::optional<PrintView> view;
    PrintForm* form;
    PrinterController* printerController = nullptr; ///< made on first use and kept
    int iSelectedTab = 0;
    int iTotalPages = 0;
    int currentPage = 1;
};

} // namespace zel

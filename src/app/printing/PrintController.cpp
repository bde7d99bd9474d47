#include "app/printing/PrintController.h"

#include "app/printing/PdfName.h"
#include "app/printing/PrintForm.h"
#include "app/printing/PrinterController.h"
#include "app/widgets/Log.h"
#include "app/widgets/ScreenFit.h"
#include "report/ReportPdf.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// Printing goes on in the main thread.
class WaitCursor {
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

QString describe(PrintResult result, const QString& printer) {
    switch (result) {
    case PrintResult::printed: return qtTrId("printDone").arg(printer);
    case PrintResult::noData: return qtTrId("printNoData");
    case PrintResult::noPrinter: return qtTrId("printerGone").arg(printer);
    case PrintResult::failed: return qtTrId("printFailed").arg(printer);
    }
    return {};
}

/// What a section without a page lacks, and what to do about it.
void showMissing(PrintForm& form, const ReportSource& report, std::optional<Section> section) {
    if (section == Section::comment)
        form.showMissing(qtTrId("noCommentPage"), qtTrId("noCommentPageAdvice"));
    else if (report.readings.empty())
        form.showMissing(qtTrId("NoData"), qtTrId("NoDataAdvice"));
    else
        form.showMissing(qtTrId("noneInPeriod"), qtTrId("nonePrintedAdvice"));
}

} // namespace

std::vector<Section> printOptions(int tab) {
    using enum Section;
    switch (tab) {
    case 0: return {summary, PatientProfile};
    case 1: return {summary, graph, histogram, correlation, trend, comment, SWStatistics};
    case 2: return {summary, table, comment, SWStatistics};
    default: return {};
    }
}

PrintController::PrintController(const Parts& needed, QWidget* parent)
    : QDialog(parent), parts(needed), form(new PrintForm(this)) {
    setObjectName(u"PrintController"_s);
    build();
    addShortcuts();
    connect(form, &PrintForm::chosen, this, &PrintController::comboBoxSelectionDidChange);
    connect(form, &PrintForm::physicianInfoWanted, this, &PrintController::addPhysicianInfo);
    connect(form, &PrintForm::previousWanted, this, &PrintController::gotoPreviousPage);
    connect(form, &PrintForm::nextWanted, this, &PrintController::gotoNextPage);
    connect(form, &PrintForm::printerWanted, this, &PrintController::printerSelection);
    connect(form, &PrintForm::pdfWanted, this, &PrintController::savePdf);
    connect(form, &PrintForm::printWanted, this, &PrintController::printAndClose);
    connect(form, &PrintForm::cancelWanted, this, &PrintController::cancelPrint);
    connect(&parts.store, &DataStore::reloaded, this, &PrintController::readAnew);
    connect(&parts.store, &DataStore::currentIDChanged, this, &PrintController::readAnew);
    connect(&parts.period, &DisplayPeriod::changed, this, &PrintController::readAnew);
}

PrintController::~PrintController() = default;

void PrintController::build() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(form);
    form->fitPage(roomFor(*this));
    fitToScreen(*this, QSize(900, 680));
}

void PrintController::addShortcuts() {
    connect(new QShortcut(Qt::Key_PageUp, this), &QShortcut::activated, this,
            &PrintController::gotoPreviousPage);
    connect(new QShortcut(Qt::Key_PageDown, this), &QShortcut::activated, this,
            &PrintController::gotoNextPage);
}

void PrintController::showPrintPreview(int tab, const ScreenViews& shown, PrintPurpose purpose) {
    iSelectedTab = tab;
    views = shown;
    auto source = printSource(parts.store, parts.period, parts.clock, views);
    if (!source) return parts.panel.ShowMessage(qtTrId("printNoPatient"), qtTrId("Warning"));
    view.emplace(std::move(*source), parts.printers.paper(getPrinter()));
    view->setNeedPhysicianInfo(form->needsPhysicianInfo());
    const bool forPrinter = purpose == PrintPurpose::printer;
    setWindowTitle(forPrinter ? qtTrId("print") : qtTrId("savePdf"));
    setAccessibleName(windowTitle());
    form->showPrinter(getPrinter());
    setPrintOption();
    open();
    form->begin(forPrinter && !getPrinter().isEmpty());
}

void PrintController::setPrintOption() {
    QStringList texts;
    for (const Section section : printOptions(iSelectedTab))
        texts += facts(section).text();
    // What is in view is chosen, as long as the summary is not.
    form->offer(texts, 1 + (iSelectedTab == 1 ? views.drawViewState : 0));
    qCInfo(lcApp, "selected item after re-fill items ....%s", qUtf8Printable(form->selectedText()));
    showSelection();
}

std::optional<Section> PrintController::getPrintOption() const {
    const std::vector<Section> options = printOptions(iSelectedTab);
    if (options.empty()) return {};
    return options.at(static_cast<std::size_t>(std::max(0, form->selectedIndex())));
}

void PrintController::comboBoxSelectionDidChange() {
    showSelection();
    qCInfo(lcApp, "ComboBox Value Changed to --> %s", qUtf8Printable(form->selectedText()));
}

void PrintController::showSelection() {
    iTotalPages = view ? view->getTotalPages(getPrintOption()) : 0;
    currentPage = 1;
    form->showNote(getPrinter().isEmpty() ? qtTrId("noPrinterNote") : QString());
    showPreview();
}

void PrintController::showPreview() {
    if (view && iTotalPages == 0) return showMissing(*form, view->report(), getPrintOption());
    form->showPage(view ? &*view : nullptr, getPrintOption(), currentPage, iTotalPages);
}

void PrintController::gotoNextPage() {
    if (currentPage >= iTotalPages) return;
    ++currentPage;
    showPreview();
}

void PrintController::gotoPreviousPage() {
    if (currentPage <= 1) return;
    --currentPage;
    showPreview();
}

void PrintController::addPhysicianInfo(bool need) {
    if (!view) return;
    view->setNeedPhysicianInfo(need);
    showPreview();
}

void PrintController::printerSelection() {
    const QStringList names = parts.printers.names();
    if (names.isEmpty()) return parts.panel.ShowMessage(qtTrId("NoPrnterMsg"), qtTrId("NoPrnter"));
    if (!printerController) {
        printerController = new PrinterController(this);
        connect(printerController, &PrinterController::accepted, this, [this] {
            form->showPrinter(getPrinter());
            readAnew(); // it may print on other paper
        });
    }
    printerController->showPrinters(names, getPrinter());
}

QString PrintController::getPrinter() const {
    if (printerController && !printerController->chosen().isEmpty()) return printerController->chosen();
    const QString usual = parts.printers.defaultName();
    return usual.isEmpty() ? parts.printers.names().value(0) : usual;
}

/// The records that the view refers to are gone after a load, and so is the view, whether it is shown or not.
void PrintController::readAnew() {
    view.reset();
    form->forgetPage();
    if (!isVisible()) return;
    auto source = printSource(parts.store, parts.period, parts.clock, views);
    if (!source) return cancelPrint();
    view.emplace(std::move(*source), parts.printers.paper(getPrinter()));
    view->setNeedPhysicianInfo(form->needsPhysicianInfo());
    showSelection();
}

bool PrintController::print() {
    const std::optional<Section> section = getPrintOption();
    qCInfo(lcApp, "print ....%s", qUtf8Printable(form->selectedText()));
    const QString printer = getPrinter();
    const auto run = [&] {
        const WaitCursor wait;
        return view && section ? parts.printers.print(printer, *view, *section) : PrintResult::noData;
    };
    const PrintResult result = run();
    if (result == PrintResult::printed)
        emit said(describe(result, printer));
    else
        parts.panel.ShowMessage(describe(result, printer), qtTrId("Warning"));
    return result == PrintResult::printed;
}

void PrintController::printAndClose() {
    if (print()) accept();
}

void PrintController::savePdf() {
    const std::optional<Section> section = getPrintOption();
    const PatientModel* patient = parts.store.getPatientByID(parts.store.getCurrentID());
    if (!section || !patient) return;
    const auto today = std::chrono::floor<std::chrono::milliseconds>(parts.clock.now());
    const QString name = pdfName(parts.store, *patient, *section, today);
    const QString path = parts.chooser.choosePdf(this, qtTrId("savePdf"), name);
    if (path.isEmpty() || !view) return;
    const auto write = [&]() -> tl::expected<void, QString> {
        if (QFileInfo(path) == QFileInfo(parts.store.getZELXMLPath()))
            return tl::unexpected(describeExport({StoreErrorCode::isDataFile, path, {}}));
        const WaitCursor wait;
        return writePdf(*view, {&*section, 1}, path).map_error([](const ReportError& error) {
            return describe(error);
        });
    };
    const auto written = write();
    if (!written) return parts.panel.ShowMessage(written.error(), qtTrId("Warning"));
    const QString done = qtTrId("savedPdf").arg(QDir::toNativeSeparators(path));
    form->showSaved(done);
    emit said(done);
}

} // namespace zel

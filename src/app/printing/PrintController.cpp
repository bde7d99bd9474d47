#include "app/printing/PrintController.h"

#include "app/printing/PrintPreview.h"
#include "app/printing/PrinterController.h"
#include "app/widgets/Log.h"
#include "report/ReportPdf.h"
#include "store/ExportFile.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QToolButton>

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

QLabel* plainLabel(const QString& name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

void say(QLabel& label, const QString& text) {
    label.setText(text);
    label.setToolTip(text);
    label.setAccessibleName(text);
}

} // namespace

std::vector<Section> printOptions(int tab) {
    using enum Section;
    switch (tab) {
    case 0: return {PatientProfile};
    case 1: return {graph, histogram, correlation, comment, SWStatistics};
    case 2: return {table, comment, SWStatistics};
    default: return {};
    }
}

PrintController::PrintController(const Parts& needed, QWidget* parent)
    : QDialog(parent), parts(needed), printOption(new QComboBox(this)),
      printAddAddress(new QCheckBox(qtTrId("printDetails"), this)), pageText(plainLabel(u"pageText"_s, this)),
      previewView(new PrintPreview(this)), lblNote(plainLabel(u"lblNote"_s, this)),
      lblPrinter(plainLabel(u"lblPrinter"_s, this)),
      previousButton(
          addPager(u"gotoPreviousPage"_s, qtTrId("previousPage"), qtTrId("previousHint"), Qt::LeftArrow)),
      nextButton(addPager(u"gotoNextPage"_s, qtTrId("nextPage"), qtTrId("nextHint"), Qt::RightArrow)),
      printerButton(addButton(u"printerSelection"_s, qtTrId("printerButton"), qtTrId("choosePrinter"))),
      savePdfButton(addButton(u"savePdf"_s, qtTrId("savePdfButton"), qtTrId("savePdf"))),
      printButton(addButton(u"printAndClose"_s, qtTrId("printButton"), qtTrId("print"))) {
    setObjectName(u"PrintController"_s);
    build();
    addShortcuts();
    connect(printOption, &QComboBox::currentIndexChanged, this, &PrintController::comboBoxSelectionDidChange);
    connect(printAddAddress, &QCheckBox::toggled, this, &PrintController::addPhysicianInfo);
    connect(previousButton, &QToolButton::clicked, this, &PrintController::gotoPreviousPage);
    connect(nextButton, &QToolButton::clicked, this, &PrintController::gotoNextPage);
    connect(printerButton, &QPushButton::clicked, this, &PrintController::printerSelection);
    connect(savePdfButton, &QPushButton::clicked, this, &PrintController::savePdf);
    connect(printButton, &QPushButton::clicked, this, &PrintController::printAndClose);
    connect(&parts.store, &DataStore::reloaded, this, &PrintController::readAnew);
    connect(&parts.store, &DataStore::currentIDChanged, this, &PrintController::readAnew);
    connect(&parts.period, &DisplayPeriod::changed, this, &PrintController::readAnew);
}

PrintController::~PrintController() = default;

QToolButton* PrintController::addPager(const QString& name, const QString& text, const QString& hint,
                                       Qt::ArrowType arrow) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setAccessibleName(text);
    button->setToolTip(hint);
    button->setArrowType(arrow);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

QPushButton* PrintController::addButton(const QString& name, const QString& text, const QString& title) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setAccessibleName(title);
    button->setAutoDefault(false);
    return button;
}

void PrintController::build() {
    previewView->setObjectName(u"previewView"_s);
    previewView->setAccessibleName(qtTrId("previewView"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeOptionRow());
    column->addWidget(previewView, 1);
    column->addWidget(makeButtonRow());
    // The page keeps its size where the screen has room for it and for the title bar.
    const QSize least = previewView->sizeHint();
    const QSize room = screen()->availableSize() - QSize(0, 32);
    previewView->setMinimumSize(least.boundedTo(room - (sizeHint() - least)));
    resize(QSize(900, 680).boundedTo(room));
}

QWidget* PrintController::makeOptionRow() {
    auto* label = new QLabel(qtTrId("printOptionLabel"), this);
    label->setBuddy(printOption);
    printOption->setObjectName(u"printOption"_s);
    printOption->setAccessibleName(qtTrId("printOption"));
    printOption->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    printAddAddress->setObjectName(u"printAddAddress"_s);
    printAddAddress->setAccessibleName(qtTrId("printAddAddress"));
    printAddAddress->setToolTip(qtTrId("printDetailsHint"));
    pageText->setAlignment(Qt::AlignCenter);
    pageText->setMinimumWidth(fontMetrics().averageCharWidth() * 9);
    auto* bar = new QWidget(this);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(12, 8, 12, 8);
    row->setSpacing(8);
    row->addWidget(label);
    row->addWidget(printOption);
    row->addWidget(printAddAddress);
    row->addStretch(1);
    row->addWidget(previousButton);
    row->addWidget(pageText);
    row->addWidget(nextButton);
    return bar;
}

QWidget* PrintController::makeButtonRow() {
    auto* bar = new QWidget(this);
    lblNote->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblPrinter->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QPushButton* cancel = addButton(u"cancelPrint"_s, qtTrId("cancel"), qtTrId("cancelPrint"));
    connect(cancel, &QPushButton::clicked, this, &PrintController::cancelPrint);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(lblPrinter, 1);
    row->addWidget(printerButton);
    row->addSpacing(8);
    row->addWidget(savePdfButton);
    row->addWidget(printButton);
    row->addWidget(cancel);
    auto* column = new QVBoxLayout(bar);
    column->setContentsMargins(12, 4, 12, 8);
    column->setSpacing(4);
    column->addWidget(lblNote);
    column->addLayout(row);
    return bar;
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
    view->setNeedPhysicianInfo(printAddAddress->isChecked());
    const bool forPrinter = purpose == PrintPurpose::printer;
    setWindowTitle(forPrinter ? qtTrId("print") : qtTrId("savePdf"));
    setAccessibleName(windowTitle());
    (forPrinter ? printButton : savePdfButton)->setDefault(true);
    showPrinter();
    setPrintOption();
    open();
    printOption->setFocus();
}

void PrintController::setPrintOption() {
    const std::vector<Section> options = printOptions(iSelectedTab);
    const QSignalBlocker filling(printOption);
    printOption->clear();
    for (const Section section : options)
        printOption->addItem(facts(section).text());
    const int first = iSelectedTab == 1 ? views.drawViewState : 0;
    printOption->setCurrentIndex(first < printOption->count() ? first : 0);
    qCInfo(lcApp, "selected item after re-fill items ....%s", qUtf8Printable(printOption->currentText()));
    showSelection();
}

std::optional<Section> PrintController::getPrintOption() const {
    const std::vector<Section> options = printOptions(iSelectedTab);
    if (options.empty()) return {};
    return options.at(static_cast<std::size_t>(std::max(0, printOption->currentIndex())));
}

void PrintController::comboBoxSelectionDidChange() {
    if (printOption->count() == 0) return;
    showSelection();
    qCInfo(lcApp, "ComboBox Value Changed to --> %s", qUtf8Printable(printOption->currentText()));
}

void PrintController::showSelection() {
    iTotalPages = view ? view->getTotalPages(getPrintOption()) : 0;
    currentPage = 1;
    say(*lblNote, iTotalPages > 0 ? QString() : qtTrId("previewNoPage"));
    showPreview();
}

void PrintController::showPreview() {
    pageText->setText(qtTrId("pageText").arg(currentPage).arg(iTotalPages));
    pageText->setAccessibleName(qtTrId("reportPage").arg(currentPage).arg(iTotalPages));
    previewView->setAccessibleDescription(printOption->currentText() + ", "_L1 + pageText->accessibleName());
    previousButton->setEnabled(currentPage > 1);
    nextButton->setEnabled(currentPage < iTotalPages);
    previewView->gotoPreviewPage(view ? &*view : nullptr, getPrintOption(), currentPage);
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
            showPrinter();
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

void PrintController::showPrinter() {
    const QString printer = getPrinter();
    say(*lblPrinter, printer.isEmpty() ? qtTrId("NoPrnter") : qtTrId("printerShown").arg(printer));
    printerButton->setEnabled(!printer.isEmpty());
    printButton->setEnabled(!printer.isEmpty());
}

/// The records that the view refers to are gone after a load, and so is the view, whether it is shown or not.
void PrintController::readAnew() {
    view.reset();
    previewView->gotoPreviewPage(nullptr, {}, 1);
    if (!isVisible()) return;
    auto source = printSource(parts.store, parts.period, parts.clock, views);
    if (!source) return cancelPrint();
    view.emplace(std::move(*source), parts.printers.paper(getPrinter()));
    view->setNeedPhysicianInfo(printAddAddress->isChecked());
    showSelection();
}

bool PrintController::print() {
    const std::optional<Section> section = getPrintOption();
    qCInfo(lcApp, "print ....%s", qUtf8Printable(printOption->currentText()));
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
    if (!section || iTotalPages == 0)
        return parts.panel.ShowMessage(describe(ReportError{ReportErrorCode::noData, {}, {}}),
                                       qtTrId("Warning"));
    const QString name =
        exportFileName(parts.store.getCurrentID(), u'-' + QLatin1StringView(facts(*section).key) + ".pdf"_L1);
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
    say(*lblNote, qtTrId("savedPdf").arg(QDir::toNativeSeparators(path)));
    emit said(lblNote->text());
}

} // namespace zel

#include "app/printing/PrintForm.h"

#include "app/printing/PrintPreview.h"
#include "app/widgets/CalmComboBox.h"
#include "app/widgets/EmptyState.h"
#include "app/widgets/SeenName.h"
#include "app/widgets/Spoken.h"
#include "app/widgets/Style.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QToolButton>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

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

PrintForm::PrintForm(QWidget* parent)
    : QWidget(parent), printOption(new CalmComboBox(this)),
      printAddAddress(new QCheckBox(qtTrId("printDetails"), this)), pageText(plainLabel(u"pageText"_s, this)),
      previewView(new PrintPreview(this)),
      noPage(new EmptyState(u"noPage"_s, u":/icons/tableBtn.InactiveImg.svg"_s, this)),
      pageOrMissing(new QStackedWidget(this)), lblNote(plainLabel(u"lblNote"_s, this)),
      lblPrinter(plainLabel(u"lblPrinter"_s, this)),
      previousButton(
          addPager(u"gotoPreviousPage"_s, qtTrId("previousPage"), qtTrId("previousHint"), Qt::LeftArrow)),
      nextButton(addPager(u"gotoNextPage"_s, qtTrId("nextPage"), qtTrId("nextHint"), Qt::RightArrow)),
      printerButton(addButton(u"printerSelection"_s, qtTrId("printerButton"), qtTrId("choosePrinter"))),
      savePdfButton(addButton(u"savePdf"_s, qtTrId("savePdfButton"), qtTrId("savePdf"))),
      printButton(addButton(u"printAndClose"_s, qtTrId("printButton"), qtTrId("print"))),
      cancelButton(addButton(u"cancelPrint"_s, qtTrId("cancel"), qtTrId("cancelPrint"))) {
    build();
    wire();
}

QToolButton* PrintForm::addPager(const QString& name, const QString& text, const QString& hint,
                                 Qt::ArrowType arrow) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setAccessibleName(text);
    button->setToolTip(hint);
    button->setArrowType(arrow);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

QPushButton* PrintForm::addButton(const QString& name, const QString& text, const QString& title) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(name);
    nameAsSeen(*button, text, title);
    button->setAutoDefault(false);
    return button;
}

void PrintForm::build() {
    previewView->setObjectName(u"previewView"_s);
    previewView->setAccessibleName(qtTrId("previewView"));
    speakAs(*previewView, QAccessible::Graphic);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Style::none);
    noPage->setTexts(qtTrId("NoData"), qtTrId("NoDataAdvice"));
    pageOrMissing->addWidget(previewView);
    pageOrMissing->addWidget(noPage);
    column->addWidget(makeOptionRow());
    column->addWidget(pageOrMissing, 1);
    column->addWidget(makeButtonRow());
}

void PrintForm::wire() {
    connect(printOption, &QComboBox::currentIndexChanged, this, &PrintForm::chosen);
    connect(printAddAddress, &QCheckBox::toggled, this, &PrintForm::physicianInfoWanted);
    connect(previousButton, &QToolButton::clicked, this, &PrintForm::previousWanted);
    connect(nextButton, &QToolButton::clicked, this, &PrintForm::nextWanted);
    connect(printerButton, &QPushButton::clicked, this, &PrintForm::printerWanted);
    connect(savePdfButton, &QPushButton::clicked, this, &PrintForm::pdfWanted);
    connect(printButton, &QPushButton::clicked, this, &PrintForm::printWanted);
    connect(cancelButton, &QPushButton::clicked, this, &PrintForm::cancelWanted);
}

QWidget* PrintForm::makeOptionRow() {
    auto* label = new QLabel(qtTrId("printOptionLabel"), this);
    label->setBuddy(printOption);
    printOption->setObjectName(u"printOption"_s);
    nameAsSeen(*printOption, label->text(), qtTrId("printOption"));
    printOption->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    printAddAddress->setObjectName(u"printAddAddress"_s);
    printAddAddress->setToolTip(qtTrId("printDetailsHint"));
    nameAsSeen(*printAddAddress, printAddAddress->text(), qtTrId("printAddAddress"));
    pageText->setAlignment(Qt::AlignCenter);
    pageText->setMinimumWidth(fontMetrics().averageCharWidth() * 9);
    auto* bar = new QWidget(this);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(Style::apart, Style::near, Style::apart, Style::near);
    row->setSpacing(Style::near);
    row->addWidget(label);
    row->addWidget(printOption);
    row->addWidget(printAddAddress);
    row->addStretch(1);
    row->addWidget(previousButton);
    row->addWidget(pageText);
    row->addWidget(nextButton);
    return bar;
}

QWidget* PrintForm::makeButtonRow() {
    auto* bar = new QWidget(this);
    lblNote->setWordWrap(true);
    lblPrinter->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* row = new QHBoxLayout;
    row->setSpacing(Style::near);
    row->addWidget(lblPrinter, 1);
    row->addWidget(printerButton);
    row->addSpacing(Style::near);
    row->addWidget(savePdfButton);
    row->addWidget(printButton);
    row->addWidget(cancelButton);
    auto* column = new QVBoxLayout(bar);
    column->setContentsMargins(Style::apart, Style::tight, Style::apart, Style::near);
    column->setSpacing(Style::tight);
    column->addWidget(lblNote);
    column->addLayout(row);
    return bar;
}

void PrintForm::fitPage(const QSize& room) {
    const QSize least = previewView->sizeHint();
    previewView->setMinimumSize(least.boundedTo(room - (sizeHint() - least)));
}

void PrintForm::begin(bool printing) {
    (printing ? printButton : savePdfButton)->setDefault(true);
    cancelButton->setText(qtTrId("cancel"));
    nameAsSeen(*cancelButton, cancelButton->text(), qtTrId("cancelPrint"));
    printOption->setFocus();
}

void PrintForm::offer(const QStringList& sections, int first) {
    const QSignalBlocker filling(printOption);
    printOption->clear();
    printOption->addItems(sections);
    printOption->setCurrentIndex(first < printOption->count() ? first : 0);
}

int PrintForm::selectedIndex() const { return printOption->currentIndex(); }

QString PrintForm::selectedText() const { return printOption->currentText(); }

bool PrintForm::needsPhysicianInfo() const { return printAddAddress->isChecked(); }

void PrintForm::showPage(const PrintView* view, std::optional<Section> section, int page, int total) {
    count(qtTrId("pageText").arg(page).arg(total));
    pageText->setAccessibleName(qtTrId("reportPage").arg(page).arg(total));
    previewView->setAccessibleDescription(selectedText() + qtTrId(", ") + pageText->accessibleName());
    previousButton->setEnabled(page > 1);
    nextButton->setEnabled(page < total);
    previewView->gotoPreviewPage(view, section, page);
    pageOrMissing->setCurrentWidget(previewView);
    hasPage = true;
    enableButtons();
}

void PrintForm::showMissing(const QString& what, const QString& advice) {
    count(qtTrId("noPage"));
    previousButton->setEnabled(false);
    nextButton->setEnabled(false);
    forgetPage();
    noPage->setTexts(what, advice);
    pageOrMissing->setCurrentWidget(noPage);
    hasPage = false;
    enableButtons();
}

void PrintForm::count(const QString& pages) {
    pageText->setText(pages);
    pageText->setAccessibleName(pages);
}

void PrintForm::enableButtons() {
    savePdfButton->setEnabled(hasPage);
    printButton->setEnabled(hasPage && hasPrinter);
}

void PrintForm::forgetPage() { previewView->gotoPreviewPage(nullptr, {}, 1); }

void PrintForm::showNote(const QString& text) { say(*lblNote, text); }

void PrintForm::showSaved(const QString& text) {
    showNote(text);
    cancelButton->setText(qtTrId("closeWindow"));
    nameAsSeen(*cancelButton, cancelButton->text());
}

void PrintForm::showPrinter(const QString& name) {
    hasPrinter = !name.isEmpty();
    say(*lblPrinter, hasPrinter ? qtTrId("printerShown").arg(name) : qtTrId("NoPrnter"));
    enableButtons();
}

} // namespace zel

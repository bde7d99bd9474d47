#include "app/printing/PrinterController.h"

#include "app/widgets/CalmComboBox.h"
#include "app/widgets/Style.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

PrinterController::PrinterController(QWidget* parent) : QDialog(parent), printerList(new CalmComboBox(this)) {
    setObjectName(u"printerController"_s);
    setWindowTitle(qtTrId("choosePrinter"));
    setAccessibleName(windowTitle());
    printerList->setObjectName(u"printerList"_s);
    printerList->setAccessibleName(qtTrId("printer"));
    printerList->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
    auto* form = new QFormLayout;
    form->addRow(qtTrId("printerLabel"), printerList);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    for (const auto& [name, text, accepts] : {std::tuple("printerOK"_L1, qtTrId("ok"), true),
                                              std::tuple("printerCancel"_L1, qtTrId("cancel"), false)}) {
        auto* button = new QPushButton(text, this);
        button->setObjectName(name);
        button->setAccessibleName(text);
        button->setDefault(accepts);
        connect(button, &QPushButton::clicked, this, accepts ? &QDialog::accept : &QDialog::reject);
        row->addWidget(button);
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Style::edge, Style::edge, Style::edge, Style::edge);
    column->setSpacing(Style::apart);
    column->addLayout(form);
    column->addLayout(row);
}

void PrinterController::showPrinters(const QStringList& names, const QString& current) {
    printerList->clear();
    printerList->addItems(names);
    printerList->setCurrentIndex(std::max(0, static_cast<int>(names.indexOf(current))));
    open();
    printerList->setFocus();
}

void PrinterController::accept() {
    printerName = printerList->currentText();
    QDialog::accept();
}

} // namespace zel

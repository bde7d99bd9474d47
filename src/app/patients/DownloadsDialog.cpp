#include "app/patients/DownloadsDialog.h"

#include "app/widgets/Mnemonic.h"
#include "app/widgets/PatientTexts.h"
#include "app/widgets/ScreenFit.h"
#include "app/widgets/Style.h"
#include "app/widgets/TableLook.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTableWidget>
#include <QVBoxLayout>

#include <numeric>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

enum DownloadColumn { downloadDay, downloadTime, downloadCount, downloadColumns };

QTableWidgetItem* cell(const QString& text, Qt::Alignment side) {
    auto* item = new QTableWidgetItem(text);
    item->setTextAlignment(side | Qt::AlignVCenter);
    return item;
}

} // namespace

DownloadsDialog::DownloadsDialog(const DataStore& dataStore, QWidget* parent)
    : QDialog(parent), store(dataStore), lblDownloads(new QLabel(this)),
      tblDownloads(new QTableWidget(0, downloadColumns, this)) {
    setObjectName(u"DownloadsDialog"_s);
    setWindowTitle(qtTrId("downloadsTitle"));
    setAccessibleName(qtTrId("downloadsTitle"));
    setModal(true);
    build();
    fill();
}

void DownloadsDialog::build() {
    lblDownloads->setObjectName(u"lblDownloads"_s);
    lblDownloads->setTextFormat(Qt::PlainText);
    lblDownloads->setWordWrap(true);
    tblDownloads->setObjectName(u"tblDownloads"_s);
    tblDownloads->setAccessibleName(qtTrId("downloadsTitle"));
    tblDownloads->setHorizontalHeaderLabels(
        {qtTrId("backupDay"), qtTrId("columnTime"), qtTrId("downloadsNew")});
    tblDownloads->setEditTriggers(QAbstractItemView::NoEditTriggers);
    dressTable(*tblDownloads);
    tblDownloads->setSelectionMode(QAbstractItemView::SingleSelection);
    tblDownloads->horizontalHeaderItem(downloadCount)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    tblDownloads->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    auto* close = new QPushButton(qtTrId("backupClose"), this);
    close->setObjectName(u"btnCloseDownloads"_s);
    close->setAccessibleName(withoutMnemonic(close->text()));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto* body = new QWidget(this);
    auto* inside = new QVBoxLayout(body);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->setSpacing(Style::apart);
    inside->addWidget(lblDownloads);
    inside->addWidget(tblDownloads, 1);
    takeWhatIsLeft(*tblDownloads);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Style::edge, Style::edge, Style::edge, Style::edge);
    column->setSpacing(Style::apart);
    column->addWidget(scrolling(u"downloadsScroll"_s, body, this), 1);
    column->addWidget(close, 0, Qt::AlignRight);
    fitToScreen(*this, QSize(fontMetrics().averageCharWidth() * 72, fontMetrics().height() * 22));
}

void DownloadsDialog::fill() {
    const DataLogList downloads = downloadsLatestFirst(store);
    const SettingModel& settings = store.getSetting();
    const LocalZone zone;
    tblDownloads->setRowCount(static_cast<int>(downloads.size()));
    int row = 0;
    for (const DataTransferLogModel& download : downloads) {
        const Date& when = download.transferDate;
        const QString time = isNilDate(when) ? QString() : settings.timeText(zone.dayMinute(when).minute);
        tblDownloads->setItem(row, downloadDay, cell(downloadDayText(download, settings), Qt::AlignLeft));
        tblDownloads->setItem(row, downloadTime, cell(time, Qt::AlignLeft));
        tblDownloads->setItem(row++, downloadCount,
                              cell(QString::number(download.numofRecord), Qt::AlignRight));
    }
    if (row > 0) tblDownloads->setCurrentCell(0, downloadDay);
    lblDownloads->setText(summary());
}

QString DownloadsDialog::summary() const {
    const DataLogList& downloads = store.getTrasferLogForCurID();
    const QString whose = narrowPatientHeading(store);
    if (downloads.empty()) return qtTrId("downloadsNone").arg(whose);
    const auto add = [](qint64 sum, const DataTransferLogModel& one) { return sum + one.numofRecord; };
    const qint64 total = std::accumulate(downloads.begin(), downloads.end(), qint64{0}, add);
    return qtTrId("downloadsSummary", static_cast<int>(downloads.size())).arg(whose, QString::number(total));
}

} // namespace zel

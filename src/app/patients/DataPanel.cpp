#include "app/patients/DataPanel.h"

#include "app/widgets/PatientTexts.h"

#include <QDir>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// "62, 1 of them left out".
QString readingsText(const ReadingList& readings) {
    const auto excluded = std::ranges::count_if(readings, &ReadingModel::isExcluded);
    const QString total = QString::number(readings.size());
    return excluded == 0 ? total : total + qtTrId("listedExcluded", static_cast<int>(excluded));
}

} // namespace

DataPanel::DataPanel(const DataStore& dataStore, QWidget* parent)
    : SidePanel(u"dataPanel"_s, qtTrId("dataPanel"), parent), store(dataStore),
      lblPatients(addValue(u"lblPatients"_s, qtTrId("patientTotal"))),
      lblReadings(addValue(u"lblReadings"_s, qtTrId("readingTotal"))),
      lblLastDownload(addValue(u"lblLastDownload"_s, qtTrId("lastDownload"))),
      lblDataFile(addValue(u"lblDataFile"_s, qtTrId("dataFile"))) {
    lblDataFile->setWordWrap(false);
    lblDataFile->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    connect(&store, &DataStore::reloaded, this, &DataPanel::showState);
    connect(&store, &DataStore::currentIDChanged, this, &DataPanel::showState);
    showState();
}

void DataPanel::showState() {
    const DataLogList downloads = downloadsLatestFirst(store);
    lblPatients->setText(QString::number(store.getPatientArray().size()));
    lblReadings->setText(readingsText(store.getReadingForCurID()));
    lblLastDownload->setText(downloads.empty() ? qtTrId("lastDownloadNone")
                                               : downloadDayText(downloads.front(), store.getSetting()));
    showPath();
}

/// The path's middle gives way, so that the file's name stays to be seen.
void DataPanel::showPath() {
    const QString path = QDir::toNativeSeparators(store.getZELXMLPath());
    lblDataFile->setToolTip(path);
    lblDataFile->setAccessibleDescription(path);
    lblDataFile->setText(lblDataFile->fontMetrics().elidedText(path, Qt::ElideMiddle, lblDataFile->width()));
}

void DataPanel::resizeEvent(QResizeEvent* event) {
    SidePanel::resizeEvent(event);
    showPath();
}

} // namespace zel

// edit_loop HOME [SAVES]: saves the one patient of the data file below HOME again and again, each time with
// the next number as notes, and says each number on standard output when its save is reported as done. It is
// there to be killed. With SAVES it ends after so many, and says first what the file held: number and
// readings.
#include "store/DataStore.h"

#include <QCoreApplication>

#include <limits>
#include <string>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

bool say(const std::string& line) { return write(STDOUT_FILENO, line.data(), line.size()) >= 0; }

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QString home = QCoreApplication::arguments().value(1);
    zel::SystemClock clock;
    zel::DataStore store({home, home, home}, clock);
    if (const auto loaded = store.load(); !loaded) return say("not loaded\n"), 1;
    zel::PatientModel patient = store.getPatientArray().at(0);
    store.setCurrentID(patient.ID);
    int number = patient.PatientNotes.toInt();
    int saves = std::numeric_limits<int>::max();
    if (argc > 2) {
        saves = QCoreApplication::arguments().at(2).toInt();
        const auto readings = std::to_string(store.getReadingForCurID().size());
        if (!say("holds " + std::to_string(number) + ' ' + readings + '\n')) return 1;
    }
    for (; saves > 0; --saves) {
        patient.PatientNotes = QString::number(++number);
        if (!store.saveXMLPatient(patient)) return say("not saved\n"), 1;
        if (!say(std::to_string(number) + '\n')) return 1;
    }
    return 0;
}

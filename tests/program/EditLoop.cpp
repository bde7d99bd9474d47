// edit_loop HOME [SAVES|NAME]: saves the one patient of the data file below HOME again and again, each time
// with the next number as notes, and says each number on standard output when its save is reported as done.
// With SAVES it ends after so many, and says first what the file held: number and readings. With a NAME it
// adds patients NAME1, NAME2 ... instead, and goes on after one that was refused. It is there to be killed.
#include "store/DataStore.h"

#include <QCoreApplication>

#include <cstdio>
#include <limits>
#include <string>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

bool say(const std::string& line) { return write(STDOUT_FILENO, line.data(), line.size()) >= 0; }

int fail(const std::string& why) {
    say(why + '\n');
    return 1;
}

int addPatients(zel::DataStore& store, const QString& name) {
    zel::PatientModel patient;
    patient.FamilyName = patient.GivenNames = u"N"_s;
    for (int number = 1;; ++number) {
        patient.ID = name + QString::number(number);
        const zel::StoreResult added = store.addXMLPatient(patient);
        if (!added) std::fprintf(stderr, "refused: %s\n", qPrintable(describe(added.error())));
        if (added && !say(patient.ID.toStdString() + '\n')) return 1;
    }
}

bool sayWhatIsHeld(zel::DataStore& store, const zel::PatientModel& patient) {
    store.setCurrentID(patient.ID);
    return say("holds " + std::to_string(patient.PatientNotes.toInt()) + ' '
               + std::to_string(store.getReadingForCurID().size()) + '\n');
}

int savePatient(zel::DataStore& store, zel::PatientModel patient, int saves) {
    for (int number = patient.PatientNotes.toInt(); saves > 0; --saves) {
        patient.PatientNotes = QString::number(++number);
        if (!store.saveXMLPatient(patient)) return fail("not saved");
        if (!say(std::to_string(number) + '\n')) return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QString home = QCoreApplication::arguments().value(1);
    zel::SystemClock clock;
    zel::DataStore store({home, home, home}, clock);
    if (!store.load()) return fail("not loaded");
    const QString what = QCoreApplication::arguments().value(2);
    bool isNumber = false;
    const int saves = what.toInt(&isNumber);
    if (!what.isEmpty() && !isNumber) return addPatients(store, what);
    const zel::PatientModel patient = store.getPatientArray().at(0);
    if (isNumber && !sayWhatIsHeld(store, patient)) return 1;
    return savePatient(store, patient, isNumber ? saves : std::numeric_limits<int>::max());
}

// edit_loop HOME [NAME]: saves the one patient of the data file below HOME again and again, each time with
// the next number as notes, and says each number on standard output when its save is reported as done. With a
// NAME it adds patients NAME1, NAME2 ... instead, and goes on after one that was refused. It is there to be
// killed.
#include "store/DataStore.h"

#include <QCoreApplication>

#include <cstdio>
#include <string>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

bool say(const std::string& done) { return write(STDOUT_FILENO, done.data(), done.size()) >= 0; }

void addPatients(zel::DataStore& store, const QString& name) {
    zel::PatientModel patient;
    patient.FamilyName = patient.GivenNames = u"N"_s;
    for (int number = 1;; ++number) {
        patient.ID = name + QString::number(number);
        const zel::StoreResult added = store.addXMLPatient(patient);
        if (!added) std::fprintf(stderr, "refused: %s\n", qPrintable(describe(added.error())));
        if (added && !say(patient.ID.toStdString() + '\n')) return;
    }
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QString home = QCoreApplication::arguments().value(1);
    zel::SystemClock clock;
    zel::DataStore store({home, home, home}, clock);
    if (!store.load()) return 1;
    if (const QString name = QCoreApplication::arguments().value(2); !name.isEmpty()) {
        addPatients(store, name);
        return 1;
    }
    zel::PatientModel patient = store.getPatientArray().at(0);
    for (int number = patient.PatientNotes.toInt() + 1;; ++number) {
        patient.PatientNotes = QString::number(number);
        if (!store.saveXMLPatient(patient)) return 1;
        if (!say(std::to_string(number) + '\n')) return 1;
    }
}

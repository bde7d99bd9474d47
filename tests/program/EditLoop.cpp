// edit_loop HOME: saves the one patient of the data file below HOME again and again, each time with the next
// number as notes, and says each number on standard output when its save is reported as done. It is there to
// be killed.
#include "store/DataStore.h"

#include <QCoreApplication>

#include <string>
#include <unistd.h>

using namespace Qt::StringLiterals;

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QString home = QCoreApplication::arguments().value(1);
    zel::SystemClock clock;
    zel::DataStore store({home, home, home}, clock);
    if (!store.load()) return 1;
    zel::PatientModel patient = store.getPatientArray().at(0);
    for (int number = patient.PatientNotes.toInt() + 1;; ++number) {
        patient.PatientNotes = QString::number(number);
        if (!store.saveXMLPatient(patient)) return 1;
        const std::string done = std::to_string(number) + '\n';
        if (write(STDOUT_FILENO, done.data(), done.size()) < 0) return 1;
    }
}

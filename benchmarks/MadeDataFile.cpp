#include "MadeDataFile.h"

#include "store/CommentModel.h"
#include "store/PatientModel.h"
#include "store/ReadingModel.h"
#include "store/SettingModel.h"

#include <pugixml.hpp>

#include <sstream>

namespace zel {

namespace {

void addPatient(pugi::xml_node root, int number) {
    PatientModel patient;
    patient.ID = QStringLiteral("P%1").arg(number, 5, 10, QLatin1Char{'0'});
    patient.FamilyName = QStringLiteral("Family %1").arg(number);
    patient.GivenNames = QStringLiteral("Given");
    patient.updateXMLNode(PatientModel::makeXmlNode(root), true);
}

/// \p place: among the patient's
void addReading(pugi::xml_node root, int number, int patient, int place) {
    using namespace std::chrono_literals;
    ReadingModel reading;
    reading.ID = QStringLiteral("P%1").arg(patient, 5, 10, QLatin1Char{'0'});
    reading.RecID = QString::number(1000001 + number);
    reading.ReadingDate = Instant{1546300800s} + 11h * place + 7min * (number % 13);
    const auto step = static_cast<std::uint32_t>(number);
    reading.sys = 115 + step % 37;
    reading.dia = 70 + step % 23;
    reading.pulse = 60 + step % 31;
    reading.map = reading.dia + (reading.sys - reading.dia) / 3;
    reading.pp = reading.sys - reading.dia;
    reading.updateXMLNode(ReadingModel::makeXmlNode(root));
}

void addComment(pugi::xml_node root) {
    CommentModel comment;
    comment.ID = QStringLiteral("P00007");
    comment.CommentID = QStringLiteral("10001");
    comment.beginDate = Instant{std::chrono::seconds{1547000000}};
    comment.endDate = Instant{std::chrono::seconds{1547400000}};
    comment.comment = QStringLiteral("New dose from Monday");
    comment.updateXMLNode(CommentModel::makeXmlNode(root));
}

} // namespace

QByteArray makeDataFile(int patients, int readings) {
    pugi::xml_document document;
    const pugi::xml_node root = document.append_child("ZEL");
    SettingModel::makeXmlNode(root);
    for (int patient = 0; patient < patients; ++patient)
        addPatient(root, patient);
    const int each = readings / patients;
    for (int number = 0; number < readings; ++number)
        addReading(root, number, number / each, number % each);
    addComment(root);
    std::ostringstream text;
    document.save(text, "    ");
    return QByteArray::fromStdString(text.str());
}

} // namespace zel

#include "LongHistory.h"

#include "store/CommentModel.h"
#include "store/DataTransferLogModel.h"
#include "store/PatientModel.h"
#include "store/ReadingModel.h"
#include "store/SettingModel.h"

#include <pugixml.hpp>

#include <random>
#include <sstream>

namespace zel {

namespace {

using namespace std::chrono_literals;

const QString owner = QStringLiteral("P00000");
constexpr Instant last{std::chrono::sys_days{std::chrono::year{2026} / 3 / 20}};
constexpr std::chrono::minutes apart{131};
constexpr std::chrono::days month{30};

void addRosterEntry(pugi::xml_node root, int number) {
    PatientModel patient;
    patient.ID = QStringLiteral("P%1").arg(number, 5, 10, QLatin1Char{'0'});
    patient.FamilyName = QStringLiteral("Family %1").arg(number);
    patient.GivenNames = QStringLiteral("Given");
    patient.updateXMLNode(PatientModel::makeXmlNode(root), true);
}

void addReadings(pugi::xml_node root, int readings) {
    std::mt19937 random(7); // the same readings in every run
    const auto between = [&random](std::uint32_t low, std::uint32_t high) {
        return std::uniform_int_distribution<std::uint32_t>(low, high)(random);
    };
    for (int number = 0; number < readings; ++number) {
        ReadingModel reading;
        reading.ID = owner;
        reading.RecID = QString::number(1000001 + number);
        reading.ReadingDate = last - apart * (readings - number);
        reading.sys = between(105, 175);
        reading.dia = between(60, 100);
        reading.pulse = between(55, 105);
        reading.map = reading.dia + (reading.sys - reading.dia) / 3;
        reading.pp = reading.sys - reading.dia;
        reading.updateXMLNode(ReadingModel::makeXmlNode(root));
    }
}

void addMonth(pugi::xml_node root, int number, Instant begin) {
    CommentModel comment;
    comment.ID = owner;
    comment.CommentID = QString::number(10001 + number);
    comment.beginDate = begin;
    comment.endDate = begin + std::chrono::days{3};
    comment.comment = QStringLiteral("New dose from Monday");
    comment.updateXMLNode(CommentModel::makeXmlNode(root));
    DataTransferLogModel download;
    download.ID = owner;
    download.RecID = QString::number(1001 + number);
    download.transferDate = begin;
    download.updateXMLNode(DataTransferLogModel::makeXmlNode(root));
}

} // namespace

QByteArray makeLongHistory(int patients, int readings) {
    pugi::xml_document document;
    const pugi::xml_node root = document.append_child("ZEL");
    SettingModel::makeXmlNode(root);
    for (int patient = 0; patient < patients; ++patient)
        addRosterEntry(root, patient);
    addReadings(root, readings);
    const auto months = static_cast<int>(apart * readings / month);
    for (int number = 0; number < months; ++number)
        addMonth(root, number, last - month * (months - number));
    std::ostringstream text;
    document.save(text, "    ");
    return QByteArray::fromStdString(text.str());
}

} // namespace zel

#include "cli/Commands.h"
#include "cli/OpenStore.h"
#include "cli/Usage.h"
#include "monitor/BPMModel.h"
#include "store/CsvText.h"
#include "store/Text.h"

#include <algorithm>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

CommandResult listPatients(Surroundings& around) {
    const OpenedStore store = openStore(around);
    if (!store) return tl::unexpected(store.error());
    printLine(around.out, u"id,family-name,given-names"_s);
    for (const PatientModel& patient : (*store)->getPatientArray())
        printLine(around.out, csvLine({patient.ID, patient.FamilyName, patient.GivenNames}));
    return {};
}

/// What the file cannot keep, or would give back changed: control characters, halves of characters.
bool unstorable(QChar c) {
    return c.category() == QChar::Other_Control || c.isSurrogate() || c == QChar::ReplacementCharacter
           || c.unicode() >= 0xFFFE;
}

bool storable(const QString& text) {
    return std::ranges::none_of(text.toUcs4(),
                                [](char32_t c) { return c < 0x10000 && unstorable(QChar(c)); });
}

/// The value of one of the new patient's options, checked.
tl::expected<QString, Failure> field(const Request& request, const QString& option) {
    auto value = requiredValue(request, option);
    if (!value) return value;
    if (IsEmptyID(*value) || TrimStr(*value) != *value || !storable(*value))
        return wrongUsage(qtTrId("CliBadField").arg(option));
    return value;
}

/// As the editor takes it: one that a monitor can keep.
tl::expected<QString, Failure> idField(const Request& request) {
    auto ID = field(request, u"id"_s);
    if (ID && !BPMModel::fitsMonitor(*ID)) return wrongUsage(qtTrId("CliBadID"));
    return ID;
}

tl::expected<PatientModel, Failure> newPatient(const Request& request) {
    PatientModel patient;
    patient.DateOfBirth = getNilDate();
    const auto fill = [&](QString PatientModel::*member, const QString& option) -> CommandResult {
        return field(request, option).map([&](const QString& value) { patient.*member = value; });
    };
    const auto ID = idField(request);
    if (!ID) return tl::unexpected(ID.error());
    patient.ID = *ID;
    const CommandResult filled = fill(&PatientModel::FamilyName, u"family-name"_s).and_then([&] {
        return fill(&PatientModel::GivenNames, u"given-names"_s);
    });
    if (!filled) return tl::unexpected(filled.error());
    return patient;
}

CommandResult add(const Request& request, Surroundings& around) {
    const auto patient = newPatient(request);
    if (!patient) return tl::unexpected(patient.error());
    const OpenedStore store = openStoreForWriting(around);
    if (!store) return tl::unexpected(store.error());
    const StoreResult added = (*store)->addXMLPatient(*patient);
    if (added) return {};
    const bool isKnown = added.error().code == StoreErrorCode::alreadyKnown;
    return failed(isKnown ? qtTrId("CliPatientKnown").arg(patient->ID) : describe(added.error()));
}

CommandResult runPatients(const Request& request, Surroundings& around) {
    if (request.options.isSet(u"add"_s)) return add(request, around);
    if (!request.options.optionNames().isEmpty()) return wrongUsage(qtTrId("CliAddMissing"));
    return listPatients(around);
}

} // namespace

Command patientsCommand() {
    return {
        "patients", [] { return qtTrId("CliHelpPatients"); },
        [] {
            return QList{flag(u"add"_s), valued(u"id"_s), valued(u"family-name"_s), valued(u"given-names"_s)};
        },
        runPatients};
}

} // namespace zel::cli

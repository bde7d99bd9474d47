// A table of readings that is imported into a small store: taken, and then all that was there is still there
// and the whole goes out as a table and comes back, or refused with the data file as it was. The first byte
// says how it is imported.

#include "Fuzzing.h"
#include "ScratchStore.h"
#include "store/AtomicFile.h"
#include "store/ReadingTable.h"
#include "store/TableColumns.h"

using namespace zel;
using zel::fuzz::require;

namespace {

const QByteArray smallWithReadings =
    "<ZEL>\n    <SystemSetting/>\n"
    "    <Patient>\n        <ID>A</ID>\n        <FamilyName>Ann</FamilyName>\n    </Patient>\n"
    "    <MeasureRec>\n        <ID>A</ID>\n        <RecID>1000001</RecID>\n"
    "        <ReadingDate>2026-01-03T07:05:00+01:00</ReadingDate>\n        <Sys>131</Sys>\n"
    "        <Dia>84</Dia>\n        <Map>99</Map>\n        <PP>47</PP>\n        <Pulse>66</Pulse>\n"
    "    </MeasureRec>\n"
    "</ZEL>\n";

/// Own tables, new or into A; another program's, with each way to write dates.
TableImport wantedBy(std::uint8_t choice) {
    TableImport wanted;
    if (choice % 6 != 0) wanted.patient = QStringLiteral("A");
    if (choice % 6 < 2) return wanted;
    ForeignColumns columns;
    columns.date = QStringLiteral("D");
    if (choice % 2 == 0) columns.time = QStringLiteral("T");
    columns.sys = QStringLiteral("S");
    columns.dia = QStringLiteral("I");
    columns.pulse = QStringLiteral("P");
    columns.dates = static_cast<DateOrder>(choice % 6 - 2);
    wanted.columns = columns;
    return wanted;
}

std::size_t readingsIn(const Records& records) {
    std::size_t count = 0;
    for (const auto& [ID, readings] : records.mdReading)
        count += readings.size();
    return count;
}

/// Into an empty store, and out again.
void requireComesBack(fuzz::ScratchStore& scratch, std::size_t readings) {
    const QString path = scratch.path("out.csv");
    QStringList IDs;
    for (const PatientModel& patient : scratch.store.getPatientArray())
        IDs += patient.ID;
    require(scratch.store.exportTable(path, IDs, Replace::yes).has_value(), "the table is written");
    const QByteArray first = readFile(path).value_or(QByteArray{});
    scratch.fill("<ZEL><SystemSetting/></ZEL>");
    const auto back = scratch.store.importTable(path, {});
    require(back && back->readings == readings, "every reading comes back");
    require(scratch.store.loadXML().has_value(), "what came back is loaded");
    IDs.removeIf([&](const QString& ID) { return !scratch.store.validIDinXML(ID); });
    require(scratch.store.exportTable(path, IDs, Replace::yes).has_value(), "it is written again");
    require(readFile(path).value_or(QByteArray{}) == first, "the table is the same");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    static fuzz::ScratchStore scratch;
    scratch.fill(smallWithReadings);
    const QString path = scratch.path("import.csv");
    scratch.write(path, fuzz::bytesOf(data + 1, size - 1));
    const auto imported = scratch.store.importTable(path, wantedBy(data[0]));
    const QByteArray after = scratch.content();
    if (imported) {
        const std::size_t readings = readingsIn(fuzz::ScratchStore::recordsOf(after));
        require(readings == 1 + imported->readings, "what is counted as new is there");
        require(scratch.store.loadXML().has_value(), "the data file is loaded with what was imported");
        requireComesBack(scratch, readings);
    } else {
        require(after == smallWithReadings, "a refused table changes nothing");
        require(!describe(imported.error()).isEmpty(), "a refusal says why");
    }
    const QString text = QString::fromUtf8(fuzz::bytesOf(data + 1, size - 1));
    require(plainText(safeText(text)) == text, "a text comes back from its cell");
    return 0;
}

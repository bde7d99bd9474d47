// A file that is imported into a small store: taken, and all that was there is still there, or refused, and
// the data file is as it was.

#include "Fuzzing.h"
#include "ScratchStore.h"

using namespace zel;
using zel::fuzz::require;

namespace {

const QByteArray small =
    "<ZEL>\n"
    "    <SystemSetting>\n        <DateFormat>yyyy mm dd</DateFormat>\n    </SystemSetting>\n"
    "    <Patient>\n        <ID>A</ID>\n        <FamilyName>Ann</FamilyName>\n    </Patient>\n"
    "    <Patient>\n        <ID>B</ID>\n    </Patient>\n"
    "    <Comment>\n        <ID>A</ID>\n        <CommentID>10001</CommentID>\n"
    "        <BeginDate>2026-01-02T00:00:00+01:00</BeginDate>\n"
    "        <EndDate>2026-01-05T00:00:00+01:00</EndDate>\n        <Comment>Pills</Comment>\n    </Comment>\n"
    "    <MeasureRec>\n        <ID>A</ID>\n        <RecID>1000001</RecID>\n"
    "        <ReadingDate>2026-01-03T07:05:00+01:00</ReadingDate>\n        <Sys>131</Sys>\n"
    "        <Dia>84</Dia>\n    </MeasureRec>\n"
    "    <DataTransferLog>\n        <ID>A</ID>\n        <RecID>100001</RecID>\n    </DataTransferLog>\n"
    "    <MeasureRec>\n        <ID>B</ID>\n        <RecID>1000002</RecID>\n        <Sys>120</Sys>\n"
    "    </MeasureRec>\n"
    "</ZEL>\n";

/// Of the two patients that were there, as the program shows them.
std::string textOfKnown(Records records) {
    const auto isOther = [](const QString& ID) {
        return ID != QStringLiteral("A") && ID != QStringLiteral("B");
    };
    std::erase_if(records.gaPatient, [&](const PatientModel& patient) { return isOther(patient.ID); });
    std::erase_if(records.mdReading, [&](const auto& entry) { return isOther(entry.first); });
    std::erase_if(records.mdComment, [&](const auto& entry) { return isOther(entry.first); });
    records.largestID = {};
    return fuzz::textOf(records);
}

void requireTaken(const ImportCounts& counts, const QByteArray& after) {
    static const std::string known = textOfKnown(fuzz::ScratchStore::recordsOf(small));
    Records records = fuzz::ScratchStore::recordsOf(after);
    require(counts.patients > 0 && records.gaPatient.size() == 2 + counts.patients, "every patient is there");
    require(textOfKnown(std::move(records)) == known, "all that was there is there as it was");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzz::ScratchStore scratch;
    scratch.fill(small);
    const QString path = scratch.path("import.xml");
    scratch.write(path, fuzz::bytesOf(data, size));
    const auto imported = scratch.store.importXml(path);
    const QByteArray after = scratch.content();
    if (imported) {
        requireTaken(*imported, after);
        require(scratch.store.loadXML().has_value(), "the data file is loaded with what was imported");
    } else {
        require(after == small, "a refused file changes nothing");
        require(!describe(imported.error()).isEmpty(), "a refusal says why");
    }
    return 0;
}

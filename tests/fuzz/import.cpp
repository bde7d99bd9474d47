// Two files that are imported into a small store, one by one: each is taken, and all that was there is still
// there, or refused, and the data file is as it was. Together they make the same data file in one write.

#include "Fuzzing.h"
#include "ScratchStore.h"
#include "store/FileImport.h"

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

/// Parts an input, since no file that is taken has it in it.
constexpr char end = '\0';

/// What an input has one of is imported beside this, which has a number that is there.
const QByteArray other = "<ZEL><Patient><ID>N</ID></Patient><Comment><ID>N</ID><CommentID>10001</CommentID>"
                         "</Comment><MeasureRec><ID>N</ID></MeasureRec></ZEL>";

ImportResult importOne(fuzz::ScratchStore& scratch, const QString& path) {
    const QByteArray before = scratch.content();
    auto imported = scratch.store.importXml(path);
    if (!imported) {
        require(scratch.content() == before, "a refused file changes nothing");
        require(!describe(imported.error()).isEmpty(), "a refusal says why");
    }
    return imported;
}

void requireSame(const ImportResult& one, const ImportResult& together) {
    require(one.has_value() == together.has_value(), "together as many files are taken as one by one");
    if (!one) require(one.error() == together.error(), "together a file is refused for the same reason");
    if (one)
        require(one->patients == together->patients && one->readings == together->readings
                    && one->comments == together->comments,
                "together as much is taken as one by one");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzz::ScratchStore scratch;
    const QByteArray input = fuzz::bytesOf(data, size);
    const qsizetype at = input.indexOf(end);
    const QString first = scratch.path("import.xml"), second = scratch.path("other.xml");
    scratch.write(first, at < 0 ? input : input.left(at));
    scratch.write(second, at < 0 ? other : input.sliced(at + 1));

    scratch.fill(small);
    const ImportResult ofFirst = importOne(scratch, first);
    if (ofFirst) {
        requireTaken(*ofFirst, scratch.content());
        require(scratch.store.loadXML().has_value(), "the data file is loaded with what was imported");
    }
    const ImportResult ofSecond = importOne(scratch, second);
    const QByteArray oneByOne = scratch.content();

    scratch.fill(small);
    FileImport together{scratch.store};
    together.add(first);
    together.add(second);
    const auto results = together.finish();
    requireSame(ofFirst, results.at(0).result);
    requireSame(ofSecond, results.at(1).result);
    require(scratch.content() == oneByOne, "together they make the data file that they make one by one");
    return 0;
}

// A record as the monitor sends it, behind a byte that chooses the model: its reading is within what 32 bytes
// can say, is stored as it is, and is known when it is downloaded again.

#include "Fuzzing.h"
#include "monitor/MonitorFrames.h"
#include "monitor/ReadingDecoder.h"
#include "store/DocumentElements.h"
#include "store/NewReadings.h"
#include "store/XmlDocument.h"

using namespace zel;
using zel::fuzz::require;

namespace {

bool isFinding(const ReadingModel& reading, ModelCapability model) {
    const std::uint32_t found = reading.Arrhythmia;
    if (model.isAFib) return found == 4 || found == 5;
    return model.isPAD ? found == 1 || found == 2 : found == 0;
}

void requireInRange(const ReadingModel& reading, ModelCapability model) {
    using namespace std::chrono;
    require(reading.sys <= 0xFF && reading.dia <= 0x3FF && reading.pulse <= 0xFF, "values fit their digits");
    require(reading.pp == reading.sys - reading.dia, "the pulse pressure is the difference");
    require(reading.mam <= 1 && isFinding(reading, model), "findings are those of the model");
    const auto day = LocalZone{}.wallClock(reading.ReadingDate);
    require(!day
                || (*day >= sys_days{year{2000} / 1 / 1} && *day < sys_days{year{2100} / 1 / 1}
                    && *day == floor<minutes>(*day)),
            "a date is none, or a minute of the century");
}

void requireStored(const ReadingModel& reading) {
    auto document = XmlDocument::parse("<ZEL><Patient><ID>A</ID></Patient></ZEL>").value();
    require(newReadings(document.root(), reading.ID, {reading}).size() == 1, "a first reading is new");
    reading.updateXMLNode(ReadingModel::makeXmlNode(document.root()));
    const auto again = XmlDocument::parse(document.serialise().value()).value();
    const auto kept = ReadingModel::initWithXMLNode(firstElement(again.root(), "MeasureRec"));
    require(kept.isSame(reading) && kept.ID == reading.ID, "a reading is stored as it is");
    require(newReadings(again.root(), reading.ID, {reading}).empty(), "a stored reading is known again");
    require(newReadings(again.root(), reading.ID, {reading, reading}).size() == 1, "its double is new");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const ModelCapability model{.isAFib = (data[0] & 1) != 0, .isPAD = (data[0] & 2) != 0};
    const std::string record(data + 1, data + std::min(size, 1 + 2 * recordLength));
    const ReadingModel reading = initWithUSBData(record, QStringLiteral("A"), model);
    requireInRange(reading, model);
    requireStored(reading);
    return 0;
}

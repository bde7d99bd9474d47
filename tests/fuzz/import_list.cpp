// The list of files to import: what it counts in a file is what an import brings, and what is imported is
// exported so that it can be imported again.

#include "Fuzzing.h"
#include "ScratchStore.h"
#include "store/XmlFile.h"

#include <QDir>
#include <QFile>

using namespace zel;
using zel::fuzz::require;

namespace {

void requireCounted(const XmlFile& listed, const tl::expected<ImportCounts, ImportRefusal>& imported) {
    if (!imported) {
        const bool isUnread = imported.error().code == ImportRefusalCode::notReadable;
        require(isUnread != listed.isRead(), "the list reads what the import reads");
        return;
    }
    require(listed.isRead(), "what is imported is counted");
    require(listed.measureRec == imported->readings, "the readings counted are those imported");
    require(listed.comment == imported->comments, "the comments counted are those imported");
}

/// The first patient, out and in again.
void requireExported(fuzz::ScratchStore& scratch) {
    require(scratch.store.loadXML().has_value(), "what was imported can be loaded");
    const QString ID = scratch.store.getPatientArray().front().ID;
    auto going = scratch.store.beginExport();
    require(going.has_value(), "what was imported can be exported");
    const QString folder = scratch.path("out");
    QDir{folder}.removeRecursively();
    QDir{}.mkpath(folder);
    // A name that the disk cannot hold is refused.
    if (!going->writeXml(ID, folder, Replace::yes)) return;
    const auto written = QDir{folder}.entryInfoList(QDir::Files);
    require(written.size() == 1, "a patient is exported as one file");
    scratch.fill("<ZEL><SystemSetting/></ZEL>");
    const auto again = scratch.store.importXml(written.front().filePath());
    require(again.has_value() && again->patients == 1, "an export can be imported");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzz::ScratchStore scratch;
    scratch.fill("<ZEL><SystemSetting/></ZEL>");
    const QString path = scratch.path("import.xml");
    scratch.write(path, fuzz::bytesOf(data, size));
    const XmlFile listed = XmlFile::read(path);
    const auto imported = scratch.store.importXml(path);
    requireCounted(listed, imported);
    if (imported) requireExported(scratch);
    return 0;
}

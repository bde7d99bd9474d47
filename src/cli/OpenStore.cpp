#include "cli/OpenStore.h"

#include "cli/ConsolePanel.h"

#include <QDir>

namespace zel::cli {

namespace {

/// A file without settings is given the defaults at loading; when it may not be written, its records can
/// still be read.
bool leavesRecordsUnread(const StoreError& error) {
    return error.code != StoreErrorCode::notWritable && error.code != StoreErrorCode::writeFailed
           && error.code != StoreErrorCode::busy;
}

} // namespace

OpenedStore openStore(Surroundings& around) {
    if (QDir::isRelativePath(around.paths.home)) return failed(qtTrId("CliNoHome"));
    auto store = std::make_unique<DataStore>(around.paths, around.clock);
    const StoreResult loaded = store->load();
    if (!loaded && leavesRecordsUnread(loaded.error())) return failed(describe(loaded.error()));
    return store;
}

OpenedStore openStoreForWriting(Surroundings& around) {
    OpenedStore store = openStore(around);
    ConsolePanel panel(around.err);
    if (store && !(*store)->checkXmlWritable(panel)) return failed({});
    return store;
}

CommandResult checkPatient(const DataStore& store, const QString& ID) {
    if (!store.validIDinXML(ID)) return failed(qtTrId("CliNoSuchPatient").arg(ID));
    return {};
}

} // namespace zel::cli

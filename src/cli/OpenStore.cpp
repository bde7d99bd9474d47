#include "cli/OpenStore.h"

#include "cli/ConsolePanel.h"
#include "cli/Usage.h"
#include "store/Privacy.h"

#include <QDir>

namespace zel::cli {

using namespace Qt::StringLiterals;

OpenedStore openStore(Surroundings& around) {
    if (QDir::isRelativePath(around.paths.home)) return failed(qtTrId("CliNoHome"));
    auto store = std::make_unique<DataStore>(around.paths, around.clock);
    if (const StoreResult loaded = store->load(); !loaded) return failed(describe(loaded.error()));
    if (const QStringList open = readableByOthers(store->getZELXMLPath()); !open.isEmpty())
        complain(around, u"zel"_s, qtTrId("CliReadableByOthers").arg(open.constFirst()));
    return store;
}

OpenedStore openStoreForWriting(Surroundings& around) {
    OpenedStore store = openStore(around);
    ConsolePanel panel(around.err);
    if (!store) return store;
    if (!(*store)->checkXmlWritable(panel)) return failed({});
    QObject::connect(store->get(), &DataStore::notBackedUp,
                     [&around](const QString& why) { complain(around, u"zel"_s, why); });
    return store;
}

CommandResult checkPatient(const DataStore& store, const QString& ID) {
    if (!store.validIDinXML(ID)) return failed(qtTrId("CliNoSuchPatient").arg(ID));
    return {};
}

} // namespace zel::cli

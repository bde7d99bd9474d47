#include "store/PatientExport.h"

#include "store/AllPatients.h"
#include "store/DocumentElements.h"
#include "store/Log.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

bool isPersonal(pugi::xml_node node) {
    return isElement(node, "Patient") || isElement(node, "Comment") || isElement(node, "MeasureRec");
}

} // namespace

PatientExport::PatientExport(XmlDocument read, QString path, bool isDemonstration)
    : document{std::make_unique<const XmlDocument>(std::move(read))}, dataFile{std::move(path)},
      isInvented{isDemonstration} {
    std::size_t place = 0;
    for (pugi::xml_node node = document->root().first_child(); node; node = node.next_sibling())
        sort({place++, node});
    IDs = allPatients(IDs).IDs;
}

void PatientExport::sort(const Child& child) {
    if (!isPersonal(child.node)) return common.push_back(child);
    const QString ID = childText(child.node, "ID");
    if (isElement(child.node, "Patient")) IDs += ID;
    personal[ID].push_back(child);
}

std::vector<pugi::xml_node> PatientExport::childrenFor(const std::vector<Child>& own) const {
    std::vector<Child> kept;
    kept.reserve(own.size() + common.size());
    std::ranges::merge(own, common, std::back_inserter(kept), {}, &Child::place, &Child::place);
    std::vector<pugi::xml_node> nodes(kept.size());
    std::ranges::transform(kept, nodes.begin(), &Child::node);
    return nodes;
}

StoreResult PatientExport::writeXml(const QString& ID, const QString& folder, Replace replace) const {
    const auto own = personal.find(ID);
    if (own == personal.end() || !IDs.contains(ID))
        return tl::unexpected{StoreError{StoreErrorCode::noSuchRecord, ID, {}}};
    const QString path = exportPath(folder, ID, u".xml"_s, isInvented);
    if (StoreResult unique = written->check(ID, path); !unique) return unique;
    const auto content = document->withChildren(childrenFor(own->second)).serialise();
    if (!content) return tl::unexpected{StoreError{StoreErrorCode::writeFailed, path, content.error()}};
    if (unflushed->folder != folder) std::ignore = unflushed->flush();
    unflushed->folder = folder;
    StoreResult result = writeExport(path, *content, replace, dataFile);
    if (result)
        qCInfo(lcStore, "write document out...");
    else
        qCWarning(lcStore, "Could not write document out...");
    if (result) written->add(ID, path);
    return result;
}

StoreResult PatientExport::finish() const { return unflushed->flush(); }

StoreResult PatientExport::Unflushed::flush() {
    const QString written = std::exchange(folder, QString{});
    if (written.isNull()) return {};
    StoreResult result = flushExports(written);
    if (!result) qCWarning(lcStore, "Could not flush the folder of an export");
    return result;
}

} // namespace zel

#include "store/FileImport.h"

#include "store/DataStore.h"

#include <QFileInfo>

#include <utility>

namespace zel {

void FileImport::add(const QString& path) {
    auto source = readImportSource(path);
    if (!source) {
        added.push_back({path, tl::unexpected{source.error()}});
        return;
    }
    places.push_back(added.size());
    added.push_back({path, ImportCounts{}}); // until it is written
    read.push_back(std::move(*source));
    size += QFileInfo{path}.size();
    if (size > most) write();
}

void FileImport::write() {
    if (read.empty()) return;
    const auto results = data.importXml(std::exchange(read, {}));
    for (std::size_t i = 0; i < places.size(); ++i)
        added[places[i]].result = results[i];
    places.clear();
    size = 0;
}

std::vector<ImportedFile> FileImport::finish() {
    write();
    return std::exchange(added, {});
}

} // namespace zel

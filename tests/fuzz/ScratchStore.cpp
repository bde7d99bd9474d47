#include "ScratchStore.h"

#include "Fuzzing.h"
#include "store/XmlDocument.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace zel::fuzz {

using namespace Qt::StringLiterals;

ScratchStore::ScratchStore()
    : folder{QDir::tempPath() + u"/zel-fuzz-XXXXXX"_s}, store{{folder.path(), folder.path(), folder.path()},
                                                              clock} {
    require(folder.isValid() && QDir{}.mkpath(QFileInfo{store.getZELXMLPath()}.path()), "there is a folder");
}

void ScratchStore::write(const QString& path, const QByteArray& content) const {
    QFile file{path};
    require(file.open(QFile::WriteOnly) && file.write(content) == content.size(), "a file can be written");
}

void ScratchStore::fill(const QByteArray& dataFile) {
    write(store.getZELXMLPath(), dataFile);
    require(store.load().has_value(), "the store is loaded");
}

QByteArray ScratchStore::content() const { return readFile(store.getZELXMLPath()).value_or(QByteArray{}); }

Records ScratchStore::recordsOf(const QByteArray& file) {
    const auto document = XmlDocument::parse(file);
    require(document.has_value(), "the data file can be read");
    return Records::read(document->root(), LocalZone{});
}

} // namespace zel::fuzz

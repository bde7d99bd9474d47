#include "store/XmlFile.h"

#include "store/DocumentElements.h"
#include "store/Log.h"
#include "store/PatientImport.h"

#include <QDateTime>
#include <QFileInfo>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

QString dayOf(const QFileInfo& file) {
    const QDateTime made = file.birthTime();
    return (made.isValid() ? made : file.lastModified()).toString(u"yyyy/MM/dd"_s);
}

} // namespace

XmlFile XmlFile::read(const QString& path) {
    const QFileInfo info{path};
    XmlFile file{.FullPath = path, .sFileName = info.fileName(), .backupTime = {}};
    if (!file.sFileName.endsWith(".xml"_L1)) return file;
    file.isLarge = info.size() > largestCounted;
    if (file.isLarge) return file;
    const auto document = readImport(path);
    if (!document) {
        qCWarning(lcStore, "_export  create xml doc failed");
        return file;
    }
    for (const pugi::xml_node node : document->root().children()) {
        if (isElement(node, "MeasureRec")) ++file.measureRec;
        if (isElement(node, "Comment")) ++file.comment;
    }
    file.backupTime = dayOf(info);
    return file;
}

} // namespace zel

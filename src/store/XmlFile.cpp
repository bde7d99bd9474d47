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

QString nameOf(pugi::xml_node patient) {
    const QString family = childText(patient, "FamilyName").simplified();
    const QString given = childText(patient, "GivenNames").simplified();
    if (family.isEmpty() || given.isEmpty()) return family + given;
    return family + u", "_s + given;
}

QStringList namesIn(pugi::xml_node root) {
    QStringList names;
    for (const pugi::xml_node node : root.children()) {
        if (names.size() == XmlFile::namedPatients) break;
        if (isElement(node, "Patient")) names += nameOf(node);
    }
    return names;
}

} // namespace

XmlFile XmlFile::read(const QString& path) {
    const QFileInfo info{path};
    XmlFile file{.FullPath = path, .sFileName = info.fileName(), .backupTime = {}};
    if (!file.sFileName.endsWith(".xml"_L1)) return file;
    file.isLarge = info.size() > largestCounted;
    if (info.size() > largestImport) file.fault = {ImportRefusalCode::tooLarge, path, {}, {}};
    if (file.isLarge) return file;
    const auto document = readImport(path);
    if (!document) {
        qCWarning(lcStore, "_export  create xml doc failed");
        file.fault = document.error();
        return file;
    }
    for (const pugi::xml_node node : document->root().children()) {
        if (isElement(node, "MeasureRec")) ++file.measureRec;
        if (isElement(node, "Comment")) ++file.comment;
    }
    file.patients = namesIn(document->root());
    file.IDs = recordIDs(document->root());
    file.fault = importFault(document->root(), path);
    file.backupTime = dayOf(info);
    return file;
}

} // namespace zel

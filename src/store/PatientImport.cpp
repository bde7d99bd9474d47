#include "store/PatientImport.h"

#include "store/DataFile.h"
#include "store/DocumentElements.h"
#include "store/Log.h"
#include "store/RecordXml.h"
#include "store/Text.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <array>
#include <string_view>

namespace zel {

namespace {

constexpr std::array personalKinds{"Patient", "Comment", "MeasureRec"};

tl::unexpected<ImportRefusal> refused(ImportRefusalCode code, const QString& path,
                                      const QString& detail = {}) {
    return tl::unexpected{ImportRefusal{code, path, {}, detail}};
}

QString sentence(ImportRefusalCode code) {
    switch (code) {
    case ImportRefusalCode::notReadable: return qtTrId("ImportNotReadable");
    case ImportRefusalCode::tooLarge: return qtTrId("ImportTooLarge");
    case ImportRefusalCode::noPatient: return qtTrId("ImportNoPatient");
    case ImportRefusalCode::noID: return qtTrId("ImportNoID");
    case ImportRefusalCode::badID: return qtTrId("ImportBadID");
    case ImportRefusalCode::sameIDTwice: return qtTrId("ImportSameIDTwice");
    case ImportRefusalCode::alreadyKnown: return qtTrId("ImportAlreadyKnown");
    case ImportRefusalCode::notStored: return qtTrId("ImportNotStored");
    case ImportRefusalCode::notFlushed: return qtTrId("ImportNotFlushed");
    case ImportRefusalCode::badLines: return qtTrId("ImportBadLines");
    case ImportRefusalCode::noReading: return qtTrId("ImportNoReading");
    case ImportRefusalCode::tooManyLines: return qtTrId("ImportTooManyLines");
    case ImportRefusalCode::missingColumn: return qtTrId("ImportMissingColumn");
    case ImportRefusalCode::noSuchPatient: return qtTrId("ImportNoSuchPatient");
    case ImportRefusalCode::otherNames: return qtTrId("ImportOtherNames");
    }
    return {};
}

QSet<QString> textsOf(pugi::xml_node root, const char* kind, const char* child) {
    QSet<QString> texts;
    std::string scratch, previous;
    for (const pugi::xml_node node : root.children()) {
        if (!isElement(node, kind)) continue;
        const std::string_view text = elementText(firstElement(node, child), scratch);
        if (!texts.isEmpty() && text == previous) continue; // a patient's readings stand together
        texts.insert(toQString(text));
        previous = text;
    }
    return texts;
}

/// The first of the records' IDs, by their kinds, that is such a one; null for none.
template <typename Wanted>
QString firstRecordID(pugi::xml_node root, const Wanted& isWanted) {
    std::string scratch;
    std::optional<std::string> previous;
    for (const char* kind : personalKinds) {
        for (const pugi::xml_node node : root.children()) {
            if (!isElement(node, kind)) continue;
            const std::string_view text = elementText(firstElement(node, "ID"), scratch);
            if (text == previous) continue; // a patient's readings stand together
            previous = text;
            if (QString ID = toQString(text); isWanted(ID)) return ID;
        }
    }
    return {};
}

/// As nearly all do; others are looked at as Unicode.
bool beginsAndEndsWithLetter(std::string_view text) {
    const auto isLetter = [](char c) { return c > ' ' && c < '\x7F'; };
    return !text.empty() && isLetter(text.front()) && isLetter(text.back());
}

/// Such an ID would be another patient's than the one without them, and none that a monitor keeps.
void trimIDs(pugi::xml_node root) {
    std::string scratch;
    for (const pugi::xml_node node : root.children()) {
        const bool isPersonal =
            std::ranges::any_of(personalKinds, [node](const char* kind) { return isElement(node, kind); });
        if (!isPersonal) continue;
        for (const pugi::xml_node ID : node.children("ID"))
            if (!beginsAndEndsWithLetter(elementText(ID, scratch)))
                setElementText(ID, TrimStr(elementText(ID)));
    }
}

bool hasControl(const QString& ID) {
    return std::ranges::any_of(ID, [](QChar c) { return c.category() == QChar::Other_Control; });
}

} // namespace

QString describe(const ImportRefusal& refusal) {
    const bool namesPatient = !refusal.ID.isNull();
    const QString words = sentence(refusal.code);
    const QString text = namesPatient ? words.arg(refusal.path, refusal.ID) : words.arg(refusal.path);
    return refusal.detail.isEmpty() ? text : text + u'\n' + refusal.detail;
}

ImportRefusal refusalOf(const StoreError& error, const QString& path) {
    if (error.code == StoreErrorCode::notFlushed)
        return {ImportRefusalCode::notFlushed, path, {}, error.detail};
    return {ImportRefusalCode::notStored, path, {}, describe(error)};
}

tl::expected<XmlDocument, ImportRefusal> readImport(const QString& path) {
    const QFileInfo file{path};
    // A pipe or a device has no end to wait for.
    if (file.exists() && !file.isFile())
        return refused(ImportRefusalCode::notReadable, path, qtTrId("ImportNoFile"));
    if (file.size() > largestImport) return refused(ImportRefusalCode::tooLarge, path);
    auto document = DataFile::readDocument(path);
    if (document) {
        trimIDs(document->root());
        return std::move(*document);
    }
    if (document.error().code == StoreErrorCode::tooLarge) return refused(ImportRefusalCode::tooLarge, path);
    qCDebug(lcStore, "load xml for %s error", qUtf8Printable(path));
    return refused(ImportRefusalCode::notReadable, path, document.error().detail);
}

std::optional<ImportRefusal> importFault(pugi::xml_node imported, const QString& path) {
    QSet<QString> IDs;
    for (const pugi::xml_node node : imported.children()) {
        if (!isElement(node, "Patient")) continue;
        const QString ID = childText(node, "ID");
        if (IsEmptyID(ID)) return ImportRefusal{ImportRefusalCode::noID, path, {}, {}};
        if (IDs.contains(ID)) return ImportRefusal{ImportRefusalCode::sameIDTwice, path, ID, {}};
        IDs.insert(ID);
    }
    qCDebug(lcStore, "itemNodes = %lld", static_cast<long long>(IDs.size()));
    if (IDs.isEmpty()) return ImportRefusal{ImportRefusalCode::noPatient, path, {}, {}};
    const QString bad = firstRecordID(imported, hasControl);
    if (!bad.isNull()) return ImportRefusal{ImportRefusalCode::badID, path, bad.simplified(), {}};
    return std::nullopt;
}

QSet<QString> recordIDs(pugi::xml_node imported) {
    QSet<QString> IDs;
    for (const char* kind : personalKinds)
        IDs.unite(textsOf(imported, kind, "ID"));
    return IDs;
}

tl::expected<ImportSource, ImportRefusal> readImportSource(const QString& path) {
    auto document = readImport(path);
    if (!document) return tl::unexpected{document.error()};
    if (const auto fault = importFault(document->root(), path)) return tl::unexpected{*fault};
    return ImportSource{path, std::move(*document)};
}

ImportTarget::ImportTarget(pugi::xml_node data)
    : root{data}, patients{textsOf(data, "Patient", "ID")}, commentNumbers{
                                                                textsOf(data, "Comment", "CommentID")} {
    for (const QString& number : commentNumbers)
        counters.countID(Records::Counter::comment, number);
    for (const char* kind : personalKinds)
        lastOf[kind] = lastElement(data, kind);
}

QString ImportTarget::knownPatient(pugi::xml_node imported) const {
    if (patients.isEmpty() && taken.isEmpty()) return {};
    return firstRecordID(imported,
                         [this](const QString& ID) { return patients.contains(ID) || taken.contains(ID); });
}

QString ImportTarget::patientThereBefore(pugi::xml_node imported) const {
    return firstRecordID(imported, [this](const QString& ID) { return patients.contains(ID); });
}

/// Behind the last of their kind, or at the end where there is none.
std::vector<pugi::xml_node> ImportTarget::copyAll(const char* kind, pugi::xml_node imported,
                                                  StepRecorder& recorder) {
    std::vector<pugi::xml_node> copies;
    pugi::xml_node& last = lastOf[kind];
    for (const pugi::xml_node node : imported.children()) {
        if (!isElement(node, kind)) continue;
        last = last ? root.insert_copy_after(node, last) : root.append_copy(node);
        recorder.added(last);
        copies.push_back(last);
    }
    return copies;
}

/// Gives those a number of their own that have another comment's.
void ImportTarget::renumber(const std::vector<pugi::xml_node>& comments) {
    constexpr auto kind = Records::Counter::comment;
    for (const pugi::xml_node comment : comments)
        counters.countID(kind, childText(comment, "CommentID"));
    for (const pugi::xml_node comment : comments) {
        QString number = childText(comment, "CommentID");
        const pugi::xml_node place = firstElement(comment, "CommentID");
        if (place && commentNumbers.contains(number)) { // without a place, a new one would be lost
            number = counters.getMaxID(kind);
            counters.countID(kind, number);
            setElementText(place, number);
        }
        commentNumbers.insert(number);
    }
}

ImportCounts ImportTarget::take(pugi::xml_node imported, StepRecorder& recorder) {
    ImportCounts counts;
    counts.patients = copyAll("Patient", imported, recorder).size();
    const auto comments = copyAll("Comment", imported, recorder);
    renumber(comments);
    counts.comments = comments.size();
    counts.readings = copyAll("MeasureRec", imported, recorder).size();
    taken.unite(textsOf(imported, "Patient", "ID"));
    return counts;
}

} // namespace zel

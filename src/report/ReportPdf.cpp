#include "report/ReportPdf.h"

#include "report/PdfCharacters.h"
#include "report/PdfFacts.h"
#include "report/ReportDocument.h"
#include "report/ReportPainter.h"
#include "store/AtomicFile.h"

#include <QBuffer>
#include <QPdfWriter>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

tl::unexpected<ReportError> failed(ReportErrorCode code) { return tl::unexpected(ReportError{code, {}, {}}); }

/// The practice, by the first line of its details if they are in the report; else the program.
QString author(const ReportSource& report) {
    const QString practice = report.settings.getPractitioner().section(u'\n', 0, 0).trimmed();
    return report.needPhysicianInfo && !practice.isEmpty() ? practice.left(200) : u"ZEL"_s;
}

std::vector<PdfBookmark> bookmarksOf(const ReportDocument& document) {
    std::vector<PdfBookmark> bookmarks;
    for (std::size_t index = 0; index < document.pages().size(); ++index)
        if (document.pages()[index].number == 1)
            bookmarks.push_back({facts(document.pages()[index].section).text(), index});
    return bookmarks;
}

PdfFacts factsOf(const ReportSource& report, const ReportDocument& document) {
    const PatientModel& patient = report.patient;
    const QString name =
        qtTrId("fullName").arg(patient.GivenNames.left(200), patient.FamilyName.left(200)).trimmed();
    const QString title = qtTrId("reportDocument").arg(name, patient.ID.left(200));
    return {.title = report.isDemonstration ? qtTrId("reportDemonstration") + u" – "_s + title : title,
            .author = author(report),
            .creator = u"ZEL "_s + QStringLiteral(ZEL_VERSION),
            .created = report.now,
            .bookmarks = bookmarksOf(document)};
}

QString sentence(ReportErrorCode code) {
    switch (code) {
    case ReportErrorCode::noData: return qtTrId("reportNoData");
    case ReportErrorCode::notPainted: return qtTrId("reportNotPainted");
    case ReportErrorCode::notWritable: return qtTrId("reportNotWritable");
    case ReportErrorCode::writeFailed: return qtTrId("reportWriteFailed");
    case ReportErrorCode::notFlushed: return qtTrId("ExportNotFlushed");
    }
    return {};
}

ReportError reportError(const StoreError& error) {
    using enum ReportErrorCode;
    if (error.code == StoreErrorCode::notFlushed) return {notFlushed, error.path, error.detail};
    if (error.code == StoreErrorCode::notWritable) return {notWritable, error.path, error.detail};
    return {writeFailed, error.path, error.detail.isEmpty() ? describe(error) : error.detail};
}

} // namespace

QString describe(const ReportError& error) {
    QString words = sentence(error.code);
    if (!error.path.isEmpty()) words = words.arg(error.path);
    return error.detail.isEmpty() ? words : words + u'\n' + error.detail;
}

tl::expected<QByteArray, ReportError> makePdf(const PrintView& view, std::span<const Section> sections) {
    const ReportDocument document(view, sections);
    if (document.pages().empty()) return failed(ReportErrorCode::noData);
    QBuffer buffer;
    if (!buffer.open(QIODevice::WriteOnly)) return failed(ReportErrorCode::notPainted);
    {
        QPdfWriter writer(&buffer);
        if (!paintReport(writer, view, sections)) return failed(ReportErrorCode::notPainted);
    }
    mendCharacters(buffer.buffer());
    QByteArray pdf = withPdfFacts(std::move(buffer.buffer()), factsOf(view.report(), document));
    if (pdf.isNull()) return failed(ReportErrorCode::notPainted);
    return pdf;
}

tl::expected<void, ReportError> writePdf(const PrintView& view, std::span<const Section> sections,
                                         const QString& path) {
    const auto pdf = makePdf(view, sections);
    if (!pdf) return tl::unexpected(pdf.error());
    return replaceFile(path, *pdf).map_error(reportError);
}

} // namespace zel

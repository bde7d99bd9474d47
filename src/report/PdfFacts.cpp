#include "report/PdfFacts.h"

#include <QList>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// The number behind the last occurrence of a word, or -1.
qsizetype numberAfterLast(const QByteArray& pdf, const QByteArray& word) {
    const qsizetype at = pdf.lastIndexOf(word);
    if (at < 0) return -1;
    const QByteArray rest = pdf.mid(at + word.size(), 24).trimmed();
    qsizetype digits = 0;
    while (digits < rest.size() && '0' <= rest[digits] && rest[digits] <= '9')
        ++digits;
    return digits == 0 ? -1 : rest.left(digits).toLongLong();
}

/// The dictionary of an object, without its brackets, for one that holds no other.
QByteArray flatDictionary(const QByteArray& pdf, qsizetype number) {
    const qsizetype at = pdf.indexOf('\n' + QByteArray::number(number) + " 0 obj\n");
    const qsizetype begin = pdf.indexOf("<<", at);
    const qsizetype end = pdf.indexOf(">>", begin);
    return at < 0 || begin < 0 || end < 0 ? QByteArray() : pdf.mid(begin + 2, end - begin - 2);
}

QByteArray textString(const QString& text) {
    QByteArray units = "feff";
    for (const QChar unit : text)
        units += QByteArray::number(unit.unicode(), 16).rightJustified(4, '0');
    return '<' + units + '>';
}

QByteArray infoObject(const PdfFacts& facts) {
    const QByteArray date = DateToStr_EN(facts.created, u"yyyyMMddHHmmss"_s).toLatin1();
    return "<<\n/Title " + textString(facts.title) + "\n/Author " + textString(facts.author) + "\n/Creator "
           + textString(facts.creator) + "\n/Producer (Qt " + QByteArray(qVersion())
           + ")\n/CreationDate (D:" + date + "Z)\n>>";
}

/// Appends objects, and says where each stands.
class Update {
public:
    explicit Update(QByteArray& pdf) : bytes(pdf) {}

    void object(qsizetype number, const QByteArray& content) {
        table += QByteArray::number(number) + " 1\n"
                 + QByteArray::number(bytes.size()).rightJustified(10, '0') + " 00000 n \n";
        bytes += QByteArray::number(number) + " 0 obj\n" + content + "\nendobj\n";
    }
    void finish(const QByteArray& trailer) {
        const QByteArray start = QByteArray::number(bytes.size());
        bytes += "xref\n" + table + "trailer\n<<\n" + trailer + "\n>>\nstartxref\n" + start + "\n%%EOF\n";
    }

private:
    QByteArray& bytes;
    QByteArray table;
};

QByteArray entry(const char* name, qsizetype value, const char* end = "") {
    return QByteArray(name) + ' ' + QByteArray::number(value) + end;
}

} // namespace

QByteArray withPdfFacts(QByteArray pdf, const PdfFacts& facts) {
    const qsizetype size = numberAfterLast(pdf, "/Size");
    const qsizetype info = numberAfterLast(pdf, "/Info");
    const qsizetype root = numberAfterLast(pdf, "/Root");
    const qsizetype previous = numberAfterLast(pdf, "startxref");
    const QByteArray catalog = flatDictionary(pdf, root);
    if (size < 0 || info < 0 || previous < 0 || catalog.isEmpty()) return {};
    if (!pdf.endsWith('\n')) pdf += '\n';
    Update update(pdf);
    update.object(info, infoObject(facts));
    update.object(root, "<<" + catalog + "/Lang (" + facts.language
                            + ")\n/ViewerPreferences << /DisplayDocTitle true >>\n>>");
    update.finish(entry("/Size", size) + entry("\n/Info", info, " 0 R") + entry("\n/Root", root, " 0 R")
                  + entry("\n/Prev", previous));
    return pdf;
}

} // namespace zel

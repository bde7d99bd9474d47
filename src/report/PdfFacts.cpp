#include "report/PdfFacts.h"

#include <QList>

#include <algorithm>

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

/// The numbers of the page objects, in order.
std::vector<qsizetype> pageObjects(const QByteArray& pdf, const QByteArray& catalog) {
    const QByteArray tree = flatDictionary(pdf, numberAfterLast(catalog, "/Pages"));
    const qsizetype begin = tree.indexOf('[', tree.indexOf("/Kids"));
    const qsizetype end = tree.indexOf(']', begin);
    if (begin < 0 || end < 0) return {};
    std::vector<qsizetype> numbers;
    const QList<QByteArray> words = tree.mid(begin + 1, end - begin - 1).simplified().split(' ');
    for (qsizetype i = 0; i + 2 < words.size(); i += 3) // "12 0 R"
        numbers.push_back(words[i].toLongLong());
    return numbers;
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

/// The outline as objects from \p first on: its root, then one for each bookmark. \return how many
qsizetype addOutline(Update& update, qsizetype first, const std::vector<PdfBookmark>& bookmarks,
                     const std::vector<qsizetype>& pages) {
    const auto total = static_cast<qsizetype>(bookmarks.size());
    update.object(first, "<<\n/Type /Outlines\n" + entry("/First", first + 1, " 0 R\n")
                             + entry("/Last", first + total, " 0 R\n") + entry("/Count", total, "\n>>"));
    for (qsizetype i = 0; i < total; ++i) {
        const PdfBookmark& mark = bookmarks[static_cast<std::size_t>(i)];
        const qsizetype own = first + 1 + i;
        update.object(own, "<<\n/Title " + textString(mark.title) + entry("\n/Parent", first, " 0 R")
                               + (i > 0 ? entry("\n/Prev", own - 1, " 0 R") : QByteArray())
                               + (i + 1 < total ? entry("\n/Next", own + 1, " 0 R") : QByteArray())
                               + entry("\n/Dest [", pages.at(mark.page), " 0 R /Fit]\n>>"));
    }
    return total + 1;
}

/// The outline is open where there is a choice.
QByteArray outlineEntry(qsizetype outline, std::size_t bookmarks) {
    if (bookmarks == 0) return {};
    return entry("\n/Outlines", outline, " 0 R\n") + (bookmarks > 1 ? "/PageMode /UseOutlines\n" : "");
}

} // namespace

QByteArray withPdfFacts(QByteArray pdf, const PdfFacts& facts) {
    const qsizetype size = numberAfterLast(pdf, "/Size");
    const qsizetype info = numberAfterLast(pdf, "/Info");
    const qsizetype root = numberAfterLast(pdf, "/Root");
    const qsizetype previous = numberAfterLast(pdf, "startxref");
    const QByteArray catalog = flatDictionary(pdf, root);
    const std::vector<qsizetype> pages = pageObjects(pdf, catalog);
    const bool areThere = std::ranges::all_of(
        facts.bookmarks, [&](const PdfBookmark& mark) { return mark.page < pages.size(); });
    if (size < 0 || info < 0 || previous < 0 || catalog.isEmpty() || !areThere) return {};
    if (!pdf.endsWith('\n')) pdf += '\n';
    Update update(pdf);
    update.object(info, infoObject(facts));
    const bool isMarked = !facts.bookmarks.empty();
    const qsizetype added = isMarked ? addOutline(update, size, facts.bookmarks, pages) : 0;
    update.object(root, "<<" + catalog + outlineEntry(size, facts.bookmarks.size()) + "/Lang ("
                            + facts.language + ")\n/ViewerPreferences << /DisplayDocTitle true >>\n>>");
    update.finish(entry("/Size", size + added) + entry("\n/Info", info, " 0 R")
                  + entry("\n/Root", root, " 0 R") + entry("\n/Prev", previous));
    return pdf;
}

} // namespace zel

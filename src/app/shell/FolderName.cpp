#include "app/shell/FolderName.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

/// As many letters are no part of another word wherever they stand; as many are a word that tells something.
constexpr qsizetype unmistakable = 6, telling = 4;

/// Without capitals, accents and wide forms, which people and disks write as they like.
QString plainLetters(const QString& text) {
    QString letters;
    for (const QChar c : text.normalized(QString::NormalizationForm_KD).toCaseFolded())
        if (c.category() != QChar::Mark_NonSpacing) letters += c;
    letters.replace(u'ł', u'l').replace(u'ø', u'o');
    return letters.normalized(QString::NormalizationForm_C);
}

/// "Müller" is written "Muller" and "Mueller".
QStringList spellings(const QString& name) {
    QString spelt = name.normalized(QString::NormalizationForm_C).toLower();
    spelt.replace(u'ä', u"ae"_s).replace(u'ö', u"oe"_s).replace(u'ü', u"ue"_s);
    QStringList both{plainLetters(name), plainLetters(spelt)};
    both.removeDuplicates();
    return both;
}

QStringList wordsOf(const QString& plain) {
    static const QRegularExpression between(u"[^\\w]+|_+"_s, QRegularExpression::UseUnicodePropertiesOption);
    return plain.split(between, Qt::SkipEmptyParts);
}

QString joined(const QString& plain) { return wordsOf(plain).join(QString()); }

/// Written without blanks, so that words are not told from each other by how they are written.
bool isOfCharacters(const QString& name) {
    const auto kind = [](char32_t c) { return QChar::script(c); };
    return std::ranges::any_of(name.toUcs4(), [&kind](char32_t c) {
        return kind(c) == QChar::Script_Han || kind(c) == QChar::Script_Hiragana
               || kind(c) == QChar::Script_Katakana || kind(c) == QChar::Script_Hangul;
    });
}

/// One folder of a path, as names are looked for in it.
struct FolderPart {
    QSet<QString> words;
    QSet<QString> plainWords; ///< those that are parted by more than their letters
    QString text;             ///< all of it, without what stands between words

    explicit FolderPart(const QString& name) : text(joined(plainLetters(name))) {
        // "SmithMargaret" and "Smith2026" are two words, too.
        static const QRegularExpression capital(u"(?<=\\p{Ll})(?=\\p{Lu})|(?<=\\p{Lu})(?=\\p{Lu}\\p{Ll})"_s);
        static const QRegularExpression digit(u"(?<=\\p{L})(?=\\p{N})|(?<=\\p{N})(?=\\p{L})"_s);
        const QString composed = name.normalized(QString::NormalizationForm_C);
        QString byCapitals = composed;
        byCapitals.replace(capital, u" "_s);
        for (const QString& split : {composed, byCapitals}) {
            add(split);
            add(QString(split).replace(digit, u" "_s));
        }
        words.insert(text);
        for (const QString& word : wordsOf(plainLetters(name)))
            plainWords.insert(word);
    }
    void add(const QString& split) {
        for (const QString& word : wordsOf(plainLetters(split)))
            words.insert(word);
    }
    [[nodiscard]] static bool hasAll(const QSet<QString>& of, const QStringList& wanted) {
        return !wanted.isEmpty()
               && std::ranges::all_of(wanted, [&of](const QString& word) { return of.contains(word); });
    }
    /// Short ones are looked for where they stand alone only: "7" is not named by "Volume7".
    [[nodiscard]] bool hasID(const QString& ID) const {
        const QString whole = joined(ID);
        return hasAll(plainWords, wordsOf(ID)) || (!whole.isEmpty() && text == whole)
               || (whole.size() >= telling && has(whole));
    }
    /// As a word of its own, or anywhere if it can be nothing else.
    [[nodiscard]] bool has(const QString& name) const {
        const qsizetype least = isOfCharacters(name) ? 2 : unmistakable;
        return !name.isEmpty() && (words.contains(name) || (name.size() >= least && text.contains(name)));
    }
    /// Family name and given names, run together in either order; also with the first of them, or an initial.
    [[nodiscard]] bool hasTogether(const QString& family, const QStringList& given) const {
        if (given.isEmpty()) return false;
        const QString initial = given.front().left(1);
        for (const QString& first : {given.join(QString()), given.front()})
            if (has(family + first) || has(first + family)) return true;
        return words.contains(family + initial) || words.contains(initial + family);
    }
    [[nodiscard]] bool isTitled(const QString& family) const {
        const QStringList titles{u"先生"_s, u"女士"_s, u"小姐"_s, u"太太"_s};
        return std::ranges::any_of(titles,
                                   [&](const QString& title) { return text.contains(family + title); });
    }
    /// In characters the given names alone are somebody's, too; in letters they are many people's.
    [[nodiscard]] bool names(const QString& family, const QString& given) const {
        const QString wholeFamily = joined(family), wholeGiven = joined(given);
        if (isOfCharacters(given) && wholeGiven.size() > 1 && has(wholeGiven)) return true;
        if (wholeFamily.isEmpty()) return false;
        if (isOfCharacters(family) && (has(wholeFamily) || isTitled(wholeFamily))) return true;
        const auto isHere = [this](const QString& word) { // one of a double name is enough
            return word.size() >= telling && words.contains(word);
        };
        const QStringList familyWords = wordsOf(family);
        return hasAll(words, familyWords) || std::ranges::any_of(familyWords, isHere)
               || words.contains(wholeFamily) || hasTogether(wholeFamily, wordsOf(given));
    }
};

bool namesAny(const FolderPart& part, const std::vector<PatientModel>& patients) {
    return std::ranges::any_of(patients, [&part](const PatientModel& patient) {
        if (part.hasID(plainLetters(patient.ID))) return true;
        const QStringList given = spellings(patient.GivenNames);
        const QStringList family = spellings(patient.FamilyName);
        return std::ranges::any_of(family, [&](const QString& spelt) {
            return part.names(spelt, given.front()) || part.names(spelt, given.back());
        });
    });
}

} // namespace

QString folderNamingNobody(const QString& folder, const std::vector<PatientModel>& patients) {
    const QString user = QDir::home().dirName();
    QString kept;
    for (const QString& part : QDir::cleanPath(folder).split(u'/', Qt::SkipEmptyParts)) {
        if (part != user && namesAny(FolderPart(part), patients)) break;
        kept += u'/' + part;
    }
    return kept.isEmpty() ? u"/"_s : kept;
}

} // namespace zel

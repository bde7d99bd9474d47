#include "store/Languages.h"

#include "store/Log.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <algorithm>
#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array knownLanguages{Language{"de"_L1, u"Deutsch"},    Language{"en"_L1, u"English"},
                                    Language{"es"_L1, u"Español"},    Language{"fr"_L1, u"Français"},
                                    Language{"it"_L1, u"Italiano"},   Language{"pl"_L1, u"Polski"},
                                    Language{"zh_TW"_L1, u"繁體中文"}};
constexpr auto languageWord = "--language"_L1;

const Language* languageByTag(QStringView tag) {
    const auto* found =
        std::ranges::find_if(knownLanguages, [&](const Language& known) { return known.tag == tag; });
    return found == knownLanguages.end() ? nullptr : found;
}

bool isTraditional(const QStringList& behind) {
    if (behind.contains("hans"_L1)) return false;
    constexpr std::array signs{"hant"_L1, "tw"_L1, "hk"_L1, "mo"_L1};
    return std::ranges::any_of(signs, [&](QLatin1StringView sign) { return behind.contains(sign); });
}

bool isPlainLocale(const QString& locale) {
    return locale.isEmpty() || locale == "C"_L1 || locale == "POSIX"_L1 || locale.startsWith("C."_L1);
}

/// In the order in which they are wanted. Who sets the plain locale, as scripts do, wants no other language.
QStringList wantedLocales(const QProcessEnvironment& environment) {
    QString messages;
    for (const auto& variable : {u"LC_ALL"_s, u"LC_MESSAGES"_s, u"LANG"_s})
        if (messages.isEmpty()) messages = environment.value(variable);
    if (isPlainLocale(messages)) return {};
    const QStringList listed = environment.value(u"LANGUAGE"_s).split(u':', Qt::SkipEmptyParts);
    return listed.isEmpty() ? QStringList{messages} : listed;
}

QString tagNames() {
    QStringList names;
    names.reserve(qsizetype{knownLanguages.size()});
    for (const Language& language : knownLanguages)
        names += language.tag;
    return names.join(u", "_s);
}

} // namespace

std::span<const Language> languages() { return knownLanguages; }

const Language& english() { return *languageByTag(u"en"); }

const Language* languageFor(const QString& locale) {
    const QString name = locale.section(u'.', 0, 0).section(u'@', 0, 0).toLower().replace(u'-', u'_');
    const QStringList parts = name.split(u'_');
    if (parts.constFirst() == "zh"_L1) return isTraditional(parts.mid(1)) ? languageByTag(u"zh_TW") : nullptr;
    return languageByTag(parts.constFirst());
}

const Language& systemLanguage(const QProcessEnvironment& environment) {
    for (const QString& locale : wantedLocales(environment))
        if (const Language* language = languageFor(locale)) return *language;
    return english();
}

LanguageOption takeLanguageOption(const QStringList& arguments) {
    LanguageOption taken;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& word = arguments.at(i);
        if (word == languageWord)
            taken.tags += arguments.value(++i);
        else if (word.startsWith(languageWord + u'='))
            taken.tags += word.mid(languageWord.size() + 1);
        else
            taken.words += word;
    }
    return taken;
}

QString languageProblem(const LanguageOption& option) {
    if (option.tags.size() > 1) return qtTrId("LanguageTwice");
    if (option.tags.isEmpty() || languageFor(option.tags.constFirst())) return {};
    if (option.tags.constFirst().isEmpty()) return qtTrId("LanguageMissing").arg(tagNames());
    return qtTrId("LanguageUnknown").arg(option.tags.constFirst(), tagNames());
}

const Language& languageOfRun(const LanguageOption& option, const QString& chosen,
                              const QProcessEnvironment& environment) {
    for (const QString& tag : {option.tags.value(0), chosen})
        if (const Language* language = languageFor(tag)) return *language;
    return systemLanguage(environment);
}

/// Words are looked for in the table that was installed last.
ProgramTexts::ProgramTexts(const Language& language) {
    install(u"qtbase_"_s + language.tag, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(u"zel_"_s + english().tag, u":"_s);
    if (language.tag != english().tag) install(u"zel_"_s + language.tag, u":"_s);
}

ProgramTexts::~ProgramTexts() {
    for (const auto& table : tables)
        QCoreApplication::removeTranslator(table.get());
}

void ProgramTexts::install(const QString& name, const QString& folder) {
    auto table = std::make_unique<QTranslator>();
    if (!table->load(folder + u'/' + name + u".qm"_s)) {
        qCDebug(lcStore, "no table of texts %s", qUtf8Printable(name));
        return;
    }
    QCoreApplication::installTranslator(table.get());
    tables.push_back(std::move(table));
}

QLocale textLocale() { return QLocale{qtTrId("languageTag")}; }

} // namespace zel

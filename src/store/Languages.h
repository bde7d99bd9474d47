#pragma once
// The languages that the program has words in, and which of them a run speaks.

#include <QLocale>
#include <QProcessEnvironment>
#include <QStringList>

#include <memory>
#include <span>
#include <vector>

class QTranslator;

namespace zel {

struct Language {
    QLatin1StringView tag; ///< of its table, and of Qt's: "de", "zh_TW"
    QStringView ownName;
};

/// By their own names.
[[nodiscard]] std::span<const Language> languages();
[[nodiscard]] const Language& english();

/// The language that a locale's name means, as the environment or a web page writes it (de_AT.UTF-8,
/// zh-Hant-HK); null where there are no words in it. Chinese is written in two ways, of which the program has
/// the traditional one.
[[nodiscard]] const Language* languageFor(const QString& locale);
/// The language of messages that the environment asks for; English if there are no words in any of those.
[[nodiscard]] const Language& systemLanguage(const QProcessEnvironment& environment);

/// The arguments without --language TAG and --language=TAG, which may stand anywhere.
struct LanguageOption {
    QStringList words;
    QStringList tags; ///< empty: one without its value
};
[[nodiscard]] LanguageOption takeLanguageOption(const QStringList& arguments);
/// What is wrong with it, in words; empty if nothing is.
[[nodiscard]] QString languageProblem(const LanguageOption& option);
/// The language of a run: the option's, else the one chosen (its tag, or empty), else the system's.
[[nodiscard]] const Language& languageOfRun(const LanguageOption& option, const QString& chosen,
                                            const QProcessEnvironment& environment);

/// The program's words in one language, for as long as it lives; English ones where a table lacks some, and
/// Qt's own words where its tables are installed. Needs a QCoreApplication.
class ProgramTexts {
public:
    explicit ProgramTexts(const Language& language);
    ~ProgramTexts();
    ProgramTexts(const ProgramTexts&) = delete;
    ProgramTexts& operator=(const ProgramTexts&) = delete;
    ProgramTexts(ProgramTexts&&) = delete;
    ProgramTexts& operator=(ProgramTexts&&) = delete;

private:
    void install(const QString& name, const QString& folder);

    std::vector<std::unique_ptr<QTranslator>> tables;
};

/// The locale whose words for months and days go with the texts shown; C where there are none.
[[nodiscard]] QLocale textLocale();

} // namespace zel

#include "report/UsualPaper.h"

#include <QLocale>

#include <algorithm>
#include <array>

namespace zel {

QString paperLocale() {
    for (const char* variable : {"LC_ALL", "LC_PAPER", "LANG"})
        if (!qEnvironmentVariableIsEmpty(variable)) return qEnvironmentVariable(variable);
    return {};
}

QPageSize usualPaper(const QString& locale) {
    using enum QLocale::Country;
    constexpr std::array onLetter{UnitedStates, Canada,    Mexico,   PuertoRico, Philippines,
                                  Bolivia,      Chile,     Colombia, CostaRica,  ElSalvador,
                                  Guatemala,    Nicaragua, Panama,   Venezuela};
    // A name without a country is about a language alone.
    const bool isLetter =
        locale.contains(u'_') && std::ranges::find(onLetter, QLocale(locale).territory()) != onLetter.end();
    return QPageSize(isLetter ? QPageSize::Letter : QPageSize::A4);
}

} // namespace zel

#include "store/ViewLimits.h"

#include "store/ChoiceFile.h"
#include "store/PressureLimits.h"

#include <QFileInfo>

#include <algorithm>
#include <optional>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array choiceKeys{"home"_L1, "office"_L1, "low"_L1, "own"_L1};

QString choicePath(const QString& dataFile) { return QFileInfo{dataFile}.path() + u"/View.json"_s; }

std::optional<LimitChoice> choiceNamed(const QString& key) {
    const auto* found = std::ranges::find_if(choiceKeys, [&key](auto each) { return key == each; });
    if (found == choiceKeys.end()) return std::nullopt;
    return static_cast<LimitChoice>(found - choiceKeys.begin());
}

/// None for what is no whole number of mmHg.
std::optional<std::uint32_t> limitIn(const QJsonValue& value) {
    const int number = value.toInt(-1);
    return number < 0 ? std::nullopt : std::optional(static_cast<std::uint32_t>(number));
}

std::optional<ViewLimits> limitsIn(const QJsonObject& choice) {
    const auto named = choiceNamed(choice[u"highFrom"_s].toString());
    const auto sys = limitIn(choice[u"ownSystolic"_s]);
    const auto dia = limitIn(choice[u"ownDiastolic"_s]);
    if (!named || !sys || !dia || limitProblem(*sys, *dia)) return std::nullopt;
    return ViewLimits{*named, {*sys, *dia}};
}

} // namespace

tl::expected<ViewLimits, StoreError> readViewLimits(const QString& dataFile) {
    const QString path = choicePath(dataFile);
    const auto choice = readChoiceFile(path);
    if (!choice) return tl::unexpected{choice.error()};
    if (!*choice) return ViewLimits{};
    const auto read = limitsIn(**choice);
    if (!read) return tl::unexpected{StoreError{StoreErrorCode::notReadable, path, {}}};
    return *read;
}

StoreResult writeViewLimits(const QString& dataFile, const ViewLimits& limits) {
    const QString path = choicePath(dataFile);
    if (limitProblem(limits.own.sys, limits.own.dia))
        return tl::unexpected{StoreError{StoreErrorCode::invalidRecord, path, {}}};
    QJsonObject choice = readChoiceFile(path).value_or(std::nullopt).value_or(QJsonObject());
    choice[u"highFrom"_s] = choiceKeys.at(static_cast<std::size_t>(limits.choice));
    choice[u"ownSystolic"_s] = static_cast<int>(limits.own.sys);
    choice[u"ownDiastolic"_s] = static_cast<int>(limits.own.dia);
    return writeChoiceFile(path, choice);
}

QString describeUnreadLimits(const StoreError& error) {
    const LimitPair usual = ViewLimits{}.limits();
    return qtTrId("ViewLimitsUnread").arg(error.path).arg(usual.sys).arg(usual.dia);
}

} // namespace zel

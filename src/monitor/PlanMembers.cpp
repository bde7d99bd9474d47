#include "monitor/PlanMembers.h"

#include <algorithm>
#include <cmath>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

QString range(int smallest, int largest) { return u"%1-%2"_s.arg(smallest).arg(largest); }

} // namespace

PlanMembers::PlanMembers(const QJsonValue& value, QString itsPath, std::optional<PlanError>& firstError)
    : object(value.toObject()), path(std::move(itsPath)), error(firstError) {
    if (!value.isObject()) fail(Code::notObject, {});
}

QString PlanMembers::text(const QString& key, int shortest, int longest) {
    const QJsonValue value = take(key);
    QString text = value.toString();
    if (!value.isString()) fail(Code::notText, key);
    if (text.size() < shortest || text.size() > longest)
        fail(Code::wrongLength, key,
             shortest == longest ? QString::number(longest) : range(shortest, longest));
    if (std::ranges::any_of(text, [](QChar c) { return c > u'\xFF'; })) fail(Code::unencodable, key);
    return text;
}

std::string PlanMembers::bytes(const QString& key, int shortest, int longest) {
    return text(key, shortest, longest).toLatin1().toStdString();
}

int PlanMembers::whole(const QString& key, int smallest, int largest) {
    const QJsonValue value = take(key);
    const double number = value.toDouble();
    const bool fits =
        value.isDouble() && number >= smallest && number <= largest && number == std::floor(number);
    if (!fits) fail(Code::notWhole, key, range(smallest, largest));
    return fits ? static_cast<int>(number) : smallest;
}

std::optional<int> PlanMembers::optionalWhole(const QString& key, int smallest, int largest) {
    return has(key) ? std::optional(whole(key, smallest, largest)) : std::nullopt;
}

QJsonArray PlanMembers::array(const QString& key, int most) {
    const QJsonValue value = take(key);
    if (!value.isArray()) fail(Code::notList, key);
    QJsonArray values = value.toArray();
    if (values.size() > most) fail(Code::tooMany, key, QString::number(most));
    return values;
}

QJsonValue PlanMembers::take(const QString& key) {
    if (!has(key)) fail(Code::missing, key);
    return object.take(key);
}

void PlanMembers::finish() {
    if (!object.isEmpty()) fail(Code::unknownKey, object.keys().constFirst());
}

void PlanMembers::fail(Code code, const QString& key, const QString& detail) {
    if (!error) error = PlanError{code, pathOf(key), detail};
}

QString PlanMembers::pathOf(const QString& key) const {
    return path.isEmpty() || key.isEmpty() ? path + key : path + u'.' + key;
}

} // namespace zel

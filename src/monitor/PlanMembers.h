#pragma once

#include "monitor/SimulatedMonitorPlan.h"

#include <QJsonArray>
#include <QJsonObject>

namespace zel {

/// The members of one JSON object of a plan. Each is taken by its key; what is left over at the end is
/// unknown. The first error is kept and everything after it is of no interest.
class PlanMembers {
public:
    using Code = PlanError::Code;

    PlanMembers(const QJsonValue& value, QString itsPath, std::optional<PlanError>& firstError);

    [[nodiscard]] bool has(const QString& key) const { return object.contains(key); }

    QString text(const QString& key, int shortest, int longest);
    std::string bytes(const QString& key, int shortest, int longest);
    int whole(const QString& key, int smallest, int largest);
    std::optional<int> optionalWhole(const QString& key, int smallest, int largest);
    /// Calls \p each with every value of a list and its path.
    template <class Each>
    void list(const QString& key, int most, const Each& each) {
        const QJsonArray values = array(key, most);
        for (qsizetype i = 0; i < values.size() && !error; ++i)
            each(values[i], QStringLiteral("%1[%2]").arg(pathOf(key)).arg(i));
    }
    QJsonValue take(const QString& key);
    void finish();
    void fail(Code code, const QString& key, const QString& detail = {});

private:
    QJsonArray array(const QString& key, int most);
    [[nodiscard]] QString pathOf(const QString& key) const;

    QJsonObject object;
    QString path;
    std::optional<PlanError>& error;
};

} // namespace zel

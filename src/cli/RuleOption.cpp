#include "cli/RuleOption.h"

#include "cli/Usage.h"

namespace zel::cli {

using namespace Qt::StringLiterals;

tl::expected<AverageRule, Failure> ruleOption(const Request& request) {
    if (!request.options.isSet(u"rule"_s)) return AverageRule::esh;
    const QString key = request.options.value(u"rule"_s);
    if (const auto rule = averageRuleNamed(key)) return *rule;
    QStringList keys;
    for (const AverageRuleFacts& facts : averageRules)
        keys += QLatin1String(facts.key);
    return wrongUsage(qtTrId("CliNoSuchRule").arg(key, keys.join(u", "_s)));
}

} // namespace zel::cli

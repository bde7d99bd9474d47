#include "analysis/ExactMean.h"

namespace zel {

using namespace Qt::StringLiterals;

namespace {

std::uint64_t halfUp(std::uint64_t numerator, std::uint64_t denominator) {
    return (2 * numerator + denominator) / (2 * denominator);
}

} // namespace

bool ExactMean::isAtLeast(std::uint32_t limit) const { return counted > 0 && sum >= limit * counted; }

std::uint64_t ExactMean::rounded() const { return halfUp(sum, counted); }

QString ExactMean::withTenths() const {
    const std::uint64_t tenths = halfUp(10 * sum, counted);
    return QString::number(tenths / 10) + u'.' + QString::number(tenths % 10);
}

QString ExactMean::withTenthsBeside(std::uint32_t limit) const {
    const QString tenths = withTenths();
    return !isAtLeast(limit) && tenths == QString::number(limit) + ".0"_L1 ? u'<' + tenths : tenths;
}

} // namespace zel

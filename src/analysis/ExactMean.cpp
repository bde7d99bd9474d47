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

QString ExactMean::beside(std::uint32_t limit, const QString& shown, const QString& shownLimit) const {
    return !isAtLeast(limit) && shown == shownLimit ? u'<' + shown : shown;
}

QString ExactMean::roundedBeside(std::uint32_t limit) const {
    return beside(limit, QString::number(rounded()), QString::number(limit));
}

QString ExactMean::withTenthsBeside(std::uint32_t limit) const {
    return beside(limit, withTenths(), QString::number(limit) + ".0"_L1);
}

} // namespace zel

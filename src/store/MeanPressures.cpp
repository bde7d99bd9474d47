#include "store/MeanPressures.h"

#include <cmath>

namespace zel {

namespace {

/// Each of three numbers may be rounded in a way of its own, and monitors compute the means from what they do
/// not show. Columns that were taken for one another differ by far more. mmHg.
constexpr double tolerance = 2;

std::optional<double> unlessNone(double number) { return number == 0 ? std::nullopt : std::optional{number}; }

std::optional<double> numberIn(const CsvReader& line, std::optional<std::size_t> column) {
    if (!column) return {};
    bool isNumber = false;
    const double number = line.cells()[*column].trimmed().replace(u',', u'.').toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? unlessNone(number) : std::nullopt;
}

} // namespace

MeanPressures meanPressuresOf(const ReadingModel& reading) {
    return {unlessNone(reading.map), unlessNone(reading.pp)};
}

MeanPressures meanPressuresOf(const CsvReader& line, const TableLayout& layout) {
    return {numberIn(line, layout.map), numberIn(line, layout.pp)};
}

QString meanPressureProblem(const MeanPressures& means, const ReadingModel& reading) {
    const double sys = reading.sys, dia = reading.dia;
    const auto pressures = [&reading](const QString& text, double mean) {
        return text.arg(mean).arg(reading.sys).arg(reading.dia);
    };
    if (means.pp && std::abs(*means.pp - (sys - dia)) > tolerance)
        return pressures(qtTrId("TablePulsePressure"), *means.pp);
    if (means.map && (*means.map < dia - tolerance || *means.map > sys + tolerance))
        return pressures(qtTrId("TableMeanPressure"), *means.map);
    return {};
}

} // namespace zel

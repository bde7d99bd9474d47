// The reading list and the figures of one patient with 100,000 readings, beside the same with 10,000.
// Each at most 10 ms, and a ratio of at most 12.

#include "analysis/Correlation.h"
#include "analysis/Histogram.h"
#include "analysis/ReadingRows.h"
#include "analysis/Statistic.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <random>

namespace {

using namespace zel;
using std::chrono::days;
using std::chrono::hours;
using std::chrono::minutes;

constexpr std::size_t few = 10'000;
constexpr std::size_t many = 100'000;
constexpr Instant start = std::chrono::sys_days{std::chrono::year{2001} / 1 / 2};

enum class Order { byDate, shuffled };

/// How much there is of one patient.
struct Shape {
    std::size_t readings;
    minutes apart = hours{3};
    int comments = 1'000; ///< one every ten days
    days commentLength{3};
    Order order = Order::byDate;
};

/// One patient, with a download every week.
struct Sample {
    ReadingList readings;
    CommentList comments;
    DataLogList downloads;
    ReadingSelection selection;
    LocalZone zone;

    explicit Sample(const Shape& shape)
        : selection{{start, start + shape.apart * shape.readings}, ViewSelection::viewAll, true} {
        std::mt19937 random{1};
        std::uniform_int_distribution<std::uint32_t> value{40, 160};
        for (std::size_t i = 0; i < shape.readings; ++i) {
            ReadingModel& reading = readings.emplace_back();
            reading.ReadingDate = start + shape.apart * i;
            reading.sys = value(random);
            reading.dia = value(random);
            reading.pulse = value(random);
            reading.postInit(nullptr, {}, zone);
        }
        if (shape.order == Order::shuffled) std::ranges::shuffle(readings, random);
        for (int i = 0; i < shape.comments; ++i)
            addComment(start + days{10} * i, shape.commentLength);
        for (int i = 0; i < 1'000; ++i)
            downloads.emplace_back().transferDay = zone.day(start + days{7} * i);
    }

    void addComment(Instant begin, days length) {
        CommentModel& comment = *comments.emplace_back(std::make_unique<CommentModel>());
        comment.beginDate = begin;
        comment.endDate = begin + length;
        comment.beginDay = zone.day(comment.beginDate);
        comment.endDay = zone.day(comment.endDate);
    }

    [[nodiscard]] ReadingRows rows() const {
        return assembleReadingRows({readings, comments, downloads, selection}, zone);
    }
};

/// Of this program's own time, so that a busy machine does not count.
double milliseconds(const Sample& sample, auto&& work) {
    const std::clock_t before = std::clock();
    benchmark::DoNotOptimize(work(sample));
    return 1000.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
}

double median(std::vector<double>& values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// Runs in pairs, so that a drift of the machine's speed cancels out.
void compare(benchmark::State& state, const Sample& small, const Sample& large, auto&& work) {
    std::vector<double> times;
    std::vector<double> ratios;
    for ([[maybe_unused]] auto turn : state) {
        const double base = milliseconds(small, work);
        times.push_back(milliseconds(large, work));
        ratios.push_back(times.back() / base);
    }
    state.counters["MS"] = median(times);
    state.counters["RATIO"] = median(ratios);
}

constexpr auto assemble = [](const Sample& sample) { return sample.rows(); };

void list(benchmark::State& state) { compare(state, Sample{{few}}, Sample{{many}}, assemble); }

void listOfShuffled(benchmark::State& state) {
    compare(state, Sample{{.readings = few, .order = Order::shuffled}},
            Sample{{.readings = many, .order = Order::shuffled}}, assemble);
}

void statistic(benchmark::State& state) {
    compare(state, Sample{{few}}, Sample{{many}},
            [](const Sample& s) { return calcStatistic(s.readings, s.selection, true); });
}

void histogram(benchmark::State& state) {
    compare(state, Sample{{few}}, Sample{{many}},
            [](const Sample& s) { return calcHistogram(s.readings, s.selection); });
}

void correlation(benchmark::State& state) {
    compare(state, Sample{{few}}, Sample{{many}},
            [](const Sample& s) { return calcCorrelation(s.readings, s.selection); });
}

/// A reading a month among 100 and among 1,000 comments that cover most days.
void placeholders(benchmark::State& state) {
    compare(state, Sample{{.readings = 33, .apart = days{30}, .comments = 100, .commentLength = days{9}}},
            Sample{{.readings = 330, .apart = days{30}, .comments = 1'000, .commentLength = days{9}}},
            assemble);
}

/// 1,000 comments of 60 years each.
void overlappingComments(benchmark::State& state) {
    compare(state, Sample{{.readings = few, .commentLength = days{365 * 60}}},
            Sample{{.readings = many, .commentLength = days{365 * 60}}}, assemble);
}

BENCHMARK(list)->Unit(benchmark::kMillisecond)->Iterations(51);
BENCHMARK(listOfShuffled)->Unit(benchmark::kMillisecond)->Iterations(51);
BENCHMARK(statistic)->Unit(benchmark::kMillisecond)->Iterations(51);
BENCHMARK(histogram)->Unit(benchmark::kMillisecond)->Iterations(51);
BENCHMARK(correlation)->Unit(benchmark::kMillisecond)->Iterations(51);
BENCHMARK(placeholders)->Unit(benchmark::kMillisecond)->Iterations(51);
BENCHMARK(overlappingComments)->Unit(benchmark::kMillisecond)->Iterations(51);

} // namespace

BENCHMARK_MAIN();

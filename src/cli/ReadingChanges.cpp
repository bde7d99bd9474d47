#include "cli/ReadingChanges.h"

#include "cli/Commands.h"
#include "cli/OpenStore.h"
#include "cli/Usage.h"

#include <QTime>

#include <array>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

/// One of the jobs, and the other options that go with it.
struct ReadingJob {
    QString option;
    bool hasValue;
    QStringList goesWith;
    CommandResult (*run)(const Request& request, DataStore& store, Surroundings& around);
};

QStringList typedOptions() { return {u"date"_s, u"time"_s, u"sys"_s, u"dia"_s, u"pulse"_s}; }

/// A number that is none is out of every range.
std::uint32_t numberOf(const QString& text) {
    bool isNumber = false;
    const std::uint32_t number = text.toUInt(&isNumber);
    return isNumber ? number : 0;
}

QString timeForm() { return u"HH:mm"_s; }

/// What the options say, over what \p known has already. One that is wrong is refused by manualProblem().
ManualReading typedReading(const Request& request, const ManualReading& known) {
    ManualReading typed = known;
    const auto option = [&](const QString& name, std::uint32_t& value) {
        if (request.options.isSet(name)) value = numberOf(request.options.value(name));
    };
    option(u"sys"_s, typed.sys);
    option(u"dia"_s, typed.dia);
    option(u"pulse"_s, typed.pulse);
    if (!request.options.isSet(u"date"_s) && !request.options.isSet(u"time"_s)) return typed;
    const auto text = [&](const QString& name, const QString& form) {
        return request.options.isSet(name) ? request.options.value(name) : DateToStr(known.time, form);
    };
    typed.time = typedTime(text(u"date"_s, u"yyyy-MM-dd"_s), text(u"time"_s, timeForm()));
    return typed;
}

CommandResult checkTyped(const ManualReading& typed, const Surroundings& around) {
    const auto problem =
        manualProblem(typed, std::chrono::floor<Instant::duration>(std::as_const(around).clock.now()));
    return problem ? CommandResult(wrongUsage(describe(*problem))) : CommandResult();
}

CommandResult doneOrFailed(const StoreResult& result) {
    return result ? CommandResult() : CommandResult(failed(describe(result.error())));
}

/// The patient's reading with the number that the option gives. One that several have is nobody's.
tl::expected<ReadingModel, Failure> readingOf(const Request& request, const QString& option,
                                              const DataStore& store) {
    const QString number = request.options.value(option);
    const ReadingModel* found = nullptr;
    for (const ReadingModel& reading : store.getReadingForCurID()) {
        if (reading.RecID != number) continue;
        if (found) return failed(qtTrId("CliReadingNotUnique").arg(number));
        found = &reading;
    }
    if (!found) return failed(qtTrId("CliNoSuchReading").arg(number));
    return *found;
}

CommandResult excludeOne(const Request& request, DataStore& store, Surroundings&) {
    return readingOf(request, u"exclude"_s, store).and_then([&](const ReadingModel& reading) {
        return doneOrFailed(store.excludeReadings({reading}, request.options.value(u"reason"_s)));
    });
}

CommandResult includeOne(const Request& request, DataStore& store, Surroundings& around) {
    return readingOf(request, u"include"_s, store).and_then([&](const ReadingModel& reading) {
        if (!reading.isExcluded())
            return CommandResult(failed(qtTrId("CliNotExcluded").arg(reading.RecID.text())));
        const auto taken = store.includeReadings({reading});
        if (!taken) return CommandResult(failed(describe(taken.error())));
        if (!taken->still.isNone()) return CommandResult(failed(describe(taken->still)));
        if (taken->leftOut > 0) printLine(around.out, u"left-out: "_s + QString::number(taken->leftOut));
        return CommandResult();
    });
}

CommandResult addOne(const Request& request, DataStore& store, Surroundings& around) {
    const auto number = store.addReading(store.getCurrentID(), typedReading(request, {}));
    if (!number) return failed(describe(number.error()));
    printLine(around.out, u"record: "_s + *number);
    return {};
}

CommandResult changeOne(const Request& request, DataStore& store, Surroundings& around) {
    return readingOf(request, u"change"_s, store).and_then([&](const ReadingModel& reading) -> CommandResult {
        const ManualReading typed = typedReading(request, ManualReading::of(reading));
        if (!reading.isManual) return doneOrFailed(store.changeReading(reading, typed));
        return checkTyped(typed, around).and_then([&] {
            return doneOrFailed(store.changeReading(reading, typed));
        });
    });
}

CommandResult removeOne(const Request& request, DataStore& store, Surroundings&) {
    return readingOf(request, u"delete"_s, store).and_then([&](const ReadingModel& reading) {
        return doneOrFailed(store.deleteReadings({reading}));
    });
}

std::array<ReadingJob, 5> readingJobs() {
    return {ReadingJob{u"exclude"_s, true, {u"reason"_s}, excludeOne},
            ReadingJob{u"include"_s, true, {}, includeOne},
            ReadingJob{u"add"_s, false, typedOptions(), addOne},
            ReadingJob{u"change"_s, true, typedOptions(), changeOne},
            ReadingJob{u"delete"_s, true, {}, removeOne}};
}

const ReadingJob* chosenJob(const Request& request, const std::array<ReadingJob, 5>& all) {
    const auto* chosen = std::ranges::find_if(
        all, [&request](const ReadingJob& job) { return request.options.isSet(job.option); });
    return chosen == all.end() ? nullptr : chosen;
}

/// No option stands beside a job that has no use for it.
CommandResult checkOptions(const Request& request, const ReadingJob& job) {
    for (const QString& name : request.options.optionNames())
        if (name != job.option && name != "patient"_L1 && !job.goesWith.contains(name))
            return wrongUsage(qtTrId("CliNotTogether").arg(job.option, name));
    return {};
}

/// What can be seen without the data file.
CommandResult checkValues(const Request& request, const ReadingJob& job, const Surroundings& around) {
    if (job.option == "exclude"_L1) {
        const auto reason = requiredValue(request, u"reason"_s);
        if (!reason) return tl::unexpected(reason.error());
        if (exclusionReason(*reason).isEmpty())
            return wrongUsage(qtTrId("CliOptionMissing").arg(u"reason"_s));
    }
    const auto isGiven = [&request](const QString& name) { return request.options.isSet(name); };
    if (job.option == "change"_L1 && std::ranges::none_of(job.goesWith, isGiven))
        return wrongUsage(qtTrId("CliChangeOfNothing"));
    if (job.hasValue) return requiredValue(request, job.option).map([](const QString&) {});
    for (const QString& name : job.goesWith)
        if (const auto value = requiredValue(request, name); !value) return tl::unexpected(value.error());
    return checkTyped(typedReading(request, {}), around);
}

} // namespace

QList<QCommandLineOption> readingChangeOptions() {
    QList options{valued(u"reason"_s)};
    for (const ReadingJob& job : readingJobs())
        options += job.hasValue ? valued(job.option) : flag(job.option);
    for (const QString& name : typedOptions())
        options += valued(name);
    return options;
}

bool asksForReadingChange(const Request& request) {
    const auto all = readingJobs();
    if (chosenJob(request, all)) return true;
    const QStringList given = request.options.optionNames();
    return given.contains(u"reason"_s)
           || std::ranges::any_of(typedOptions(), [&](const QString& name) { return given.contains(name); });
}

CommandResult changeReadings(const Request& request, Surroundings& around) {
    const auto ID = requiredValue(request, u"patient"_s);
    if (!ID) return tl::unexpected(ID.error());
    const auto all = readingJobs();
    const ReadingJob* job = chosenJob(request, all);
    if (!job) return wrongUsage(qtTrId("CliReadingJobMissing"));
    CommandResult isRight =
        checkOptions(request, *job).and_then([&] { return checkValues(request, *job, around); });
    if (!isRight) return isRight;
    const OpenedStore store = openStoreForWriting(around);
    if (!store) return tl::unexpected(store.error());
    return checkPatient(**store, *ID).and_then([&] {
        (*store)->setCurrentID(*ID);
        return job->run(request, **store, around);
    });
}

} // namespace zel::cli

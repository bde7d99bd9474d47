#include "monitor/PlanMembers.h"
#include "monitor/SimulatedMonitorPlan.h"
#include "store/Dates.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

using Code = PlanError::Code;
using Kind = SimulatedFault::Kind;

constexpr int longestOffset = 400 * 24 * 3600; ///< seconds; more than a year either way
constexpr int mostTimes = 1'000'000;
constexpr int longestDelay = 3'600'000; ///< milliseconds

struct KindName {
    QLatin1StringView name;
    Kind kind;
    QLatin1StringView commands; ///< that it can befall; empty: the opening
};
constexpr auto everyCommand = "\"#$&'>"_L1;
constexpr auto everyReply = "\"$&>"_L1;
constexpr std::array<KindName, 14> kindNames{{
    {"noAnswer"_L1, Kind::noAnswer, everyCommand},
    {"wrongAcknowledgement"_L1, Kind::wrongAcknowledgement, everyCommand},
    {"badCheckField"_L1, Kind::badCheckField, everyReply},
    {"badFixedContent"_L1, Kind::badFixedContent, "$>"_L1},
    {"halfAnswer"_L1, Kind::halfAnswer, everyReply},
    {"late"_L1, Kind::late, everyCommand},
    {"wrongByte"_L1, Kind::wrongByte, everyReply},
    {"surplusByte"_L1, Kind::surplusByte, everyReply},
    {"notTaken"_L1, Kind::notTaken, "#'"_L1},
    {"unplug"_L1, Kind::unplug, everyCommand},
    {"readError"_L1, Kind::readError, everyCommand},
    {"writeError"_L1, Kind::writeError, everyCommand},
    {"absent"_L1, Kind::absent, ""_L1},
    {"denied"_L1, Kind::denied, ""_L1},
}};

QString recordTime(PlanMembers& members) {
    constexpr int longestTime = 16;
    const QString text = members.text(u"time"_s, 0, longestTime);
    if (text == "undated"_L1) return u"0000000000"_s;
    const Date date = StrToDate(text, u"yyyy-MM-dd'T'HH:mm"_s);
    const bool inCentury = text.startsWith("20"_L1) && text.size() == longestTime;
    if (!date || !inCentury) members.fail(Code::notTime, u"time"_s);
    return date ? DateToStr(*date, u"yyMMddHHmm"_s) : QString{};
}

char recordFlag(PlanMembers& members) {
    const QString key = u"flag"_s;
    if (!members.has(key)) return '0';
    const QJsonValue value = members.take(key);
    const QString text = value.toString();
    if (text.size() == 1 && text[0] > u' ' && text[0] <= u'~') return text[0].toLatin1();
    const double raw = value.toDouble(-1);
    if (raw == 0 || raw == 1 || raw == 2) return static_cast<char>(raw);
    members.fail(Code::notAllowed, key, u"0, 1, 2, \"0\", \"1\", \"A\""_s);
    return '0';
}

std::string readRecord(PlanMembers members) {
    constexpr int length = static_cast<int>(recordLength);
    if (members.has(u"raw"_s)) {
        std::string raw = members.bytes(u"raw"_s, length, length);
        members.finish();
        return raw;
    }
    SimulatedReading reading;
    reading.time = recordTime(members);
    reading.flag = recordFlag(members);
    reading.sys = members.whole(u"sys"_s, 0, largestSys);
    reading.dia = members.whole(u"dia"_s, 0, largestDia);
    reading.pulse = members.whole(u"pulse"_s, 0, largestPulse);
    members.finish();
    return encode(reading);
}

const KindName& readKind(PlanMembers& members) {
    const QString name = members.text(u"kind"_s, 0, 40);
    const auto* known =
        std::ranges::find_if(kindNames, [&](const KindName& kind) { return kind.name == name; });
    if (known != kindNames.end()) return *known;
    QStringList names;
    for (const KindName& kind : kindNames)
        names << kind.name;
    members.fail(Code::notAllowed, u"kind"_s, names.join(u", "_s));
    return kindNames.front();
}

std::optional<Command> readCommand(PlanMembers& members, QLatin1StringView commands) {
    const QString name = members.text(u"command"_s, 1, 4);
    const bool opening = commands.isEmpty();
    if (opening ? name == "open"_L1 : name.size() == 1 && commands.contains(name)) {
        if (opening) return std::nullopt;
        return static_cast<Command>(name[0].toLatin1());
    }
    members.fail(Code::notAllowed, u"command"_s, opening ? u"open"_s : QString{commands});
    return std::nullopt;
}

bool hitsOneReport(Kind kind) {
    constexpr std::array kinds{Kind::halfAnswer, Kind::unplug,      Kind::readError,
                               Kind::wrongByte,  Kind::surplusByte, Kind::late};
    return std::ranges::find(kinds, kind) != kinds.end();
}

SimulatedFault readFault(PlanMembers members) {
    constexpr int mostReports = 32 + 255 * 32 + 2 + 1;
    SimulatedFault fault;
    const KindName& kind = readKind(members);
    fault.kind = kind.kind;
    fault.command = readCommand(members, kind.commands);
    fault.times = members.optionalWhole(u"times"_s, 1, mostTimes);
    if (hitsOneReport(fault.kind))
        fault.afterReports = members.optionalWhole(u"afterReports"_s, 0, mostReports);
    if (fault.kind == Kind::late)
        fault.delay = std::chrono::milliseconds{members.whole(u"delayMs"_s, 1, longestDelay)};
    if (fault.kind == Kind::unplug) {
        fault.replugAfterOpens = members.optionalWhole(u"replugAfterOpens"_s, 0, mostTimes);
        if (const auto delay = members.optionalWhole(u"replugAfterMs"_s, 0, longestDelay))
            fault.replugAfter = std::chrono::milliseconds{*delay};
    }
    members.finish();
    return fault;
}

void readLists(PlanMembers& members, SimulatedMonitorPlan& plan, std::optional<PlanError>& error) {
    const auto has = [&](const QString& key) { return members.has(key); };
    if (has(u"records"_s))
        members.list(u"records"_s, mostRecords, [&](const QJsonValue& value, const QString& path) {
            plan.records.push_back(readRecord({value, path, error}));
        });
    if (has(u"faults"_s))
        members.list(u"faults"_s, 100, [&](const QJsonValue& value, const QString& path) {
            plan.faults.push_back(readFault({value, path, error}));
        });
    if (!has(u"reportSizes"_s)) return;
    plan.reportSizes.clear();
    members.list(u"reportSizes"_s, 1000, [&](const QJsonValue& value, const QString& path) {
        PlanMembers size(QJsonObject{{path, value}}, {}, error);
        plan.reportSizes.push_back(static_cast<std::size_t>(size.whole(path, 1, reportCapacity)));
    });
    if (plan.reportSizes.empty()) members.fail(Code::missing, u"reportSizes[0]"_s);
}

} // namespace

tl::expected<SimulatedMonitorPlan, PlanError> readPlan(const QByteArray& json) {
    QJsonParseError parsing{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &parsing);
    if (parsing.error != QJsonParseError::NoError)
        return tl::unexpected(
            PlanError{Code::notJson, QString::number(parsing.offset), parsing.errorString()});
    std::optional<PlanError> error;
    PlanMembers members(document.isObject() ? QJsonValue(document.object()) : QJsonValue(document.array()),
                        {}, error);
    SimulatedMonitorPlan plan;
    plan.model = members.bytes(u"model"_s, 2, 2);
    plan.ID = members.bytes(u"id"_s, 0, static_cast<int>(longestID));
    plan.clockOffset = std::chrono::seconds{
        members.optionalWhole(u"clockOffsetSeconds"_s, -longestOffset, longestOffset).value_or(0)};
    if (members.has(u"clock"_s)) {
        const QString clock = members.text(u"clock"_s, 0, 40);
        plan.isClockSet = clock != "unset"_L1;
        if (plan.isClockSet && clock != "set"_L1) members.fail(Code::notAllowed, u"clock"_s, u"set, unset"_s);
    }
    readLists(members, plan, error);
    members.finish();
    if (error) return tl::unexpected(*error);
    return plan;
}

QString describe(const PlanError& error) {
    const auto& [code, key, detail] = error;
    switch (code) {
    case Code::notJson: return qtTrId("simulatedNotJson").arg(key, detail);
    case Code::unknownKey: return qtTrId("simulatedUnknownKey").arg(key);
    case Code::missing: return qtTrId("simulatedMissing").arg(key);
    case Code::notText: return qtTrId("simulatedNotText").arg(key);
    case Code::notWhole: return qtTrId("simulatedNotWhole").arg(key, detail);
    case Code::notList: return qtTrId("simulatedNotList").arg(key);
    case Code::notObject:
        return key.isEmpty() ? qtTrId("simulatedNoPlan") : qtTrId("simulatedNotObject").arg(key);
    case Code::notAllowed: return qtTrId("simulatedNotAllowed").arg(key, detail);
    case Code::wrongLength: return qtTrId("simulatedWrongLength").arg(key, detail);
    case Code::notTime: return qtTrId("simulatedNotTime").arg(key);
    case Code::unencodable: return qtTrId("simulatedUnencodable").arg(key);
    case Code::tooMany: return qtTrId("simulatedTooMany").arg(key, detail);
    }
    return {};
}

} // namespace zel

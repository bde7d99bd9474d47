#include "fhir/FhirBundle.h"

#include "fhir/FhirTypes.h"
#include "fhir/ResourceIds.h"
#include "support/InZone.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gmock/gmock.h>

#include <set>

namespace zel::fhir {

using namespace Qt::StringLiterals;

namespace {

ReadingModel reading(const char* date, const QString& number, std::uint32_t sys = 120) {
    ReadingModel made;
    made.ReadingDate = StrToDate(QString::fromLatin1(date), u"yyyy-MM-dd HH:mm"_s);
    made.RecID = number;
    made.sys = sys;
    made.dia = 80;
    made.map = 93;
    made.pulse = 60;
    made.postInit(nullptr, {}, LocalZone{});
    return made;
}

PatientModel patient(const QString& ID) {
    PatientModel made;
    made.ID = ID;
    made.FamilyName = u"Adams"_s;
    return made;
}

/// The resources of a bundle, the patient first.
std::vector<QJsonObject> resources(const PatientModel& of, const ReadingList& readings,
                                   AverageRule rule = AverageRule::esh) {
    const LocalZone zone;
    const QJsonDocument bundle = QJsonDocument::fromJson(
        fhirBundle({.patient = of, .readings = readings, .rule = rule, .zone = zone}));
    std::vector<QJsonObject> all;
    for (const QJsonValue entry : bundle[u"entry"_s].toArray())
        all.push_back(entry[u"resource"_s].toObject());
    return all;
}

std::string text(const QJsonValue& value) { return value.toString().toStdString(); }

TEST(FhirTypesTest, TimesAreThoseOfTheClocksWithTheirOffset) {
    struct Case {
        const char* zone;
        const char* utc;
        const char* written;
    };
    const Case cases[] = {
        {"Europe/Berlin", "2026-11-21 06:12", "2026-11-21T07:12:00+01:00"},
        {"Europe/Berlin", "2026-07-01 22:30", "2026-07-02T00:30:00+02:00"},
        {"Europe/Berlin", "2026-10-25 00:30", "2026-10-25T02:30:00+02:00"}, // shown twice that night
        {"Europe/Berlin", "2026-10-25 01:30", "2026-10-25T02:30:00+01:00"},
        {"America/St_Johns", "2026-01-01 00:00", "2025-12-31T20:30:00-03:30"},
        {"Asia/Kathmandu", "2026-01-01 00:00", "2026-01-01T05:45:00+05:45"},
        {"Pacific/Kiritimati", "2026-01-01 00:00", "2026-01-01T14:00:00+14:00"},
        {"Europe/Berlin", "1890-01-01 00:00", "1890-01-01T00:53:00+00:53"}, // and 28 seconds
        {"America/New_York", "1880-01-01 12:00", "1880-01-01T07:03:00-04:57"},
        {"Asia/Manila", "1840-06-01 12:00", "1840-06-01T12:00:00+00:00"}, // -15:56 is no offset today
        {"Europe/Berlin", "9999-12-31 23:30", "9999-12-31T23:30:00+00:00"},
    };
    for (const Case& c : cases) {
        Date date;
        {
            const InZone utc("UTC");
            date = StrToDate(QString::fromLatin1(c.utc), u"yyyy-MM-dd HH:mm"_s);
        }
        const InZone here(c.zone);
        EXPECT_EQ(dateTime(date.value(), LocalZone{}).toStdString(), c.written) << c.zone;
    }
    const InZone utc("UTC"); // a reading that was stored elsewhere keeps its own
    EXPECT_EQ(dateTime(Instant{std::chrono::hours{6}}, LocalZone{}, 60).toStdString(),
              "1970-01-01T07:00:00+01:00");
    EXPECT_TRUE(
        dateTime(Instant{std::chrono::sys_days{std::chrono::year{10000} / 2 / 1}}, LocalZone{}).isNull());
}

TEST(ResourceIdsTest, ARecordKeepsItsIdAndSharesItWithNone) {
    const LocalZone zone;
    PatientModel anna = patient(u"A1"_s);
    const QUuid id = patientId(anna, zone);
    // As it is in the first file ever written.
    EXPECT_EQ(idText(id).toStdString(), "400554e0-5553-574c-903b-c1269255005a");
    PatientModel ruth = anna;
    ruth.GivenNames = u"Ruth"_s;
    EXPECT_NE(patientId(ruth, zone), id) << "another person of another practice";
    anna.DateOfBirth = StrToDate(u"1956-03-02"_s, u"yyyy-MM-dd"_s);
    EXPECT_NE(patientId(anna, zone), id) << "another person of another practice";

    ReadingList readings{reading("2026-11-01 08:00", u"1"_s), reading("2026-11-01 08:00", u"1"_s),
                         reading("2026-11-01 08:01", u"11"_s), reading("2026-11-01 08:02", {})};
    const std::vector<QUuid> before = readingIds(id, readings);
    EXPECT_EQ(std::set(before.begin(), before.end()).size(), 4U);
    readings[0].exclusion = u"cuff was loose"_s;
    readings[2].RecID = u"1000001"_s; // as another data file may number it
    EXPECT_EQ(readingIds(id, readings), before);
    readings[2].sys = 200;
    EXPECT_NE(readingIds(id, readings)[2], before[2]) << "another measurement";
    ReadingList typed{reading("2026-11-01 08:00", u"1"_s), reading("2026-11-01 08:00", u"2"_s)};
    for (ReadingModel& each : typed)
        each.isManual = true;
    const std::vector<QUuid> asTyped = readingIds(id, typed);
    EXPECT_NE(asTyped[0], asTyped[1]);
    EXPECT_NE(asTyped[0], before[0]);
    typed[0].sys = 200;
    EXPECT_EQ(readingIds(id, typed), asTyped);
    EXPECT_NE(readingIds(patientId(anna, zone), readings).front(), before.front());
}

TEST(FhirBundleTest, WhatIsInventedSaysSoInEachResourceAndIsElseTheSame) {
    const LocalZone zone;
    const PatientModel of = patient(u"A1"_s);
    const ReadingList readings{reading("2026-11-01 08:00", u"1"_s), reading("2026-11-01 08:01", u"2"_s)};
    const auto bundle = [&](bool isDemonstration) {
        return QJsonDocument::fromJson(fhirBundle({.patient = of,
                                                   .readings = readings,
                                                   .rule = AverageRule::aha,
                                                   .zone = zone,
                                                   .isDemonstration = isDemonstration}))
            .object();
    };
    const QJsonArray label{QJsonObject{{u"system"_s, u"http://terminology.hl7.org/CodeSystem/v3-ActReason"_s},
                                       {u"code"_s, u"HTEST"_s},
                                       {u"display"_s, u"test health data"_s}}};
    const auto unmarked = [&label](QJsonObject resource) {
        QJsonObject meta = resource[u"meta"_s].toObject();
        EXPECT_EQ(meta.take(u"security"_s).toArray(), label) << text(resource[u"resourceType"_s]);
        resource[u"meta"_s] = meta;
        if (meta.isEmpty()) resource.remove(u"meta"_s);
        return resource;
    };
    QJsonObject marked = unmarked(bundle(true));
    QJsonArray entries;
    for (const QJsonValue value : marked[u"entry"_s].toArray()) {
        QJsonObject entry = value.toObject();
        entry[u"resource"_s] = unmarked(entry[u"resource"_s].toObject());
        entries.append(entry);
    }
    EXPECT_EQ(entries.size(), 4) << "patient, readings and average";
    marked[u"entry"_s] = entries;
    EXPECT_EQ(marked, bundle(false));
}

TEST(FhirBundleTest, AverageIsThatOfTheWeekAndRefersToItsReadings) {
    ReadingList readings;
    for (int day = 1; day <= 4; ++day)
        for (const char* time : {"07:00", "07:05", "19:00", "19:05"})
            readings.push_back(reading(qPrintable(u"2026-11-0%1 "_s.arg(day) + QLatin1StringView(time)),
                                       QString::number(readings.size()), day == 1 ? 180 : 130));
    readings.back().sys = 131;
    readings[8].exclusion = u"cuff was loose"_s;
    const auto whole = resources(patient(u"A1"_s), readings);
    ASSERT_EQ(whole.size(), 1 + 16 + 1U);
    QJsonObject average = whole.back();
    EXPECT_EQ(text(average[u"status"_s]), "preliminary") << "11 of 12";
    ASSERT_EQ(average[u"derivedFrom"_s].toArray().size(), 11);
    EXPECT_EQ(average[u"derivedFrom"_s][0][u"reference"_s].toString(),
              u"urn:uuid:"_s + whole[5][u"id"_s].toString())
        << "not the first day, nor what is left out";
    EXPECT_EQ(text(average[u"effectivePeriod"_s][u"start"_s]), "2026-11-02T07:00:00+01:00");
    EXPECT_EQ(text(average[u"effectivePeriod"_s][u"end"_s]), "2026-11-04T19:05:00+01:00");
    EXPECT_EQ(average[u"component"_s][0][u"valueQuantity"_s][u"value"_s].toDouble(), 130.1); // 1431/11
    EXPECT_EQ(text(average[u"note"_s][1][u"text"_s]), "Incomplete by the rule; missing: readings 1");
    EXPECT_EQ(text(average[u"note"_s][2][u"text"_s]),
              "Readings of the first measuring day, which do not count by the rule: 4");
    EXPECT_EQ(text(average[u"note"_s][3][u"text"_s]), "Readings of the week that are left out: 1");

    readings[8].exclusion = QString();
    average = resources(patient(u"A1"_s), readings).back();
    EXPECT_EQ(text(average[u"status"_s]), "final");
    EXPECT_EQ(average[u"note"_s].toArray().size(), 2);
    readings.push_back(reading("2026-11-05 07:00", u"99"_s, 0));
    average = resources(patient(u"A1"_s), readings).back();
    EXPECT_EQ(average[u"derivedFrom"_s].toArray().size(), 12);
    EXPECT_EQ(text(average[u"note"_s][2][u"text"_s]), "Readings without pressures, which do not count: 1");
    readings.back().exclusion = u"of a wrong day"_s;
    average = resources(patient(u"A1"_s), readings).back();
    EXPECT_EQ(text(average[u"note"_s][2][u"text"_s]), "Readings of later days that are left out: 1");
    readings.pop_back();
    average = resources(patient(u"A1"_s), readings, AverageRule::aha).back();
    EXPECT_EQ(average[u"derivedFrom"_s].toArray().size(), 16) << "the first day counts there";
    EXPECT_EQ(resources(patient(u"A1"_s), {readings[0]}).size(), 2U) << "nothing is left to average";
}

} // namespace

} // namespace zel::fhir

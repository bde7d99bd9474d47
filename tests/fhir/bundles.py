"""bundles.py ZEL: the program's bundles of many kinds of data, held against the published rules (profile.py) and against
what is in the data file; and broken bundles, which the rules must refuse."""
import copy
import os
import subprocess
import sys
import tempfile
from xml.sax.saxutils import escape

import profile

ZEL = os.path.abspath(sys.argv[1])
UNDATED = "2000-01-01T00:00:00+01:00"


def xml(kind, fields):
    return f"<{kind}>" + "".join(f"<{name}>{escape(str(text))}</{name}>" for name, text in fields.items()) + f"</{kind}>"


def patient(number="A1", **more):
    return xml("Patient", {"ID": number, "FamilyName": "Adams", "GivenNames": "Anna Maria", "Sex": 0, **more})


def reading(date, record, sys=131, dia=84, number="A1", **more):
    fields = {"ID": number, "RecID": record, "MAM": 0, "Arrhythmia": 0, "ReadingDate": date, "Sys": sys, "Dia": dia, "Map": 99, "PP": 47, "Pulse": 66}
    return xml("MeasureRec", {**fields, **more})


def export(records, zone="Europe/Berlin", language="en", number=None):
    """The bytes of each file that an export of these records makes, by its name."""
    with tempfile.TemporaryDirectory() as home:
        folder, out = os.path.join(home, "Library/Application Support/ZELMac"), os.path.join(home, "out")
        os.makedirs(folder), os.mkdir(out)
        with open(os.path.join(folder, "ZEL.xml"), "w", encoding="utf-8") as file:
            file.write('<?xml version="1.0" encoding="UTF-8"?><ZEL>' + "".join(records) + "</ZEL>")
        os.chmod(os.path.join(folder, "ZEL.xml"), 0o600)
        env = {"HOME": home, "TZ": zone, "LANG": "C.UTF-8", "PATH": os.environ["PATH"]}
        one = ["--patient", number] if number is not None else []
        subprocess.run([ZEL, "export-fhir", out, "--language", language, *one], env=env, check=True, stdout=subprocess.DEVNULL, timeout=250)
        made = {}
        for name in os.listdir(out):
            with open(os.path.join(out, name), "rb") as file:
                made[name] = file.read()
        return made


def bundle(records, **how):
    """The one bundle of these records, which keeps the rules."""
    (content,) = export(records, **how).values()
    made = profile.read(content)
    assert (found := profile.findings(made)) == [], found[:5]
    return made


def resources(made, kind):
    return [entry["resource"] for entry in made["entry"] if entry["resource"]["resourceType"] == kind]


def coded(observation):
    return profile.codings(observation["code"])[0][1]


def pressures(made):
    return [one for one in resources(made, "Observation") if coded(one) == "85354-9"]


def averages(made):
    return [one for one in resources(made, "Observation") if coded(one) == "96607-7"]


def values(observation):
    """By code: the value, or why there is none."""
    found = {}
    for part in observation["component"]:
        name = (profile.codings(part["code"]) or [(None, part["code"].get("text"))])[0][1]
        absent = part.get("dataAbsentReason") and profile.codings(part["dataAbsentReason"])[0][1]
        found[name] = absent or part.get("valueQuantity", {}).get("value", part.get("valueBoolean"))
    return found


def same(found, expected):
    assert found == expected, f"{found!r}, not {expected!r}"


def a_patient_has_what_the_record_has():
    (whole,) = resources(bundle([patient(DateOfBirth="1956-03-02T00:00:00+01:00", Sex=1)], zone="America/New_York"), "Patient")
    del whole["id"]
    expected = {"resourceType": "Patient", "gender": "male", "birthDate": "1956-03-02"}
    same(whole, {**expected, "identifier": [{"value": "A1"}], "name": [{"family": "Adams", "given": ["Anna", "Maria"]}]})
    for number in ("-", "A1"):
        made = bundle([patient(number, FamilyName=" ", GivenNames="", DateOfBirth="0001-01-01T00:00:00+08:00")])
        (bare,) = resources(made, "Patient")
        same(set(bare) - {"id"}, {"resourceType", "gender"} | ({"identifier"} if number == "A1" else set()))
        same(len(made["entry"]), 1)


def a_reading_is_one_observation():
    made = bundle([patient(), reading("2026-11-21T07:12:00+01:00", 1)])
    (one,) = pressures(made)
    same(one["identifier"], [{"system": "urn:ietf:rfc:3986", "value": made["entry"][1]["fullUrl"]}])
    same(values(one), {"8480-6": 131, "8462-4": 84, "8478-0": 99, "8867-4": 66})
    same((one["status"], one["effectiveDateTime"]), ("final", "2026-11-21T07:12:00+01:00"))
    assert "note" not in one and "method" not in one
    (summer,) = pressures(bundle([patient(), reading("2026-07-21T07:12:00+01:00", 1)], zone="Asia/Kathmandu"))
    same(summer["effectiveDateTime"], "2026-07-21T07:12:00+01:00")  # as the clocks showed it


def undated_ones_say_so():
    dates = (UNDATED, "2000-01-01T00:00:00-08:00", "", "0001-01-01T00:00:00+08:00", "nonsense")
    for one in pressures(bundle([patient(), *(reading(date, number) for number, date in enumerate(dates))])):
        same(one["_effectiveDateTime"], {"extension": [{"url": profile.ABSENT_EXTENSION, "valueCode": "unknown"}]})
        assert "effectiveDateTime" not in one


def what_was_not_measured_is_no_number():
    when = "2026-11-21T07:12:00+01:00"
    made = bundle([patient(), reading(when, 1, 0, "x"), reading(when, 2, 0, 80, Erorr=3), reading(when, 3, -10, 1431655872)])
    unknown, error, wild = pressures(made)
    same(values(unknown), {"8480-6": "unknown", "8462-4": "unknown", "8478-0": 99, "8867-4": 66})
    same(values(error)["8480-6"], "error")
    assert "3" in error["note"][0]["text"]
    same((values(wild)["8480-6"], values(wild)["8462-4"]), ("error", "error"))
    assert "-10" in wild["note"][0]["text"] and "1431655872" in wild["note"][1]["text"], wild["note"]


def what_is_left_out_is_marked():
    when = "2026-11-21T07:12:00+01:00"
    reason = 'Manschette "lose" & zu weit\\\n'
    made = bundle([patient(), reading(when, 1, Excluded=reason), reading(when, 2, Excluded=""), reading(when, 3)])
    same([one["status"] for one in pressures(made)], ["entered-in-error", "entered-in-error", "final"])
    assert reason.strip() in pressures(made)[0]["note"][0]["text"]
    same(len(pressures(made)[1]["note"]), 1)


def marks_are_told():
    when = "2026-11-21T07:12:00+01:00"
    typed = reading(when, 1, Source="manual")
    made = bundle([patient(), typed, reading(when, 2, MAM=1), *(reading(when, 3 + code, Arrhythmia=code) for code in range(7))])
    hand, mean, *flagged = pressures(made)
    assert "hand" in hand["method"]["text"] and "average" in mean["method"]["text"]
    found = [{name.split()[0]: value for name, value in values(one).items() if isinstance(value, bool)} for one in flagged]
    same(found, [{}, {"Irregular": False}, {"Irregular": True}, {}, {"Atrial": False}, {"Atrial": True}, {}])


def the_average_is_the_one_of_the_manual():
    """The week that docs/clinical.md reckons by hand."""
    week = ((138, 90, 60, 130, 80, 74), (139, 86, 70, 129, 84, 76), (141, 89, 63, 118, 74, 66), (146, 88, 70, 127, 73, 70),
            (126, 84, 69, 132, 80, 70), (143, 86, 64, 141, 81, 73), (145, 83, 60, 132, 78, 74))
    records = [patient()]
    for day, (sys1, dia1, pulse1, sys2, dia2, pulse2) in enumerate(week, 15):
        records.append(reading(f"2026-11-{day}T07:00:00+01:00", 2 * day, sys1, dia1, Pulse=pulse1))
        records.append(reading(f"2026-11-{day}T19:00:00+01:00", 2 * day + 1, sys2, dia2, Pulse=pulse2))
    (average,) = averages(bundle(records))
    same(values(average), {"96608-5": 134.9, "96609-3": 82.2})
    same((average["status"], len(average["derivedFrom"])), ("final", 12))
    same(average["effectivePeriod"], {"start": "2026-11-16T07:00:00+01:00", "end": "2026-11-21T19:00:00+01:00"})
    assert "68.8" in average["note"][0]["text"]
    same(averages(bundle(records[:2])), [])
    (elsewhere,) = averages(bundle(records, zone="Europe/London"))
    assert elsewhere["note"][-1]["text"].endswith(": 14"), elsewhere["note"]


def nothing_is_of_another_patient():
    other = "Zöllner"
    records = [patient(), reading("2026-11-21T07:12:00+01:00", 1), patient("B2", FamilyName=other), reading("2026-11-21T07:12:00+01:00", 2, 177, number="B2")]
    made = export(records)
    same(sorted(made), ["A1.fhir.json", "B2.fhir.json"])
    for name, who, sys in (("A1.fhir.json", "Adams", 131), ("B2.fhir.json", other, 177)):
        whole = profile.read(made[name])
        same([one["name"][0]["family"] for one in resources(whole, "Patient")], [who])
        same([values(one)["8480-6"] for one in resources(whole, "Observation")], [sys])
    same(export(records, number="A1"), {"A1.fhir.json": made["A1.fhir.json"]})
    same(export(records, language="pl"), made)


def strange_texts_stay_what_they_are():
    for text in ('"\\/<&>', "\u202e\u05d0\u05d1", "😀🩺", "line\nend", "a\u2028b", "null", "x" * 5000, "a\ufeffb", "\u0085b"):
        when = "2026-11-21T07:12:00+01:00"
        made = bundle([patient(FamilyName=text, GivenNames=text), reading(when, text), reading(when, text), reading(when, "")])
        same(resources(made, "Patient")[0]["name"][0]["family"], " ".join(text.split()))
    for number in ('a/b "c"\\', "é 1", " 1", "%41", "."):
        (who,) = resources(bundle([patient(number)]), "Patient")
        same(who["identifier"], [{"value": number}])


def many_readings_are_all_there():
    dates = [f"{2000 + n // 336}-{n // 28 % 12 + 1:02}-{n % 28 + 1:02}T{n % 24:02}:30:00+01:00" for n in range(5000)]
    made = bundle([patient(), *(reading(date, n, 90 + n % 90) for n, date in enumerate(dates, 1))])
    same([values(one)["8480-6"] for one in pressures(made)], [90 + n % 90 for n in range(1, 5001)])
    for zone in ("Asia/Manila", "Europe/Berlin", "Pacific/Kiritimati"):  # far from today
        bundle([patient(), *(reading(f"{year}-12-31T23:30:00+00:00", year) for year in ("0002", "1582", 1840, 1890, 9999))], zone=zone)


# A bundle as the standard's own examples have them; and what is changed in it, with a word of what must be found.
PRESSURE = {
    "resourceType": "Observation",
    "id": "r1",
    "meta": {"profile": ["http://hl7.org/fhir/StructureDefinition/bp"]},
    "status": "final",
    "category": [{"coding": [{"system": profile.CATEGORY, "code": "vital-signs", "display": "Vital Signs"}]}],
    "code": {"coding": [{"system": "http://loinc.org", "code": "85354-9"}]},
    "subject": {"reference": "urn:uuid:0c3151bd-1cbf-4d64-b04d-cd9187a4c6e0"},
    "effectiveDateTime": "2012-09-17",
    "component": [
        {"code": {"coding": [{"system": "http://loinc.org", "code": code}]}, "valueQuantity": {"value": value, "unit": "mmHg", "system": profile.UCUM, "code": "mm[Hg]"}}
        for code, value in (("8480-6", 107), ("8462-4", 60))
    ],
}
WHOLE = {
    "resourceType": "Bundle",
    "type": "collection",
    "entry": [
        {"fullUrl": "urn:uuid:0c3151bd-1cbf-4d64-b04d-cd9187a4c6e0", "resource": {"resourceType": "Patient", "gender": "female"}},
        {"fullUrl": "urn:uuid:6f9619ff-8b86-4011-b42d-00cf4fc964ff", "resource": PRESSURE},
    ],
}
# As a demonstration has them: what is invented says so wherever it goes.
TEST_LABEL = {"system": profile.PURPOSE, "code": "HTEST", "display": "test health data"}
GONE = object()
ABSENT = {"coding": [{"system": profile.ABSENCE, "code": "unknown"}]}
HEART = {"code": {"coding": [{"system": "http://loinc.org", "code": "8867-4"}]}, "valueQuantity": {"value": 60, "unit": "mmHg", "system": profile.UCUM, "code": "mm[Hg]"}}
BROKEN = (
    (("type",), GONE, "type is missing"),
    (("meta",), {"security": [{**TEST_LABEL, "code": "TEST"}]}, "a label TEST"),
    (("meta",), {"security": TEST_LABEL}, "is no list"),
    (("entry", 0, "resource", "meta"), {"security": [{**TEST_LABEL, "system": profile.LOINC}]}, "a label HTEST"),
    (("type",), "heap", "none of the codes"),
    (("entry", 0, "fullUrl"), "urn:uuid:6f9619ff-8b86-4011-b42d-00cf4fc964ff", "bdl-7"),
    (("entry", 0, "fullUrl"), "urn:uuid:1", "fullUrl"),
    (("entry", 0, "resource", "gender"), "f", "none of the codes"),
    (("entry", 0, "resource", "birthDate"), "1956-02-30", "a day that there is not"),
    (("entry", 0, "resource", "name"), [], "is empty"),
    (("entry", 0, "resource", "age"), 40, "not known"),
    (("entry", 1, "resource", "id"), "a b", "is no id"),
    (("entry", 1, "resource", "id"), "x" * 65, "is no id"),
    (("entry", 1, "resource", "status"), GONE, "status is missing"),
    (("entry", 1, "resource", "status"), "excluded", "none of the codes"),
    (("entry", 1, "resource", "category"), GONE, "vital sign 0 times"),
    (("entry", 1, "resource", "category", 0, "coding", 0, "system"), "http://hl7.org/fhir/observation-category", "has no code"),
    (("entry", 1, "resource", "code", "coding", 0, "code"), "8480-6", "85354-9 once"),
    (("entry", 1, "resource", "meta"), GONE, "does not say so"),
    (("entry", 1, "resource", "subject"), GONE, "no subject"),
    (("entry", 1, "resource", "subject", "reference"), "Patient/1", "not in the bundle"),
    (("entry", 1, "resource", "subject", "reference"), "urn:uuid:6f9619ff-8b86-4011-b42d-00cf4fc964ff", "not what it should be"),
    (("entry", 1, "resource", "derivedFrom"), [{"reference": "urn:uuid:0"}], "not in the bundle"),
    (("entry", 1, "resource", "effectiveDateTime"), GONE, "effective[x] is there 0 times"),
    (("entry", 1, "resource", "effectiveDateTime"), "2012", "vs-1"),
    (("entry", 1, "resource", "effectiveDateTime"), "2012-09-17T09:30:00", "is no dateTime"),
    (("entry", 1, "resource", "effectiveDateTime"), "2012-09-17T09:30:00+15:00", "is no dateTime"),
    (("entry", 1, "resource", "effectiveDateTime"), "2012-09-17 09:30:00+01:00", "is no dateTime"),
    (("entry", 1, "resource", "effectivePeriod"), {"start": "2012-09-17"}, "there 2 times"),
    (("entry", 1, "resource", "_effectiveDateTime"), {"extension": [{"url": "http://example.org"}]}, "there 2 times"),
    (("entry", 1, "resource", "note"), [{"text": " "}], "is no markdown"),
    (("entry", 1, "resource", "note"), {"text": "x"}, "is no list"),
    (("entry", 1, "resource", "dataAbsentReason"), {"coding": [{"system": "http://loinc.org", "code": "8480-6"}]}, "reason of absence"),
    (("entry", 1, "resource", "component", 1), GONE, "component 8462-4 0 times"),
    (("entry", 1, "resource", "component", 1, "code", "coding", 0, "code"), "8480-6", "component 8480-6 2 times"),
    (("entry", 1, "resource", "component", 1, "code", "coding", 0, "code"), "1234-5", "has no code"),
    (("entry", 1, "resource", "component", 0, "valueQuantity"), GONE, "vs-3"),
    (("entry", 1, "resource", "component", 0, "dataAbsentReason"), ABSENT, "vs-3"),
    (("entry", 1, "resource", "component", 0, "valueQuantity", "value"), "107", "is no number"),
    (("entry", 1, "resource", "component", 0, "valueQuantity", "value"), None, "is empty"),
    (("entry", 1, "resource", "component", 0, "valueQuantity", "code"), "mmHg", "is in mmHg"),
    (("entry", 1, "resource", "component", 0, "valueQuantity", "unit"), GONE, "lacks a part"),
    (("entry", 1, "resource", "component", 0, "valueString"), "107", "two values"),
    (("entry", 1, "resource", "component", 1), HEART, "is in mm[Hg]"),
)


def changed(path, value):
    made = copy.deepcopy(WHOLE)
    at = made
    for step in path[:-1]:
        at = at[step]
    at[path[-1]] = value
    if value is GONE:
        del at[path[-1]]
    return made


def broken_bundles_are_refused():
    same(profile.findings(WHOLE), [])
    marked = copy.deepcopy(WHOLE)
    for one in (marked, *(entry["resource"] for entry in marked["entry"])):
        one.setdefault("meta", {})["security"] = [TEST_LABEL]
    same(profile.findings(marked), [])
    for path, value, words in BROKEN:
        found = profile.findings(changed(path, value))
        assert any(words in one for one in found), f"{path}, {value!r}: {words!r} is not in {found}"
    for content in (b'{"a": 1, "a": 2}', b"\xef\xbb\xbf{}", b"\xff", b"{"):
        try:
            profile.read(content)
        except ValueError:
            continue
        raise AssertionError(f"{content!r} was read")


CHECKS = (
    a_patient_has_what_the_record_has,
    a_reading_is_one_observation,
    undated_ones_say_so,
    what_was_not_measured_is_no_number,
    what_is_left_out_is_marked,
    marks_are_told,
    the_average_is_the_one_of_the_manual,
    nothing_is_of_another_patient,
    strange_texts_stay_what_they_are,
    many_readings_are_all_there,
    broken_bundles_are_refused,
)


def main():
    failed = 0
    for check in CHECKS:
        try:
            check()
        except AssertionError as wrong:
            failed += 1
            print(f"{check.__name__}: {wrong}")
    return failed > 0


sys.exit(main())

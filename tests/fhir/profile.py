"""Whether a bundle keeps the rules of HL7 FHIR R4: those of the resources and data types that such a bundle is made of,
those of the profiles "vitalsigns" and "bp", and those of terminology.

Everything here is from the published pages (hl7.org/fhir/R4: json, datatypes, bundle, patient, observation, references,
extension-data-absent-reason, vitalsigns, bp), and nothing from the program: whoever changes the program leaves this."""
import datetime
import json
import re

MANY = 10**9
YEAR = r"([0-9]([0-9]([0-9][1-9]|[1-9]0)|[1-9]00)|[1-9]000)"
DAY = r"(-(0[1-9]|1[0-2])(-(0[1-9]|[1-2][0-9]|3[0-1])"
ZONE = r"(Z|(\+|-)((0[0-9]|1[0-3]):[0-5][0-9]|14:00))"
TIME = r"([01][0-9]|2[0-3]):[0-5][0-9]:([0-5][0-9]|60)(\.[0-9]+)?"
PRIMITIVES = {
    "string": r"[ \r\n\t\S]+",
    "markdown": r"[ \r\n\t\S]+",
    "uri": r"\S+",
    "canonical": r"\S+",
    "code": r"[^\s]+(\s[^\s]+)*",
    "id": r"[A-Za-z0-9\-\.]{1,64}",
    "date": YEAR + DAY + ")?)?",
    "dateTime": YEAR + DAY + "(T" + TIME + ZONE + ")?)?)?",
    "instant": YEAR + "-(0[1-9]|1[0-2])-(0[1-9]|[1-2][0-9]|3[0-1])T" + TIME + ZONE,
}

# Of each type: element, its type, least and most. Elements of R4 that no such bundle needs are not here, and are refused.
TYPES = {
    "Bundle": {"id": ("id", 0, 1), "meta": ("Meta", 0, 1), "type": ("code", 1, 1), "timestamp": ("instant", 0, 1), "entry": ("Bundle.entry", 0, MANY)},
    "Bundle.entry": {"fullUrl": ("uri", 0, 1), "resource": ("Resource", 0, 1)},
    "Patient": {
        "id": ("id", 0, 1),
        "meta": ("Meta", 0, 1),
        "identifier": ("Identifier", 0, MANY),
        "name": ("HumanName", 0, MANY),
        "gender": ("code", 0, 1),
        "birthDate": ("date", 0, 1),
    },
    "Observation": {
        "id": ("id", 0, 1),
        "meta": ("Meta", 0, 1),
        "identifier": ("Identifier", 0, MANY),
        "status": ("code", 1, 1),
        "category": ("CodeableConcept", 0, MANY),
        "code": ("CodeableConcept", 1, 1),
        "subject": ("Reference", 0, 1),
        "effectiveDateTime": ("dateTime", 0, 1),
        "effectivePeriod": ("Period", 0, 1),
        "valueQuantity": ("Quantity", 0, 1),
        "dataAbsentReason": ("CodeableConcept", 0, 1),
        "note": ("Annotation", 0, MANY),
        "method": ("CodeableConcept", 0, 1),
        "hasMember": ("Reference", 0, MANY),
        "derivedFrom": ("Reference", 0, MANY),
        "component": ("Observation.component", 0, MANY),
    },
    "Observation.component": {
        "code": ("CodeableConcept", 1, 1),
        "valueQuantity": ("Quantity", 0, 1),
        "valueBoolean": ("boolean", 0, 1),
        "valueString": ("string", 0, 1),
        "dataAbsentReason": ("CodeableConcept", 0, 1),
    },
    "Annotation": {"time": ("dateTime", 0, 1), "text": ("markdown", 1, 1)},
    "CodeableConcept": {"coding": ("Coding", 0, MANY), "text": ("string", 0, 1)},
    "Coding": {"system": ("uri", 0, 1), "code": ("code", 0, 1), "display": ("string", 0, 1)},
    "Extension": {"url": ("uri", 1, 1), "valueCode": ("code", 0, 1)},
    "HumanName": {"use": ("code", 0, 1), "text": ("string", 0, 1), "family": ("string", 0, 1), "given": ("string", 0, MANY)},
    "Identifier": {"use": ("code", 0, 1), "system": ("uri", 0, 1), "value": ("string", 0, 1)},
    "Meta": {"profile": ("canonical", 0, MANY), "security": ("Coding", 0, MANY)},
    "Period": {"start": ("dateTime", 0, 1), "end": ("dateTime", 0, 1)},
    "Quantity": {"value": ("decimal", 0, 1), "unit": ("string", 0, 1), "system": ("uri", 0, 1), "code": ("code", 0, 1)},
    "Reference": {"reference": ("string", 0, 1), "display": ("string", 0, 1)},
}
# Bindings that are required.
BINDINGS = {
    ("Bundle", "type"): "document message transaction transaction-response batch batch-response history searchset collection",
    ("Patient", "gender"): "male female other unknown",
    ("Observation", "status"): "registered preliminary final amended corrected cancelled entered-in-error unknown",
    ("HumanName", "use"): "usual official temp nickname anonymous old maiden",
    ("Identifier", "use"): "usual official temp secondary old",
}
ABSENCE = "http://terminology.hl7.org/CodeSystem/data-absent-reason"
CATEGORY = "http://terminology.hl7.org/CodeSystem/observation-category"
LOINC = "http://loinc.org"
PURPOSE = "http://terminology.hl7.org/CodeSystem/v3-ActReason"
UCUM = "http://unitsofmeasure.org"
# The codes of the systems that may be used, as far as such a bundle has use for them.
CODES = {
    ABSENCE: set(
        "unknown asked-unknown temp-unknown not-asked asked-declined masked not-applicable unsupported as-text error"
        " not-a-number negative-infinity positive-infinity not-performed not-permitted".split()
    ),
    CATEGORY: {"vital-signs"},
    PURPOSE: {"HTEST"},
    LOINC: {"85354-9", "8480-6", "8462-4", "8478-0", "8867-4", "96607-7", "96608-5", "96609-3"},
}
# What is measured in which unit.
UNITS = {"8480-6": "mm[Hg]", "8462-4": "mm[Hg]", "8478-0": "mm[Hg]", "96608-5": "mm[Hg]", "96609-3": "mm[Hg]", "8867-4": "/min"}
PROFILE = "http://hl7.org/fhir/StructureDefinition/"
ABSENT_EXTENSION = PROFILE + "data-absent-reason"
UUID = r"urn:uuid:[0-9a-f]{8}-[0-9a-f]{4}-[1-5][0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}"
# Of each profile: the code that the observation has, and the components that it must have once each.
SLICES = {"bp": ("85354-9", ("8480-6", "8462-4")), "vitalsigns": (None, ())}


def is_number(value):
    return isinstance(value, (int, float)) and not isinstance(value, bool)


def real_day(text):
    try:
        return bool(datetime.date.fromisoformat(text[:10])) if len(text) >= 10 else True
    except ValueError:
        return False


def primitive_wrong(kind, value):
    if kind == "boolean":
        return None if isinstance(value, bool) else "is no boolean"
    if kind == "decimal":
        return None if is_number(value) else "is no number"
    if not isinstance(value, str):
        return "is no text"
    if not re.fullmatch(PRIMITIVES[kind], value) or not value.strip():
        return f"is no {kind}: {value!r}"
    if kind in ("date", "dateTime", "instant") and not real_day(value):
        return f"is a day that there is not: {value!r}"
    return None


def companion_wrong(value):
    """Of what stands beside or in the place of a primitive value."""
    if not isinstance(value, dict) or set(value) != {"extension"}:
        return ["holds no extension"]
    return [] if isinstance(value["extension"], list) and value["extension"] else ["has an extension that is no list"]


def element_wrong(kind, value, where):
    if kind in PRIMITIVES or kind in ("boolean", "decimal"):
        found = primitive_wrong(kind, value)
        return [f"{where} {found}"] if found else []
    if kind == "Resource":
        kind = value.get("resourceType") if isinstance(value, dict) else None
        if kind not in ("Patient", "Observation"):
            return [f"{where} is a resource of type {kind}"]
    return list(object_wrong(kind, value, where))


def counted_wrong(name, kind, least, most, has, where):
    """A list where there may be several, one value where there may be one."""
    if name not in has:
        if least and "_" + name not in has:
            yield f"{where}.{name} is missing"
        return
    value = has[name]
    if (most == MANY) != isinstance(value, list):
        yield f"{where}.{name} is {'no' if most == MANY else 'a'} list"
        return
    for number, one in enumerate(value if most == MANY else [value]):
        yield from element_wrong(kind, one, f"{where}.{name}[{number}]" if most == MANY else f"{where}.{name}")


def object_wrong(kind, has, where):
    if not isinstance(has, dict) or not has:
        yield f"{where} is no object, or an empty one"
        return
    elements = TYPES[kind]
    for name in has:
        plain = name.removeprefix("_")
        if plain not in elements and name != "resourceType":
            yield f"{where}.{name} is not known"
        elif plain != name:
            yield from (f"{where}.{name} {what}" for what in companion_wrong(has[name]))
            for extension in has[name].get("extension", []) if isinstance(has[name], dict) else []:
                yield from object_wrong("Extension", extension, f"{where}.{name}.extension")
    for name, (of, least, most) in elements.items():
        yield from counted_wrong(name, of, least, most, has, where)
        if (kind, name) in BINDINGS and has.get(name) not in (None, *BINDINGS[kind, name].split()):
            yield f"{where}.{name} is none of the codes: {has[name]!r}"


def emptiness(value, where):
    """Nothing is empty or null, at any depth."""
    if value is None or value in ("", [], {}):
        yield f"{where} is empty"
    for key, inner in value.items() if isinstance(value, dict) else enumerate(value) if isinstance(value, list) else ():
        yield from emptiness(inner, f"{where}.{key}")


def codings(concept):
    return [(coding.get("system"), coding.get("code")) for coding in concept.get("coding", [])]


def concepts(value, where):
    """Each coded concept, and where."""
    if isinstance(value, dict):
        if "coding" in value:
            yield where, value
        for key, inner in value.items():
            yield from concepts(inner, f"{where}.{key}")
    elif isinstance(value, list):
        for inner in value:
            yield from concepts(inner, where)


def labels_wrong(resource, where):
    for label in resource.get("meta", {}).get("security", []):
        if label.get("code") not in CODES.get(label.get("system"), ()):
            yield f"{where}: a label {label.get('code')} of {label.get('system')}"


def terminology(resource, where):
    for at, concept in concepts(resource, where):
        for system, code in codings(concept):
            if code not in CODES.get(system, ()):
                yield f"{at}: {system} has no code {code}"
    for at in [resource, *resource.get("component", [])]:
        for system, code in codings(at.get("dataAbsentReason", {})):
            if system != ABSENCE:
                yield f"{where}: a reason of absence of {system}"
    extensions = resource.get("_effectiveDateTime", {}).get("extension", [])
    for extension in extensions:
        if extension.get("url") != ABSENT_EXTENSION or extension.get("valueCode") not in CODES[ABSENCE]:
            yield f"{where}: an extension that says no reason of absence"


def values_of(element):
    return [name for name in element if name.startswith("value")]


def measure_wrong(component, where):
    """The value of a component whose code says in what unit it is."""
    quantity = component.get("valueQuantity")
    for system, code in codings(component["code"]):
        if system == LOINC and code in UNITS and quantity is None and values_of(component):
            yield f"{where}: {code} is no quantity"
        if system == LOINC and code in UNITS and quantity is not None:
            if any(name not in quantity for name in ("value", "unit", "system", "code")):
                yield f"{where}: the quantity of {code} lacks a part"
            elif (quantity["system"], quantity["code"]) != (UCUM, UNITS[code]):
                yield f"{where}: {code} is in {quantity['code']} of {quantity['system']}"


def observation_wrong(has, where):
    """The invariants of the resource."""
    components = has.get("component", [])
    if values_of(has) and "dataAbsentReason" in has:
        yield f"{where}: obs-6, a value and a reason for none"
    own = set(codings(has["code"]))
    if values_of(has) and any(own & set(codings(component["code"])) for component in components):
        yield f"{where}: obs-7, a value and a component of the same code"
    for number, component in enumerate(components):
        at = f"{where}.component[{number}]"
        if len(values_of(component)) > 1:
            yield f"{at}: two values"
        if bool(values_of(component)) == ("dataAbsentReason" in component):
            yield f"{at}: vs-3, neither a value nor a reason for none, or both"
        yield from measure_wrong(component, at)
    period = has.get("effectivePeriod", {})
    if {"start", "end"} <= set(period):
        start, end = (datetime.datetime.fromisoformat(period[name]) for name in ("start", "end"))
        if start > end:
            yield f"{where}: per-1, the period ends before it starts"


def vital_sign_wrong(has, where):
    effective = [name for name in ("effectiveDateTime", "_effectiveDateTime", "effectivePeriod") if name in has]
    if len(effective) != 1:
        yield f"{where}: effective[x] is there {len(effective)} times"
    if len(has.get("effectiveDateTime", "2000-01-01")) < 8:
        yield f"{where}: vs-1, the time is not precise to the day"
    if "subject" not in has:
        yield f"{where}: no subject"
    marks = [concept for concept in has.get("category", []) if (CATEGORY, "vital-signs") in codings(concept)]
    if len(marks) != 1:
        yield f"{where}: is a vital sign {len(marks)} times"
    if not has.get("component") and not has.get("hasMember") and not values_of(has) and "dataAbsentReason" not in has:
        yield f"{where}: vs-2, neither a value nor a reason for none"


def profile_wrong(has, where):
    named = [url.removeprefix(PROFILE) for url in has.get("meta", {}).get("profile", [])]
    if not named or any(name not in SLICES for name in named):
        yield f"{where}: follows {named}"
    # A blood pressure is one whether it says so or not.
    if (LOINC, "85354-9") in codings(has["code"]) and "bp" not in named:
        yield f"{where}: is a blood pressure and does not say so"
    yield from vital_sign_wrong(has, where)
    for code, parts in (SLICES[name] for name in named if name in SLICES):
        if code and codings(has["code"]).count((LOINC, code)) != 1:
            yield f"{where}: has not the code {code} once"
        for part in parts:
            found = [component for component in has.get("component", []) if (LOINC, part) in codings(component["code"])]
            if len(found) != 1:
                yield f"{where}: has the component {part} {len(found)} times"


def reference_wrong(has, resources, where):
    of = {"subject": {"Patient"}, "derivedFrom": {"Observation"}, "hasMember": {"Observation"}}
    for name, kinds in of.items():
        links = has.get(name, [])
        for link in links if isinstance(links, list) else [links]:
            target = resources.get(link.get("reference"))
            if target is None or target["resourceType"] not in kinds:
                yield f"{where}.{name}: {link.get('reference')} is not in the bundle, or not what it should be"


def bundle_wrong(bundle):
    entries = bundle.get("entry", [])
    urls = [entry.get("fullUrl") for entry in entries]
    if len(set(urls)) != len(urls):
        yield "bdl-7: two resources have one fullUrl"
    yield from labels_wrong(bundle, "Bundle")
    yield from (f"fullUrl {url}" for url in urls if not re.fullmatch(UUID, url or ""))
    resources = {entry["fullUrl"]: entry["resource"] for entry in entries if "fullUrl" in entry and "resource" in entry}
    for number, entry in enumerate(entries):
        resource, where = entry.get("resource", {}), f"entry[{number}]"
        yield from labels_wrong(resource, where)
        if resource.get("resourceType") != "Observation":
            continue
        yield from observation_wrong(resource, where)
        yield from profile_wrong(resource, where)
        yield from terminology(resource, where)
        yield from reference_wrong(resource, resources, where)


def findings(bundle):
    """All that is wrong with a bundle; what its parts mean is looked at once they have their form."""
    if bundle.get("resourceType") != "Bundle":
        return ["is no bundle"]
    found = [*emptiness(bundle, "Bundle"), *object_wrong("Bundle", bundle, "Bundle")]
    return found or list(bundle_wrong(bundle))


def once(pairs):
    if len({key for key, _ in pairs}) != len(pairs):
        raise ValueError("a name stands twice in one object")
    return dict(pairs)


def read(content):
    """The bundle of a file's bytes: JSON in UTF-8 without a mark at its head. Raises ValueError where it is none."""
    if content.startswith(b"\xef\xbb\xbf"):
        raise ValueError("begins with a byte order mark")
    return json.loads(content.decode("utf-8"), object_pairs_hook=once)

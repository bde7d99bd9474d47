"""Every text that the code asks for by its key has words in the English table, every text of that table is asked for,
and each other table zel_XX.ts has the same texts, whole. No window shows words that are in none."""
import os
import re
import sys

import shown

# A call, or what may contain words that only look like one: text, characters, comments.
TOKEN = re.compile(
    r'(?P<call>\bqtTrId\s*\(\s*(?:"(?P<key>[^"\\]+)"\s*(?=[,)]))?)'
    r'|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])\'|//[^\n]*|/\*.*?\*/',
    re.S,
)
MESSAGE = re.compile(r'<message id="([^"]*)"[^>]*>(.*?)</message>', re.S)


def keys_in(code):
    """The key, None where it is no literal, of each text that the code asks for."""
    return [token["key"] for token in TOKEN.finditer(code) if token["call"]]


def code_findings(source, texts, used):
    for folder, _, names in sorted(os.walk(source)):
        for name in sorted(n for n in names if n.endswith((".h", ".cpp"))):
            path = os.path.join(folder, name)
            with open(path, encoding="utf-8") as file:
                for key in keys_in(file.read()):
                    used.add(key)
                    if key is None:
                        yield f"{path}: asks for a text whose key is no literal"
                    elif not texts.get(key, "").strip():
                        yield f"{path}: there are no words for the key {key}"


def table_findings(table, used):
    for context in table.split("<context>")[1:]:
        keys = [key for key, _ in MESSAGE.findall(context)]
        if keys != sorted(keys, key=str.lower):
            yield f"the keys of the context {re.search('<name>(.*?)</name>', context)[1]} are not sorted"
    keys = [key for key, _ in MESSAGE.findall(table)]
    yield from (f"the key {key} stands in the table twice" for key in sorted({k for k in keys if keys.count(k) > 1}))
    if used is not None:
        yield from (f"nothing asks for the key {key}" for key in sorted(set(keys) - used))
    for kind in sorted(set(re.findall(r'<translation[^>]*type="(\w+)"', table))):
        yield f"a text is marked as {kind}"


def plain(table):
    return re.sub(r"<!--.*?-->", "", table, flags=re.S)


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


# A text's forms: one, or as many as the language has plurals.
FORM = re.compile(r"<numerusform>(.*?)</numerusform>", re.S)
PLURALS = {"pl": 3, "zh_TW": 1}
USUAL_PLURALS = 2


def forms(body):
    found = FORM.findall(body)
    return found if found else [re.sub(r"</?translation[^>]*>", "", body)]


def messages(table):
    """By its key: the context, whether it counts something, the forms."""
    found = {}
    for context in table.split("<context>")[1:]:
        name = re.search("<name>(.*?)</name>", context)[1]
        for key, attributes, body in re.findall(r'<message id="([^"]*)"([^>]*)>(.*?)</message>', context, re.S):
            found[key] = (name, "numerus" in attributes, forms(body))
    return found


def places(text):
    return sorted(set(re.findall(r"%L?\d+|%n", text)))


def form_findings(key, counts, ours, english):
    """The first of several forms, the singular, may leave out the number."""
    for number, form in enumerate(ours):
        wanted = places(english[-1])
        may = [wanted, [place for place in wanted if place != "%n"]] if counts and number == 0 else [wanted]
        if places(form) not in may:
            yield f"{key}: the places {places(form)} are not those of the English text, {wanted}"
        if bool(form.strip()) != bool(english[-1].strip()):
            yield f"{key}: one of the two texts is empty"
        if re.findall(r"&lt;/?\w+", form) != re.findall(r"&lt;/?\w+", english[-1]):
            yield f"{key}: the marks of the type are not those of the English text"


def translation_findings(tag, table, english):
    if f'language="{tag}"' not in table:
        yield f"the table is not said to be of the language {tag}"
    ours, theirs = messages(table), messages(english)
    yield from (f"there is no text for the key {key}" for key in theirs if key not in ours)
    yield from (f"the key {key} is not in the English table" for key in ours if key not in theirs)
    for key in [key for key in ours if key in theirs]:
        (context, counts, texts), (their_context, their_counts, their_texts) = ours[key], theirs[key]
        if context != their_context:
            yield f"{key} stands in the context {context}, not in {their_context}"
        if counts != their_counts or len(texts) != (PLURALS.get(tag, USUAL_PLURALS) if counts else 1):
            yield f"{key}: {len(texts)} forms are not those of the language"
        else:
            yield from form_findings(key, counts, texts, their_texts)
    if ours.get("languageTag", ("", False, [tag]))[2] != [tag]:
        yield f"languageTag is not {tag}"


def findings(source, folder):
    tables = {name[4:-3]: plain(read(os.path.join(folder, name))) for name in sorted(os.listdir(folder))
              if name.startswith("zel_") and name.endswith(".ts")}
    english = tables.pop("en")
    texts = {key: re.sub(r"<[^>]*>", "", body) for key, body in MESSAGE.findall(english)}
    used = set()
    yield from code_findings(source, texts, used)
    yield from shown.findings(source)
    yield from table_findings(english, used - {None})
    for tag, table in tables.items():
        found = [*table_findings(table, None), *translation_findings(tag, table, english)]
        yield from (f"zel_{tag}.ts: {finding}" for finding in found)


if __name__ == "__main__":
    found = list(findings(sys.argv[1], sys.argv[2]))
    print("\n".join(found))
    sys.exit(1 if found else 0)

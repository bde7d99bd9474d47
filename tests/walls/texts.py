"""Every text that the code asks for by its key has words in the table, and every text of the table is asked for."""
import os
import re
import sys

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
    yield from (f"nothing asks for the key {key}" for key in sorted(set(keys) - used))
    if 'type="unfinished"' in table:
        yield "a text is marked as unfinished"


def findings(source, table_path):
    with open(table_path, encoding="utf-8") as file:
        table = re.sub(r"<!--.*?-->", "", file.read(), flags=re.S)
    texts = {key: re.sub(r"<[^>]*>", "", body) for key, body in MESSAGE.findall(table)}
    used = set()
    yield from code_findings(source, texts, used)
    yield from table_findings(table, used - {None})


if __name__ == "__main__":
    found = list(findings(sys.argv[1], sys.argv[2]))
    print("\n".join(found))
    sys.exit(1 if found else 0)

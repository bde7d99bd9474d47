"""Words that are written in the code where a window shows them: they would stand there in every language."""
import os
import re

SHOWS = (r"set(?:Text|ToolTip|WindowTitle|Title|PlaceholderText|AccessibleName|AccessibleDescription|StatusTip|InformativeText)"
         r"|ShowMessage|AskMessage|nameAsSeen"
         r"|(?<=[.>])add(?:Action|Menu|Item|Items|Tab|Row)")  # a class's own is given an object name first
MADE = r"(?:Quiet|Q)Label|Q(?:PushButton|ToolButton|CheckBox|RadioButton|GroupBox|Action|Menu)"  # showing what they are made with
KEYS = {"qtTrId", "findChild", "findChildren", "QIcon", "fromTheme", "setObjectName", "property", "setProperty"}  # shown to nobody
TOKEN = re.compile(
    r'//[^\n]*|/\*.*?\*/|^[ \t]*#[^\n]*|\'(?:\\.|[^\'\\\n])\''
    r'|R"(?P<mark>[^\s()\\]*)\((?P<raw>.*?)\)(?P=mark)"|"(?P<text>(?:\\.|[^"\\\n])*)"'
    rf"|\b(?:(?P<made>{MADE})(?:\s+\w+)?|(?P<shows>{SHOWS})|(?P<call>[A-Za-z_]\w*)(?:<[^<>()]*>)?)\s*[({{]"
    r"|(?P<open>[({[])|(?P<close>[)}\]])", re.S | re.M)
WORD = re.compile(r"[^\W\d_]{2,}")


def has_words(text):
    """What is the same everywhere is none: places, signs, a unit or a name with capitals inside it (mmHg, SYS, ZEL)."""
    plain = re.sub(r"%L?\d+|%n|\\u[0-9A-Fa-f]{4}|\\.|<[^>]*>", " ", text)
    return any(re.search("[a-zß-ÿ]{2}", word) and word[1:] == word[1:].lower() or word.lower() == word.upper()
               for word in WORD.findall(plain))


def words_in(code):
    """The line and the text of each."""
    around = []  # for each open bracket, whether it belongs to what shows its texts
    for token in TOKEN.finditer(code):
        text = token["raw"] if token["raw"] is not None else token["text"]
        if token["made"] or token["shows"]:
            around.append(True)
        elif token["call"]:
            around.append(token["call"] not in KEYS and any(around[-1:]))
        elif token["open"]:
            around.append(token["open"] == "(" and any(around[-1:]))  # a block shows nothing by itself
        elif token["close"]:
            del around[-1:]
        elif text and any(around[-1:]) and has_words(text):
            yield code.count("\n", 0, token.start()) + 1, text


def findings(source):
    for folder, _, names in sorted(os.walk(os.path.join(source, "app"))):
        for name in sorted(n for n in names if n.endswith((".h", ".cpp"))):
            path = os.path.join(folder, name)
            with open(path, encoding="utf-8") as file:
                for line, text in words_in(file.read()):
                    yield f'{path}:{line}: "{text}" is shown, and stands in no table of texts'

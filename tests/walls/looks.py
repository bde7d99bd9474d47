"""looks.py SRC: no window has a colour, a size of type or a distance of its own; Style has them for all of them.

docs/design.md says what they are."""
import os
import re
import sys

# Files below app/, and why they may.
MAY = {
    "widgets/Style.h": "has them",
    "widgets/Style.cpp": "has them",
}

NAMED = "red|green|blue|cyan|magenta|yellow|black|white|gray|lightGray|dark(?:Red|Green|Blue|Cyan|Magenta|Yellow|Gray)"
NUMBER = r"(?<![\w.])(?!0(?![\w.]))\d"  # not none at all
SETTERS = (
    "setContentsMargins|setSpacing|setHorizontalSpacing|setVerticalSpacing|addSpacing|setGaps|setMargin|setIndent|setCellPadding"
    "|setCellSpacing|setDocumentMargin|setIconSize|setHandleWidth|setBorder|addRoundedRect"
)
RULES = (
    ("a colour", re.compile(rf"\bQt::(?:{NAMED})\b|\bQColor\b(?:\s+\w+)?\s*[({{]\s*(?:\d|u?\"|QRgb)|\bQColor::from\w+\(|\bqRgba?\(")),
    ("a colour", re.compile(r"\"[^\"]*#[0-9a-fA-F]{3,8}\b[^\"]*\"")),
    ("a size of type", re.compile(r"\b(?:setPointSizeF?|setPixelSize)\(|\bQFont\b(?:\s+\w+)?\s*[({][^)}]*,")),
    ("a distance", re.compile(rf"\b(?:{SETTERS})\((?:[^;]*?){NUMBER}")),
    ("a distance", re.compile(r"\b(?:margin|gap|padding|spacing|edge)\w*\s*=\s*[1-9]\d*\s*[,;]")),
    ("a style sheet", re.compile(r"\bsetStyleSheet\((?!Style::)")),
)


def without_comments(text):
    """The lines stay where they are."""
    return re.sub(r"//[^\n]*|/\*.*?\*/", lambda found: "\n" * found[0].count("\n"), text, flags=re.DOTALL)


def findings_in(path):
    with open(path, encoding="utf-8") as file:
        text = without_comments(file.read())
    for what, rule in RULES:
        for found in rule.finditer(text):
            yield f"{path}:{text.count(chr(10), 0, found.start()) + 1}: {what} of its own: {' '.join(found[0].split())}"


def findings(source):
    windows = os.path.join(source, "app")
    for folder, _, names in sorted(os.walk(windows)):
        for name in sorted(names):
            path = os.path.join(folder, name)
            if name.endswith((".h", ".cpp")) and os.path.relpath(path, windows) not in MAY:
                yield from findings_in(path)
    yield from (f"{name}: may have looks of its own, but is not there" for name in MAY if not os.path.exists(os.path.join(windows, name)))


if __name__ == "__main__":
    found = list(findings(sys.argv[1]))
    print("\n".join(found))
    sys.exit(1 if found else 0)

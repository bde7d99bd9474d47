"""Each rule finds what it is for, planted in a window that is right but for that."""
import sys
from types import SimpleNamespace

from desk import State, Still
from rules import findings


class Planted(Still):
    def __init__(self, role, name="", children=(), states=(), **rest):
        held = {"description": "", "text": None, "labels": [], "size": SimpleNamespace(x=40, y=20)}
        self.__dict__ |= held | rest | {"role": role, "name": name, "shown_children": list(children)}
        self.__dict__["states"] = SimpleNamespace(contains=lambda state: state in states)


def caption(name):
    return Planted("label", name)


def tab(name, *states):
    return Planted("page tab", name, states=states)


LARGE = SimpleNamespace(x=400, y=200)
CASES = [
    ("has no name", Planted("push button")),
    ("has two controls called 'Save'", Planted("filler", children=[Planted("push button", "Save")] * 2)),
    ("picture without a name", Planted("image", size=LARGE)),
    ("picture without a description", Planted("image", "Trend")),
    ("is drawn, and says nothing", Planted("filler", "Chart", size=LARGE)),
    ("takes the keyboard", Planted("filler", states=[State.FOCUSABLE], children=[caption("Colour")])),
    ("is written 'From'", Planted("text", "First day", labels=[caption("From")])),
    ("has no label", Planted("text", "Family name")),
    ("has no label", Planted("text", "Systolic", labels=[Planted("panel", "Limits")])),
    ("does not say what is chosen", Planted("combo box", "Smoker", labels=[caption("Smoker")])),
    ("has a caption, and no value", Planted("label", "State", labels=[caption("State")])),
    ("says its caption twice", Planted("label", "State", text="State")),
    ("says 'State' twice", Planted("frame", "Monitor", [caption("State"), caption("State")])),
    ("shows 0 of its pages", Planted("page tab list", "Pages", [tab("Chart"), tab("Table")])),
    ("shows 2 of its pages", Planted("page tab list", "Pages", [tab("Chart", State.SELECTED), tab("Table", State.SELECTED)])),
    ("no page tab", Planted("page tab list", "Pages", [tab("Chart", State.SELECTED), Planted("push button", "Settings")])),
    ("is no list of them", Planted("filler", "", [tab("Chart", State.SELECTED)])),
]
RIGHT = Planted("frame", "Window", [
    Planted("page tab list", "Pages", [tab("Chart", State.SELECTED), tab("Table")]),
    Planted("image", "Chart", description="62 readings"),
    Planted("image"),
    caption("State"), Planted("label", "State", text="connected", labels=[caption("State")]),
    caption("From:"), Planted("text", "From", text="", labels=[caption("From:")]),
    Planted("combo box", "Smoker", text="No", labels=[caption("Smoker")]),
    Planted("text", "Search name or ID"),
    Planted("text", "Practitioner, for reports", labels=[Planted("panel", "Practitioner")]),
])

wrong = [f"not found: {words}" for words, node in CASES
         if not any(words in each for each in findings(Planted("frame", "Window", [node])))]
wrong += [f"found, and right: {each}" for each in findings(RIGHT)]
print("\n".join(wrong))
sys.exit(bool(wrong))

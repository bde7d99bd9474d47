"""What holds for every control that shows."""
from desk import State, Still

ENTRIES = {"text", "password text", "spin button", "date editor", "combo box", "entry"}
CONTROLS = ENTRIES | {"push button", "toggle button", "check box", "radio button", "page tab", "menu item", "menu",
                      "check menu item", "radio menu item", "slider", "scroll bar", "table", "list", "tree", "tree table"}
FILLERS = {"filler", "unknown", "panel", "canvas", "drawing area"}
DRAWN = {"image", "chart", "icon"}
ICON = 100  # pixels; a picture without a name that is no larger only adorns
SPECK = 8  # pixels; what is smaller holds nothing to be read
INSIDE = {"scroll bar"}  # parts of a control, named by what they are a part of
UNLABELLED = {"Search name or ID",  # stands in the field
              "Text of the comment"}  # the panel's heading, which no relation reaches from its frame
WHOLE = {"label", "table", "tree", "tree table", "list", "combo box", "spin button", "date editor", "text", "scroll bar"}


def name_of_control(node, _):
    if node.role in CONTROLS - INSIDE and not node.name.strip():
        yield "has no name"


def is_more_than(node, edge):
    size = node.size
    return size and min(size.x, size.y) > edge


def drawn(node, _):
    if node.role in DRAWN and (node.name or is_more_than(node, ICON)):
        if not node.name:
            yield "is a picture without a name"
        if not node.description:
            yield "is a picture without a description"
    if node.role in FILLERS and not node.shown_children and is_more_than(node, SPECK):
        yield "is drawn, and says nothing"
    if node.role in FILLERS and node.has(State.FOCUSABLE):
        yield "takes the keyboard, and does not say what it is"


def entry(node, _):
    if node.role not in ENTRIES:
        return
    given = [(label.role, label.name.rstrip("\u00a0*").strip(" :")) for label in node.labels]
    labels = [name for role, name in given if role == "label"]
    named = any(name and node.name.casefold().startswith(name.casefold()) for _, name in given)  # by a box's title, too
    if not any(labels) and not named and node.name not in UNLABELLED:
        yield "has no label"
    for label in labels:
        if not node.name.casefold().startswith(label.casefold()):
            yield f"is written '{label}', and called something else"
    if node.role == "combo box" and not node.text:
        yield "does not say what is chosen"


def label(node, _):
    if node.role != "label":
        return
    if any(each.role == "label" for each in node.labels) and node.text is None:
        yield "has a caption, and no value"
    if node.text is not None and node.text == node.name:
        yield "says its caption twice"


def siblings(_, children):
    seen = set()
    for child in children:
        if child.role not in CONTROLS - INSIDE or not child.name:
            continue
        if child.name in seen:
            yield f"has two controls called '{child.name}'"
        seen.add(child.name)


def captions(_, children):
    for one, next_one in zip(children, children[1:]):
        if one.role == next_one.role == "label" and one.text is next_one.text is None and one.name == next_one.name != "":
            yield f"says '{one.name}' twice"


def tabs(node, children):
    if node.role == "page tab list":
        chosen = [child.name for child in children if child.has(State.SELECTED)]
        if len(chosen) != 1:
            yield f"shows {len(chosen)} of its pages"
        if any(child.role != "page tab" for child in children):
            yield "holds something that is no page tab"
    elif any(child.role == "page tab" for child in children):
        yield "holds page tabs, and is no list of them"


RULES = (name_of_control, drawn, entry, label, siblings, captions, tabs)


def findings(node, path=()):
    """What is wrong with the node and all that shows in it, in words."""
    node = Still(node.given) if not isinstance(node, Still) else node
    where = path + (str(node),)
    children = node.shown_children
    for rule in RULES:
        for wrong in rule(node, children):
            yield f"{' / '.join(part for part in where if not part.endswith(chr(39) * 2))}: {node} {wrong}"
    if node.role in WHOLE:
        return
    for child in children:
        yield from findings(child, where)

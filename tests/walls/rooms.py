"""The rooms of the program and the doors between them, and what goes through a wall.

The compiler finds every header below src/, and the linker only sees what is called, so an include in the wrong
direction builds. This finds it, in the includes and in what CMake is told to link."""
import os
import re
import sys

BELOW = ("store", "monitor", "analysis", "chart", "report", "fhir")
PAGE = ("store", "analysis", "chart", "app/widgets", "app/frame")
PAGES = ("app/patients", "app/table", "app/graph", "app/printing", "app/settings")

# A room, or a wing of one (app/graph), and what its code may use beside its own.
DOORS = {
    "store": (),
    "monitor": ("store",),
    "analysis": ("store",),
    "chart": ("store", "analysis"),
    "report": ("store", "analysis", "chart"),
    "fhir": ("store", "analysis"),
    "app/widgets": ("store", "chart"),
    "app/device": ("store", "monitor", "app/widgets"),
    "app/frame": ("store", "analysis", "chart", "app/widgets", "app/device"),
    "app/patients": ("store", "monitor", "app/widgets", "app/device"),
    "app/table": (*PAGE, "app/device"),
    "app/graph": PAGE,
    "app/printing": ("store", "analysis", "chart", "report", "app/widgets"),
    "app/settings": ("store", "analysis", "fhir", "app/widgets", "app/device"),
    "app/shell": (*BELOW, "app/widgets", "app/device", "app/frame", *PAGES),
    "cli": BELOW,
}
WINGED = {room.split("/")[0] for room in DOORS if "/" in room}

# Qt Core is everybody's; of the other modules, a room or all its wings have these.
QT_MODULES = {
    "chart": ("Gui", "Svg"),
    "report": ("Gui",),
    "app": ("Gui", "Widgets"),
    "app/printing": ("Gui", "Widgets", "PrintSupport"),
    "app/shell": ("Gui", "Widgets", "DBus"),
}

# Library, how its headers begin, how CMake calls it, the rooms that may use it.
LIBRARIES = (
    ("hidapi", r"hidapi", r"PkgConfig::HIDAPI|hidapi", ("monitor",)),
    ("pugixml", r"pugi", r"pugixml", ("store",)),
    ("ICU", r"unicode/", r"ICU::", ("store",)),
)

# What tests share, tests/support/NAME.h and .cpp: the room or wing that each stands on; the others need the store alone.
SUPPORT = {
    "ReadingPageTest": "app/frame",
    "ScriptedChooser": "app/widgets",
    "ScriptedPrinters": "app/printing",
    "MonitorTest": "app/device",
    "WidgetTest": "app/widgets",
}
# Folders of tests that are no room's, and the room that they are held to; None: whatever they like.
OTHER_TESTS = {"fuzz": None, "package": None, "printing": "app/printing", "program": None, "realusb": "monitor", "walls": None, "data": None}

INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]')


def qt_module(header, qt_headers):
    """Gui for QPainter; None for what is no Qt header. qt_headers: the folder with QtCore, QtGui, ..."""
    if not header.startswith("Q"):
        return None
    if "/" in header:
        return header.split("/")[0][len("Qt"):]
    for module in sorted(os.listdir(qt_headers)):
        if os.path.exists(os.path.join(qt_headers, module, header)):
            return module[len("Qt"):]
    return "(unknown)"


def room_of(path):
    """store for store/File.h, app/graph for app/graph/ChartView.h."""
    parts = path.split("/")
    return "/".join(parts[:2]) if parts[0] in WINGED else parts[0]


def has_module(room, module):
    return module == "Core" or module in QT_MODULES.get(room, QT_MODULES.get(room.split("/")[0], ()))


def room_wrong(room, used):
    return used in DOORS and used != room and used not in DOORS[room]


def quoted_wrong(room, header):
    """What is wrong with an include in quotes, or None."""
    used = room_of(header)
    if re.match(r"moc_|.*\.moc$", header):
        return None
    if used not in DOORS or ".." in header:
        return "is not given from the source root as room/File.h or room/wing/File.h"
    return "goes through the wall to " + used if room_wrong(room, used) else None


def library_wrong(room, header, qt_headers):
    for name, prefix, _, rooms in LIBRARIES:
        if re.match(prefix, header) and room not in rooms:
            return name + " is not for this room"
    if quoted_wrong(room, header) is None:
        return "names a room's file in angle brackets"
    module = qt_module(header, qt_headers)
    if module is not None and not has_module(room, module):
        return "Qt " + module + " is not for this room"
    return None


def include_findings(room, path, qt_headers):
    with open(path, encoding="utf-8") as file:
        for number, line in enumerate(file, 1):
            if found := INCLUDE.match(line):
                wrong = quoted_wrong(room, found[2]) if found[1] == '"' else library_wrong(room, found[2], qt_headers)
                if wrong:
                    yield f"{path}:{number}: {found[2]} {wrong}"


def linked_words(path):
    with open(path, encoding="utf-8") as file:
        return re.findall(r"[\w:.-]+", re.sub(r"#.*", "", file.read()))


def links_room_wrong(room, word):
    """Also for what tests share: zel_test_device brings the wing device."""
    library = re.match(r"zel_(\w+)$", re.sub(r"^zel_test_", "zel_app_", word))
    return library and room_wrong(room, room_of(library[1].replace("app_", "app/", 1)))


def link_findings(room, path):
    for word in linked_words(path):
        module = re.match(r"Qt6::(\w+)$", word)
        wrong = links_room_wrong(room, word) or (module and not has_module(room, module[1]))
        wrong = wrong or any(re.match(names, word) and room not in rooms for _, _, names, rooms in LIBRARIES)
        if wrong:
            yield f"{path}: links {word} through a wall"


def findings(source, qt_headers):
    """All that goes through a wall below the folder with the rooms."""
    for folder, _, names in sorted(os.walk(source)):
        room = room_of(os.path.relpath(folder, source))
        if room == ".":
            continue  # main, which ties the rooms together
        if room in WINGED and not any(name.endswith((".h", ".cpp")) for name in names):
            path = os.path.join(folder, "CMakeLists.txt")  # the list of its wings, which links nothing
            words = linked_words(path) if "CMakeLists.txt" in names else []
            yield from (f"{path}: links {w} through a wall" for w in words if re.match(r"zel_|Qt6::", w))
            continue
        if room not in DOORS:
            yield f"{folder}: is a room that tests/walls/rooms.py does not know"
            continue
        for name in sorted(names):
            path = os.path.join(folder, name)
            if name.endswith((".h", ".cpp")):
                yield from include_findings(room, path, qt_headers)
            elif name == "CMakeLists.txt":
                yield from link_findings(room, path)


def test_include_findings(room, path):
    with open(path, encoding="utf-8") as file:
        for number, line in enumerate(file, 1):
            if not (found := INCLUDE.match(line)):
                continue
            name = os.path.splitext(found[2])[0]
            used = SUPPORT.get(name.removeprefix("support/"), "store") if name.startswith("support/") else room_of(found[2])
            if ".." in found[2] or room_wrong(room, used):
                yield f"{path}:{number}: {found[2]} is not of this room or behind its doors"


def test_room(folder, name):
    """The room that a file of the tests is held to; "" where there is none."""
    if folder == "support":
        return SUPPORT.get(os.path.splitext(name)[0], "store")
    return OTHER_TESTS.get(folder, room_of(folder) if room_of(folder) in DOORS else "")


def test_findings(tests):
    """The tests of a room see and link what the room does; libraries are theirs to choose."""
    for folder, _, names in sorted(os.walk(tests)):
        at = os.path.relpath(folder, tests)
        for name in sorted(names):
            path, room = os.path.join(folder, name), test_room(at, name)
            if name.endswith((".h", ".cpp")):
                if room == "":
                    yield f"{path}: is in no room's or wing's folder of tests"
                elif room:
                    yield from test_include_findings(room, path)
            elif name == "CMakeLists.txt" and room and at != "support":
                yield from (f"{path}: links {w} through a wall" for w in linked_words(path) if links_room_wrong(room, w))


if __name__ == "__main__":
    source, tests, qt_headers = sys.argv[1:]
    found = [*findings(source, qt_headers), *test_findings(tests)]
    print("\n".join(found))
    sys.exit(1 if found else 0)

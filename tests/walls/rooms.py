"""The rooms of the program and the doors between them, and what goes through a wall.

The compiler finds every header below src/, and the linker only sees what is called, so an include in the wrong
direction builds. This finds it, in the includes and in what CMake is told to link."""
import os
import re
import sys

DOORS = {
    "store": (),
    "monitor": ("store",),
    "analysis": ("store",),
    "chart": ("store", "analysis"),
    "report": ("store", "analysis", "chart"),
    "app": ("store", "monitor", "analysis", "chart", "report"),
    "cli": ("store", "monitor", "analysis", "chart", "report"),
}

# Qt Core is everybody's; of the other modules, a room has these.
QT_MODULES = {"chart": ("Gui", "Svg"), "report": ("Gui",), "app": ("Gui", "Widgets", "PrintSupport", "Svg")}

# Library, how its headers begin, how CMake calls it, the rooms that may use it.
LIBRARIES = (
    ("hidapi", r"hidapi", r"PkgConfig::HIDAPI|hidapi", ("monitor",)),
    ("pugixml", r"pugi", r"pugixml", ("store",)),
    ("ICU", r"unicode/", r"ICU::", ("store",)),
)

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


def room_wrong(room, used):
    return used in DOORS and used != room and used not in DOORS[room]


def quoted_wrong(room, header):
    """What is wrong with an include in quotes, or None."""
    first = header.split("/")[0]
    if re.match(r"moc_|.*\.moc$", header):
        return None
    if first not in DOORS or ".." in header:
        return "is not given from the source root as room/File.h"
    return "goes through the wall to " + first if room_wrong(room, first) else None


def library_wrong(room, header, qt_headers):
    for name, prefix, _, rooms in LIBRARIES:
        if re.match(prefix, header) and room not in rooms:
            return name + " is not for this room"
    if quoted_wrong(room, header) is None:
        return "names a room's file in angle brackets"
    module = qt_module(header, qt_headers)
    if module not in (None, "Core") and module not in QT_MODULES.get(room, ()):
        return "Qt " + module + " is not for this room"
    return None


def include_findings(room, path, qt_headers):
    with open(path, encoding="utf-8") as file:
        for number, line in enumerate(file, 1):
            if found := INCLUDE.match(line):
                wrong = quoted_wrong(room, found[2]) if found[1] == '"' else library_wrong(room, found[2], qt_headers)
                if wrong:
                    yield f"{path}:{number}: {found[2]} {wrong}"


def link_findings(room, path):
    with open(path, encoding="utf-8") as file:
        text = re.sub(r"#.*", "", file.read())
    for word in re.findall(r"[\w:.-]+", text):
        library = re.match(r"zel_(\w+)$", word)
        module = re.match(r"Qt6::(\w+)$", word)
        wrong = library and room_wrong(room, library[1])
        wrong = wrong or (module and module[1] != "Core" and module[1] not in QT_MODULES.get(room, ()))
        wrong = wrong or any(re.match(names, word) and room not in rooms for _, _, names, rooms in LIBRARIES)
        if wrong:
            yield f"{path}: links {word} through a wall"


def findings(source, qt_headers):
    """All that goes through a wall below the folder with the rooms."""
    for folder, _, names in sorted(os.walk(source)):
        room = os.path.relpath(folder, source).split(os.sep)[0]
        if room == ".":
            continue  # main, which ties the rooms together
        if room not in DOORS:
            yield f"{folder}: is a room that tests/walls/rooms.py does not know"
            continue
        for name in sorted(names):
            path = os.path.join(folder, name)
            if name.endswith((".h", ".cpp")):
                yield from include_findings(room, path, qt_headers)
            elif name == "CMakeLists.txt":
                yield from link_findings(room, path)


def test_findings(tests):
    """The tests of a room see what the room sees; libraries are theirs to choose."""
    for room in DOORS:
        for folder, _, names in sorted(os.walk(os.path.join(tests, room))):
            for name in sorted(n for n in names if n.endswith((".h", ".cpp"))):
                path = os.path.join(folder, name)
                with open(path, encoding="utf-8") as file:
                    for number, line in enumerate(file, 1):
                        found = INCLUDE.match(line)
                        if found and room_wrong(room, found[2].split("/")[0]):
                            yield f"{path}:{number}: {found[2]} is not of this room or behind its doors"


if __name__ == "__main__":
    source, tests, qt_headers = sys.argv[1:]
    found = [*findings(source, qt_headers), *test_findings(tests)]
    print("\n".join(found))
    sys.exit(1 if found else 0)

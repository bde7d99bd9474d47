"""walk.py PROGRAM: goes through the program's windows over the accessibility bus, and tells what a screen reader or
voice control would stumble over."""
import json
import os
import subprocess
import sys
import tempfile
import time

import desk
import rules
from desk import State, wait

MAIN = "ZEL – blood pressure readings"
VIEWS = ("Histogram", "Correlation", "Trend", "Chart")
WINDOWS = {  # what a menu opens: its title, and the button that closes it again
    ("File", "Print …"): ("Print", "Cancel"),
    ("File", "Save as PDF …"): ("Save as PDF", "Cancel"),
    ("File", "Settings …"): ("Settings", "Cancel"),
    ("File", "Backups …"): ("Backups", "Close"),
    ("Monitor", "Downloads …"): ("Downloads", "Close"),
    ("Help", "Keys"): ("Keys", "Close"),
    ("Help", "About ZEL"): ("ZEL", "OK"),
    ("Help", "Manual"): ("Manual", None),  # beside which one works on
}
MENUS = {"File": "Print …", "Edit": "Undo", "View": "Days shown", "Monitor": "Downloads …", "Help": "Keys"}  # what is in each
DUMB = {"model": "41", "id": "DEMO1", "faults": [{"command": '"', "kind": "noAnswer"}]}  # so that its download goes on


class Walk:
    def __init__(self, path):
        self.path, self.begun, self.found = path, time.monotonic(), {}

    def look(self, where, node):
        for wrong in rules.findings(node):
            self.found.setdefault(wrong, where)  # once, where it is met first
        print(f"{time.monotonic() - self.begun:5.1f} s  {where}", flush=True)

    def fill(self, home):
        """A patient with the readings of the demonstration's monitor."""
        for words in (["patients", "--add", "--id", "DEMO1", "--family-name", "Adams", "--given-names", "Anna Maria"],
                      ["download", "--patient", "DEMO1", "--simulated-monitor"]):
            subprocess.run([self.path, *words], env=dict(os.environ, HOME=home, LC_ALL="C.UTF-8"), check=True,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def first(self, program):
        program.find("label", "No patients yet: three steps to the first readings")
        program.find("push button", "New patient with this ID")
        self.look("no patient", program.window(MAIN))

    def tab(self, program, name):
        program.press("page tab", name)
        program.find("page tab", name, where=lambda tab: tab.has(State.SELECTED))
        self.look(name, program.window(MAIN))

    def pages(self, program):
        program.find("text", "Family name")
        program.find("push button", "Close")  # in the bar that says whose monitor has come
        self.look("Patients", program.window(MAIN))
        self.tab(program, "Readings")
        self.tab(program, "Chart")
        for view in VIEWS:
            self.view(program, view)

    def view(self, program, name):
        """The list of views holds a tab that is called like a page's."""
        views = program.find("page tab list", "Views")
        program.press("page tab", name, views)
        program.find("page tab", name, views, lambda tab: tab.has(State.SELECTED))
        self.look(f"Chart, {name}", program.window(MAIN))

    def quiet_zoom(self, program):
        """To widen the period moves nobody's focus but to what shows."""
        moved = []

        def note(event):
            try:
                node = desk.Node(event.source)
                moved.append((str(node), str(desk.Node(event.source.get_parent())), node.is_showing))
            except desk.GLib.Error:
                moved.append(("something that is gone", "", False))

        listener = desk.Atspi.EventListener.new(note)
        listener.register("object:state-changed:focused")
        listener.register("focus:")
        begin = program.find(None, "From", where=lambda node: node.text is not None)
        before = begin.text
        program.press("push button", "More days: one more at each end of the period")
        wait(lambda: begin.text != before, "another period")
        program.press("push button", "Fewer days: one fewer at each end of the period")
        wait(lambda: begin.text == before, "the period of before")
        desk.hear()
        listener.deregister("object:state-changed:focused")
        listener.deregister("focus:")
        for node, parent, is_showing in moved:
            if not is_showing:
                self.found[f"{node} in {parent} does not show, and takes the focus"] = "zoom"

    def menus(self, program):
        for menu, item in MENUS.items():
            opened = program.press("menu item", menu)
            program.find("menu item", item)
            self.look(f"menu {menu}", opened)
            opened.do()  # closes it
        for (menu, item), (title, close) in WINDOWS.items():
            program.choose(menu, item)
            window = program.window(title)
            self.look(f"{menu}, {item}", window)
            if title == "Settings":
                self.importing(program, window)
            if not close:
                continue
            program.press("push button", close, window)
            program.gone(title)

    def importing(self, program, settings):
        program.press("push button", "Import …", settings)
        window = program.window("Import patients")
        self.look("Settings, Import …", window)
        program.press("push button", "Cancel", window)
        program.gone("Import patients")

    def dialogs(self, program):
        """What the pages' buttons, or a menu, open."""
        self.opened(program, "Readings", "New Reading…")
        table = program.find("table", "List of readings")
        desk.Atspi.Table.add_row_selection(table.given.get_table_iface(), 0)
        self.opened(program, "Readings", "Edit", "Leave Out…")
        self.opened(program, "Patients", "Delete")
        name = program.find("text", "Given name(s)")
        known = name.text
        name.write("Anna")
        self.opened(program, "Patients", "New", told="Save the changes?")
        name.write(known)

    def opened(self, program, page, *way, told=""):
        program.press("page tab", page)
        known = [window.name for window in program.windows]
        program.choose(*way) if len(way) > 1 else program.press("push button", *way)
        window = wait(lambda: next((w for w in program.windows if w.name not in known), None), f"what {way[-1]} opens")
        self.look(f"{page}, {way[-1]}", window)
        if not any(told in label.name for label in window.all("label")):
            raise desk.Fault(f"{window} does not say '{told}'")
        name = window.name
        program.press("push button", next(b.name for b in window.all("push button") if b.name in ("No", "Cancel")), window)
        program.gone(name)

    def downloading(self, program):
        """What stands while the monitor sends; cancelled, it tells so."""
        program.press("push button", "Download")
        window = program.window("Download readings")
        self.look("Download", window)
        program.press("push button", "Cancel", window)
        program.gone(window.name)

    def run(self):
        with tempfile.TemporaryDirectory() as home:
            plan = f"{home}/dumb.json"
            with open(plan, "w", encoding="utf-8") as file:
                json.dump(DUMB, file)
            for steps, monitor in (([self.first], ""), ([self.pages, self.quiet_zoom, self.dialogs, self.menus], ""),
                                   ([self.downloading], f"={plan}")):
                program = desk.Program(self.path, home, f"--simulated-monitor{monitor}")
                try:
                    for each in steps:
                        each(program)
                    code = program.end()
                    if code != 0:
                        self.found[f"the program ends with {code}"] = "end"
                except desk.Fault as fault:
                    self.found[str(fault)] = "on the way"
                finally:
                    program.process.kill()
                if steps == [self.first]:
                    self.fill(home)
        for wrong, where in self.found.items():
            print(f"{where}: {wrong}")
        return bool(self.found)


sys.exit(Walk(sys.argv[1]).run())

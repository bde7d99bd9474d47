"""job.py PROGRAM: what the program is for, done over the accessibility bus alone: a patient is entered, the monitor's
readings are downloaded, looked at in table, figures and chart, and made a report."""
import os
import sys
import tempfile

import desk
from desk import State, wait

READINGS = 62  # in the demonstration's monitor
MAIN = "ZEL – blood pressure readings"


def expect(condition, what):
    if not condition:
        raise desk.Fault(what)


def enter_patient(program):
    program.press("push button", "New")
    for caption, text in (("Family name", "Adams"), ("Given name(s)", "Anna Maria"), ("ID", "DEMO1")):
        field = program.find("text", caption, where=lambda found: found.labels)
        expect("required" in field.description.lower(), f"{field} does not say that it is required")
        field.write(text)
    smoker = program.find("combo box", "Smoker")
    smoker.do("Increase")
    expect(smoker.text == "Yes", f"{smoker} says '{smoker.text}'")
    program.press("push button", "Save")
    program.find("table cell", "Adams, Anna Maria")


def value(program, caption):
    return program.find("label", caption, where=lambda found: found.text is not None).text


def download(program):
    wait(lambda: value(program, "ID") == "DEMO1", "the monitor's ID")
    program.press("push button", "Download")
    wait(lambda: value(program, "Readings of this patient") == str(READINGS), "the readings")
    wait(lambda: not any(window.name == "Download readings" for window in program.windows), "the download to end")


def cell(table, row, column):
    return desk.Node(desk.Atspi.Table.get_accessible_at(table.given.get_table_iface(), row, column)).name


def figures(program):
    """Lowest and highest of the measures, as the table of statistics has them."""
    table = program.find("table", "Statistics")
    shape = table.given.get_table_iface()
    columns = [desk.Atspi.Table.get_column_description(shape, at) for at in range(3)]
    expect(columns == ["Average", "Min", "Max"], f"the statistics' columns are {columns}")
    return {desk.Atspi.Table.get_row_description(shape, row): (cell(table, row, 1), cell(table, row, 2))
            for row in range(desk.Atspi.Table.get_n_rows(shape))}


def read_table(program):
    program.press("page tab", "Readings")
    program.press("radio button", "All")
    program.press("check box", "Undated readings")
    table = program.find("table", "List of readings")
    shape = table.given.get_table_iface()
    wait(lambda: desk.Atspi.Table.get_n_rows(shape) == READINGS, f"{READINGS} rows in the table")
    rows = range(desk.Atspi.Table.get_n_rows(shape))
    systolic = [cell(table, row, 2).split()[0].rstrip(",") for row in rows if cell(table, row, 2)[:1].isdigit()]
    said = figures(program)["Systolic pressure, mmHg"]
    numbers = sorted(map(int, systolic))
    expect((str(numbers[0]), str(numbers[-1])) == said, f"the table has {numbers[0]} to {numbers[-1]}, the statistics {said}")
    return said


def read_chart(program, systolic):
    program.press("page tab", "Chart")
    images = [node for node in program.window(MAIN).all("image") if node.description]
    words = wait(lambda: next((node.description for node in program.window(MAIN).all("image")
                               if "Systolic pressure" in node.description), None), f"the chart's words, not {images}")
    for number in systolic:
        expect(f" {number}" in words, f"the chart does not say {number}: {words}")
    for view in ("Histogram", "Correlation", "Trend"):
        program.press("page tab", view)
        wait(lambda: [node for node in program.window(MAIN).all("image") if len(node.description) > 20], f"the {view}'s words")


def report(program, path):
    program.choose("File", "Save as PDF …")
    window = program.window("Save as PDF")
    program.press("push button", "Save as PDF …", window)
    name = program.find("text", "File name:")
    name.write(path)
    program.press("push button", "Save", wait(lambda: next((w for w in program.windows if w.all("text", "File name:")), None), "the chooser"))
    wait(lambda: os.path.exists(path) and open(path, "rb").read(5) == b"%PDF-", "the report")
    program.press("push button", "Close", window)
    program.gone("Save as PDF")


def main(path):
    with tempfile.TemporaryDirectory() as home:
        program = desk.Program(path, home, "--simulated-monitor")
        try:
            for step in (enter_patient, download, lambda p: read_chart(p, read_table(p)),
                         lambda p: report(p, f"{home}/report.pdf")):
                step(program)
            program.choose("File", "Quit")
            expect(wait(lambda: program.process.poll() is not None and "ended", "the end") and program.process.returncode == 0,
                   "the program ended badly")
        finally:
            program.process.kill()


main(sys.argv[1])

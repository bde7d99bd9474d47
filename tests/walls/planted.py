"""The checks of this folder find what is planted in an otherwise clean tree, and nothing else."""
import os
import sys
import tempfile

import looks
import rooms
import texts

CLEAN = {
    "src/main.cpp": '#include "app/shell/Window.h"\n#include "cli/CommandLine.h"\n',
    "src/store/File.h": "#pragma once\n#include <QString>\n#include <pugixml.hpp>\n#include <vector>\n",
    "src/store/CMakeLists.txt": "zel_room(store DOORS Qt6::Core pugixml::pugixml)\n",
    "src/monitor/Port.cpp": '#include "monitor/Port.h"\n#include "store/File.h"\n#include <hidapi.h>\n',
    "src/monitor/Port.h": "#pragma once\n",
    "src/monitor/CMakeLists.txt": "zel_room(monitor DOORS zel_store PkgConfig::HIDAPI) # not zel_app\n",
    "src/app/CMakeLists.txt": "add_subdirectory(widgets)\n",
    "src/app/widgets/Box.h": '#include "store/File.h"\n#include <QWidget>\n#include <QtGui/QPainter>\n',
    "src/app/widgets/CMakeLists.txt": "zel_room(app_widgets DOORS zel_store Qt6::Widgets)\n",
    "src/app/widgets/Style.h": "struct Style { static constexpr int near = 8; };\n",
    "src/app/widgets/Style.cpp": "auto red = Qt::red; font.setPointSizeF(2);\n",
    "src/app/graph/Page.h": '#include "app/widgets/Box.h"\n',
    "src/app/graph/Page.cpp": "row->setContentsMargins(0, 0, Style::near, 0); // not (0, 0, 8, 0)\n"
    "row->setSpacing(0); QColor wash = other; pen(Qt::transparent); box->setStyleSheet(Style::sheet());\n",
    "src/app/graph/CMakeLists.txt": "zel_room(app_graph DOORS zel_app_frame)\n",
    "src/app/printing/Print.h": "#include <QPrinter>\n",
    "src/app/shell/Window.h": '#include "app/graph/Page.h"\n#include "monitor/Port.h"\n#include <QDBusConnection>\n',
    "src/app/shell/Window.cpp": '// qtTrId(key)\nauto a = qtTrId("Title") + qtTrId("Of");\nauto b = "// qtTrId(\\"no\\")" + qtTrId("Word", 3);\n'
    'box->setText(u"\\u26A0 %1 mmHg, SYS, ZEL"_s.arg(qtTrId("Of"))); // setText("in a comment")\n'
    'menu.addAction(QIcon(u":/images/open"_s), qtTrId("Of"), [=] { find(u"editMenu"_s)->setText(words[u"key"_s]); });\n'
    'box->setText(bar.findChild<QLabel*>(u"line"_s)->text()); label = new QLabel(u"/"_s, box); addAction(u"open"_s, qtTrId("Of"));\n',
    "src/cli/CommandLine.h": '#include "store/File.h"\n',
    "tests/monitor/PortTest.cpp": '#include "monitor/Port.h"\n#include "support/Clock.h"\n#include <pugixml.hpp>\n',
    "tests/app/graph/PageTest.cpp": '#include "app/graph/Page.h"\n#include "support/ReadingPageTest.h"\n',
    "tests/support/WidgetTest.h": '#include "app/widgets/Box.h"\n',
    "tests/app/graph/CMakeLists.txt": "zel_test(app_graph LINKS zel_resources zel_test_frame)\n",
    "translations/zel_en.ts": '<TS language="en"><context><name>app</name>'
    '<message id="Of"><translation>%1 of %2</translation></message>'
    '<message id="Title"><translation>T</translation></message>\n'
    '<message id="Word" numerus="yes"><translation><numerusform>W</numerusform><numerusform>%n Ws</numerusform></translation>'
    "</message></context>\n",
    "translations/zel_pl.ts": '<TS language="pl"><context><name>app</name>'
    '<message id="Of"><translation>%2: %1</translation></message>'
    '<message id="Title"><translation>Tytuł</translation></message>\n'
    '<message id="Word" numerus="yes"><translation><numerusform>A</numerusform><numerusform>%n B</numerusform>'
    "<numerusform>%n C</numerusform></translation></message></context>\n",
}

# What is added to which file, and the words of the one finding that it must give.
ROOM_PLANTS = (
    ("src/store/File.h", '#include "monitor/Port.h"', "through the wall to monitor"),
    ("src/monitor/Port.h", '#  include "app/shell/Window.h"', "through the wall to app/shell"),
    ("src/app/shell/Window.h", '#include "cli/CommandLine.h"', "through the wall to cli"),
    ("src/app/graph/Page.h", '#include "app/patients/List.h"', "through the wall to app/patients"),
    ("src/app/graph/Page.h", '#include "monitor/Port.h"', "through the wall to monitor"),
    ("src/app/widgets/Box.h", '#include "app/graph/Page.h"', "through the wall to app/graph"),
    ("src/cli/CommandLine.h", '#include "app/widgets/Box.h"', "through the wall to app/widgets"),
    ("src/monitor/Port.h", '#include "../app/Window.h"', "not given from the source root"),
    ("src/monitor/Port.h", '#include "Port.h"', "not given from the source root"),
    ("src/app/graph/Page.h", '#include "app/Page.h"', "not given from the source root"),
    ("src/cli/CommandLine.h", "#include <store/File.h>", "in angle brackets"),
    ("src/cli/CommandLine.h", "#include <hidapi/hidapi.h>", "hidapi is not for this room"),
    ("src/monitor/Port.h", "#include <pugixml.hpp>", "pugixml is not for this room"),
    ("src/app/widgets/Box.h", "#include <unicode/ucal.h>", "ICU is not for this room"),
    ("src/cli/CommandLine.h", "#include <QWidget>", "Qt Widgets is not for this room"),
    ("src/monitor/Port.h", "#include <QtWidgets/QLabel>", "Qt Widgets is not for this room"),
    ("src/store/File.h", "#include <QPainter>", "Qt Gui is not for this room"),
    ("src/app/graph/Page.h", "#include <QDBusConnection>", "Qt DBus is not for this room"),
    ("src/app/graph/Page.h", "#include <QPrinter>", "Qt PrintSupport is not for this room"),
    ("src/app/graph/CMakeLists.txt", "target_link_libraries(zel_app_graph zel_app_settings)", "links zel_app_settings"),
    ("src/store/CMakeLists.txt", "target_link_libraries(zel_store PUBLIC zel_monitor)", "links zel_monitor"),
    ("src/monitor/CMakeLists.txt", "target_link_libraries(zel_monitor PUBLIC Qt6::Widgets)", "links Qt6::Widgets"),
    ("src/store/CMakeLists.txt", "target_link_libraries(zel_store PUBLIC PkgConfig::HIDAPI)", "links PkgConfig::HIDAPI"),
    ("tests/monitor/PortTest.cpp", '#include "app/widgets/Box.h"', "not of this room"),
    ("tests/app/graph/PageTest.cpp", '#include "app/shell/Window.h"', "not of this room"),
    ("tests/app/graph/CMakeLists.txt", "target_link_libraries(app_graph_tests zel_app_shell)", "links zel_app_shell"),
    ("tests/app/graph/CMakeLists.txt", "target_link_libraries(app_graph_tests zel_test_device)", "links zel_test_device"),
    ("tests/app/graph/PageTest.cpp", '#include "support/MonitorTest.h"', "not of this room"),
    ("tests/app/graph/PageTest.cpp", '#include "../shell/AppTest.h"', "not of this room"),
    ("tests/support/WidgetTest.h", '#include "app/shell/Window.h"', "not of this room"),
    ("tests/printing/QueueTest.cpp", '#include "app/shell/Window.h"', "not of this room"),
    ("tests/app/OldTest.cpp", "", "in no room's"),
    ("src/app/CMakeLists.txt", "target_link_libraries(zel_app_graph zel_app_settings)", "links zel_app_settings"),
    ("src/attic/Old.h", "", "does not know"),
    ("src/app/Old.h", "", "does not know"),
    ("src/app/attic/Old.h", "", "does not know"),
)
TEXT_PLANTS = (
    ("src/store/File.h", 'auto t = qtTrId("NoWords");', "no words for the key NoWords"),
    ("src/store/File.h", "auto t = qtTrId(key);", "no literal"),
    ("src/app/shell/Window.cpp", 'box->setText(u"No readings"_s);', 'Window.cpp:7: "No readings" is shown'),
    ("src/app/shell/Window.cpp", 'box->setText(is ? qtTrId("Of") : u"%1 mmHg left"_s.arg(3));', "is shown"),
    ("src/app/shell/Window.cpp", 'menu->addItem(u"Open"_s, data[u"key"_s]);', '"Open" is shown'),
    ("src/app/shell/Window.cpp", 'auto* box = new QCheckBox("Über alles"_L1, this);', "is shown"),
    ("src/app/shell/Window.cpp", 'QLabel empty{u"量測"_s};', "is shown"),
    ("src/app/shell/Window.cpp", 'menu.addAction(qtTrId("Of"), [=] { box->setToolTip(R"(Save)"); });', "is shown"),
    ("src/app/shell/Window.cpp", 'panel.AskMessage(\n    text(u"Save the changes?"_s), title);', "is shown"),
    ("translations/zel_en.ts", '<message id="Zebra"><translation>Z</translation></message>', "nothing asks for the key Zebra"),
    ("translations/zel_en.ts", '<message id="Word"><translation>W</translation></message>', "Word stands in the table twice"),
    ("translations/zel_en.ts", '<translation type="unfinished"/>', "unfinished"),
    ("translations/zel_pl.ts", '<translation type="unfinished"/>', "zel_pl.ts: a text is marked as unfinished"),
    ("translations/zel_pl.ts", '<message id="Zebra"><translation>Z</translation></message>', "not in the English table"),
    ("translations/zel_pl.ts", '<message id="Title"><translation>W</translation></message>', "stands in the table twice"),
)
LOOK_PLANTS = (
    ("src/app/graph/Page.cpp", "QColor ink(12, 34, 56);", "Page.cpp:3: a colour"),
    ("src/app/graph/Page.cpp", 'const QColor ink{"#123456"};', "a colour"),
    ("src/app/graph/Page.cpp", "pen.setColor(Qt::darkRed);", "a colour"),
    ("src/app/graph/Page.cpp", "auto ink = QColor::fromRgb(1, 2, 3);", "a colour"),
    ("src/app/graph/Page.cpp", 'auto sheet = u"color: #fff";', "a colour"),
    ("src/app/graph/Page.cpp", "font.setPointSizeF(font.pointSizeF() * 1.1);", "a size of type"),
    ("src/app/graph/Page.cpp", "sides->setHandleWidth(12);", "a distance"),
    ("src/app/graph/Page.cpp", 'QFont font(u"Sans"_s, 12);', "a size of type"),
    ("src/app/graph/Page.cpp", "row->setContentsMargins(0, 0, 0,\n    9);", "a distance"),
    ("src/app/graph/Page.cpp", "row->setSpacing(8);", "a distance"),
    ("src/app/graph/Page.cpp", "constexpr int gapInGroup = 8;", "a distance"),
    ("src/app/graph/Page.cpp", 'box->setStyleSheet(u"margin: 2px"_s);', "a style sheet"),
)
# Spoiled words of a table: what is replaced by what.
TEXT_SPOILS = (
    ("en", ">T<", "> <", "no words for the key Title"),
    ("en", '"Title"', '"Xitle"', "no words for the key Title"),
    ("pl", ">Tytuł<", ">  <", "Title: one of the two texts is empty"),
    ("pl", '<message id="Title"><translation>Tytuł</translation></message>', "", "no text for the key Title"),
    ("pl", '"Title"', '"Ab"', "the keys of the context app are not sorted"),
    ("pl", "%2: %1", "%2", "Of: the places ['%2'] are not those"),
    ("pl", "%2: %1", "%2: %1 %3", "Of: the places ['%1', '%2', '%3'] are not those"),
    ("pl", "%n C", "C", "Word: the places [] are not those"),
    ("pl", "<numerusform>%n C</numerusform>", "", "Word: 2 forms are not those of the language"),
    ("pl", ' numerus="yes"', "", "Word: 3 forms are not those of the language"),
    ("pl", "<name>app<", "<name>cli<", "stands in the context cli, not in app"),
    ("pl", 'language="pl"', 'language="de"', "not said to be of the language pl"),
    ("pl", ">Tytuł<", ">&lt;b>Tytuł<", "Title: the marks of the type"),
)


def write(root, files):
    for name, content in files.items():
        path = os.path.join(root, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(content)


def found_in(files, check):
    with tempfile.TemporaryDirectory() as root:
        write(root, files)
        return list(check(root))


def expect(wanted, found, what):
    """One finding with the wanted words among those found; none when nothing is wanted."""
    if (any(wanted in line for line in found)) if wanted else not found:
        return 0
    print(f"{what}: wanted '{wanted}', found {found}")
    return 1


def plant(check, plants):
    wrong = expect("", found_in(CLEAN, check), "the clean tree")
    for name, added, wanted in plants:
        files = CLEAN | {name: CLEAN.get(name, "") + added + "\n"}
        wrong += expect(wanted, found_in(files, check), f"{added} in {name}")
    return wrong


def main(qt_headers):
    def in_rooms(root):
        return [*rooms.findings(os.path.join(root, "src"), qt_headers), *rooms.test_findings(os.path.join(root, "tests"))]

    def in_texts(root):
        return texts.findings(os.path.join(root, "src"), os.path.join(root, "translations"))

    def in_looks(root):
        return looks.findings(os.path.join(root, "src"))

    wrong = plant(in_rooms, ROOM_PLANTS) + plant(in_texts, TEXT_PLANTS) + plant(in_looks, LOOK_PLANTS)
    for tag, old, new, wanted in TEXT_SPOILS:
        name = f"translations/zel_{tag}.ts"
        files = CLEAN | {name: CLEAN[name].replace(old, new)}
        wrong += expect(wanted, found_in(files, in_texts), f"{old} made {new}")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))

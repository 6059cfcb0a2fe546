#!/usr/bin/env python3
"""Checks which files may include which.

    tools/check_includes.py ROOT         the sources below ROOT/src; status 1 and one line a fault
    tools/check_includes.py --self-test  proves on a made-up tree that each rule notices

Rules:
- Includes only point down the floors: platform, core, commands, forms, the program. A file's name
  tells its floor: platform/ and forms/ are folders; in the other ones Launcher.* and
  <Subject>Commands.* are commands and the rest is core; main.cpp is the program.
- Only forms and the program include what Qt Widgets holds.
- No circle of includes within the core or below, where a header and its .cpp count as one, be the
  header in private/.
- An include in quotes names a project file by its path below src, or one beside it.
"""

import pathlib
import re
import sys
import tempfile

FLOORS = ["platform", "core", "commands", "forms", "program"]
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"]+)[>"]', re.MULTILINE)
WIDGETS_FOLDER = re.compile(r"Qt(Widgets|OpenGLWidgets|SvgWidgets|PrintSupport|UiTools|Charts)(/|$)")
# The short form, <QLabel>, finds no header below the forms, since nothing there links Qt Widgets;
# it is listed for those that one would reach for first, to say so before the compiler does.
WIDGETS = set(
    """QAbstractItemView QApplication QBoxLayout QCheckBox QComboBox QDialog QFileDialog QFileIconProvider
    QInputDialog QLabel QLayout QLineEdit QListView QListWidget QMainWindow QMenu QMessageBox
    QProgressBar QProgressDialog QPushButton QStatusBar QStyle QTableView QTextEdit QToolTip QTreeView
    QTreeWidget QWidget""".split()
)


def is_widgets_header(name):
    lower = {header.lower() + ".h" for header in WIDGETS}
    return bool(WIDGETS_FOLDER.match(name)) or name in WIDGETS or name in lower


def floor_of(path):
    """The floor of a file, by its path below src."""
    folder = path.parts[0]
    if len(path.parts) == 1:
        return "program"
    if folder in ("platform", "forms"):
        return folder
    if path.stem == "Launcher" or path.stem.endswith("Commands"):
        return "commands"
    return "core"


def subject_of(path):
    """What a header and its .cpp have in common."""
    return "/".join(part for part in path.with_suffix("").parts if part != "private")


def find_circle(graph):
    """One circle of the graph as a list whose first and last are equal, or none."""
    done = set()

    def walk(node, trail):
        if node in trail:
            return trail[trail.index(node):] + [node]
        if node in done:
            return None
        for target in sorted(graph.get(node, ())):
            circle = walk(target, trail + [node])
            if circle:
                return circle
        done.add(node)
        return None

    for node in sorted(graph):
        circle = walk(node, [])
        if circle:
            return circle
    return None


def faults_of(root):
    src = root / "src"
    faults, below_commands, count = [], {}, 0
    for file in sorted(f for f in src.rglob("*") if f.suffix in (".cpp", ".h")):
        path = file.relative_to(src)
        floor = floor_of(path)
        count += 1
        for mark, name in INCLUDE.findall(file.read_text(encoding="utf-8")):
            if floor not in ("forms", "program") and is_widgets_header(name):
                faults.append(f"{path}: includes {name}, but only forms use Qt Widgets")
            if mark == "<":
                continue
            target = next(
                (b / name for b in (src, file.parent) if (b / name).is_file()), None
            )
            if target is None:
                if not name.endswith(".moc"):
                    faults.append(f"{path}: includes {name}, which is no file of the project")
                continue
            target = target.resolve().relative_to(src.resolve())
            if FLOORS.index(floor_of(target)) > FLOORS.index(floor):
                faults.append(f"{path} ({floor}): includes {target} ({floor_of(target)}) above it")
            subject, other = subject_of(path), subject_of(target)
            if floor in ("platform", "core") and (subject != other or path == target):
                below_commands.setdefault(subject, set()).add(other)
    circle = find_circle(below_commands)
    if circle:
        faults.append("a circle of includes: " + " -> ".join(circle))
    if count == 0:
        faults.append(f"{src}: no sources")
    return faults


SOUND_TREE = {
    "main.cpp": '#include "forms/Main.h"\n#include <QApplication>\n',
    "forms/Main.h": '#include "shell/Launcher.h"\n#include "forms/pages/Page.h"\n#include <QWidget>\n',
    "forms/pages/Page.h": "#include <QtWidgets/QLabel>\n",
    "shell/Launcher.h": '#include "finding/List.h"\n',
    "finding/ListCommands.cpp": '#include "ListCommands.h"\n#include "shell/Launcher.h"\n',
    "finding/ListCommands.h": '#include "shell/Launcher.h"\n',
    "finding/List.h": '#include "platform/Paths.h"\n#include "finding/private/Row.h"\n',
    "finding/private/Row.h": "#include <QString>\n",
    "finding/Row.cpp": '#include "finding/private/Row.h"\n',
    "platform/Paths.h": "#include <QString>\n#include <QGuiApplication>\n",
}
# What is laid over the sound tree, and a word that the one fault must hold.
UNSOUND = {
    "a widget in the core": ("finding/List.h", "#include <QWidget>\n", "QWidget"),
    "a widget by its folder": ("platform/Paths.h", "#include <QtWidgets/QMenu>\n", "QMenu"),
    "a widget by its lower-case file": ("shell/Launcher.h", "#  include <qmessagebox.h>\n", "qmessagebox"),
    "all of Qt Widgets": ("finding/ListCommands.cpp", "#include <QtWidgets>\n", "QtWidgets"),
    "a form from a command": ("finding/ListCommands.cpp", '#include "forms/Main.h"\n', "above"),
    "the launcher from the core": ("finding/private/Row.h", '#include "shell/Launcher.h"\n', "above"),
    "commands from the core": ("finding/List.h", '#include "finding/ListCommands.h"\n', "above"),
    "a room from the platform": ("platform/Paths.h", '#include "finding/private/Row.h"\n', "above"),
    "a file against itself": ("platform/Paths.h", '#include "platform/Paths.h"\n', "circle"),
    "two files in a circle": ("finding/private/Row.h", '#include "finding/List.h"\n', "circle"),
    "a circle through a .cpp": ("finding/Row.cpp", '#include "finding/List.h"\n', "circle"),
    "a file that is not there": ("forms/Main.h", '#include "forms/Gone.h"\n', "Gone.h"),
}


def self_test():
    def judge(changes):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in {**SOUND_TREE, **changes}.items():
                file = pathlib.Path(folder, "src", name)
                file.parent.mkdir(parents=True, exist_ok=True)
                file.write_text(text, encoding="utf-8")
            return faults_of(pathlib.Path(folder))

    wrong = [f"sound tree: {fault}" for fault in judge({})]
    for case, (name, text, word) in UNSOUND.items():
        faults = judge({name: SOUND_TREE[name] + text})
        if len(faults) != 1 or word not in faults[0]:
            wrong.append(f"{case}: {faults or 'not noticed'}")
    with tempfile.TemporaryDirectory() as folder:
        if not faults_of(pathlib.Path(folder)):
            wrong.append("an empty tree passes")
    return wrong


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    faults = self_test() if sys.argv[1] == "--self-test" else faults_of(pathlib.Path(sys.argv[1]))
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())

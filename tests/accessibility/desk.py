"""The program as a screen reader meets it: started for itself, its windows read and worked over the desktop's
accessibility bus. Nothing here knows a coordinate, a key or a widget."""
import functools
import os
import signal
import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

LIMIT = 20  # seconds; only a fault takes so long
STEP = 0.02
ANSWER = 4000  # milliseconds; an action that opens a dialog with a question does not answer while that is open
MANY = 200  # children; of a table of more, the first ones are looked at
State = Atspi.StateType


class Fault(Exception):
    """What a user of a screen reader would run into."""


def wait(condition, what, limit=LIMIT):
    """What the condition returns, as soon as that is something."""
    end = time.monotonic() + limit
    while True:
        try:
            found = condition()
        except GLib.Error:  # it went away in the midst of it
            found = None
        if found:
            return found
        if time.monotonic() > end:
            raise Fault(f"waited in vain for {what}")
        hear()
        time.sleep(STEP)


def hear():
    """Lets the listeners hear what has come meanwhile."""
    while GLib.MainContext.default().iteration(False):
        pass


class Node:
    """One accessible object, asked anew each time."""

    def __init__(self, given):
        self.given = given

    @property
    def role(self):
        return self.given.get_role_name()

    @property
    def name(self):
        return self.given.get_name() or ""

    @property
    def description(self):
        return self.given.get_description() or ""

    @property
    def text(self):
        """What it holds beside its name; None where that is nothing to be read."""
        text = self.given.get_text_iface()
        return Atspi.Text.get_text(text, 0, Atspi.Text.get_character_count(text)) if text else None

    @property
    def size(self):
        box = self.given.get_component_iface()
        return Atspi.Component.get_size(box) if box else None

    def has(self, state):
        return self.given.get_state_set().contains(state)

    @property
    def is_showing(self):
        return self.has(State.SHOWING)

    @property
    def labels(self):
        """The nodes that name this one."""
        return [Node(each.get_target(at)) for each in self.given.get_relation_set()
                if each.get_relation_type() == Atspi.RelationType.LABELLED_BY for at in range(each.get_n_targets())]

    @property
    def children(self):
        found = (self.given.get_child_at_index(at) for at in range(min(self.given.get_child_count(), MANY)))
        return [Node(child) for child in found if child]

    @property
    def shown_children(self):
        return [child for child in self.children if child.is_showing]

    def shown(self):
        """It and all that shows in it."""
        yield self
        for child in self.shown_children:
            yield from child.shown()

    def nearest(self, role, name, where):
        """The first one, those of the same depth before what is in them."""
        waiting = [self]
        for node in waiting:
            if role in (None, node.role) and name in (None, node.name) and where(node):
                return node
            waiting += node.shown_children
        return None

    def all(self, role=None, name=None):
        return [node for node in self.shown() if role in (None, node.role) and name in (None, node.name)]

    @property
    def actions(self):
        """The names of what can be done with it, in order."""
        offered = self.given.get_action_iface()
        return [Atspi.Action.get_action_name(offered, at) for at in range(Atspi.Action.get_n_actions(offered))] if offered else []

    def do(self, action=None):
        """By default what a press does with it."""
        actions = self.actions
        action = action or next((each for each in ("Press", "Toggle", "ShowMenu") if each in actions), "Press")
        if action not in actions:
            raise Fault(f"{self} cannot be told to {action}, only {actions}")
        try:
            Atspi.Action.do_action(self.given.get_action_iface(), actions.index(action))
        except GLib.Error:  # a dialog that it opens answers only when it is closed
            pass

    def write(self, text):
        held = self.given.get_editable_text_iface()
        if not held or not Atspi.EditableText.set_text_contents(held, text):
            raise Fault(f"{self} takes no text")

    def __str__(self):
        return f"{self.role} '{self.name}'"


class Still(Node):
    """As it was when it was first asked: for whoever asks the same several times."""
    role = functools.cached_property(Node.role.fget)
    name = functools.cached_property(Node.name.fget)
    description = functools.cached_property(Node.description.fget)
    text = functools.cached_property(Node.text.fget)
    size = functools.cached_property(Node.size.fget)
    labels = functools.cached_property(Node.labels.fget)
    states = functools.cached_property(lambda self: self.given.get_state_set())

    def has(self, state):
        return self.states.contains(state)

    @functools.cached_property
    def shown_children(self):
        return [child for child in (Still(each.given) for each in self.children) if child.is_showing]


class Program:
    """The program that runs, in a home of its own."""

    def __init__(self, program, home, *arguments):
        Atspi.init()
        Atspi.set_timeout(ANSWER, ANSWER)
        surroundings = dict(os.environ, HOME=home, XDG_STATE_HOME=f"{home}/state", LC_ALL="C.UTF-8", LANGUAGE="en",
                            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb", QT_ACCESSIBILITY="1")
        self.log = open(f"{home}/log", "w", encoding="utf-8")
        self.process = subprocess.Popen([program, *arguments], env=surroundings, stdin=subprocess.DEVNULL,
                                        stdout=self.log, stderr=self.log)
        self.node = wait(self.found, "the program on the accessibility bus")

    def found(self):
        Atspi.get_desktop(0).clear_cache()
        for application in Node(Atspi.get_desktop(0)).children:
            if application.given.get_process_id() == self.process.pid:
                application.given.set_cache_mask(Atspi.Cache.NONE)
                return application
        if self.process.poll() is not None:
            raise Fault(f"the program ended with {self.process.returncode}")
        return None

    @property
    def windows(self):
        return self.node.shown_children

    def window(self, name, role=None):
        return wait(lambda: next((w for w in self.windows if w.name == name and role in (None, w.role)), None),
                    f"the window '{name}'")

    def find(self, role, name, inside=None, where=lambda node: True):
        def look():
            for window in [inside] if inside else self.windows:
                node = window.nearest(role, name, where)
                if node:
                    return node
            return None
        return wait(look, f"the {role} '{name}'")

    def press(self, role, name, inside=None):
        """As soon as it can be pressed."""
        node = self.find(role, name, inside, lambda found: found.has(State.SENSITIVE) and found.actions)
        node.do()
        return node

    def choose(self, menu, item):
        """In the menu bar's menu."""
        self.press("menu item", menu)
        self.press("menu item", item)

    def gone(self, name):
        wait(lambda: all(window.name != name for window in self.windows), f"the window '{name}' to close")

    def end(self):
        """As the session's end does; returns the exit code."""
        self.process.send_signal(signal.SIGTERM)
        try:
            return self.process.wait(LIMIT)
        finally:
            self.process.kill()
            self.log.close()

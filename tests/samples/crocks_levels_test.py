#!/usr/bin/env python3
"""Solves every yard of 장독대 (Crocks) and compares the fewest pushes with what the game tells.

    crocks_levels_test.py REPOSITORY
"""

import collections
import pathlib
import re
import sys
import unittest

LEVELS = "samples/crocks/src/levels.asm"
ROW = r'\s+db\s+"([^"]*)\|"\n'
LEVEL = re.compile(rf'^level_(\d+):\n\s+db\s+"([^"]+)", 0, (\d+)\n((?:{ROW})+)\s+db\s+0$', re.M)
WAYS = ((0, -1), (-1, 0), (1, 0), (0, 1))
COLUMNS, ROWS = 20, 11


def after(cell, way):
    return cell[0] + way[0], cell[1] + way[1]


class Yard:
    """A yard by the rules of the game; cells are (x, y)."""

    def __init__(self, rows):
        cells = {(x, y): mark for y, row in enumerate(rows) for x, mark in enumerate(row)}
        self.ice = {cell for cell, mark in cells.items() if mark == "~"}
        self.places = frozenset(cell for cell, mark in cells.items() if mark in ".*+")
        self.crocks = frozenset(cell for cell, mark in cells.items() if mark in "$*")
        (self.child,) = (cell for cell, mark in cells.items() if mark in "@+")
        walls = {cell for cell, mark in cells.items() if mark == "#"}
        self.floor = set(cells) - walls  # until the walk below
        self.floor = self.reach(self.child, frozenset())
        around = {after(cell, way) for cell in self.floor for way in WAYS}
        self.is_closed = around - self.floor <= walls
        self.useful = self.cells_with_a_way_home()

    def reach(self, child, crocks):
        """All cells that the child can walk to."""
        seen, todo = {child}, [child]
        while todo:
            cell = todo.pop()
            for way in WAYS:
                side = after(cell, way)
                if side in self.floor and side not in crocks and side not in seen:
                    seen.add(side)
                    todo.append(side)
        return seen

    def push(self, crocks, crock, way):
        """Where a crock comes to rest; None if it cannot be pushed."""
        rest, cell = crocks - {crock}, after(crock, way)
        if cell not in self.floor or cell in rest:
            return None
        while cell in self.ice:
            ahead = after(cell, way)
            if ahead not in self.floor or ahead in rest:
                break
            cell = ahead
        return cell

    def cells_with_a_way_home(self):
        """Cells from which a crock alone can come to a place if it may stop anywhere on ice; from
        the others none can, whatever stands in its way."""
        sources = collections.defaultdict(set)
        for cell in self.floor:
            for way in WAYS:
                if after(cell, (-way[0], -way[1])) not in self.floor:
                    continue
                stop = after(cell, way)
                while stop in self.floor:
                    sources[stop].add(cell)
                    if stop not in self.ice:
                        break
                    stop = after(stop, way)
        useful, todo = set(self.places), list(self.places)
        while todo:
            found = sources[todo.pop()] - useful
            useful |= found
            todo.extend(found)
        return useful

    def pushes_from(self, crocks, child):
        """The states one push later: the crocks, and the child where it stands then."""
        around = self.reach(child, crocks)
        for crock in crocks:
            for way in WAYS:
                if after(crock, (-way[0], -way[1])) in around:
                    cell = self.push(crocks, crock, way)
                    if cell in self.useful:
                        yield crocks - {crock} | {cell}, crock

    def fewest_pushes(self):
        """None: it cannot be solved."""
        seen = set()
        todo = collections.deque([(self.crocks, self.child, 0)])
        while todo:
            crocks, child, pushes = todo.popleft()
            if crocks == self.places:
                return pushes
            for after_crocks, after_child in self.pushes_from(crocks, child):
                state = after_crocks, min(self.reach(after_child, after_crocks))
                if state not in seen:
                    seen.add(state)
                    todo.append((after_crocks, after_child, pushes + 1))
        return None


def read_levels():
    text = (ROOT / LEVELS).read_text("utf-8")
    stated = int(re.search(r"^kLevels\s+equ (\d+)$", text, re.M)[1])
    found = LEVEL.findall(text)
    rows = [re.findall(ROW, level[3]) for level in found]
    return stated, [(int(n), name, int(p), r) for (n, name, p, *_), r in zip(found, rows)]


class Rules(unittest.TestCase):
    """The solver itself, on yards that are understood at a glance."""

    def test_small_yards(self):
        for name, rows, fewest in (
            ("done already", ["####", "#@*#", "####"], 0),
            ("one push", ["#####", "#@$.#", "#####"], 1),
            ("in a corner", ["#####", "#@ $#", "#.  #", "#####"], None),
            ("two in a row do not move", ["######", "#@$$.#", "#.   #", "######"], None),
            ("over the ice to the place", ["########", "#@$~~~.#", "########"], 1),
            ("slides past the side way", ["#######", "#@$~~ #", "###.###", "#######"], None),
            ("stops before a wall", ["######", "#@$~~#", "#  #.#", "#  ###", "######"], None),
        ):
            with self.subTest(name):
                self.assertEqual(Yard(rows).fewest_pushes(), fewest)

    def test_where_a_slide_ends(self):
        yard = Yard(["########", "#@$~~~ #", "#    ..#", "########"])
        for others, cell in (((), (6, 1)), (((6, 1),), (5, 1)), (((3, 1),), None)):
            with self.subTest(others):
                self.assertEqual(yard.push(frozenset({(2, 1), *others}), (2, 1), (1, 0)), cell)


class Levels(unittest.TestCase):
    def test_every_yard_can_be_done_with_the_pushes_it_tells(self):
        stated, levels = read_levels()
        self.assertEqual([level[0] for level in levels], list(range(1, stated + 1)))
        for number, name, fewest, rows in levels:
            with self.subTest(f"{number} {name}"):
                self.assertLessEqual(len(rows), ROWS)
                self.assertLessEqual(max(map(len, rows)), COLUMNS)
                self.assertRegex("".join(rows), r"^[ #$.*@+~]+$")
                yard = Yard(rows)
                self.assertTrue(yard.is_closed, "the child can walk out")
                self.assertEqual(len(yard.crocks), len(yard.places))
                self.assertLessEqual(yard.crocks | yard.places, yard.floor)
                self.assertEqual(yard.fewest_pushes(), fewest)

    def test_names_can_be_drawn_and_fit_before_the_counts(self):
        for number, name, _, _ in read_levels()[1]:
            with self.subTest(name):
                self.assertRegex(name, "^[가-힣 ]+$")
                width = sum(8 if letter == " " else 15 for letter in name)
                self.assertLessEqual(6 + 8 * len(str(number)) + 6 + width, 152)


if __name__ == "__main__":
    ROOT = pathlib.Path(sys.argv[1])
    unittest.main(argv=sys.argv[:1])

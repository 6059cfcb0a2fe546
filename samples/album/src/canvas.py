"""What the pictures are made with: noise, mixing of colours, a canvas that is saved in 256 colours.

Colours are red, green and blue from 0 to 1; places are pixels from the upper left corner.
"""

import math
import random

WIDTH, HEIGHT = 320, 200
COLOURS = 240  # the colours behind these are the program's own


def clamp(value, low=0.0, high=1.0):
    return low if value < low else high if value > high else value


def step(begin, end, value):
    """0 up to `begin`, 1 from `end` on, smooth between; the other way round when end < begin."""
    part = clamp((value - begin) / (end - begin))
    return part * part * (3 - 2 * part)


def mix(one, other, part):
    return (
        one[0] + (other[0] - one[0]) * part,
        one[1] + (other[1] - one[1]) * part,
        one[2] + (other[2] - one[2]) * part,
    )


def add(colour, light, strength):
    return (
        colour[0] + light[0] * strength,
        colour[1] + light[1] * strength,
        colour[2] + light[2] * strength,
    )


def ramp(stops, value):
    """The colour at `value` of rows (value, colour) in rising order."""
    for (low, one), (high, other) in zip(stops, stops[1:]):
        if value < high:
            return mix(one, other, clamp((value - low) / (high - low)))
    return stops[-1][1]


def web(text):
    """The colour of six hexadecimal digits."""
    return tuple(int(text[place : place + 2], 16) / 255 for place in (0, 2, 4))


class Noise:
    """Smooth noise from 0 to 1, always the same for the same seed."""

    def __init__(self, seed):
        numbers = random.Random(seed)
        self.order = list(range(256))
        numbers.shuffle(self.order)
        self.order += self.order
        self.values = [numbers.random() for _ in range(256)]

    def at(self, x, y=0.0):
        column, row = math.floor(x), math.floor(y)
        x -= column
        y -= row
        x *= x * (3 - 2 * x)
        y *= y * (3 - 2 * y)
        order, values = self.order, self.values
        left, right = order[column & 255], order[(column + 1) & 255]
        here, next_row = row & 255, (row + 1) & 255
        begin, end = values[order[left + here]], values[order[right + here]]
        above = begin + (end - begin) * x
        begin, end = values[order[left + next_row]], values[order[right + next_row]]
        below = begin + (end - begin) * x
        return above + (below - above) * y

    def cloud(self, x, y=0.0, octaves=4):
        """Noise on several scales, each half as large and half as strong as the one before."""
        total, weight = 0.0, 0.5
        for _ in range(octaves):
            total += self.at(x, y) * weight
            x, y, weight = x * 2.03 + 17.3, y * 2.03 + 9.1, weight / 2
        return total / (1 - weight * 2)


class Canvas:
    """A picture of WIDTH by HEIGHT colours."""

    def __init__(self, shader):
        """`shader` gives the colour for x and y."""
        self.rows = [[shader(x, y) for x in range(WIDTH)] for y in range(HEIGHT)]

    def put(self, x, y, colour, strength=1.0):
        if 0 <= x < WIDTH and 0 <= y < HEIGHT:
            self.rows[y][x] = mix(self.rows[y][x], colour, clamp(strength))

    def shine(self, x, y, light, strength):
        if 0 <= x < WIDTH and 0 <= y < HEIGHT:
            self.rows[y][x] = add(self.rows[y][x], light, strength)

    def glow(self, x, y, radius, light, strength):
        """A round shine that fades to nothing at the radius."""
        for row in range(int(y - radius), int(y + radius) + 1):
            for column in range(int(x - radius), int(x + radius) + 1):
                far = math.hypot(column - x, row - y) / radius
                if far < 1:
                    self.shine(column, row, light, strength * (1 - far) ** 2)

    def stars(self, seed, count, bottom):
        """Stars above the row `bottom`: most of them faint, a few large ones."""
        numbers = random.Random(seed)
        for _ in range(count):
            x, y = numbers.randrange(WIDTH), int(numbers.random() ** 1.3 * bottom)
            bright = numbers.random() ** 5
            light = mix(web("ffd9b0"), web("bcd4ff"), numbers.random())
            self.shine(x, y, light, 0.14 + 0.8 * bright)
            if bright > 0.55:
                self.glow(x, y, 3, light, 0.45 * bright)

    def pine(self, x, bottom, height, colour):
        """A fir in one colour."""
        for row in range(height):
            tier = row % max(3, height // 5)
            half = row * 0.24 * (0.72 + 0.28 * tier / max(3, height // 5)) + 0.3
            for column in range(int(x - half), int(x + half) + 1):
                self.put(column, bottom - height + row, colour)
        for row in range(3):
            self.put(x, bottom + row, colour)

    def encoded(self):
        """The palette, three bytes of 0 to 63 a colour, and a byte a pixel."""
        rows = [[tuple(63 * clamp(part) for part in pixel) for pixel in row] for row in self.rows]
        counts = {}
        for row in rows:
            for pixel in row:
                key = (round(pixel[0]), round(pixel[1]), round(pixel[2]))
                counts[key] = counts.get(key, 0) + 1
        palette = choose_palette(counts)
        head = bytearray(256 * 3)
        for number, colour in enumerate(palette):
            head[number * 3 : number * 3 + 3] = bytes(colour)
        return bytes(head) + dither(rows, palette)


def choose_palette(counts):
    """At most COLOURS colours for the counted ones, black the first of them: the widest and fullest
    box of colours is split in its middle until there are enough."""
    boxes = [Box(list(counts.items()))]
    while len(boxes) < COLOURS - 1:
        widest = max(boxes, key=lambda box: box.weight)
        if widest.weight == 0:
            break
        boxes.remove(widest)
        boxes += widest.halves()
    return [(0, 0, 0)] + sorted({box.mean() for box in boxes})


class Box:
    def __init__(self, entries):
        self.entries = entries
        spans = []
        for part in range(3):
            values = [colour[part] for colour, _ in entries]
            spans.append(max(values) - min(values))
        self.part = spans.index(max(spans))
        self.weight = max(spans) ** 2 * sum(count for _, count in entries) ** 0.5

    def halves(self):
        entries = sorted(self.entries, key=lambda entry: entry[0][self.part])
        left = sum(count for _, count in entries) / 2
        middle = 0
        while left > 0 and middle < len(entries) - 1:
            left -= entries[middle][1]
            middle += 1
        return [Box(entries[:middle]), Box(entries[middle:])]

    def mean(self):
        total = sum(count for _, count in self.entries)
        return tuple(
            round(sum(colour[part] * count for colour, count in self.entries) / total)
            for part in range(3)
        )


def dither(rows, palette):
    """A byte a pixel: the nearest colour, its fault spread over the neighbours to come."""
    known = {}

    def nearest(key):
        red, green, blue = key
        return min(
            (
                (colour[0] - red) ** 2 + (colour[1] - green) ** 2 + (colour[2] - blue) ** 2,
                number,
            )
            for number, colour in enumerate(palette)
        )[1]

    pixels = bytearray()
    below = [[0.0] * 3 for _ in range(WIDTH + 2)]
    for row in rows:
        here, below = below, [[0.0] * 3 for _ in range(WIDTH + 2)]
        for x, pixel in enumerate(row, 1):
            wanted = [clamp(pixel[part] + here[x][part], 0, 63) for part in range(3)]
            key = (round(wanted[0]), round(wanted[1]), round(wanted[2]))
            if key not in known:
                known[key] = nearest(key)
            pixels.append(known[key])
            for part, used in enumerate(palette[known[key]]):
                fault = (wanted[part] - used) * 0.85 / 16  # all of it would sprinkle dark skies
                here[x + 1][part] += fault * 7
                below[x - 1][part] += fault * 3
                below[x][part] += fault * 5
                below[x + 1][part] += fault
    return bytes(pixels)

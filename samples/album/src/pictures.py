#!/usr/bin/env python3
"""Paints the pictures of 밤과 바다 그림첩 (Album): pictures.py <file to make>

The file holds them one behind the other, in the order of the captions in album.asm: 768 bytes of
palette, 64,000 bytes of pixels each.
"""

import cmath
import math
import pathlib
import sys

from canvas import HEIGHT, WIDTH, Canvas, Noise, add, clamp, mix, ramp, step, web


def milky_way():
    """The Milky Way over mountains and a lake that mirrors them."""
    noise, water = Noise(11), 148
    sky = [(0, web("050818")), (70, web("0b1638")), (120, web("1d3a66")), (148, web("4f7f95"))]
    ridges = [(118, 34, 90, "27456a"), (128, 26, 60, "182f4d"), (141, 16, 34, "0c1a2e")]

    def above(x, y):
        for number, (top, height, stretch, colour) in reversed(list(enumerate(ridges))):
            edge = top + 8 - height * noise.cloud(x / stretch + number * 40, 3.5, 5)
            if y > edge:
                return mix(web(colour), web("35597a"), 0.35 * clamp((y - edge) / 30))
        colour = ramp(sky, y)
        far = (x - 205 + (y - 60) * 0.9) / 58 + (noise.cloud(x / 40, y / 40) - 0.5) * 0.8
        band = math.exp(-far * far * 2.2) * clamp((150 - y) / 90)
        dust = step(0.42, 0.64, noise.cloud(x / 26 + 50, y / 26, 5)) * math.exp(-far * far * 9)
        cloud = band * (0.35 + noise.cloud(x / 14 + 9, y / 14 + 80, 4)) * (1 - 0.75 * dust)
        colour = add(colour, web("8f8fc8"), cloud * 0.62)
        return add(colour, web("e0a890"), cloud * cloud * 0.45)

    def shader(x, y):
        if y < water:
            return above(x, y)
        depth = y - water
        wave = (noise.at(x / 16, depth * 1.4) - 0.5) * (1 + depth * 0.12)
        mirrored = above(x + wave * 3, water - 1 - depth * 1.7 + wave * 2)
        return mix(mirrored, web("060d1c"), 0.25 + depth * 0.008)

    canvas = Canvas(shader)
    canvas.stars(5, 520, 112)
    canvas.glow(64, 145, 9, web("ffb050"), 0.9)
    for x, y in ((63, 145), (64, 145), (63, 146), (64, 146), (67, 145), (67, 146)):
        canvas.put(x, y, web("ffe9a8"))
    for depth in range(0, 26):
        sway = round(2 * math.sin(depth * 1.9))
        canvas.shine(64 + sway, 149 + depth, web("ffb050"), 0.55 * (1 - depth / 26))
    return canvas


def evening_sea():
    """The sun sets in the sea, and its light lies on the waves."""
    noise, horizon, sun_x, sun_y, radius = Noise(23), 112, 190, 100, 24
    sky = [
        (0, web("26215c")),
        (35, web("5c2f7a")),
        (65, web("b5477a")),
        (90, web("f2794f")),
        (112, web("ffc65c")),
    ]

    def air(x, y):
        colour = ramp(sky, y)
        far = math.hypot(x - sun_x, y - sun_y)
        colour = add(colour, web("ffb050"), 0.55 * math.exp(-far / 42))
        cloud = step(0.5, 0.72, noise.cloud(x / 62 + y / 40, y / 11 + 4, 5)) * step(108, 70, y)
        lit = noise.cloud(x / 62 + y / 40, (y + 3) / 11 + 4, 5) < 0.6
        shade = mix(web("5a2a66"), web("ff9a6a"), 0.75 if lit else 0.25)
        colour = mix(colour, shade, cloud * 0.75)
        return mix(web("fff3c0"), colour, step(radius - 1, radius + 1, far))

    def shader(x, y):
        if y <= horizon:
            return air(x, y)
        depth = (y - horizon) / (HEIGHT - horizon)
        size = 0.06 + depth * 0.94
        swell = noise.cloud(x / (46 * size), (y - horizon) / (9 * size + 1) + 30 / size, 4)
        tone = mix(web("b04a70"), web("141a4c"), depth**0.55)
        colour = mix(tone, ramp(sky, 100 - depth * 80), 0.55 * step(0.42, 0.75, swell))
        way = abs(x - sun_x) / (15 + 48 * depth)
        glitter = step(0.50, 0.66, swell + 0.16 * (1 - way)) * step(1.25, 0, way)
        return add(colour, web("ffd27a"), glitter * (1.05 - 0.4 * depth))

    canvas = Canvas(shader)
    boat, dark = (84, 126), web("1b1238")
    for row in range(22):
        for column in range(int(row * 0.52) + 1):
            canvas.put(boat[0] - 1 - column, boat[1] - 25 + row, dark, 0.95)
        for column in range(int(row * 0.34) + 1):
            canvas.put(boat[0] + 1 + column, boat[1] - 22 + row, dark, 0.95)
    for row in range(5):
        for column in range(-14 + row * 2, 15 - row * 2):
            canvas.put(boat[0] + column, boat[1] - 2 + row, dark)
    for row in range(14):
        for column in range(-9, 10):
            if noise.at(column / 5, row * 1.3 + 200) > 0.45:
                canvas.put(boat[0] + column, boat[1] + 4 + row, dark, 0.5 * (1 - row / 14))
    return canvas


def ink_mountains():
    """Mountains in the mist as a brush would paint them, and a red sun."""
    noise = Noise(37)
    ridges = [
        (96, 66, 74, "b9b5a6"),
        (112, 62, 62, "94968f"),
        (136, 60, 70, "666f70"),
        (160, 52, 54, "3c474c"),
        (186, 40, 66, "1a2328"),
    ]

    def shader(x, y):
        grain = (noise.at(x * 0.9, y * 0.9) - 0.5) * 0.05
        grain += (noise.cloud(x / 60, y / 60) - 0.5) * 0.09
        colour = add(mix(web("f4ecd6"), web("e2d4b4"), y / HEIGHT), (1, 1, 0.9), grain)
        far = math.hypot(x - 238, y - 44) + 3 * noise.cloud(x / 5, y / 5)
        colour = mix(web("c8382c"), colour, step(18, 20, far))
        for number, (top, height, stretch, tone) in enumerate(ridges):
            edge = top + 24 - height * noise.cloud(x / stretch + number * 31, 8.5, 6) * 1.25
            if y > edge:
                depth = (y - edge) / (30 + 5 * number)
                brush = 0.72 + 0.5 * noise.cloud(x / 5 + y / 9, y / 16 + number * 9, 4)
                mist = clamp(0.95 - depth, 0, 1) ** 1.4
                colour = mix(colour, web(tone), clamp(mist * brush) if number < 4 else 0.96)
        return colour

    canvas = Canvas(shader)
    ink = web("14191d")
    firs = [(24, 190, 40), (40, 194, 30), (58, 197, 23), (300, 196, 26), (284, 199, 18)]
    for x, bottom, height in firs:
        canvas.pine(x, bottom, height, ink)
    for x, y, size in ((150, 50, 5), (166, 44, 4), (178, 53, 4), (140, 60, 3)):
        for part in range(-size, size + 1):
            canvas.put(x + part, y - round(1.6 * math.sin(abs(part) / size * 2.6)), ink, 0.85)
    return canvas


def northern_light():
    """Curtains of light over snow and firs."""
    noise = Noise(41)
    sky = [(0, web("040714")), (90, web("0a1a34")), (140, web("16405a")), (165, web("2c6a72"))]
    curtains = [(104, 26, 60, 1.0, 0), (82, 34, 44, 0.8, 50), (120, 14, 90, 0.55, 90)]

    def shader(x, y):
        snow = 158 - 14 * noise.cloud(x / 90, 2.5, 3) + 5 * math.sin(x / 50)
        if y > snow:
            depth = (y - snow) / (HEIGHT - snow)
            drift = noise.cloud(x / 34 + depth * 3, y / 9, 4)
            tone = mix(web("2f7a80"), web("0e2140"), clamp(depth * 1.1))
            return add(tone, web("7fe0c0"), 0.3 * step(0.5, 0.75, drift) * (1 - depth * 0.6))
        colour = ramp(sky, y)
        for bottom, sway, stretch, strength, seed in curtains:
            foot = bottom + sway * (noise.cloud(x / stretch + seed, 1.5, 3) - 0.5) * 3
            rise = foot - y
            if rise > -5:
                rays = 0.35 + 0.9 * noise.at(x / 3.1 + seed + rise * 0.012, seed)
                rays *= 0.25 + 1.2 * noise.cloud(x / 30 + seed, 7.5, 2)
                light = strength * rays * step(-5, 4, rise) * math.exp(-max(rise, 0) / 34)
                hue = ramp([(0, web("5cffa0")), (26, web("30d0b0")), (70, web("9a50e0"))], rise)
                colour = add(colour, hue, light * 1.05)
        return colour

    canvas = Canvas(shader)
    canvas.stars(8, 260, 140)
    dark = web("04101a")
    left = [(9, 30), (22, 44), (34, 26), (47, 52), (62, 34), (78, 22)]
    right = [(236, 20), (250, 30), (266, 48), (281, 62), (297, 40), (311, 56)]
    for x, height in left + [(124, 12), (131, 16), (139, 11)] + right:
        canvas.pine(x, 168 + height // 4, height, dark)
    return canvas


def ringed_planet():
    """A planet with rings, its moon, and a cloud of gas behind."""
    noise = Noise(58)
    planet_x, planet_y, radius, tilt = 140, 98, 54, 0.34
    sun = (-0.62, -0.45, 0.64)
    bands = [(0, web("7a4a34")), (0.3, web("c08a58")), (0.55, web("ecd0a0")), (0.8, web("b87850"))]

    def space(x, y):
        gas = step(0.45, 0.85, noise.cloud(x / 75, y / 75, 5))
        other = step(0.5, 0.85, noise.cloud(x / 60 + 90, y / 60 + 40, 5))
        return add(add(web("03040c"), web("5a2a80"), gas * 0.55), web("1a6080"), other * 0.5)

    def ring(x, y):
        """Colour and density of the rings there, and whether they pass before the planet."""
        along = (x - planet_x) * math.cos(tilt) - (y - planet_y) * math.sin(tilt)
        across = (x - planet_x) * math.sin(tilt) + (y - planet_y) * math.cos(tilt)
        far = math.hypot(along, across / 0.26) / radius
        if not 1.25 < far < 2.25:
            return None
        groove = 0.55 + 0.6 * noise.cloud(far * 24, 5.5, 4)
        density = clamp(groove) * step(1.25, 1.33, far) * step(2.25, 2.15, far)
        density *= 1 - 0.9 * step(0.05, 0.02, abs(far - 1.86))
        behind = sun[0] * (x - planet_x) + sun[1] * (y - planet_y) / 0.6
        beside = abs((x - planet_x) * sun[1] - (y - planet_y) * sun[0])
        light = 0.16 if behind < 0 and beside < radius * 0.72 and across < 0 and along > 0 else 1
        tone = mix(web("94785c"), web("f6e2bc"), noise.cloud(far * 9, 2.5, 3))
        return mix((0, 0, 0), tone, light), density * 0.92, across > 0

    def globe(x, y):
        far = math.hypot(x - planet_x, y - planet_y)
        across, down = (x - planet_x) / radius, (y - planet_y) / radius
        near = math.sqrt(max(0, 1 - across * across - down * down))
        turned = across * math.sin(tilt) + down * math.cos(tilt) + 0.18 * near
        swirl = (noise.cloud(across * 3 + near, turned * 9, 4) - 0.5) * 0.16
        tone = ramp(bands, 0.85 * noise.cloud(turned * 4.2 + swirl * 4 + 20, 1.5, 3) + swirl)
        light = clamp(across * sun[0] + down * sun[1] + near * sun[2]) ** 0.8
        shadow = 1 - 0.6 * step(0.10, 0.02, abs(turned - 0.02 - 0.18 * near + 0.1))
        lit = mix(web("080610"), tone, 0.04 + light * shadow)
        return lit, step(radius + 0.7, radius - 0.7, far)

    def shader(x, y):
        colour = space(x, y)
        rings = ring(x, y)
        if rings and not rings[2]:
            colour = mix(colour, rings[0], rings[1])
        lit, cover = globe(x, y)
        colour = mix(colour, lit, cover)
        if rings and rings[2]:
            colour = mix(colour, rings[0], rings[1])
        return moon(x, y, colour)

    def moon(x, y, colour):
        across, down = (x - 276) / 13, (y - 46) / 13
        far = math.hypot(across, down)
        if far > 1.05:
            return colour
        near = math.sqrt(max(0, 1 - far * far))
        light = clamp(across * sun[0] + down * sun[1] + near * sun[2])
        rough = 0.55 + 0.6 * noise.cloud(across * 3 + 7, down * 3, 4)
        return mix(mix(web("06060c"), web("c8d0dc"), light * rough), colour, step(0.94, 1.05, far))

    stars = Canvas(lambda x, y: (0, 0, 0))
    stars.stars(14, 420, HEIGHT)
    canvas = Canvas(shader)
    for y in range(HEIGHT):
        for x in range(WIDTH):
            hidden = globe(x, y)[1] > 0 or ring(x, y) or math.hypot(x - 276, y - 46) < 14
            if not hidden and any(stars.rows[y][x]):
                canvas.shine(x, y, stars.rows[y][x], 1)
    return canvas


def julia_set():
    """A Julia set, coloured by how fast its points leave."""
    constant, turn = complex(-0.7454, 0.1130), cmath.exp(-0.38j)
    tones = [
        (0.00, web("04061c")),
        (0.16, web("123a7a")),
        (0.34, web("30a0c0")),
        (0.48, web("f0f4e0")),
        (0.62, web("f4b040")),
        (0.78, web("b03c30")),
        (0.90, web("4a1440")),
        (1.00, web("04061c")),
    ]

    def point(x, y):
        z = complex((x - 160) / 118, (y - 100) / 118) * turn
        for count in range(220):
            size = z.real * z.real + z.imag * z.imag
            if size > 64:
                smooth = count + 1 - math.log2(math.log2(size) / 2)
                return ramp(tones, (math.log(smooth + 1.5) * 0.62 + 0.52) % 1)
            z = z * z + constant
        return web("04061c")

    def shader(x, y):
        parts = [point(x + dx, y + dy) for dx, dy in ((-0.25, -0.1), (0.25, 0.1))]
        return mix(parts[0], parts[1], 0.5)

    return Canvas(shader)


def marbled_paper():
    """Plasma: colours that run into one another like ink on water."""
    noise = Noise(73)
    tones = [
        (0.0, web("10205c")),
        (0.2, web("1f6fa8")),
        (0.36, web("59c4b4")),
        (0.5, web("f6e7b4")),
        (0.64, web("f08a5a")),
        (0.8, web("c03a78")),
        (1.0, web("3a1660")),
    ]

    def shader(x, y):
        u, v = x / 90, y / 90
        across = noise.cloud(u, v, 3)
        down = noise.cloud(u + 5.2, v + 1.3, 3)
        twice = noise.cloud(u + 3.4 * across + 1.7, v + 3.4 * down + 9.2, 3)
        value = noise.cloud(u + 3.2 * twice, v + 2.8 * down, 4)
        colour = ramp(tones, clamp((value - 0.5) * 2.1 + 0.5))
        vein = 1 - step(0.0, 0.035, abs(twice - 0.5))
        return add(colour, web("fff0c8"), 0.35 * vein + (across - 0.5) * 0.35)

    return Canvas(shader)


PICTURES = [
    milky_way,
    evening_sea,
    ink_mountains,
    northern_light,
    ringed_planet,
    julia_set,
    marbled_paper,
]


def main():
    made = b"".join(paint().encoded() for paint in PICTURES)
    pathlib.Path(sys.argv[1]).write_bytes(made)


if __name__ == "__main__":
    main()

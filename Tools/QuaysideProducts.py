"""Draws the products of the sample project's catalogue as what they are, in their colours: a front, a tap, a floor."""

import math
import random
import zlib

from QuaysidePictures import Canvas

SIZE = 256
BACKDROP = (238, 236, 231)
GROUND = (221, 218, 211)
SHADE = (196, 192, 184)
INK = (58, 61, 66)
SKY = (196, 220, 233)
WATER = (138, 172, 188)
WHITE = (248, 247, 244)


def rgb(text):
    return tuple(int(text[i:i + 2], 16) for i in (1, 3, 5))


def lit(colour, factor):
    """Below 1 darker, above 1 lighter toward white."""
    if factor <= 1:
        return tuple(round(c * factor) for c in colour)
    return tuple(round(c + (255 - c) * (factor - 1)) for c in colour)


def rect(x0, y0, x1, y1):
    return [(x0, y0), (x1, y0), (x1, y1), (x0, y1)]


def disc(x, y, radius, squash=1.0):
    return [(x + radius * math.cos(math.tau * i / 32), y + radius * squash * math.sin(math.tau * i / 32)) for i in range(32)]


class Picture(Canvas):
    """A canvas with what the drawings share."""

    def __init__(self, key):
        super().__init__(SIZE, SIZE, BACKDROP)
        self.random = random.Random(zlib.crc32(key.encode()))

    def ground(self, y):
        self.fill(rect(0, y, SIZE, SIZE), GROUND)

    def rect(self, x0, y0, x1, y1, colour):
        self.fill(rect(x0, y0, x1, y1), colour)

    def outline(self, points, width, colour):
        for a, b in zip(points, points[1:] + points[:1]):
            self.line(a, b, width, colour)

    def grain(self, x0, y0, x1, y1, colour, upright=True):
        """A board of wood with its grain along it."""
        self.rect(x0, y0, x1, y1, colour)
        across = x0 if upright else y0
        end = x1 if upright else y1
        while across < end - 3:
            across += self.random.uniform(3.5, 8.0)
            width = self.random.uniform(0.7, 1.8)
            if across + width >= end:
                break
            tone = lit(colour, self.random.choice((0.86, 0.91, 0.95, 1.12)))
            if upright:
                self.rect(across, y0, across + width, y1, tone)
            else:
                self.rect(x0, across, x1, across + width, tone)

    def board(self, points, colour):
        self.fill(points, lit(colour, self.random.choice((0.9, 0.95, 1.0, 1.0, 1.07, 1.14))))

    def speckle(self, inside, count, colours, least, most):
        """Small chips at random places for which inside(x, y) holds."""
        for _ in range(count):
            x, y = self.random.uniform(0, SIZE), self.random.uniform(0, SIZE)
            if not inside(x, y):
                continue
            radius, turn = self.random.uniform(least, most), self.random.uniform(0, math.tau)
            corners = self.random.choice((4, 5, 6))
            self.fill([(x + radius * math.cos(turn + math.tau * i / corners) * self.random.uniform(0.7, 1.2),
                        y + radius * 0.8 * math.sin(turn + math.tau * i / corners)) for i in range(corners)], self.random.choice(colours))


def draw_cupboard(p, colours, kind):
    colour, metal = colours
    p.ground(214)
    p.rect(30, 214, 232, 220, SHADE)
    p.rect(36, 200, 220, 214, INK)
    p.rect(26, 40, 230, 52, (222, 219, 212))
    p.rect(26, 52, 230, 56, (190, 186, 178))
    p.rect(30, 56, 226, 200, lit(colour, 0.72))
    fronts = [(32, 58, 126, 94), (32, 97, 126, 198), (129, 58, 224, 198)]
    for x0, y0, x1, y1 in fronts:
        if kind == "grain":
            p.grain(x0, y0, x1, y1, colour)
        else:
            p.rect(x0, y0, x1, y1, colour)
        p.rect(x0, y0, x1, y0 + 1.5, lit(colour, 1.35))
        if kind == "frame":
            p.outline(rect(x0 + 13, y0 + 11, x1 - 13, y1 - 11), 2, lit(colour, 0.8))
            p.line((x0 + 13, y1 - 10), (x1 - 13, y1 - 10), 2, lit(colour, 1.3))
    for x0, y0, x1 in ((58, 66, 100), (58, 105, 100), (155, 66, 199)):
        p.rect(x0, y0 + 3, x1, y0 + 6, lit(colour, 0.75))
        p.rect(x0, y0, x1, y0 + 4, metal)
        p.rect(x0, y0, x1, y0 + 1.2, lit(metal, 1.45))


def draw_worktop(p, colours, kind):
    colour = colours[0]
    p.rect(0, 0, SIZE, 120, (228, 226, 220))
    p.rect(0, 178, SIZE, SIZE, (206, 203, 196))
    for x in (86, 171):
        p.rect(x - 1, 178, x + 1, SIZE, (178, 174, 166))
    top = [(22, 96), (234, 96), (256, 160), (0, 160)]
    inside = lambda x, y: 98 < y < 157 and 24 - (y - 96) * 0.34 < x < 232 + (y - 96) * 0.34
    p.fill(top, colour)
    if kind == "grain":
        for row in range(8):
            y0, y1 = 96 + row * 8, 104 + row * 8
            x = -40 + p.random.uniform(0, 60)
            while x < SIZE:
                end = x + p.random.uniform(45, 95)
                left0, right0 = 22 - (y0 - 96) * 0.34, 234 + (y0 - 96) * 0.34
                a, b = max(x, left0), min(end, right0)
                if b > a:
                    p.board(rect(a, y0, b, y1), colour)
                x = end
    elif kind == "chips":
        p.speckle(inside, 1100, [lit(colour, 0.55), lit(colour, 0.75), lit(colour, 1.6), (176, 132, 108)], 1.5, 4.2)
    else:
        p.speckle(inside, 1500, [lit(colour, 0.82), lit(colour, 0.92), lit(colour, 1.3)], 0.6, 1.5)
    p.rect(0, 160, SIZE, 178, lit(colour, 0.8))
    p.rect(0, 160, SIZE, 161.5, lit(colour, 1.25))
    p.rect(0, 178, SIZE, 184, (170, 166, 158))
    # A bowl of lemons, for the scale.
    p.fill(disc(176, 126, 36, 0.28), lit(colour, 0.72))
    for x, y in ((162, 92), (184, 90), (174, 82)):
        p.fill(disc(x, y, 13, 0.85), (226, 190, 84))
        p.fill(disc(x - 3, y - 4, 5, 0.8), (240, 214, 128))
    bowl = [(140, 96), (212, 96), (206, 114), (194, 124), (158, 124), (146, 114)]
    p.fill(bowl, WHITE)
    p.fill([(176, 96), (212, 96), (206, 114), (194, 124), (176, 124)], (226, 226, 224))


def draw_wall_tiles(p, colours, kind):
    colour = colours[0]
    joint = lit(colour, 0.72) if sum(colour) > 520 else lit(colour, 1.25)
    p.rect(0, 0, SIZE, SIZE, joint)
    width, height, shift = {"metro": (84, 41, 42), "square": (50, 50, 0), "upright": (28, 84, 0), "large": (127, 254, 0), "panel": (400, 400, 0)}[kind]
    row, y = 0, -3
    while y < SIZE:
        x = -3 - (shift if row % 2 else 0)
        while x < SIZE:
            tone = lit(colour, p.random.choice((0.95, 0.98, 1.0, 1.03, 1.07)) if kind not in ("large", "panel") else 1.0)
            p.rect(x + 1.5, y + 1.5, x + width - 1.5, y + height - 1.5, tone)
            if kind in ("metro", "square", "upright"):
                p.rect(x + 1.5, y + 1.5, x + width - 1.5, y + 4, lit(tone, 1.4))
                p.rect(x + 1.5, y + height - 3.5, x + width - 1.5, y + height - 1.5, lit(tone, 0.88))
                p.fill([(x + width * 0.62, y + 7), (x + width * 0.8, y + 7), (x + width * 0.66, y + height * 0.6), (x + width * 0.52, y + height * 0.6)], lit(tone, 1.16))
            x += width
        y += height
        row += 1
    if kind == "large":
        p.speckle(lambda x, y: min(abs(x - 124), abs(x - 251), abs(y - 251)) > 7, 260, [lit(colour, 0.96), lit(colour, 1.06)], 1.0, 4.5)
    if kind == "panel":
        for left, wide in ((30, 46), (92, 14), (150, 70)):
            p.fill([(left + 60, 0), (left + 60 + wide, 0), (left + wide - 60, SIZE), (left - 60, SIZE)], lit(colour, 1.16))
        p.rect(0, 226, SIZE, SIZE, (214, 210, 202))
        p.rect(0, 226, SIZE, 229, (236, 233, 227))


def draw_oven(p, colours, kind):
    colour = colours[0]
    p.rect(0, 0, SIZE, SIZE, (216, 213, 206))
    boxes = [(40, 26, 216, 230)] if kind == "one" else [(40, 14, 216, 98), (40, 104, 216, 244)]
    for x0, y0, x1, y1 in boxes:
        p.rect(x0 + 4, y0 + 4, x1 + 4, y1 + 5, (176, 172, 165))
        p.rect(x0, y0, x1, y1, colour)
        for index in range(12):
            y = y0 + (y1 - y0) * index / 12
            p.rect(x0, y, x1, y + 1, lit(colour, 1.08))
        p.rect(x0, y0, x1, y0 + 2, lit(colour, 1.4))
        p.rect(x0 + 58, y0 + 10, x1 - 58, y0 + 26, (22, 24, 28))
        p.rect(x0 + 72, y0 + 16, x0 + 92, y0 + 20, (120, 196, 214))
        for x in (x0 + 28, x1 - 28):
            p.fill(disc(x, y0 + 19, 9), lit(colour, 0.7))
            p.fill(disc(x, y0 + 18, 8), lit(colour, 1.3))
            p.line((x, y0 + 18), (x, y0 + 11), 1.6, lit(colour, 0.5))
        p.rect(x0 + 16, y0 + 36, x1 - 16, y0 + 42, lit(colour, 0.62))
        p.rect(x0 + 16, y0 + 34, x1 - 16, y0 + 39, lit((190, 193, 196), 1.0))
        p.rect(x0 + 16, y0 + 34, x1 - 16, y0 + 35.5, WHITE)
        if y1 - y0 > 90:
            p.rect(x0 + 18, y0 + 52, x1 - 18, y1 - 16, (26, 28, 32))
            p.fill([(x0 + 30, y1 - 18), (x0 + 84, y0 + 54), (x0 + 116, y0 + 54), (x0 + 62, y1 - 18)], (48, 52, 58))
            for y in range(int(y0) + 84, int(y1) - 24, 26):
                p.rect(x0 + 26, y, x1 - 26, y + 1.5, (86, 88, 92))
        else:
            p.rect(x0 + 18, y0 + 50, x1 - 18, y1 - 8, (26, 28, 32))
            p.fill([(x0 + 52, y1 - 9), (x0 + 70, y0 + 51), (x0 + 98, y0 + 51), (x0 + 80, y1 - 9)], (48, 52, 58))


def floor_rows(first, last, count):
    """Heights of rows of a floor that runs away from the viewer."""
    depth = [1 / (1 + 0.42 * (count - i)) for i in range(count + 1)]
    low, high = depth[0], depth[-1]
    return [first + (last - first) * (d - low) / (high - low) for d in depth]


def across(y, x, first, last):
    """Where x of the floor's front edge (0 to 1) is seen at height y."""
    spread = 0.42 + 0.58 * (y - first) / (last - first)
    return SIZE / 2 + (x - 0.5) * SIZE * 1.9 * spread


def floor_scene(p):
    p.rect(0, 0, SIZE, 74, (236, 233, 226))
    p.rect(0, 66, SIZE, 74, (248, 247, 244))
    p.rect(0, 73, SIZE, 75, (196, 192, 184))


def draw_planks(p, colours, kind):
    colour = colours[0]
    first, last = 75, 262
    floor_scene(p)
    p.rect(0, first, SIZE, SIZE, colour)
    if kind == "planks":
        for plank in range(11):
            x0, x1 = plank / 11, (plank + 1) / 11
            cuts = sorted([0.0, 1.0] + [(p.random.random() + index) / 2 for index in range(2)])
            for near, far in zip(cuts, cuts[1:]):
                y0, y1 = first + (last - first) * near ** 1.6, first + (last - first) * far ** 1.6
                tone = lit(colour, p.random.choice((0.88, 0.94, 1.0, 1.06, 1.12)))
                p.fill([(across(y0, x0, first, last), y0), (across(y0, x1, first, last), y0), (across(y1, x1, first, last), y1), (across(y1, x0, first, last), y1)], tone)
                for _ in range(3):
                    x = x0 + (x1 - x0) * p.random.uniform(0.12, 0.88)
                    p.line((across(y0, x, first, last), y0), (across(y1, x, first, last), y1), 0.9, lit(tone, 0.9))
                p.line((across(y1, x0, first, last), y1), (across(y1, x1, first, last), y1), 1.0, lit(colour, 0.66))
            p.line((across(first, x1, first, last), first), (across(last, x1, first, last), last), 1.0, lit(colour, 0.66))
    elif kind == "herringbone":
        rows = floor_rows(first, last, 9)
        for y0, y1 in zip(rows, rows[1:]):
            for index in range(-2, 18):
                left = (index % 2 == 0)
                x0, x1 = index / 14, (index + 1) / 14
                rise = (y1 - y0) * 0.85 * (1 if left else -1)
                for half in (0.0, 0.5):
                    top, bottom = y0 + (y1 - y0) * half, y0 + (y1 - y0) * (half + 0.5)
                    points = [(across(top, x0, first, last), top - rise / 2), (across(top, x1, first, last), top + rise / 2),
                              (across(bottom, x1, first, last), bottom + rise / 2), (across(bottom, x0, first, last), bottom - rise / 2)]
                    points = [(x, max(first, y)) for x, y in points]
                    p.board(points, colour if left else lit(colour, 0.92))
                    p.outline(points, 0.7, lit(colour, 0.7))
        floor_scene(p)
    elif kind == "chips":
        p.speckle(lambda x, y: y > first + 2, 1700, [lit(colour, 0.6), lit(colour, 0.78), lit(colour, 1.5), (168, 128, 106), (116, 122, 126)], 1.2, 4.0)
        floor_scene(p)
    else:
        for _ in range(5200):
            x, y = p.random.uniform(0, SIZE), p.random.uniform(first, SIZE)
            size = 1.0 + 2.0 * (y - first) / (last - first)
            p.rect(x, y, x + size * 1.6, y + size, lit(colour, p.random.choice((0.86, 0.93, 1.1))))
        floor_scene(p)


def draw_floor_tiles(p, colours, kind):
    colour = colours[0]
    first, last = 75, 262
    joint = lit(colour, 0.74) if sum(colour) > 330 else lit(colour, 1.22)
    floor_scene(p)
    p.rect(0, first, SIZE, SIZE, joint)
    place = lambda x, y: (across(y, x, first, last), y)
    if kind == "hexagon":
        rows = 15
        for row in range(rows + 1):
            for column in range(-2, 24):
                cx, cy = (column + (0.5 if row % 2 else 0)) / 19, row / rows
                points = []
                for corner in range(6):
                    angle = math.tau * (corner + 0.5) / 6
                    u, v = cx + 0.0285 * math.cos(angle), cy + 0.041 * math.sin(angle)
                    y = first + (last - first) * max(0.0, v) ** 1.5
                    points.append(place(u, y))
                p.board(points, colour)
    else:
        count = 6 if kind == "large" else 9
        edge = [first + (last - first) * (i / count) ** 1.5 for i in range(count + 1)]
        for row, (y0, y1) in enumerate(zip(edge, edge[1:])):
            for column in range(count + 2):
                x0, x1 = (column - 1) / count, column / count
                tone = colour
                if kind == "checker":
                    tone = lit(colour, 0.62) if (row + column) % 2 else lit(colour, 1.72)
                gap = 0.8
                points = [place(x0, y0), place(x1, y0), place(x1, y1), place(x0, y1)]
                points = [(points[0][0] + gap, y0 + gap), (points[1][0] - gap, y0 + gap), (points[2][0] - gap, y1 - gap), (points[3][0] + gap, y1 - gap)]
                p.board(points, tone) if kind == "large" else p.fill(points, tone)
    floor_scene(p)


def draw_tap(p, colours, _):
    colour = colours[0]
    dark, bright = lit(colour, 0.66), lit(colour, 1.55)
    p.rect(0, 0, SIZE, 186, (226, 229, 229))
    for x in range(0, SIZE, 64):
        p.rect(x, 0, x + 1.5, 186, (212, 216, 216))
    for y in range(30, 186, 64):
        p.rect(0, y, SIZE, y + 1.5, (212, 216, 216))
    p.fill(disc(150, 206, 116, 0.26), (206, 208, 207))
    p.fill(disc(150, 200, 112, 0.24), WHITE)
    p.fill(disc(156, 200, 88, 0.18), (222, 230, 233))
    p.fill(disc(156, 203, 8, 0.5), dark)
    p.fill(disc(72, 196, 26, 0.3), dark)
    p.fill(disc(72, 193, 24, 0.3), colour)
    p.rect(58, 84, 86, 194, colour)
    p.rect(58, 84, 65, 194, lit(colour, 0.82))
    p.rect(79, 84, 86, 194, dark)
    p.rect(68, 84, 73, 194, bright)
    spout = [(58, 92), (58, 70), (70, 58), (160, 58), (172, 68), (172, 110), (150, 110), (150, 84), (86, 84), (86, 92)]
    p.fill(spout, colour)
    p.fill([(58, 70), (70, 58), (160, 58), (168, 64), (74, 64), (64, 74)], bright)
    p.fill([(86, 84), (150, 84), (150, 80), (86, 80)], dark)
    p.rect(166, 70, 172, 110, dark)
    p.rect(149, 106, 173, 112, lit(colour, 0.55))
    p.rect(64, 36, 80, 58, dark)
    p.rect(66, 36, 72, 58, colour)
    p.fill([(58, 38), (60, 28), (116, 22), (117, 30)], colour)
    p.fill([(60, 28), (116, 22), (116, 25), (60, 32)], bright)
    for y in (120, 140, 160):
        p.fill([(159, y), (163, y), (164, y + 10), (161, y + 13), (158, y + 10)], (158, 196, 214))


def draw_vanity(p, colours, kind):
    colour = colours[0]
    p.rect(0, 0, SIZE, SIZE, (229, 231, 230))
    p.ground(228)
    p.fill(disc(128, 52, 46), (188, 186, 180))
    p.fill(disc(128, 52, 44), (206, 224, 231))
    p.fill([(102, 74), (140, 12), (156, 18), (118, 88)], (226, 238, 242))
    p.rect(34, 218, 222, 226, (198, 198, 194))
    p.rect(28, 132, 228, 212, lit(colour, 0.66))
    for y0, y1 in ((134, 171), (174, 210)):
        p.rect(30, y0, 226, y1, colour)
        if kind == "ribs":
            for x in range(30, 226, 7):
                p.rect(x, y0, x + 2, y1, lit(colour, 0.72))
                p.rect(x + 3, y0, x + 5, y1, lit(colour, 1.22))
        p.rect(30, y0, 226, y0 + 1.5, lit(colour, 1.35))
        p.rect(104, y0 + 8, 152, y0 + 12, lit(colour, 0.55))
    p.rect(24, 122, 232, 132, (214, 213, 209))
    p.rect(24, 122, 232, 127, WHITE)
    p.fill([(78, 104), (178, 104), (168, 122), (88, 122)], WHITE)
    p.fill([(140, 104), (178, 104), (168, 122), (140, 122)], (228, 228, 226))
    p.rect(124, 82, 131, 105, (160, 164, 166))
    p.rect(124, 82, 152, 88, (160, 164, 166))
    p.rect(124, 82, 152, 84, (214, 218, 220))


def draw_paint(p, colours, _):
    colour = colours[0]
    p.rect(0, 0, SIZE, SIZE, (226, 224, 218))
    p.rect(0, 0, SIZE, 190, colour)
    for x in range(0, SIZE, 32):
        p.rect(x, 0, x + 12, 190, lit(colour, 1.04))
    p.rect(0, 190, SIZE, 212, WHITE)
    p.rect(0, 190, SIZE, 192, lit(colour, 0.78))
    p.rect(0, 209, SIZE, 212, (206, 203, 196))
    p.rect(0, 212, SIZE, SIZE, (196, 166, 128))
    for y in (226, 242):
        p.rect(0, y, SIZE, y + 1.2, (176, 146, 108))
    # An armchair and a lamp, for the scale.
    p.fill(disc(88, 236, 74, 0.14), (164, 136, 100))
    seat = lit(colour, 0.62) if sum(colour) > 480 else lit(colour, 1.62)
    dark = lit(seat, 0.84)
    p.fill([(42, 128), (50, 120), (126, 120), (134, 128), (134, 206), (42, 206)], seat)
    p.rect(30, 164, 54, 226, dark)
    p.rect(122, 164, 146, 226, dark)
    p.rect(50, 182, 126, 214, lit(seat, 1.12))
    p.rect(50, 212, 126, 222, dark)
    for x in (36, 134):
        p.rect(x, 226, x + 6, 238, INK)
    p.rect(193, 84, 196, 234, INK)
    p.fill(disc(194, 236, 22, 0.22), INK)
    p.fill([(178, 46), (210, 46), (224, 88), (164, 88)], (250, 236, 200))
    p.fill([(164, 86), (224, 86), (224, 89), (164, 89)], (226, 206, 160))


def draw_door(p, colours, kind):
    colour, metal = colours
    p.rect(0, 0, SIZE, SIZE, (224, 219, 209))
    p.rect(0, 226, SIZE, SIZE, (188, 156, 116))
    p.rect(0, 216, SIZE, 226, WHITE)
    p.rect(0, 224, SIZE, 226, (206, 203, 196))
    p.rect(72, 14, 188, 228, lit(colour, 0.78))
    p.rect(74, 16, 186, 228, lit(colour, 0.92))
    if kind == "grain":
        p.grain(82, 24, 178, 228, colour)
    else:
        p.rect(82, 24, 178, 228, colour)
    p.outline([(82, 228), (82, 24), (178, 24), (178, 228)], 1.4, lit(colour, 0.62))
    if kind == "panel":
        for y0, y1 in ((40, 112), (134, 212)):
            p.rect(98, y0, 162, y1, lit(colour, 0.95))
            p.outline(rect(98, y0, 162, y1), 2.2, lit(colour, 0.78))
            p.line((98, y1), (162, y1), 2.2, lit(colour, 1.6))
    p.rect(164, 116, 172, 140, lit(metal, 0.85))
    p.rect(146, 123, 169, 128, metal)
    p.rect(146, 123, 169, 124.5, lit(metal, 1.5))
    p.fill(disc(168, 135, 1.6), (30, 30, 30))


def draw_headwall(p, colours, kind):
    colour = colours[0]
    p.rect(0, 0, SIZE, SIZE, colour)
    if kind == "slats":
        p.rect(0, 0, SIZE, SIZE, lit(colour, 0.42))
        for x in range(1, SIZE, 12):
            p.grain(x, 0, x + 9, 214, lit(colour, p.random.choice((0.95, 1.0, 1.06))))
    p.rect(0, 214, SIZE, SIZE, (190, 160, 122))
    p.rect(24, 112, 184, 206, (176, 144, 104))
    p.rect(24, 112, 184, 115, (206, 176, 136))
    p.rect(28, 158, 180, 214, WHITE)
    for x in (40, 110):
        p.fill([(x, 132), (x + 58, 132), (x + 62, 160), (x - 4, 160)], (252, 251, 248))
        p.fill([(x - 4, 156), (x + 62, 156), (x + 62, 161), (x - 4, 161)], (222, 220, 214))
    p.fill([(22, 172), (186, 172), (190, 226), (18, 226)], (142, 163, 160))
    p.fill([(22, 172), (186, 172), (187, 182), (21, 182)], (170, 188, 184))
    for x in (30, 172):
        p.rect(x, 226, x + 6, 238, INK)
    p.rect(202, 168, 244, 214, (168, 136, 98))
    p.rect(202, 168, 244, 171, (206, 176, 136))
    p.rect(206, 190, 240, 192, (132, 104, 72))
    p.rect(221, 146, 225, 168, INK)
    p.fill([(212, 118), (234, 118), (242, 148), (204, 148)], (250, 236, 200))


def draw_wardrobe(p, colours, kind):
    colour = colours[0]
    p.rect(0, 0, SIZE, SIZE, (226, 222, 213))
    p.rect(0, 230, SIZE, SIZE, (196, 166, 128))
    p.rect(22, 18, 234, 240, lit(colour, 0.6))
    p.rect(26, 232, 230, 240, INK)
    for index in range(4):
        x0, x1 = 24 + 52.5 * index, 24 + 52.5 * index + 50.5
        if kind == "grain":
            p.grain(x0, 20, x1, 232, lit(colour, p.random.choice((0.96, 1.0, 1.04))))
        else:
            p.rect(x0, 20, x1, 232, colour)
        if kind == "mirror":
            p.fill([(x0, 150), (x0, 96), (x1, 40), (x1, 94)], lit(colour, 1.22))
            p.fill([(x0, 188), (x0, 170), (x1, 114), (x1, 132)], lit(colour, 1.14))
            p.rect(x0, 214, x1, 232, lit(colour, 0.88))
        p.rect(x0, 20, x1, 21.5, lit(colour, 1.3))
        handle = x1 - 7 if index % 2 == 0 else x0 + 4
        p.rect(handle, 112, handle + 3, 148, lit(colour, 0.45))


def view_through(p, x0, y0, x1, y1):
    """Sky, the far shore, water and a sail; at least 130 wide."""
    p.rect(x0, y0, x1, y1, SKY)
    horizon = y0 + (y1 - y0) * 0.62
    p.fill([(x0, horizon), (x0, horizon - 14), (x0 + 34, horizon - 24), (x0 + 78, horizon - 12), (x0 + 120, horizon - 20), (x1, horizon - 9), (x1, horizon)], (132, 154, 148))
    p.rect(x0, horizon, x1, y1, WATER)
    for index in range(7):
        y = horizon + 5 + index * (y1 - horizon) / 8
        x = x0 + p.random.uniform(0, (x1 - x0) * 0.6)
        p.rect(x, y, min(x1, x + 34), y + 1.4, lit(WATER, 1.25))
    p.fill([(x0 + 92, horizon + 16), (x0 + 124, horizon + 16), (x0 + 118, horizon + 23), (x0 + 97, horizon + 23)], INK)
    p.fill([(x0 + 108, horizon - 26), (x0 + 108, horizon + 13), (x0 + 126, horizon + 13)], WHITE)


def draw_window(p, colours, _):
    colour = colours[0]
    p.rect(0, 0, SIZE, SIZE, (232, 228, 220))
    x0, y0, x1, y1 = 30, 24, 226, 208
    p.rect(x0 - 2, y0 - 2, x1 + 2, y1 + 2, lit(colour, 0.7))
    p.rect(x0, y0, x1, y1, colour)
    view_through(p, x0 + 14, y0 + 14, x1 - 14, y1 - 14)
    middle = (x0 + x1) / 2
    p.rect(middle - 10, y0, middle + 10, y1, colour)
    p.rect(middle - 1, y0, middle + 1, y1, lit(colour, 0.66))
    for left, right in ((x0 + 14, middle - 10), (middle + 10, x1 - 14)):
        p.outline(rect(left, y0 + 14, right, y1 - 14), 2, lit(colour, 0.74))
        p.fill([(left + 8, y1 - 40), (left + 44, y0 + 22), (left + 54, y0 + 22), (left + 18, y1 - 40)], lit(SKY, 1.4))
    p.rect(x0, y0, x1, y0 + 2, lit(colour, 1.4))
    p.rect(middle - 7, 108, middle - 4, 132, (128, 131, 134))
    p.rect(middle - 7, 108, middle - 4, 111, (176, 179, 181))
    p.rect(16, 208, 240, 220, WHITE)
    p.rect(16, 218, 240, 222, (204, 200, 192))


def draw_blind(p, colours, kind):
    colour = colours[0]
    p.rect(0, 0, SIZE, SIZE, (232, 228, 220))
    x0, y0, x1, y1 = 30, 20, 226, 212
    p.rect(x0, y0, x1, y1, (238, 237, 233))
    view_through(p, x0 + 10, y0 + 10, x1 - 10, y1 - 10)
    p.outline(rect(x0 + 10, y0 + 10, x1 - 10, y1 - 10), 2, (196, 193, 186))
    p.rect(126, y0 + 10, 130, y1 - 10, (226, 224, 219))
    left, right, top = x0 + 2, x1 - 2, 22
    if kind == "slats":
        for index in range(13):
            y = top + 12 + index * 10
            p.fill([(left, y), (right, y), (right, y + 6), (left, y + 6)], lit(colour, p.random.choice((0.96, 1.0, 1.05))))
            p.rect(left, y, right, y + 1.4, lit(colour, 1.4))
        for x in (66, 190):
            p.rect(x, top, x + 4, top + 140, lit(colour, 0.7))
        bottom = top + 142
    elif kind == "pleats":
        bottom = top + 118
        for index in range(14):
            y = top + 10 + index * 7.7
            p.rect(left, y, right, y + 4, lit(colour, 1.1))
            p.rect(left, y + 4, right, y + 7.7, lit(colour, 0.88))
    else:
        bottom = top + 108
        p.rect(left, top + 10, right, bottom, colour)
        for x in range(int(left), int(right), 5):
            p.rect(x, top + 10, x + 0.8, bottom, lit(colour, 0.96))
        p.rect(127, bottom + 6, 129, bottom + 34, (168, 164, 156))
        p.fill(disc(128, bottom + 38, 5), (168, 164, 156))
    p.rect(left, bottom - 2, right, bottom + 6, lit(colour, 0.78))
    p.rect(left - 4, top - 10, right + 4, top + 12, lit(colour, 0.9))
    p.rect(left - 4, top - 10, right + 4, top - 7, lit(colour, 1.3))
    p.rect(16, 212, 240, 222, WHITE)
    p.rect(16, 220, 240, 224, (204, 200, 192))


def draw_decking(p, colours, kind):
    colour = colours[0]
    first, last = 104, 262
    p.rect(0, 0, SIZE, first, SKY)
    p.rect(0, 66, SIZE, first, WATER)
    p.fill([(0, 66), (0, 54), (60, 44), (130, 56), (200, 48), (SIZE, 58), (SIZE, 66)], (132, 154, 148))
    for x, y in ((20, 76), (96, 84), (180, 74), (140, 93)):
        p.rect(x, y, x + 40, y + 1.4, lit(WATER, 1.25))
    p.rect(0, first, SIZE, SIZE, lit(colour, 0.55))
    if kind == "boards":
        rows = floor_rows(first, last, 9)
        for y0, y1 in zip(rows, rows[1:]):
            tone = lit(colour, p.random.choice((0.92, 0.97, 1.0, 1.05, 1.1)))
            p.rect(0, y0 + 0.6, SIZE, y1 - 0.6, tone)
            for index in range(1, 5):
                y = y0 + (y1 - y0) * index / 5
                p.rect(0, y, SIZE, y + max(0.6, (y1 - y0) * 0.06), lit(tone, 0.88))
    else:
        count = 5 if kind == "slabs" else 13
        edge = [first + (last - first) * (i / count) ** 1.5 for i in range(count + 1)]
        for row, (y0, y1) in enumerate(zip(edge, edge[1:])):
            for column in range(count + 3):
                shift = 0.5 if row % 2 and kind == "setts" else 0.0
                x0, x1 = (column - 1 + shift) / count, (column + shift) / count
                points = [(across(y0, x0, first, last) + 0.8, y0 + 0.7), (across(y0, x1, first, last) - 0.8, y0 + 0.7),
                          (across(y1, x1, first, last) - 0.8, y1 - 0.7), (across(y1, x0, first, last) + 0.8, y1 - 0.7)]
                p.board(points, colour)
    for x in (16, 90, 164, 238):
        p.rect(x, 40, x + 4, first + 6, INK)
    for y in (40, 62, 84):
        p.rect(0, y, SIZE, y + 2.5, INK)
    p.rect(188, 142, 228, 194, (176, 112, 78))
    p.fill([(184, 138), (232, 138), (228, 150), (188, 150)], (196, 130, 94))
    for dx, dy, radius in ((0, 0, 20), (-17, 8, 14), (17, 8, 14), (0, -18, 14)):
        p.fill(disc(208 + dx, 118 + dy, radius), (104, 134, 92))
        p.fill(disc(204 + dx, 114 + dy, radius * 0.5), (128, 156, 112))


PRODUCTS = {
    "cupboard": draw_cupboard, "worktop": draw_worktop, "wall_tiles": draw_wall_tiles, "oven": draw_oven, "floor_tiles": draw_floor_tiles,
    "tap": draw_tap, "vanity": draw_vanity, "planks": draw_planks, "paint": draw_paint, "door": draw_door, "headwall": draw_headwall,
    "wardrobe": draw_wardrobe, "window": draw_window, "blind": draw_blind, "decking": draw_decking,
}


def draw_product(key, how, colours, kind):
    picture = Picture(key)
    PRODUCTS[how](picture, [rgb(colour) for colour in colours], kind)
    return picture.to_png()


def draw_kitchen(p):
    p.rect(0, 0, SIZE, SIZE, (233, 229, 220))
    p.rect(0, 214, SIZE, SIZE, (198, 164, 122))
    p.rect(0, 94, SIZE, 138, (240, 238, 231))
    for y, shift in ((94, 0), (108, 14), (122, 0)):
        p.rect(0, y, SIZE, y + 1, (214, 211, 203))
        for x in range(-shift, SIZE, 28):
            p.rect(x, y, x + 1, y + 14, (214, 211, 203))
    green = (147, 164, 141)
    for x in (4, 58, 168):
        p.rect(x, 24, x + 52, 94, green)
        p.outline(rect(x + 8, 32, x + 44, 86), 1.6, lit(green, 0.8))
    p.fill([(126, 24), (156, 24), (156, 60), (166, 94), (116, 94), (126, 60)], (180, 185, 189))
    p.rect(0, 138, SIZE, 148, (240, 239, 235))
    p.rect(0, 146, SIZE, 149, (196, 192, 184))
    for x in (4, 58, 112, 166, 220):
        p.rect(x, 150, x + 52, 208, green)
        p.outline(rect(x + 8, 160, x + 44, 200), 1.6, lit(green, 0.8))
        p.rect(x + 16, 153, x + 36, 156, (176, 141, 87))
    p.rect(0, 208, SIZE, 214, INK)
    p.rect(112, 134, 168, 138, INK)
    p.rect(196, 100, 200, 138, (189, 151, 88))
    p.rect(196, 100, 220, 104, (189, 151, 88))
    p.fill(disc(80, 124, 14), (176, 112, 78))
    p.rect(78, 104, 82, 112, (104, 134, 92))


def draw_bath(p):
    p.rect(0, 0, SIZE, SIZE, (206, 216, 219))
    for x in range(0, SIZE, 32):
        p.rect(x, 0, x + 1.4, 200, (190, 203, 207))
    for y in range(8, 200, 32):
        p.rect(0, y, SIZE, y + 1.4, (190, 203, 207))
    p.rect(0, 200, SIZE, SIZE, (190, 178, 158))
    p.fill([(20, 130), (236, 130), (226, 190), (206, 206), (50, 206), (30, 190)], WHITE)
    p.fill([(128, 130), (236, 130), (226, 190), (206, 206), (128, 206)], (232, 233, 232))
    p.rect(12, 122, 244, 132, WHITE)
    p.rect(12, 130, 244, 133, (206, 208, 207))
    brass = (189, 151, 88)
    for x in (52, 196):
        p.rect(x, 204, x + 8, 220, brass)
    p.rect(196, 84, 202, 122, brass)
    p.rect(168, 84, 202, 90, brass)
    p.rect(168, 84, 174, 98, brass)
    p.rect(40, 40, 104, 44, brass)
    p.rect(48, 44, 96, 104, (122, 148, 160))
    p.rect(48, 92, 96, 96, (168, 188, 196))
    for x, y, radius in ((82, 116, 8), (98, 112, 10), (114, 117, 7)):
        p.fill(disc(x, y, radius), (240, 246, 248))


def draw_living(p):
    draw_paint(p, [(195, 207, 198)], "")
    p.rect(20, 22, 104, 92, INK)
    p.rect(24, 26, 100, 88, SKY)
    p.fill([(24, 62), (24, 54), (50, 44), (78, 54), (100, 48), (100, 62)], (132, 154, 148))
    p.rect(24, 62, 100, 88, WATER)
    p.fill([(60, 50), (60, 70), (72, 70)], WHITE)
    p.fill([(52, 72), (76, 72), (71, 77), (56, 77)], INK)


def draw_bedroom(p):
    draw_headwall(p, [(164, 178, 155)], "plain")
    p.rect(64, 26, 144, 82, (176, 144, 104))
    p.rect(68, 30, 140, 78, WHITE)
    p.fill(disc(104, 62, 16), (196, 128, 92))
    p.rect(68, 64, 140, 78, (122, 148, 160))


def draw_openings(p):
    draw_decking(p, [(182, 138, 96)], "boards")
    for x in (0, 122, 244):
        p.rect(x, 0, x + 12, SIZE, (64, 69, 75))
    p.rect(0, 0, SIZE, 12, (64, 69, 75))
    p.rect(0, 244, SIZE, SIZE, (64, 69, 75))


CATEGORIES = {"Kitchen": draw_kitchen, "Bath": draw_bath, "Living": draw_living, "Bedroom": draw_bedroom, "Openings": draw_openings}


def draw_category(key):
    picture = Picture(key)
    CATEGORIES[key](picture)
    return picture.to_png()

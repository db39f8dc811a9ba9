"""Draws the plans and pictures of the sample project as PNG files, with nothing but the standard library."""

import math
import struct
import zlib


class Canvas:
    """A picture of indexed colours, drawn at a multiple of its size and averaged down to smooth the edges."""

    def __init__(self, width, height, background, scale=2):
        self.width, self.height, self.scale = width * scale, height * scale, scale
        self.rows = [[background] * self.width for _ in range(self.height)]

    def fill(self, points, colour):
        """Fills a polygon; points in picture units."""
        points = [(x * self.scale, y * self.scale) for x, y in points]
        low = max(0, math.ceil(min(y for _, y in points) - 0.5))
        high = min(self.height - 1, math.floor(max(y for _, y in points) - 0.5))
        for row in range(low, high + 1):
            y = row + 0.5
            crossings = sorted(
                a[0] + (y - a[1]) / (b[1] - a[1]) * (b[0] - a[0])
                for a, b in zip(points, points[1:] + points[:1])
                if (a[1] > y) != (b[1] > y)
            )
            for first, last in zip(crossings[::2], crossings[1::2]):
                start, end = max(0, math.ceil(first - 0.5)), min(self.width, math.floor(last - 0.5) + 1)
                if end > start:
                    self.rows[row][start:end] = [colour] * (end - start)

    def line(self, a, b, width, colour):
        length = math.hypot(b[0] - a[0], b[1] - a[1]) or 1.0
        nx, ny = (b[1] - a[1]) / length * width / 2, -(b[0] - a[0]) / length * width / 2
        self.fill([(a[0] + nx, a[1] + ny), (b[0] + nx, b[1] + ny), (b[0] - nx, b[1] - ny), (a[0] - nx, a[1] - ny)], colour)

    def to_png(self):
        scale = self.scale
        raw = bytearray()
        for top in range(0, self.height, scale):
            raw.append(0)
            for left in range(0, self.width, scale):
                block = [self.rows[top + y][left + x] for y in range(scale) for x in range(scale)]
                raw.extend(sum(colour[channel] for colour in block) // len(block) for channel in range(3))

        def chunk(kind, data):
            return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

        header = struct.pack(">IIBBBBB", self.width // scale, self.height // scale, 8, 2, 0, 0, 0)
        return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(bytes(raw), 9)) + chunk(b"IEND", b"")


PAPER = (250, 250, 248)
WALL = (52, 58, 70)
GLASS = (120, 168, 206)
ROOMS = [(238, 226, 206), (222, 231, 226), (228, 226, 238), (240, 234, 220), (224, 234, 240), (236, 224, 226), (230, 236, 222)]


def clip(points, inside, cross):
    """The part of a polygon on the inner side of a line."""
    kept = []
    for a, b in zip(points, points[1:] + points[:1]):
        if inside(a):
            kept.append(a)
        if inside(a) != inside(b):
            kept.append(cross(a, b))
    return kept


def cut(points, axis, place, below):
    def cross(a, b):
        t = (place - a[axis]) / (b[axis] - a[axis])
        return a[0] + t * (b[0] - a[0]), a[1] + t * (b[1] - a[1])

    return clip(points, lambda p: p[axis] <= place if below else p[axis] >= place, cross)


def split(points, shares, axis):
    """Cuts a polygon across an axis into strips of these shares of its length."""
    low, high = min(p[axis] for p in points), max(p[axis] for p in points)
    strips, place = [], low
    for share in shares:
        end = place + (high - low) * share
        strips.append(cut(cut(points, axis, place, False), axis, end, True) if share < 1 else points)
        place = end
    return [strip for strip in strips if len(strip) >= 3]


def draw_plan(outline, rooms, orientation):
    """A plan with the main room's windows at the bottom of the picture."""
    towards = {"East": 90, "SouthEast": 45, "South": 0, "SouthWest": -45, "West": -90, "NorthWest": -135, "North": 180, "NorthEast": 135}
    middle = sum(x for x, _ in outline) / len(outline), sum(y for _, y in outline) / len(outline)
    angle = math.radians(towards[orientation])
    points = [
        ((x - middle[0]) * math.cos(angle) - (y - middle[1]) * math.sin(angle), (x - middle[0]) * math.sin(angle) + (y - middle[1]) * math.cos(angle))
        for x, y in outline
    ]
    width, height, margin = 400, 300, 26
    low = min(x for x, _ in points), min(y for _, y in points)
    size = max(x for x, _ in points) - low[0], max(y for _, y in points) - low[1]
    scale = min((width - 2 * margin) / size[0], (height - 2 * margin) / size[1])
    points = [((x - low[0] - size[0] / 2) * scale + width / 2, (y - low[1] - size[1] / 2) * scale + height / 2) for x, y in points]

    canvas = Canvas(width, height, PAPER)
    # The hall, baths and kitchen lie at the back, the rooms in front of them.
    back, front = split(points, [0.36, 0.64], 1)
    across = max(2, min(4, rooms))
    parts = split(back, [0.3, 0.25, 0.45] if rooms > 1 else [0.4, 0.6], 0) + split(front, [0.44] + [0.56 / (across - 1)] * (across - 1) if rooms > 1 else [1.0], 0)
    for index, part in enumerate(parts):
        canvas.fill(part, ROOMS[index % len(ROOMS)])
    for part in parts:
        for a, b in zip(part, part[1:] + part[:1]):
            canvas.line(a, b, 2.5, WALL)
    # A door in the inner wall of each part: a piece of the wall left out.
    boundary = min(y for _, y in front)
    for part in parts[len(parts) - across if rooms > 1 else -1:]:
        middle_x = (min(x for x, _ in part) + max(x for x, _ in part)) / 2
        canvas.line((middle_x - 11, boundary), (middle_x + 11, boundary), 4, PAPER)
    bottom = max(y for _, y in points)
    for a, b in zip(points, points[1:] + points[:1]):
        canvas.line(a, b, 6, WALL)
    for a, b in zip(points, points[1:] + points[:1]):
        if (a[1] + b[1]) / 2 > bottom - size[1] * scale * 0.2:
            at = lambda t: (a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t)
            canvas.line(at(0.12), at(0.88), 3.5, GLASS)
    return canvas.to_png()


def draw_building(units):
    """The building from the water, a little from above, in the light of the late morning."""
    width, height = 480, 320
    sky, ground = (222, 233, 242), (206, 212, 205)
    canvas = Canvas(width, height, sky)
    canvas.fill([(0, height * 0.8), (width, height * 0.8), (width, height), (0, height)], ground)

    yaw, rise = math.radians(-28), 0.34
    project = lambda x, y, z: (x * math.cos(yaw) + y * math.sin(yaw), (y * math.cos(yaw) - x * math.sin(yaw)) * rise - z)
    depth = lambda x, y: y * math.cos(yaw) - x * math.sin(yaw)

    faces = []
    for unit in units:
        values = unit["volume"]["outline"]
        outline = list(zip(values[::2], values[1::2]))
        turn = sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(outline, outline[1:] + outline[:1]))
        if turn < 0:
            outline.reverse()
        bottom, top = unit["volume"]["bottom"], unit["volume"]["top"]
        for a, b in zip(outline, outline[1:] + outline[:1]):
            normal = (b[1] - a[1], a[0] - b[0])
            length = math.hypot(*normal) or 1.0
            towards_viewer = depth(*normal) > 0
            if towards_viewer:
                light = 0.62 + 0.38 * max(0.0, (normal[0] * 0.55 + normal[1] * 0.83) / length)
                wall = [(a[0], a[1], bottom), (b[0], b[1], bottom), (b[0], b[1], top), (a[0], a[1], top)]
                faces.append((bottom, depth((a[0] + b[0]) / 2, (a[1] + b[1]) / 2), wall, light, a, b))
        faces.append((top - 0.5, depth(*outline[0]) - 1e6, [(x, y, top) for x, y in outline], 1.08, None, None))
    # Storeys from below, in each from the back.
    faces.sort(key=lambda face: (face[0], face[1]))

    spread = [project(*corner) for face in faces for corner in face[2]]
    low = min(x for x, _ in spread), min(y for _, y in spread)
    high = max(x for x, _ in spread), max(y for _, y in spread)
    scale = min((width - 50) / (high[0] - low[0]), (height - 50) / (high[1] - low[1]))
    place = lambda p: ((p[0] - (low[0] + high[0]) / 2) * scale + width / 2, (p[1] - high[1]) * scale + height - 22)

    for _, _, corners, light, a, b in faces:
        colour = tuple(min(255, round(channel * light)) for channel in ((236, 229, 218) if a else (214, 212, 206)))
        canvas.fill([place(project(*corner)) for corner in corners], colour)
        if a:
            bottom, top = corners[0][2], corners[2][2]
            at = lambda t, z: place(project(a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t, z))
            glass = tuple(round(channel * (0.72 + 0.28 * light)) for channel in (126, 158, 184))
            if math.hypot(b[0] - a[0], b[1] - a[1]) > 150:
                canvas.fill([at(0.14, bottom + 70), at(0.86, bottom + 70), at(0.86, top - 50), at(0.14, top - 50)], glass)
            canvas.line(at(0.0, top), at(1.0, top), 1.0, (170, 164, 154))
    return canvas.to_png()

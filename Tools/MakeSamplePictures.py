#!/usr/bin/env python3
"""Draws the gallery's sample pictures into HalvexPro/Content/Gallery/Pictures.

    Tools/MakeSamplePictures.py

Needs nothing but Python. The result is in the repository, and the same on every machine; run it again only to change a picture.
"""
import struct
import zlib
from pathlib import Path

FOLDER = Path(__file__).resolve().parent.parent / "HalvexPro" / "Content" / "Gallery" / "Pictures"
# Each pixel is the mean of so many by so many points, for smooth edges.
FINENESS = 3


def rgb(text):
    return tuple(int(text[place:place + 2], 16) for place in (0, 2, 4))


def inside(x, y, left, top, right, bottom):
    return left <= x < right and top <= y < bottom


def near(x, y, middle_x, middle_y, radius):
    return (x - middle_x) ** 2 + (y - middle_y) ** 2 < radius ** 2


def windows(x, y, left, top, right, bottom, step_x, step_y):
    """Whether a point is on a window of a grid of them."""
    return inside(x, y, left, top, right, bottom) and (x - left) % step_x < step_x * 0.55 and (y - top) % step_y < step_y * 0.55


def quay(x, y):
    """Houses by the water at sunrise, 320 x 200."""
    houses = [(14, 84, 64, "c8553d"), (64, 60, 104, "e9c46a"), (104, 96, 158, "8ab17d"), (158, 48, 196, "e76f51"),
              (196, 76, 250, "2a9d8f"), (250, 66, 306, "b5838d")]
    if y < 150:
        for left, top, right, color in houses:
            if windows(x, y, left + 6, top + 10, right - 4, 146, 14, 18):
                return rgb("fff3d6")
            if inside(x, y, left, top, right, 150):
                return rgb(color)
        if near(x, y, 236, 52, 22):
            return rgb("ffd166")
        return rgb(["8ecae6", "a8d8ea", "c6e6f0", "e4f2f5", "fbead1"][min(int(y) // 30, 4)])
    if y < 158:
        return rgb("6d6875")
    wave = int((y - 158) // 8)
    return rgb("457b9d" if (int(x) // 40 + wave) % 2 else "3f7396")


def courtyard(x, y):
    """A house with trees in front, 200 x 280."""
    for middle, top in ((38, 176), (162, 166)):
        if near(x, y, middle, top, 34):
            return rgb("588157")
        if inside(x, y, middle - 5, top, middle + 5, 244):
            return rgb("7f5539")
    if y >= 240:
        return rgb("a3b18a" if x < 82 or x >= 118 else "ddd5c7")
    if inside(x, y, 84, 186, 116, 240):
        return rgb("7f5539")
    if windows(x, y, 50, 82, 152, 176, 34, 32):
        return rgb("a8dadc")
    if inside(x, y, 40, 70, 160, 240):
        return rgb("f1faee")
    if y >= 30 and abs(x - 100) < (y - 30) * 1.75 and y < 70:
        return rgb("bc4749")
    return rgb("bde0fe")


def plan(x, y):
    """A flat from above, 240 x 240."""
    walls = [(16, 16, 224, 22), (16, 218, 224, 224), (16, 16, 22, 224), (218, 16, 224, 224), (120, 16, 124, 96), (120, 128, 124, 224),
             (16, 128, 86, 132), (156, 96, 224, 100)]
    if any(inside(x, y, *wall) for wall in walls):
        return rgb("264653")
    rooms = [((22, 22, 120, 128), "fefae0"), ((124, 22, 218, 96), "e9edc9"), ((22, 132, 120, 218), "d8e2dc"), ((124, 100, 218, 218), "fae1dd")]
    furniture = [(34, 34, 84, 62), (150, 34, 204, 74), (36, 160, 78, 206), (170, 150, 204, 204)]
    if any(inside(x, y, *piece) for piece in furniture):
        return rgb("ccd5ae")
    for room, color in rooms:
        if inside(x, y, *room):
            return rgb(color)
    return rgb("ffffff")


def waiting(x, y):
    """Three dots: a picture is on its way, 160 x 160."""
    if any(near(x, y, middle, 80, 9) for middle in (50, 80, 110)):
        return rgb("9aa5b1")
    return rgb("e4e8ec")


def missing(x, y):
    """A crossed-out landscape: there is no picture, 160 x 160."""
    if abs(x - y) < 4 and 36 < x < 124:
        return rgb("8a94a0")
    if near(x, y, 104, 58, 9) or (inside(x, y, 40, 40, 120, 116) and (y > 116 - (x - 40) * 0.9 and y > 116 - (100 - x) * 0.9 or y > 116 - (120 - x) * 0.8 and x > 84)):
        return rgb("b4bdc6")
    return rgb("e4e8ec")


def draw(picture, width, height):
    """Rows of pixels."""
    offsets = [(step + 0.5) / FINENESS for step in range(FINENESS)]
    points = FINENESS * FINENESS
    rows = []
    for y in range(height):
        row = bytearray()
        for x in range(width):
            colors = [picture(x + dx, y + dy) for dy in offsets for dx in offsets]
            row += bytes((sum(color[channel] for color in colors) + points // 2) // points for channel in range(3))
        rows.append(bytes(row))
    return rows


def chunk(kind, content):
    return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))


def write_png(path, rows):
    width = len(rows[0]) // 3
    content = b"".join(b"\0" + row for row in rows)
    path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, len(rows), 8, 2, 0, 0, 0))
                     + chunk(b"IDAT", zlib.compress(content, 9)) + chunk(b"IEND", b""))


def main():
    FOLDER.mkdir(parents=True, exist_ok=True)
    for name, picture, width, height in (("Quay", quay, 320, 200), ("Courtyard", courtyard, 200, 280), ("Plan", plan, 240, 240),
                                         ("Waiting", waiting, 160, 160), ("Missing", missing, 160, 160)):
        write_png(FOLDER / (name + ".png"), draw(picture, width, height))


if __name__ == "__main__":
    main()

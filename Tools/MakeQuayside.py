#!/usr/bin/env python3
"""Writes the sample project "Quayside": three buildings at a quay, with their units, plans, pictures, spots, rooms, catalogue and
portraits.

    Tools/MakeQuayside.py                                    writes Viewer/Projects/Quayside
    Tools/MakeQuayside.py --check                            fails when the project there is not what this writes
    Tools/MakeQuayside.py --units 100000 --output FOLDER     writes a town of so many units, without pictures

Centimetres; x to the east, y to the south, where the water is, z up.
"""

import argparse
import json
import math
import pathlib
import random
import shutil

from QuaysideCatalogue import CATALOGUE, image_key, make_catalogue, make_images, subcategories
from QuaysideInteriors import interior_of, make_interiors
from QuaysidePictures import draw_building, draw_plan
from QuaysidePortraits import draw_portrait
from QuaysideProducts import draw_category, draw_product

STOREY = 310
GROUND_STOREY = 420
DIRECTIONS = ["East", "SouthEast", "South", "SouthWest", "West", "NorthWest", "North", "NorthEast"]


def polygon_area(points):
    """In square centimetres, positive whichever way round."""
    pairs = zip(points, points[1:] + points[:1])
    return abs(sum(a[0] * b[1] - b[0] * a[1] for a, b in pairs)) / 2


def centre(points):
    return sum(p[0] for p in points) / len(points), sum(p[1] for p in points) / len(points)


def turned(points, about, degrees):
    cos, sin = math.cos(math.radians(degrees)), math.sin(math.radians(degrees))
    return [
        (about[0] + (x - about[0]) * cos - (y - about[1]) * sin, about[1] + (x - about[0]) * sin + (y - about[1]) * cos)
        for x, y in points
    ]


def direction_of(dx, dy):
    """The nearest of eight directions; x is east, y is south."""
    return DIRECTIONS[round(math.degrees(math.atan2(dy, dx)) / 45) % 8]


def level_bottom(level):
    return 0 if level == 0 else GROUND_STOREY + (level - 1) * STOREY


class Town:
    """Collects units and gives them believable data."""

    def __init__(self, seed):
        self.random = random.Random(seed)
        self.units = []

    def add(self, building, prefix, title, level, number, outline, facing, view, price_per_metre, **given):
        outline = [(round(x), round(y)) for x, y in outline]
        area = round(polygon_area(outline) * 0.86 / 10000, 1)
        penthouse = given.get("penthouse", False)
        rooms = 1 if area < 45 else 2 if area < 66 else 3 if area < 92 else 4 if area < 125 else 5
        kind = "Penthouse" if penthouse else "Studio" if rooms == 1 else "Family flat" if rooms >= 4 else "Flat"
        if level == 0:
            kind = "Garden flat" if rooms > 1 else "Studio"
        outdoor = round(area * (0.55 if penthouse else 0.22 if level == 0 else self.random.choice([0.08, 0.1, 0.12])), 1)
        price = area * price_per_metre * (1 + 0.017 * level) * (1.22 if penthouse else 1.0)
        price *= {"Quay": 1.14, "Park": 1.05, "City": 1.0, "Court": 0.96}[view]
        price *= self.random.uniform(0.97, 1.03)
        # What costs least, and what is on top, goes first.
        sold = 0.52 if area < 60 else 0.45 if penthouse else 0.3
        lot = self.random.random()
        status = "Sold" if lot < sold else "Reserved" if lot < sold + 0.14 else "Available"
        unit = {
            "id": "%s-%d%02d" % (prefix, level, number),
            "name": "%s %d.%02d" % (title, level, number),
            "building": building,
            "type": kind,
            "view": view,
            "image": given.get("image", ""),
            "level": level,
            "rooms": rooms,
            "baths": 1 if rooms < 4 else 2 if rooms < 5 or not penthouse else 3,
            "area": area,
            "outdoorArea": outdoor,
            "price": round(price / 1000) * 1000,
            "orientation": direction_of(*facing),
            "status": given.get("status", status),
            "volume": {
                "outline": [v for point in outline for v in point],
                "bottom": level_bottom(level),
                "top": level_bottom(level + 1),
            },
        }
        if not unit["image"]:
            del unit["image"]
        self.units.append(unit)
        return unit


def arc_sector(middle, inner, outer, first, last):
    """A piece of a ring between two angles in degrees, with a corner every few degrees on the outer side."""
    steps = max(2, math.ceil((last - first) / 3))
    angles = [math.radians(first + (last - first) * i / steps) for i in range(steps + 1)]
    point = lambda radius, angle: (middle[0] + radius * math.cos(angle), middle[1] + radius * math.sin(angle))
    return [point(outer, a) for a in angles] + [point(inner, a) for a in reversed(angles)]


def build_harbour_house(town):
    """A bow that opens to the water: eight storeys, the upper two set back behind terraces."""
    middle = (-1500, 6800)
    first, last = 196.0, 284.0
    for level in range(8):
        penthouse = level >= 6
        # Through flats of two widths; on top each two become one.
        shares = [2.0, 1.4, 1.4, 2.0] * 2 if penthouse else [1.0, 1.45, 1.2, 1.0, 1.45, 1.2, 1.2, 1.45, 1.0, 1.2, 1.45, 1.0]
        inner, outer = (5000, 6000) if not penthouse else (5180 + 120 * (level - 6), 5900 - 60 * (level - 6))
        angle = first + (2.0 if penthouse else 0.0)
        span = last - first - (4.0 if penthouse else 0.0)
        for number, share in enumerate(shares, 1):
            width = span * share / sum(shares)
            outline = arc_sector(middle, inner, outer, angle, angle + width)
            across = math.radians(angle + width / 2)
            # The living rooms look inwards, to the water.
            facing = (-math.cos(across), -math.sin(across))
            view = "Quay" if facing[1] > 0.55 else "Park"
            lobby = level == 0 and number == 6
            image = "plan-harbour-%s" % ("top" if penthouse else "wide" if share > 1.3 else "slim")
            unit = town.add("harbour", "HH", "Harbour", level, number, outline, facing, view, 6350, penthouse=penthouse, image=image)
            if lobby:
                unit.update({"type": "Lobby", "status": "NotForSale", "price": 0, "rooms": 0, "baths": 0})
            angle += width


def ring_piece(outer, core, first, last):
    """What a ring between two convex outlines around the origin has between two angles in degrees."""

    def at(outline, angle):
        dx, dy = math.cos(angle), math.sin(angle)
        for a, b in zip(outline, outline[1:] + outline[:1]):
            ex, ey = b[0] - a[0], b[1] - a[1]
            across = dx * ey - dy * ex
            if abs(across) < 1e-9:
                continue
            along = (a[0] * ey - a[1] * ex) / across
            place = (a[0] * dy - a[1] * dx) / across
            if along > 0 and -1e-9 <= place <= 1 + 1e-9:
                return along * dx, along * dy
        raise ValueError("the outline does not go round the origin")

    def walk(outline):
        start, end = math.radians(first), math.radians(last)
        corners = []
        for turn in (-2 * math.pi, 0.0, 2 * math.pi):
            for corner in outline:
                angle = math.atan2(corner[1], corner[0]) + turn
                if start + 1e-6 < angle < end - 1e-6:
                    corners.append((angle, corner))
        return [at(outline, start)] + [corner for _, corner in sorted(corners)] + [at(outline, end)]

    return walk(outer) + walk(core)[::-1]


def chamfered_square(half, cut):
    return [
        (half, -half + cut), (half, half - cut), (half - cut, half), (-half + cut, half),
        (-half, half - cut), (-half, -half + cut), (-half + cut, -half), (half - cut, -half),
    ]


def build_lantern_tower(town):
    """Sixteen storeys that turn a little from one to the next, around a core of stairs and lifts."""
    middle = (5200, 1200)
    core = chamfered_square(420, 60)
    for level in range(16):
        penthouse = level >= 14
        outer = chamfered_square(1420 if level < 14 else 1300, 420)
        shares = [120.0] * 3 if penthouse else [50.0, 70.0] * 3
        angle = -95.0
        for number, share in enumerate(shares, 1):
            outline = ring_piece(outer, core, angle, angle + share)
            outline = turned([(middle[0] + x, middle[1] + y) for x, y in outline], middle, 1.6 * level)
            direction = math.radians(angle + share / 2 + 1.6 * level)
            facing = (math.cos(direction), math.sin(direction))
            view = "Quay" if facing[1] > 0.4 else "City" if facing[0] > 0 else "Park"
            image = "plan-lantern-%s" % ("top" if penthouse else "wide" if share > 60 else "slim")
            town.add("lantern", "LT", "Lantern", level, number, outline, facing, view, 6900, penthouse=penthouse, image=image)
            angle += share


def build_wharf_terraces(town):
    """Steps down to the water: each storey leaves a terrace in front of the one above."""
    left, back = 8600, -1400
    for level in range(7):
        depth = 2900 - 330 * level
        rows = 2 if level < 4 else 1
        bays = 8 if level < 6 else 4
        # The ends lean in with the steps.
        start, end = left + 110 * level, left + 6400 - 260 * level
        passage = 160
        for row in range(rows):
            near = back + (depth * row / rows if rows == 2 else 0) + (passage / 2 if row else 0)
            far = back + depth * (row + 1) / rows - (passage / 2 if rows == 2 and not row else 0)
            front = row == rows - 1
            for bay in range(bays):
                x0, x1 = start + (end - start) * bay / bays, start + (end - start) * (bay + 1) / bays
                outline = [(x0, near), (x1, near), (x1, far), (x0, far)]
                if front and level < 5:
                    # Each bay has its corner cut, so that the front is folded.
                    outline = [(x0, near), (x1, near), (x1, far - 180), (x0 + (x1 - x0) * 0.62, far), (x0, far)]
                facing = (0.0, 1.0) if front else (0.0, -1.0)
                number = row * bays + bay + 1
                penthouse = level == 6
                image = "plan-wharf-%s" % ("top" if level >= 4 else "front" if front else "back")
                town.add("wharf", "WT", "Wharf", level, number, outline, facing, "Quay" if front else "Court", 5700, penthouse=penthouse, image=image)


PLAN_TITLES = {
    "plan-harbour-slim": "Harbour House, slim through flat",
    "plan-harbour-wide": "Harbour House, wide through flat",
    "plan-harbour-top": "Harbour House, penthouse",
    "plan-lantern-slim": "Lantern Tower, corner flat",
    "plan-lantern-wide": "Lantern Tower, wide flat",
    "plan-lantern-top": "Lantern Tower, penthouse",
    "plan-wharf-front": "Wharf Terraces, flat to the water",
    "plan-wharf-back": "Wharf Terraces, flat to the court",
    "plan-wharf-top": "Wharf Terraces, through flat",
}

GROUPS = [("harbour", "Harbour House"), ("lantern", "Lantern Tower"), ("wharf", "Wharf Terraces")]

SPOTS = [
    ("cafe", "Café Kaimauer", "Breakfast on the steps, from seven in the morning.", "view-harbour", (-1500, 3300, 260)),
    ("pier", "Ferry pier", "Every twelve minutes to the old town.", None, (2300, 5600, 240)),
    ("bath", "Harbour bath", "A pool that floats in the water, open from May to September.", None, (7400, 5200, 240)),
    ("garden", "Roof garden", "Shared by the whole tower: herbs, a long table, the evening sun.", "view-lantern", (5200, 1200, level_bottom(16) + 240)),
    ("bicycles", "Bicycle house", "A place for four hundred bicycles, with a workshop.", None, (7300, -900, 260)),
    ("steps", "Terraces", "Each terrace is the roof of the flat below.", "view-wharf", (11600, 1600, 420)),
]


def compact(value):
    return json.dumps(value, ensure_ascii=False, separators=(",", ":"))


def row_lines(rows, indent):
    return ",\n".join(indent + compact(row) for row in rows)


def interior_text(interior):
    """One part a line."""
    head = compact({key: interior[key] for key in ("id", "name", "camera")})
    return "\t\t%s,\"parts\":[\n%s\n\t\t]}" % (head[:-1], row_lines(interior["parts"], "\t\t\t"))


def category_text(category):
    """One product a line."""
    subs = []
    for sub in category["subCategories"]:
        head = compact({key: sub[key] for key in ("id", "name", "image", "default")})
        subs.append("\t\t\t%s,\"products\":[\n%s\n\t\t\t]}" % (head[:-1], row_lines(sub["products"], "\t\t\t\t")))
    head = compact({key: category[key] for key in ("id", "name", "image")})
    return "\t\t%s,\"subCategories\":[\n%s\n\t\t]}" % (head[:-1], ",\n".join(subs))


def project_text(project):
    """One unit, part or product a line: short, and a change of one is a change of one line."""
    members = ["\t%s: %s" % (json.dumps(key), json.dumps(project[key], ensure_ascii=False)) for key in ("format", "id", "name", "description", "currency")]
    for section in ("groups", "images", "spots", "interiors", "catalogue", "units"):
        if not project.get(section):
            continue
        if section == "interiors":
            text = "[\n%s\n\t]" % ",\n".join(interior_text(interior) for interior in project[section])
        elif section == "catalogue":
            text = "{\"categories\":[\n%s\n\t]}" % ",\n".join(category_text(category) for category in project[section]["categories"])
        else:
            text = "[\n%s\n\t]" % row_lines(project[section], "\t\t")
        members.append("\t%s: %s" % (json.dumps(section), text))
    return "{\n%s\n}\n" % ",\n".join(members)


def write_project(folder, project):
    folder.mkdir(parents=True, exist_ok=True)
    (folder / "project.json").write_text(project_text(project), encoding="utf-8")


def draw_pictures(folder, town):
    pictures = folder / "Pictures"
    shutil.rmtree(pictures, ignore_errors=True)
    pictures.mkdir(parents=True)
    for key in PLAN_TITLES:
        # The plan of a storey in the middle, which is what most of its kind have.
        shown = [unit for unit in town.units if unit.get("image") == key]
        unit = shown[len(shown) // 2]
        values = unit["volume"]["outline"]
        (pictures / (key + ".png")).write_bytes(draw_plan(list(zip(values[::2], values[1::2])), unit["rooms"], unit["orientation"]))
    for key, _ in GROUPS:
        (pictures / ("view-%s.png" % key)).write_bytes(draw_building([unit for unit in town.units if unit["building"] == key]))
    portraits = folder / "Portraits"
    portraits.mkdir(exist_ok=True)
    (portraits / "mara-lind.png").write_bytes(draw_portrait((206, 222, 232), (52, 84, 118), (232, 190, 162), (96, 58, 40)))


def draw_catalogue(folder):
    pictures = folder / "Catalogue"
    shutil.rmtree(pictures, ignore_errors=True)
    pictures.mkdir(parents=True)
    for key, _, _ in CATALOGUE:
        (pictures / (image_key(key) + ".png")).write_bytes(draw_category(key))
    for category, (sub, _, _, how, products) in subcategories():
        for product, _, _, _, colours, _, kind, _ in products:
            key = image_key(category, sub, product)
            (pictures / (key + ".png")).write_bytes(draw_product(key, how, colours, kind))


def make_quayside():
    town = Town(1887)
    build_harbour_house(town)
    build_lantern_tower(town)
    build_wharf_terraces(town)
    titles = list(PLAN_TITLES.items()) + [("view-" + key, title) for key, title in GROUPS]
    images = [{"id": key, "address": "Pictures/%s.png" % key, "title": title} for key, title in titles] + make_images()
    for unit in town.units:
        interior = interior_of(unit)
        if interior:
            unit["interior"] = interior
    spots = []
    for key, title, description, image, location in SPOTS:
        spot = {"id": key, "title": title, "description": description, "location": list(location)}
        if image:
            spot["image"] = image
        spots.append(spot)
    return town, {
        "format": 1,
        "id": "quayside",
        "name": "Quayside",
        "description": "Three houses between the park and the water: a bow that opens to the harbour, a tower that turns with the sun, terraces that step down to the quay.",
        "currency": "EUR",
        "groups": [{"id": key, "name": title, "image": "view-" + key} for key, title in GROUPS],
        "images": images,
        "spots": spots,
        "interiors": make_interiors(),
        "catalogue": make_catalogue(),
        "units": town.units,
    }


def make_town(folder, count):
    """Blocks of eight storeys with sixteen flats each, as many as it takes."""
    town = Town(2024)
    groups = []
    across = max(1, math.ceil(math.sqrt(count / 128)))
    while len(town.units) < count:
        block = len(groups)
        key = "block-%d" % block
        groups.append({"id": key, "name": "Block %d" % block})
        left, back = (block % across) * 9000, (block // across) * 5000
        for level in range(8):
            for number in range(16):
                if len(town.units) == count:
                    break
                row, bay = divmod(number, 8)
                x0, y0 = left + bay * 800, back + row * 1100
                outline = [(x0, y0), (x0 + 800, y0), (x0 + 800, y0 + 900), (x0 + 500, y0 + 1000), (x0, y0 + 1000)]
                facing = (0.0, 1.0 if row else -1.0)
                town.add(key, "B%d" % block, "Block %d" % block, level, number + 1, outline, facing, "Quay" if row else "Court", 5200)
    write_project(folder, {
        "format": 1, "id": "town", "name": "Town", "description": "%d units in %d blocks" % (count, len(groups)), "currency": "EUR",
        "groups": groups, "units": town.units,
    })


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--units", type=int, help="write a town of so many units")
    parser.add_argument("--output", type=pathlib.Path, help="the folder to write")
    parser.add_argument("--check", action="store_true", help="write nothing, and compare")
    arguments = parser.parse_args()
    if arguments.units:
        if not arguments.output:
            parser.error("--units needs --output")
        make_town(arguments.output, arguments.units)
        return
    folder = arguments.output or pathlib.Path(__file__).parent.parent / "Viewer/Projects/Quayside"
    town, project = make_quayside()
    if arguments.check:
        if (folder / "project.json").read_text(encoding="utf-8") != project_text(project):
            raise SystemExit("%s is not what Tools/MakeQuayside.py writes" % (folder / "project.json"))
        return
    write_project(folder, project)
    draw_pictures(folder, town)
    draw_catalogue(folder)
    print(len(town.units), "units")


if __name__ == "__main__":
    main()

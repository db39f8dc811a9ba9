#!/usr/bin/env python3
"""Takes the shipped fonts over from their unpacked packages into HalvexPro/Content.

    npm pack @fontsource/montserrat @fortawesome/fontawesome-free     (and unpack both archives)
    Tools/ImportFonts.py MONTSERRAT_PACKAGE_DIR ICON_PACKAGE_DIR

Needs fontTools with Brotli (Debian: python3-fonttools, python3-brotli). Writes the font files as TrueType, the two font
assets, the icon table and the licences. The result is in the repository; run it again only to take a newer release.
"""
import json
import shutil
import sys
from pathlib import Path

from fontTools.ttLib import TTFont

CONTENT = Path(__file__).resolve().parent.parent / "HalvexPro" / "Content" / "Widgets"
TEXT_DIR = CONTENT / "Fonts" / "Monserrat"
ICON_DIR = CONTENT / "FontIcon" / "FontAwesomeFree"

# Typeface names as the font schemas use them, with the weight of the package's file.
TEXT_TYPEFACES = [("regular", 400), ("bold", 700)]
# A character is drawn with the first of these that has it; the Latin file is the default typeface.
TEXT_FALLBACKS = [("LatinExtended", "latin-ext"), ("Cyrillic", "cyrillic"), ("CyrillicExtended", "cyrillic-ext"),
                  ("Vietnamese", "vietnamese")]
ICON_TYPEFACES = [("Regular", "fa-regular-400"), ("Solid", "fa-solid-900"), ("Brands", "fa-brands-400")]


def convert(source: Path, target: Path) -> set:
    """Writes a WOFF2 file as TrueType and returns the characters it has."""
    font = TTFont(source)
    font.flavor = None
    font.save(target)
    return set(font.getBestCmap())


def ranges_of(characters: set) -> list:
    """Inclusive ranges that cover exactly the characters."""
    ranges = []
    for character in sorted(characters):
        if ranges and ranges[-1][1] == character - 1:
            ranges[-1][1] = character
        else:
            ranges.append([character, character])
    return ranges


def range_json(first: int, last: int) -> dict:
    return {"LowerBound": {"Type": "Inclusive", "Value": first}, "UpperBound": {"Type": "Inclusive", "Value": last}}


def typeface_json(entries: list) -> dict:
    return {"Fonts": [{"Name": name, "Font": {"FontFilename": file}} for name, file in entries]}


def write_json(path: Path, value) -> None:
    path.write_text(json.dumps(value, indent="\t", ensure_ascii=True) + "\n", encoding="utf-8")


def import_text_font(package: Path) -> None:
    TEXT_DIR.mkdir(parents=True, exist_ok=True)
    taken = set()
    default_entries = []
    for name, weight in TEXT_TYPEFACES:
        file = f"Montserrat-{name.capitalize()}.ttf"
        taken |= convert(package / "files" / f"montserrat-latin-{weight}-normal.woff2", TEXT_DIR / file)
        default_entries.append((name, file))
    fallbacks = []
    for label, subset in TEXT_FALLBACKS:
        entries = []
        characters = set()
        for name, weight in TEXT_TYPEFACES:
            file = f"Montserrat-{label}-{name.capitalize()}.ttf"
            characters |= convert(package / "files" / f"montserrat-{subset}-{weight}-normal.woff2", TEXT_DIR / file)
            entries.append((name, file))
        fallbacks.append({"Typeface": typeface_json(entries),
                          "CharacterRanges": [range_json(*r) for r in ranges_of(characters - taken)]})
        taken |= characters
    write_json(TEXT_DIR / "Monserrat.asset.json", {
        "Class": "/Script/Engine.Font",
        "Properties": {"FontCacheType": "Runtime", "CompositeFont": {
            "DefaultTypeface": typeface_json(default_entries), "SubTypefaces": fallbacks}}})
    shutil.copyfile(package / "LICENSE", TEXT_DIR / "LICENSE.txt")


def import_icon_font(package: Path) -> None:
    ICON_DIR.mkdir(parents=True, exist_ok=True)
    entries = []
    glyphs = {}
    for name, source in ICON_TYPEFACES:
        file = f"FontAwesomeFree-{name}.ttf"
        glyphs[name] = convert(package / "webfonts" / f"{source}.woff2", ICON_DIR / file)
        entries.append((name, file))
    write_json(ICON_DIR / "F_FontAwesomeFree.asset.json", {
        "Class": "/Script/Engine.Font",
        "Properties": {"FontCacheType": "Runtime", "CompositeFont": {"DefaultTypeface": typeface_json(entries)}}})

    families = json.loads((package / "metadata" / "icon-families.json").read_text(encoding="utf-8"))
    rows = {}
    for icon in sorted(families):
        record = families[icon]
        character = int(record["unicode"], 16)
        free = {form["style"].capitalize() for form in record["familyStylesByLicense"]["free"]}
        styles = [name for name, _ in ICON_TYPEFACES if name in free and character in glyphs[name]]
        if not styles:
            print(f"{icon}: no free typeface has U+{character:04X}, left out", file=sys.stderr)
            continue
        rows[icon] = {"Label": record["label"], "Styles": styles,
                      "Search": [str(term) for term in record["search"]["terms"]], "Unicode": chr(character)}
    lines = ",\n".join(f"\t\t{json.dumps(icon)}: {json.dumps(row, ensure_ascii=True)}" for icon, row in rows.items())
    (ICON_DIR / "DT_FontAwesomeFree.table.json").write_text(
        '{\n\t"RowStruct": "/Script/HalvexProUI.FontIconDatatableRow",\n\t"Rows": {\n' + lines + "\n\t}\n}\n",
        encoding="utf-8")
    shutil.copyfile(package / "LICENSE.txt", ICON_DIR / "LICENSE.txt")
    print(f"{len(rows)} icons")


def main() -> int:
    if len(sys.argv) != 3:
        print(__doc__, file=sys.stderr)
        return 2
    import_text_font(Path(sys.argv[1]))
    import_icon_font(Path(sys.argv[2]))
    return 0


if __name__ == "__main__":
    sys.exit(main())

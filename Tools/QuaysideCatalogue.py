"""What the units of the sample project can be configured with. The makers are invented."""

# Category: key, name. Subcategory: key, name, surfaces that its products colour, how it is drawn, products. Product: key, name,
# maker, price beyond the unit's, colours of the surfaces in their order, roughness, what its picture shows beside the colours, text.
CATALOGUE = [
    ("Kitchen", "Kitchen", [
        ("Fronts", "Cupboard fronts", ["KitchenFronts", "KitchenHandles"], "cupboard", [
            ("chalk", "Chalk white", "Brackwater Joinery", 0, ["#ECEAE3", "#8C8F92"], 0.7, "plain",
             "Matt lacquer on solid board. Bright, calm, and easy to wipe down."),
            ("sage", "Sage green", "Brackwater Joinery", 650, ["#93A48D", "#B08D57"], 0.7, "frame",
             "A painted frame front in a muted green, with brass bars to pull."),
            ("ink", "Ink blue", "Brackwater Joinery", 650, ["#34465A", "#B08D57"], 0.65, "frame",
             "A painted frame front in a blue that turns almost black in the evening."),
            ("oak", "Oiled oak", "Tannfeld", 1900, ["#C39A69", "#3A3D42"], 0.6, "grain",
             "Real oak veneer, matched from door to door and finished with hard oil."),
            ("walnut", "Smoked walnut", "Tannfeld", 2600, ["#6E4E38", "#3A3D42"], 0.55, "grain",
             "Dark walnut veneer with a fine, straight grain."),
        ]),
        ("Worktop", "Worktop", ["KitchenWorktop"], "worktop", [
            ("pale-laminate", "Pale stone laminate", "Corrowby", 0, ["#CFCAC0"], 0.7, "speckles",
             "Hard-wearing laminate with the look of pale stone and a slim straight edge."),
            ("beech", "Beech block", "Tannfeld", 480, ["#D3A877"], 0.65, "grain",
             "Solid staves of beech. It can be sanded and oiled again for decades."),
            ("white-quartz", "White quartz", "Quillstone", 1350, ["#F0EFEB"], 0.3, "speckles",
             "Composite of quartz that shrugs off heat, acid and red wine."),
            ("grey-terrazzo", "Grey terrazzo", "Quillstone", 1650, ["#A9A8A4"], 0.35, "chips",
             "Chips of marble in grey cement, ground and polished. No two pieces are alike."),
            ("black-granite", "Black granite", "Quillstone", 1980, ["#2F3133"], 0.25, "speckles",
             "Natural stone with a leathered surface that hides fingerprints."),
        ]),
        ("Splashback", "Splashback", ["KitchenSplashback"], "wall_tiles", [
            ("metro-white", "White metro tiles", "Corrowby", 0, ["#F1EFE8"], 0.25, "metro",
             "Small glazed bricks, laid in a half bond with pale joints."),
            ("metro-green", "Bottle green tiles", "Corrowby", 340, ["#3F6B57"], 0.25, "metro",
             "The same small bricks with a deep green glaze that varies from tile to tile."),
            ("clay-squares", "Clay squares", "Corrowby", 420, ["#C07F5C"], 0.5, "square",
             "Hand-moulded squares of terracotta, sealed against grease."),
            ("grey-glass", "Smoke grey glass", "Vantholm", 560, ["#7E898F"], 0.1, "panel",
             "One pane of toughened glass, coloured from behind. There is no joint to clean."),
        ]),
        ("Appliances", "Appliances", ["KitchenAppliances"], "oven", [
            ("steel-basic", "Brushed steel, basic", "Oddasund", 0, ["#B4B9BD"], 0.35, "one",
             "Oven, induction hob, fridge and dishwasher, all rated A for energy."),
            ("white-basic", "White glass, basic", "Oddasund", 0, ["#E9ECED"], 0.2, "one",
             "The same set with fronts of white glass."),
            ("black-plus", "Black glass, plus", "Oddasund", 1480, ["#25282C"], 0.15, "two",
             "With a steam oven above the oven, and a hob that extracts its own vapour."),
            ("bronze-plus", "Bronze, plus", "Oddasund", 1890, ["#8C6B4F"], 0.35, "two",
             "The plus set in warm bronze steel, with soft-closing doors."),
        ]),
    ]),
    ("Bath", "Bath", [
        ("Tiles", "Wall tiles", ["BathTiles"], "wall_tiles", [
            ("chalk-large", "Chalk, large format", "Corrowby", 0, ["#E4E1D9"], 0.6, "large",
             "Matt tiles of 60 by 120 cm with joints that are hardly seen."),
            ("mist-blue", "Mist blue", "Corrowby", 390, ["#A9BDC6"], 0.3, "square",
             "Glazed squares of 15 cm in the colour of the harbour before sunrise."),
            ("fir-metro", "Fir green, upright", "Corrowby", 460, ["#557A6B"], 0.25, "upright",
             "Slim glazed tiles, set upright so that low walls look taller."),
            ("slate-large", "Slate, large format", "Quillstone", 720, ["#5B6066"], 0.55, "large",
             "Split slate in large pieces, sealed so that drops leave no marks."),
        ]),
        ("Floor", "Floor tiles", ["BathFloor"], "floor_tiles", [
            ("sand", "Sand", "Corrowby", 0, ["#CBBFA9"], 0.7, "large",
             "Slip-resistant tiles of 60 by 60 cm in a warm sand tone."),
            ("pebble", "Pebble grey", "Corrowby", 0, ["#9FA3A3"], 0.7, "large",
             "The same tile in a neutral grey."),
            ("checker", "Checkerboard", "Corrowby", 280, ["#8F9499"], 0.5, "checker",
             "Dark and light squares laid on the diagonal, as in the old ferry hall."),
            ("charcoal-hexagon", "Charcoal hexagons", "Quillstone", 410, ["#4B4F54"], 0.6, "hexagon",
             "Small hexagons on a mat. Their many joints give a safe grip to wet feet."),
        ]),
        ("Fittings", "Taps and fittings", ["BathFittings", "KitchenTap"], "tap", [
            ("chrome", "Polished chrome", "Vantholm", 0, ["#C9CED2", "#C9CED2"], 0.1, "",
             "Taps, shower, rails and flush plate, with the kitchen tap to match."),
            ("brushed", "Brushed steel", "Vantholm", 260, ["#A7A9A6", "#A7A9A6"], 0.4, "",
             "Solid stainless steel, brushed by hand. It hides water marks."),
            ("brass", "Warm brass", "Vantholm", 540, ["#BD9758", "#BD9758"], 0.3, "",
             "Unlacquered brass that grows darker and softer over the years."),
            ("black", "Matt black", "Vantholm", 320, ["#2A2C2F", "#2A2C2F"], 0.7, "",
             "A tough powder coat, the same on every part."),
        ]),
        ("Vanity", "Vanity unit", ["BathVanity"], "vanity", [
            ("white", "White lacquer", "Brackwater Joinery", 0, ["#EFEDE8"], 0.5, "plain",
             "A hanging unit with two deep drawers that close softly."),
            ("oak", "Ribbed oak", "Tannfeld", 520, ["#C39A69"], 0.65, "ribs",
             "Rounded ribs of oak across both drawers, oiled against moisture."),
            ("clay", "Clay pink", "Brackwater Joinery", 290, ["#C49A8A"], 0.65, "plain",
             "A dusty pink lacquer that flatters white basins."),
            ("ink", "Ink blue", "Brackwater Joinery", 290, ["#34465A"], 0.6, "plain",
             "The dark blue of the kitchen fronts, for those who like it twice."),
        ]),
    ]),
    ("Living", "Living room", [
        ("Floor", "Floor", ["LivingFloor"], "planks", [
            ("oak-natural", "Natural oak", "Pellagrove", 0, ["#C8A477"], 0.65, "planks",
             "Three-layer boards of oak, brushed and matt lacquered, over underfloor heating."),
            ("ash-pale", "Pale ash", "Pellagrove", 420, ["#DCCDB2"], 0.65, "planks",
             "Light boards of ash that make rooms to the north brighter."),
            ("oak-herringbone", "Oak in herringbone", "Pellagrove", 1850, ["#B98F60"], 0.6, "herringbone",
             "Short staves laid by hand in a herringbone, with a border along the walls."),
            ("walnut-wide", "Wide walnut", "Pellagrove", 2900, ["#7A573E"], 0.55, "planks",
             "Boards up to 24 cm wide and 3 m long, in dark American walnut."),
            ("terrazzo", "Harbour terrazzo", "Quillstone", 3400, ["#BDB9B1"], 0.35, "chips",
             "Poured on site without a joint, with chips of stone from the old quay wall."),
        ]),
        ("Walls", "Wall colour", ["LivingWalls"], "paint", [
            ("white", "Gallery white", "Merrowlight", 0, ["#F1EFEA"], 0.9, "",
             "A soft white of mineral paint that lets the walls breathe."),
            ("oat", "Oat", "Merrowlight", 180, ["#DDD1BB"], 0.9, "",
             "Warm and quiet, in the morning as under lamps."),
            ("dew", "Dew", "Merrowlight", 180, ["#C3CFC6"], 0.9, "",
             "A grey with a hint of green, made for rooms that face the park."),
            ("rust", "Ferry rust", "Merrowlight", 220, ["#B5714F"], 0.9, "",
             "The red of the old ferries, a little faded by the sun."),
            ("dusk", "Dusk blue", "Merrowlight", 220, ["#5F7688"], 0.9, "",
             "A deep blue that pushes the walls back when it gets dark."),
        ]),
        ("Doors", "Interior doors", ["InteriorDoors", "DoorHandles"], "door", [
            ("white-flush", "White, flush", "Brackwater Joinery", 0, ["#EDEBE6", "#8C8F92"], 0.6, "flush",
             "A solid core door, level with its frame on the side of the hall."),
            ("white-panel", "White, two panels", "Brackwater Joinery", 720, ["#EDEBE6", "#B08D57"], 0.6, "panel",
             "Two recessed panels and a brass handle, as in the merchants' houses across the water."),
            ("oak", "Oak veneer", "Tannfeld", 1150, ["#C39A69", "#3A3D42"], 0.6, "grain",
             "Veneer that runs upright over leaf and frame."),
            ("graphite", "Graphite", "Brackwater Joinery", 860, ["#4A4E54", "#3A3D42"], 0.7, "flush",
             "Almost black, with a handle of the same colour."),
        ]),
    ]),
    ("Bedroom", "Bedroom", [
        ("Floor", "Floor", ["BedroomFloor"], "planks", [
            ("oak-natural", "Natural oak", "Pellagrove", 0, ["#C8A477"], 0.65, "planks",
             "The boards of the living room, carried on without a threshold."),
            ("ash-pale", "Pale ash", "Pellagrove", 260, ["#DCCDB2"], 0.65, "planks",
             "Light boards of ash, brushed so that they feel soft under bare feet."),
            ("wool-sand", "Sand wool", "Hallimond Weavers", 340, ["#C9BBA3"], 0.95, "carpet",
             "A dense loop carpet of undyed wool, laid from wall to wall."),
            ("wool-moss", "Moss wool", "Hallimond Weavers", 340, ["#7D8768"], 0.95, "carpet",
             "The same carpet in a mossy green."),
        ]),
        ("Feature", "Feature wall", ["BedroomWall"], "headwall", [
            ("white", "Gallery white", "Merrowlight", 0, ["#F1EFEA"], 0.9, "plain",
             "As the living room: mineral paint in a soft white."),
            ("sage", "Sage", "Merrowlight", 190, ["#A4B29B"], 0.9, "plain",
             "A green for sleeping well, said to suit every bed cover."),
            ("plum", "Plum", "Merrowlight", 190, ["#7B5A66"], 0.9, "plain",
             "Dark and warm; it makes a large room snug."),
            ("oak-slats", "Oak slats", "Tannfeld", 1280, ["#BC9261"], 0.7, "slats",
             "Upright slats of oak on felt, which swallow noise as well as hard edges."),
        ]),
        ("Wardrobe", "Wardrobe", ["Wardrobe"], "wardrobe", [
            ("white", "White lacquer", "Brackwater Joinery", 0, ["#EFEDE8"], 0.55, "plain",
             "Hinged doors up to the ceiling, with rails, shelves and four drawers inside."),
            ("linen", "Linen", "Brackwater Joinery", 380, ["#CFC4B0"], 0.9, "plain",
             "Doors covered with woven fabric in the colour of flax."),
            ("oak", "Oak veneer", "Tannfeld", 1450, ["#C39A69"], 0.6, "grain",
             "Upright oak veneer with grips milled into the edges."),
            ("mirror", "Bronze mirror", "Vantholm", 980, ["#9C8C7C"], 0.05, "mirror",
             "Tinted glass that doubles the window and the evening light."),
        ]),
    ]),
    ("Openings", "Windows and terrace", [
        ("Frames", "Window frames", ["WindowFrames"], "window", [
            ("white", "White", "Skerrow Glazing", 0, ["#EEEDEA"], 0.5, "",
             "Timber inside, aluminium outside, three panes of glass."),
            ("oak", "Clear oak", "Skerrow Glazing", 1650, ["#C39A69"], 0.6, "",
             "Oak left as it grew on the inside, with bronze aluminium outside."),
            ("anthracite", "Anthracite", "Skerrow Glazing", 540, ["#40454B"], 0.5, "",
             "Slim dark frames that draw a line round the view."),
        ]),
        ("Blinds", "Blinds", ["Blinds"], "blind", [
            ("roller-white", "White roller", "Hallimond Weavers", 0, ["#F2F0EA"], 0.9, "roller",
             "A light screen against glare, drawn by hand."),
            ("roller-dark", "Blackout roller", "Hallimond Weavers", 310, ["#55585E"], 0.9, "roller",
             "Keeps out the light of the harbour, for those who sleep late."),
            ("slats-wood", "Wooden slats", "Hallimond Weavers", 690, ["#B98F60"], 0.6, "slats",
             "Slats of lime wood on cotton tapes, turned by a small motor."),
            ("pleats-linen", "Pleated linen", "Hallimond Weavers", 450, ["#D6C7AC"], 0.9, "pleats",
             "Opens from above or from below, so that light comes in and looks do not."),
        ]),
        ("Decking", "Terrace", ["Decking"], "decking", [
            ("larch", "Larch", "Pellagrove", 0, ["#B68A60"], 0.8, "boards",
             "Grooved boards of larch that turn silver within two summers."),
            ("ash-thermo", "Thermo ash", "Pellagrove", 880, ["#7B5B43"], 0.75, "boards",
             "Ash that was baked until it is dark and lasting, without any oil."),
            ("concrete", "Pale concrete", "Quillstone", 640, ["#B9B7B1"], 0.85, "slabs",
             "Large slabs on pedestals; rain runs off below them."),
            ("granite", "Granite setts", "Quillstone", 1240, ["#83868A"], 0.8, "setts",
             "Split cubes that were taken up from the quay and laid again."),
        ]),
    ]),
]


def image_key(*parts):
    return "-".join(part.lower() for part in parts)


def subcategories():
    for category, _, children in CATALOGUE:
        for child in children:
            yield category, child


def make_catalogue():
    """The catalogue as the project's file has it. Images are named for what they show."""
    categories = []
    for category, name, children in CATALOGUE:
        subs = []
        for sub, sub_name, surfaces, _, products in children:
            rows = []
            for key, product, maker, price, colors, roughness, _, text in products:
                row = {"id": image_key(category, sub, key), "name": product, "maker": maker, "description": text}
                row["image"] = image_key(category, sub, key)
                row["price"] = price
                row["looks"] = [{"surface": s, "color": c, "roughness": roughness} for s, c in zip(surfaces, colors)]
                rows.append(row)
            subs.append({"id": sub, "name": sub_name, "image": rows[0]["image"], "default": rows[0]["id"], "products": rows})
        categories.append({"id": category, "name": name, "image": image_key(category), "subCategories": subs})
    return {"categories": categories}


def make_images():
    images = [{"id": image_key(key), "address": "Catalogue/%s.png" % image_key(key), "title": name} for key, name, _ in CATALOGUE]
    for category, (sub, sub_name, _, _, products) in subcategories():
        for product in products:
            key = image_key(category, sub, product[0])
            images.append({"id": key, "address": "Catalogue/%s.png" % key, "title": "%s: %s" % (sub_name, product[1])})
    return images

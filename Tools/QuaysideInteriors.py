"""Builds the rooms of the sample project: doll's houses without ceilings, to be looked at from the front and the left.

Centimetres; x to the right, y to the front, z up from the floor. Outer walls at the back and at the right stand whole, those
between rooms are cut, and at the front and at the left there is only a kerb, so that every room can be looked into.
"""

OUTER = 240
INNER = 138
KERB = 8
THICK = 14

WHITE = "#F4F3EF"
LINEN = "#D9D2C5"
CHARCOAL = "#3A3D42"
STEEL = "#B9BEC2"
GLASS = "#A9CBDD"
MIRROR = "#CFE0E6"
OAK = "#C9A67A"
GREEN = "#6F8B63"
CLAY = "#B0714F"
CUT = "#77787A"
PLASTER = "#E7E3DB"


class Interior:
    """Collects the parts of one kind of unit."""

    def __init__(self):
        self.parts = []

    def box(self, surface, x0, x1, y0, y1, z0, z1, color=None):
        part = {"surface": surface} if surface else {}
        if color:
            part["color"] = color
        part["volume"] = {"min": [x0, y0, z0], "max": [x1, y1, z1]}
        self.parts.append(part)

    def floor(self, surface, x0, x1, y0, y1):
        self.box(surface, x0, x1, y0, y1, -10, 0)

    def wall(self, x0, x1, y0, y1, height):
        """A wall in plaster; where it is cut, its top is dark."""
        cap = 3 if height < OUTER else 0
        self.box(None, x0, x1, y0, y1, -10, height - cap, PLASTER)
        if cap:
            self.box(None, x0, x1, y0, y1, height - cap, height, CUT)

    def lining_back(self, surface, x0, x1, y, height, thickness=2):
        """What a wall behind a room shows to the room."""
        self.box(surface, x0, x1, y, y + thickness, 0, height)

    def lining_right(self, surface, x, y0, y1, height, thickness=2):
        self.box(surface, x - thickness, x, y0, y1, 0, height)

    def window_back(self, x0, x1, y, z0, z1, blind=46):
        self.box(None, x0 + 5, x1 - 5, y, y + 3, z0 + 5, z1 - 5, GLASS)
        middle = (x0 + x1) / 2
        for left, right in ((x0, x0 + 5), (middle - 3, middle + 3), (x1 - 5, x1)):
            self.box("WindowFrames", left, right, y, y + 5, z0 + 5, z1 - 5)
        self.box("WindowFrames", x0, x1, y, y + 5, z0, z0 + 5)
        self.box("WindowFrames", x0, x1, y, y + 5, z1 - 5, z1)
        self.box(None, x0 - 6, x1 + 6, y, y + 16, z0 - 4, z0, WHITE)
        self.box("Blinds", x0 - 4, x1 + 4, y + 6, y + 10, z1 - blind, z1 + 6)

    def window_right(self, x, y0, y1, z0, z1, blind=46):
        self.box(None, x - 3, x, y0 + 5, y1 - 5, z0 + 5, z1 - 5, GLASS)
        middle = (y0 + y1) / 2
        for near, far in ((y0, y0 + 5), (middle - 3, middle + 3), (y1 - 5, y1)):
            self.box("WindowFrames", x - 5, x, near, far, z0 + 5, z1 - 5)
        self.box("WindowFrames", x - 5, x, y0, y1, z0, z0 + 5)
        self.box("WindowFrames", x - 5, x, y0, y1, z1 - 5, z1)
        self.box("Blinds", x - 10, x - 6, y0 - 4, y1 + 4, z1 - blind, z1 + 6)

    def glazed_front(self, x0, x1, y):
        """Frames of the glass towards the terrace; the panes are left out, so that one sees through."""
        panes = round((x1 - x0) / 140)
        for index in range(panes + 1):
            left = x0 + (x1 - x0 - 6) * index / panes
            self.box("WindowFrames", round(left), round(left) + 6, y, y + 8, 4, 222)
        self.box("WindowFrames", x0, x1, y, y + 8, 222, 230)
        self.box("WindowFrames", x0, x1, y, y + 8, 0, 4)

    def door_in_back_wall(self, x, y):
        """An opening of 90 cm in a wall along x, with its frame and its leaf open to the front. Gives the opening."""
        for left in (x, x + 86):
            self.box("InteriorDoors", left, left + 4, y - 2, y + THICK + 2, 0, 206)
        self.box("InteriorDoors", x, x + 90, y - 2, y + THICK + 2, 206, 211)
        self.box("InteriorDoors", x + 82, x + 86, y + THICK + 2, y + THICK + 84, 1, 203)
        self.box("DoorHandles", x + 78, x + 82, y + THICK + 72, y + THICK + 76, 98, 104)
        return x, x + 90

    def door_in_side_wall(self, x, y):
        for near in (y, y + 86):
            self.box("InteriorDoors", x - 2, x + THICK + 2, near, near + 4, 0, 206)
        self.box("InteriorDoors", x - 2, x + THICK + 2, y, y + 90, 206, 211)
        self.box("InteriorDoors", x + THICK + 2, x + THICK + 84, y + 4, y + 8, 1, 203)
        self.box("DoorHandles", x + THICK + 72, x + THICK + 76, y + 8, y + 12, 98, 104)
        return y, y + 90

    def kitchen(self, x0, x1, y, island):
        """Along a wall at the back: cupboards, a worktop with sink and hob, tall units with the oven at the right."""
        tall = x1 - 120
        count = int((tall - x0) // 60)
        x0 = tall - 60 * count
        self.box(None, x0 + 2, x1, y, y + 54, 0, 10, CHARCOAL)
        for index in range(count):
            left = x0 + 60 * index
            self.box("KitchenFronts", left, left + 60, y, y + 60, 10, 86)
            self.box("KitchenHandles", left + 12, left + 48, y + 60, y + 62, 79, 81)
            if index != 1:
                self.box("KitchenFronts", left, left + 60, y, y + 35, 146, 216)
        self.box("KitchenWorktop", x0 - 1, tall, y, y + 63, 86, 90)
        self.box("KitchenSplashback", x0, tall, y, y + 2, 90, 146)
        hob = x0 + 60
        self.box("KitchenAppliances", hob + 4, hob + 56, y + 30, y + 35, 146, 216)
        self.box("KitchenAppliances", hob - 2, hob + 62, y + 2, y + 48, 152, 160)
        self.box(None, hob + 1, hob + 59, y + 6, y + 56, 90, 91, "#1E2023")
        for dx, dy in ((10, 12), (38, 12), (10, 36), (38, 36)):
            self.box(None, hob + dx, hob + dx + 14, y + dy, y + dy + 14, 91, 91.5, "#4A4D52")
        sink = x0 + 60 * max(2, count - 2) + 4
        self.box(None, sink, sink + 52, y + 12, y + 54, 90, 90.6, STEEL)
        self.box(None, sink + 4, sink + 48, y + 18, y + 50, 90.6, 91, "#7C8286")
        self.box("KitchenTap", sink + 24, sink + 28, y + 8, y + 12, 90, 122)
        self.box("KitchenTap", sink + 24, sink + 28, y + 8, y + 32, 122, 125)
        for index, surface in enumerate(("KitchenAppliances", "KitchenFronts")):
            left = tall + 60 * index
            self.box("KitchenFronts", left, left + 60, y, y + 62, 10, 78)
            self.box("KitchenHandles", left + 12, left + 48, y + 62, y + 64, 70, 72)
            self.box("KitchenFronts", left, left + 60, y, y + 62, 78, 216)
            if surface == "KitchenAppliances":
                for low, high in ((82, 138), (142, 180)):
                    self.box(surface, left + 2, left + 58, y + 62, y + 64, low, high)
                    self.box(None, left + 9, left + 51, y + 64, y + 65, low + 6, high - 14, "#24272B")
                    self.box("KitchenHandles", left + 9, left + 51, y + 65, y + 68, high - 9, high - 7)
            else:
                self.box("KitchenHandles", left + 6, left + 8, y + 62, y + 65, 96, 150)
        if island:
            left, right, near = x0 + 30, x0 + 230, y + 190
            self.box(None, left + 6, right - 6, near + 6, near + 74, 0, 10, CHARCOAL)
            for index in range(4):
                self.box("KitchenFronts", left + 50 * index, left + 50 * index + 50, near, near + 66, 10, 86)
            self.box("KitchenWorktop", left - 4, right + 4, near - 4, near + 92, 86, 90)
            for index in range(3):
                self.stool(left + 36 + 58 * index, near + 108)
            self.box(None, left + 86, left + 114, near + 26, near + 54, 90, 97, CLAY)
            self.box(None, left + 92, left + 108, near + 32, near + 48, 97, 104, "#D8A24A")

    def stool(self, x, y):
        for dx, dy in ((0, 0), (30, 0), (0, 30), (30, 30)):
            self.box(None, x + dx, x + dx + 3, y + dy, y + dy + 3, 0, 62, CHARCOAL)
        self.box(None, x - 1, x + 34, y - 1, y + 34, 62, 67, OAK)

    def chair(self, x, y, back):
        """A chair whose back is to the left (-1) or to the right (1)."""
        for dx, dy in ((0, 0), (38, 0), (0, 38), (38, 38)):
            self.box(None, x + dx, x + dx + 3, y + dy, y + dy + 3, 0, 43, CHARCOAL)
        self.box(None, x - 1, x + 42, y - 1, y + 42, 43, 48, LINEN)
        left = x - 1 if back < 0 else x + 38
        self.box(None, left, left + 4, y, y + 41, 48, 84, LINEN)

    def dining(self, x, y, length):
        self.box(None, x, x + 86, y, y + length, 71, 75, OAK)
        for dx in (6, 76):
            for dy in (8, length - 12):
                self.box(None, x + dx, x + dx + 4, y + dy, y + dy + 4, 0, 71, CHARCOAL)
        for index in range(int(length // 62)):
            self.chair(x - 36, y + 12 + 62 * index, -1)
            self.chair(x + 80, y + 12 + 62 * index, 1)
        self.box(None, x + 34, x + 50, y + length / 2 - 8, y + length / 2 + 8, 75, 92, WHITE)
        self.box(None, x + 36, x + 48, y + length / 2 - 6, y + length / 2 + 6, 92, 112, GREEN)

    def study(self, x, y):
        """A desk to work at, with its chair behind it, and a shelf beside."""
        self.box(None, x, x + 160, y, y + 72, 70, 74, OAK)
        for dx in (4, 152):
            self.box(None, x + dx, x + dx + 4, y + 4, y + 68, 0, 70, CHARCOAL)
        self.box(None, x + 50, x + 110, y + 50, y + 54, 74, 108, "#1B1D20")
        self.box(None, x + 52, x + 96, y + 16, y + 32, 74, 76, WHITE)
        self.chair(x + 58, y - 52, 1)
        self.box(None, x + 190, x + 310, y + 38, y + 72, 0, 138, OAK)
        for index in range(3):
            self.box(None, x + 196, x + 304, y + 36, y + 38, 8 + 44 * index, 44 + 44 * index, CHARCOAL)

    def lounge(self, x, y, right):
        """A sofa that looks to the right, a rug, a low table, and a sideboard at the wall at the right."""
        self.box(None, x + 30, x + 310, y - 20, y + 240, 0, 1.5, "#CFC6B6")
        self.box(None, x, x + 92, y, y + 222, 14, 40, "#6C7F88")
        self.box(None, x, x + 24, y, y + 222, 40, 78, "#6C7F88")
        for near in (y, y + 204):
            self.box(None, x + 24, x + 92, near, near + 18, 40, 60, "#6C7F88")
        for index in range(2):
            near = y + 19 + 92 * index
            self.box(None, x + 26, x + 90, near, near + 91, 40, 49, "#7C9099")
        self.box(None, x + 26, x + 38, y + 24, y + 66, 49, 84, "#D8A24A")
        self.box(None, x + 136, x + 206, y + 56, y + 166, 32, 36, OAK)
        for dx, dy in ((4, 4), (62, 4), (4, 102), (62, 102)):
            self.box(None, x + 136 + dx, x + 140 + dx, y + 56 + dy, y + 60 + dy, 1.5, 32, CHARCOAL)
        self.box(None, x + 160, x + 182, y + 90, y + 120, 36, 39, WHITE)
        self.box(None, right - 46, right, y + 10, y + 210, 16, 52, OAK)
        self.box(None, right - 10, right - 6, y + 40, y + 180, 62, 142, "#1B1D20")
        self.plant(right - 40, y + 228)

    def plant(self, x, y):
        self.box(None, x, x + 28, y, y + 28, 0, 32, CLAY)
        self.box(None, x + 11, x + 17, y + 11, y + 17, 32, 58, "#7A5C40")
        self.box(None, x - 8, x + 36, y - 8, y + 36, 58, 104, GREEN)
        self.box(None, x + 2, x + 26, y + 2, y + 26, 104, 124, "#7F9B70")

    def bath(self, x0, x1, y0, y1, tub):
        """Tiled at the back and at the right, with a shower or a tub, a vanity and a WC."""
        self.floor("BathFloor", x0, x1, y0, y1)
        self.lining_back("BathTiles", x0, x1, y0, INNER)
        self.lining_right("BathTiles", x1, y0 + 2, y1, INNER)
        if tub:
            self.box(None, x0 + 2, x0 + 172, y0 + 2, y0 + 77, 0, 56, WHITE)
            self.box(None, x0 + 10, x0 + 164, y0 + 10, y0 + 69, 56, 57, "#D5E3E8")
            self.box("BathFittings", x0 + 84, x0 + 90, y0 + 2, y0 + 16, 70, 74)
            vanity = x0 + 188
        else:
            self.box(None, x0 + 2, x0 + 92, y0 + 2, y0 + 92, 0, 4, WHITE)
            self.box(None, x0 + 42, x0 + 52, y0 + 42, y0 + 52, 4, 4.6, STEEL)
            self.box("BathFittings", x0 + 45, x0 + 48, y0 + 2, y0 + 5, 96, 212)
            self.box("BathFittings", x0 + 45, x0 + 48, y0 + 5, y0 + 40, 209, 212)
            self.box("BathFittings", x0 + 34, x0 + 59, y0 + 30, y0 + 55, 206, 209)
            self.box("BathFittings", x0 + 90, x0 + 93, y0 + 2, y0 + 92, 196, 199)
            self.box("BathFittings", x0 + 90, x0 + 93, y0 + 89, y0 + 92, 4, 196)
            vanity = x0 + 104
        width = min(110, x1 - 4 - vanity)
        self.box("BathVanity", vanity, vanity + width, y0 + 2, y0 + 48, 30, 82)
        self.box("BathFittings", vanity + 8, vanity + width - 8, y0 + 48, y0 + 50, 66, 68)
        self.box(None, vanity - 1, vanity + width + 1, y0 + 2, y0 + 50, 82, 86, WHITE)
        self.box(None, vanity + width / 2 - 24, vanity + width / 2 + 24, y0 + 14, y0 + 46, 86, 94, WHITE)
        self.box(None, vanity + width / 2 - 20, vanity + width / 2 + 20, y0 + 18, y0 + 42, 94, 94.6, "#D5E3E8")
        self.box("BathFittings", vanity + width / 2 - 2, vanity + width / 2 + 2, y0 + 6, y0 + 10, 86, 106)
        self.box("BathFittings", vanity + width / 2 - 2, vanity + width / 2 + 2, y0 + 6, y0 + 22, 106, 108)
        self.box(None, vanity + 6, vanity + width - 6, y0 + 2, y0 + 5, 100, 134, MIRROR)
        seat = y0 + 150
        self.box(None, x1 - 20, x1 - 2, seat - 6, seat + 46, 0, 104, WHITE)
        self.box("BathFittings", x1 - 22, x1 - 20, seat + 10, seat + 30, 90, 102)
        self.box(None, x1 - 74, x1 - 20, seat, seat + 40, 16, 40, WHITE)
        self.box(None, x1 - 76, x1 - 20, seat - 1, seat + 41, 40, 43, WHITE)
        if y1 - y0 > 250:
            for index in range(5):
                self.box("BathFittings", x1 - 8, x1 - 5, seat + 64, seat + 112, 60 + 16 * index, 63 + 16 * index)

    def bedroom(self, x0, x1, y0, y1, window):
        """A bed with its head at the back, and a wardrobe at the right."""
        self.floor("BedroomFloor", x0, x1, y0, y1)
        self.lining_back("BedroomWall", x0, x1, y0, OUTER)
        wardrobe = x1 - 2
        self.lining_right("BedroomWall", x1, y0 + 2, y1, INNER)
        length = min(250, y1 - y0 - 110)
        doors = max(3, int(length // 50))
        for index in range(doors):
            near = y0 + 6 + 50 * index
            self.box("Wardrobe", wardrobe - 60, wardrobe, near, near + 50, 6, 216)
            self.box("DoorHandles", wardrobe - 62, wardrobe - 60, near + (44 if index % 2 == 0 else 4), near + (46 if index % 2 == 0 else 6), 92, 122)
        self.box(None, wardrobe - 56, wardrobe, y0 + 6, y0 + 6 + 50 * doors, 0, 6, CHARCOAL)
        bed = x0 + 62
        self.box(None, bed - 4, bed + 164, y0 + 6, y0 + 216, 12, 28, OAK)
        self.box(None, bed - 4, bed + 164, y0 + 2, y0 + 6, 12, 98, OAK)
        self.box(None, bed, bed + 160, y0 + 8, y0 + 212, 28, 46, WHITE)
        self.box(None, bed - 3, bed + 163, y0 + 72, y0 + 215, 34, 52, "#8FA3A0")
        for left in (bed + 8, bed + 84):
            self.box(None, left, left + 68, y0 + 12, y0 + 54, 46, 58, WHITE)
        for left in (bed - 52, bed + 170):
            self.box(None, left, left + 44, y0 + 4, y0 + 44, 20, 44, OAK)
            self.box(None, left + 16, left + 28, y0 + 18, y0 + 30, 44, 58, CHARCOAL)
            self.box(None, left + 10, left + 34, y0 + 12, y0 + 36, 58, 76, "#F3E3BF")
        if window:
            self.window_back(bed + 5, bed + 155, y0 + 2, 118, 222)
        self.box(None, bed - 30, bed + 190, y0 + 150, y0 + 262, 0, 1.5, "#C9BDAA")

    def terrace(self, x0, x1, y0, depth):
        boards = round(depth / 26)
        for index in range(boards):
            self.box("Decking", x0, x1, y0 + depth * index / boards, y0 + depth * (index + 1) / boards, -12, -4)
        for left in range(round(x0), round(x1), 120):
            self.box(None, left, left + 3, y0 + depth - 5, y0 + depth - 2, -4, 96, CHARCOAL)
        self.box(None, x1 - 3, x1, y0 + depth - 5, y0 + depth - 2, -4, 96, CHARCOAL)
        for height in (30, 62, 96):
            self.box(None, x0, x1, y0 + depth - 5, y0 + depth - 2, height, height + 3, CHARCOAL)
        self.box(None, x0 + 40, x0 + 100, y0 + 50, y0 + 110, 26, 32, CLAY)
        self.box(None, x0 + 44, x0 + 96, y0 + 54, y0 + 106, -4, 26, CHARCOAL)
        self.plant(x1 - 60, y0 + 40)

    def shell(self, width, depth):
        """Outer walls: whole at the back and at the right, kerbs in front and at the left."""
        self.wall(-THICK, width + THICK, -THICK, 0, OUTER)
        self.wall(width, width + THICK, 0, depth, OUTER)
        self.wall(-THICK, 0, 0, depth, KERB)
        self.wall(-THICK, width + THICK, depth, depth + THICK, KERB)

    def back_wall_with_door(self, x0, x1, y, door):
        """A cut wall along x, with a door at that place; None for a closed one."""
        if door is None:
            self.wall(x0, x1, y, y + THICK, INNER)
            return
        left, right = self.door_in_back_wall(door, y)
        for start, end in ((x0, left), (right, x1)):
            if end > start:
                self.wall(start, end, y, y + THICK, INNER)

    def side_wall_with_door(self, x, y0, y1, door):
        if door is None:
            self.wall(x, x + THICK, y0, y1, INNER)
            return
        near, far = self.door_in_side_wall(x, door)
        for start, end in ((y0, near), (far, y1)):
            if end > start:
                self.wall(x, x + THICK, start, end, INNER)

    def living(self, x0, x1, y1, island):
        """The large room at the right: kitchen at the back, lounge in front, glass to the terrace."""
        self.floor("LivingFloor", x0, x1, 0, y1)
        self.lining_back("LivingWalls", x0, x1, 0, OUTER)
        self.lining_right("LivingWalls", x1, 2, y1, OUTER)
        self.kitchen(x0 + 24, x1 - 2, 2, island)
        self.window_right(x1 - 2, 110, 290, 86, 222)
        self.glazed_front(x0 + 8, x1, y1)
        self.lounge(x1 - 372, y1 - 288, x1 - 2)


def flat():
    rooms = Interior()
    width, depth = 960, 700
    rooms.shell(width, depth)
    rooms.living(402, width, depth, True)
    rooms.bedroom(0, 388, 0, 380, True)
    rooms.bath(0, 236, 394, depth, False)
    rooms.floor("LivingFloor", 250, 402, 394, depth)
    rooms.back_wall_with_door(0, 388, 380, 268)
    rooms.side_wall_with_door(388, 0, 394, None)
    rooms.side_wall_with_door(236, 394, depth, 560)
    rooms.floor("LivingFloor", 268, 358, 380, 394)
    rooms.terrace(402, width, depth + THICK, 170)
    return rooms, width, depth + 170


def large_flat(bedrooms, width_of_living, depth):
    """Bedrooms in a row at the back; in front of them the bath and a hall wide enough to eat and to work in."""
    rooms = Interior()
    room = 388
    living = (room + THICK) * bedrooms
    width = living + width_of_living
    rooms.shell(width, depth)
    rooms.living(living, width, depth, True)
    rooms.bath(0, 330, 394, depth, True)
    rooms.floor("LivingFloor", 344, living, 394, depth)
    rooms.side_wall_with_door(330, 394, depth, 560)
    for index in range(bedrooms):
        left = (room + THICK) * index
        # The first lies behind the bath, and is reached through the second.
        door = left + 70 if index > 0 else None
        rooms.bedroom(left, left + room, 0, 380, True)
        rooms.back_wall_with_door(left, left + room, 380, door)
        rooms.side_wall_with_door(left + room, 0, 394, 240 if index == 0 else None)
        if door is not None:
            rooms.floor("LivingFloor", door, door + 90, 380, 394)
    rooms.dining(living - 190, 500, depth - 590)
    if bedrooms > 2:
        rooms.study(living - 560, depth - 92)
    rooms.terrace(344, width, depth + THICK, 180)
    return rooms, width, depth + 180


KINDS = {
    "two-rooms": ("Flat of two rooms", flat),
    "three-rooms": ("Flat of three rooms", lambda: large_flat(2, 560, 720)),
    "four-rooms": ("Flat of four rooms", lambda: large_flat(3, 580, 720)),
    "penthouse": ("Penthouse", lambda: large_flat(3, 700, 800)),
}


def make_interiors():
    interiors = []
    for key, (name, build) in KINDS.items():
        rooms, width, depth = build()
        interiors.append({
            "id": key,
            "name": name,
            "camera": {"target": [round(width * 0.5), round(depth * 0.47), 30], "yaw": -58, "pitch": -47, "distance": 0},
            "parts": rooms.parts,
        })
    return interiors


def interior_of(unit):
    """The key of the interior that is most like a unit; None for what nobody lives in."""
    if unit["type"] == "Lobby":
        return None
    if unit["type"] == "Penthouse":
        return "penthouse"
    return "two-rooms" if unit["rooms"] <= 2 else "three-rooms" if unit["rooms"] == 3 else "four-rooms"

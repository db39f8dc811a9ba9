-- The plan of an apartment in an area that zooms and moves it. Lengths are metres from the top left of the outer walls.

local Kit = Import("/HalvexPro/Shared/Kit")

local UnitsPerMetre = 46
local Outside = { 0, 0, 13.4, 9 }

-- Name, floor, and where the name stands.
local Rooms = {
	{ "Bedroom", 0.25, 0.25, 4, 3.5, At = { 1.5, 3.1 } },
	{ "Child's room", 4.37, 0.25, 3.4, 3.5, At = { 5.6, 3.1 } },
	{ "Bathroom", 7.89, 0.25, 2.3, 3.5, At = { 9.25, 2.4 }, Wet = true },
	{ "Kitchen", 10.31, 0.25, 2.84, 5.02, At = { 11.4, 2.9 }, Wet = true },
	{ "Hall", 0.25, 3.87, 9.94, 1.4, At = { 5.2, 4.57 } },
	{ "Study", 0.25, 5.39, 3, 3.36, At = { 1.3, 6.5 } },
	{ "Living room", 3.37, 5.39, 6, 3.36, At = { 7.7, 7.07 } },
	{ "Dining room", 9.49, 5.39, 3.66, 3.36, At = { 11.3, 8.2 } },
}

-- Passages through the walls.
local Openings = {
	{ 0, 4.1, 0.25, 0.95 }, { 2.9, 3.75, 0.85, 0.12 }, { 6.75, 3.75, 0.85, 0.12 }, { 8.15, 3.75, 0.85, 0.12 },
	{ 10.19, 4.07, 0.12, 1 }, { 1.9, 5.27, 0.85, 0.12 }, { 5.2, 5.27, 1.8, 0.12 }, { 9.37, 6.3, 0.12, 1.6 }, { 11, 5.27, 1.3, 0.12 },
}

-- Doors as they swing: a square with the corner that is round.
local Doors = {
	{ 0.25, 4.1, 0.95, "TopRight" }, { 2.9, 2.9, 0.85, "TopRight" }, { 6.75, 2.9, 0.85, "TopLeft" },
	{ 8.15, 2.9, 0.85, "TopRight" }, { 1.9, 5.39, 0.85, "BottomLeft" },
}

local Windows = {
	{ 1.2, 0.06, 2, 0.13 }, { 5.2, 0.06, 1.7, 0.13 }, { 8.6, 0.06, 0.9, 0.13 }, { 11, 0.06, 1.5, 0.13 }, { 13.21, 1.5, 0.13, 1.7 },
	{ 0.9, 8.81, 1.7, 0.13 }, { 4.4, 8.81, 3.8, 0.13 }, { 10.3, 8.81, 2, 0.13 }, { 13.21, 6.2, 0.13, 1.4 },
}

-- The last number is the radius of the corners.
local Furniture = {
	{ 0.35, 0.6, 2.05, 1.8, 0.08 }, { 0.43, 0.72, 0.45, 0.7, 0.08 }, { 0.43, 1.57, 0.45, 0.7, 0.08 }, { 3.65, 0.25, 0.6, 2.2, 0 },
	{ 4.47, 0.35, 0.95, 2, 0.08 }, { 4.6, 0.43, 0.7, 0.4, 0.08 }, { 7.17, 0.35, 0.6, 1.4, 0 }, { 6.6, 0.8, 0.5, 0.5, 0.25 },
	{ 7.97, 0.33, 0.75, 1.7, 0.08 }, { 8.05, 0.41, 0.59, 1.54, 0.25 }, { 9.57, 0.4, 0.55, 0.6, 0.15 }, { 9.64, 1.3, 0.5, 0.4, 0.19 },
	{ 12.55, 0.25, 0.6, 3.6, 0 }, { 10.31, 0.25, 2.24, 0.6, 0 }, { 12.65, 0.95, 0.4, 0.5, 0.08 }, { 12.67, 2.2, 0.16, 0.16, 0.08 },
	{ 12.87, 2.2, 0.16, 0.16, 0.08 }, { 12.67, 2.44, 0.16, 0.16, 0.08 }, { 12.87, 2.44, 0.16, 0.16, 0.08 },
	{ 0.35, 7.85, 1.6, 0.75, 0 }, { 0.9, 7.25, 0.5, 0.5, 0.25 }, { 2.9, 6.6, 0.35, 1.9, 0 },
	{ 4.6, 5.9, 1.75, 2.4, 0 }, { 3.5, 6.0, 0.9, 2.2, 0.12 }, { 3.5, 6.0, 0.28, 2.2, 0.1 }, { 4.95, 6.7, 0.6, 0.8, 0.08 }, { 9, 5.5, 0.37, 0.7, 0 },
	{ 10.5, 6.1, 1.7, 1.0, 0.08 }, { 10.65, 5.68, 0.4, 0.4, 0.18 }, { 11.6, 5.68, 0.4, 0.4, 0.18 }, { 10.65, 7.12, 0.4, 0.4, 0.18 },
	{ 11.6, 7.12, 0.4, 0.4, 0.18 },
}

local function Put(self, Widget, X, Y, Width, Height)
	local Slot = self.Sheet:AddChildToCanvas(Widget)
	Slot:SetPosition({ X = X * UnitsPerMetre, Y = Y * UnitsPerMetre })
	Slot:SetSize({ X = Width * UnitsPerMetre, Y = Height * UnitsPerMetre })
	return Slot
end

local function AddBox(self, Box, ID, Opacity)
	local Border = CreateWidget(self, "Border")
	Border:SetBrush(Kit.RoundedBrush(Kit.Color(ID, false, Opacity), 0))
	Put(self, Border, table.unpack(Box))
end

local function AddOutline(self, Box, Radii)
	local Brush = Kit.RoundedBrush({ R = 0, G = 0, B = 0, A = 0 }, 0, Kit.Color("Third", false, 0.45))
	Brush.OutlineSettings.CornerRadii = Radii
	local Border = CreateWidget(self, "Border")
	Border:SetBrush(Brush)
	Put(self, Border, table.unpack(Box))
end

local function AddLabel(self, Lines, X, Y, Across)
	local Column = CreateWidget(self, "VerticalBox")
	for _, Line in ipairs(Lines) do
		Kit.Add(Column, Line, { HorizontalAlignment = "HAlign_Center" })
	end
	local Slot = Put(self, Column, X, Y, 0, 0)
	Slot:SetAutoSize(true)
	Slot:SetAlignment({ X = Across or 0.5, Y = 0.5 })
end

local function DrawRooms(self)
	AddBox(self, Outside, "Third")
	for _, Room in ipairs(Rooms) do
		AddBox(self, { Room[2], Room[3], Room[4], Room[5] }, "Secondary")
	end
	-- They reach into the rooms a little, so that no hairline of the wall is left when the plan is turned.
	local Reach = 0.04
	for _, Opening in ipairs(Openings) do
		local X, Y, Width, Height = table.unpack(Opening)
		if Width > Height then
			AddBox(self, { X, Y - Reach, Width, Height + 2 * Reach }, "Secondary")
		else
			AddBox(self, { X - Reach, Y, Width + 2 * Reach, Height }, "Secondary")
		end
	end
	for _, Room in ipairs(Rooms) do
		if Room.Wet then AddBox(self, { Room[2], Room[3], Room[4], Room[5] }, "Primary", 0.1) end
	end
	for _, Window in ipairs(Windows) do
		AddBox(self, Window, "Secondary")
	end
end

local function DrawFurniture(self)
	for _, Door in ipairs(Doors) do
		local Radius = Door[3] * UnitsPerMetre
		AddOutline(self, { Door[1], Door[2], Door[3], Door[3] }, {
			X = Door[4] == "TopLeft" and Radius or 0,
			Y = Door[4] == "TopRight" and Radius or 0,
			Z = Door[4] == "BottomRight" and Radius or 0,
			W = Door[4] == "BottomLeft" and Radius or 0,
		})
	end
	for _, Thing in ipairs(Furniture) do
		local Radius = Thing[5] * UnitsPerMetre
		AddOutline(self, { Thing[1], Thing[2], Thing[3], Thing[4] }, { X = Radius, Y = Radius, Z = Radius, W = Radius })
	end
end

local function DrawTexts(self)
	local Total = 0
	for _, Room in ipairs(Rooms) do
		local Area = Room[4] * Room[5]
		Total = Total + Area
		AddLabel(self, { Kit.Text(self, Room[1], "small-bold"), Kit.Text(self, string.format("%.1f m²", Area), "extra-small", "Third", { Opacity = 0.8 }) },
			Room.At[1], Room.At[2])
	end
	AddLabel(self, { Kit.Text(self, string.format("Apartment 12, second floor: %.1f m²", Total), "small") }, 0, 9.48, 0)
	for Metre = 0, 4 do
		AddBox(self, { 7.75 + Metre, 9.42, 1, 0.12 }, "Third", Metre % 2 == 0 and 1 or 0.25)
	end
	AddLabel(self, { Kit.Text(self, "5 m", "extra-small") }, Outside[3], 9.48, 1)
end

function PreConstruct(self, IsDesignTime)
	self.Sheet:ClearChildren()
	DrawRooms(self)
	DrawFurniture(self)
	DrawTexts(self)
end

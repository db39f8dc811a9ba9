-- Borders, corners and opacities of the style.

local Kit = Import("/HalvexPro/Shared/Kit")
local Models = Class("/Script/HalvexProUI.HalvexStyleModels")

local function AddShape(self, Panel, Name, Style, Width, Height)
	local Border = CreateWidget(self, "Border")
	Models:SetHalvexBorderStyle(Border, Style)
	local Column = CreateWidget(self, "VerticalBox")
	local Frame = Kit.Sized(self, Border, Width or 128, Height or 88)
	Kit.Add(Column, Frame, { HorizontalAlignment = "HAlign_Left" })
	Kit.Add(Column, Kit.Text(self, Name, "small", "Third", { Opacity = 0.8 }), { Padding = Kit.Margin(0, 10, 0, 0) })
	Kit.Add(Panel, Column)
end

local function AddGroup(self, Title, Fill)
	Kit.Add(self.Content, Kit.Text(self, Title, "h5-b"), { Padding = Kit.Margin(0, 0, 0, 12) })
	local Panel = CreateWidget(self, "WrapBox")
	Panel:SetInnerSlotPadding({ X = 24, Y = 20 })
	Fill(Panel)
	local Card = Kit.Card(self, 24)
	Kit.Add(Card, Panel)
	Kit.Add(self.Content, Card, { Padding = Kit.Margin(0, 0, 0, 28) })
end

function PreConstruct(self)
	Kit.StyleBorder(self.Background, "Secondary", 1)
	self.Content:ClearChildren()
	Kit.Heading(self, self.Content, "Shapes", "A border style is a colour, an opacity and corners: all alike, each on its own, or as round as half of the height.")
	AddGroup(self, "All corners alike", function(Panel)
		for _, Radius in ipairs({ 0, 5, 12, 24, 44 }) do
			AddShape(self, Panel, "Radius " .. Radius, { ColorStyle = { ColorID = "Primary" }, UniformBorder = Radius })
		end
	end)
	AddGroup(self, "Each corner on its own", function(Panel)
		for _, Corners in ipairs({ { 24, 0, 0, 0 }, { 24, 24, 0, 0 }, { 24, 0, 24, 0 }, { 4, 12, 24, 44 } }) do
			AddShape(self, Panel, table.concat(Corners, ", "), {
				ColorStyle = { ColorID = "Third" },
				bUniformCorner = false,
				CornerBorder = { X = Corners[1], Y = Corners[2], Z = Corners[3], W = Corners[4] },
			})
		end
	end)
	AddGroup(self, "Half of the height", function(Panel)
		for _, Height in ipairs({ 24, 44, 64 }) do
			AddShape(self, Panel, Height .. " high", { ColorStyle = { ColorID = "Success" }, RoundType = "HalfHeightRadius" }, 168, Height)
		end
	end)
	AddGroup(self, "Opacity", function(Panel)
		for _, Opacity in ipairs({ 1.0, 0.75, 0.5, 0.25, 0.1 }) do
			AddShape(self, Panel, string.format("%d %%", math.floor(Opacity * 100 + 0.5)), { ColorStyle = { ColorID = "Danger" }, Opacity = Opacity, UniformBorder = 12 })
		end
	end)
end

-- Every colour of the style with its contrast.

local Kit = Import("/HalvexPro/Shared/Kit")

local function AddSwatch(self, Panel, ID, Fill, Front, Simple)
	local Column = CreateWidget(self, "VerticalBox")

	local Face = CreateWidget(self, "Border")
	Face:SetBrush(Kit.RoundedBrush(Fill, 8, Kit.Color("Third", false, 0.12)))
	Face:SetPadding(Kit.Margin(16, 14))
	local Sample = Kit.Text(self, "Aa", "h3-b")
	Sample:SetColorAndOpacity(Kit.Slate(Front))
	Kit.Add(Face, Sample)
	Face:SetVerticalAlignment("VAlign_Bottom")
	Kit.Add(Column, Kit.Sized(self, Face, nil, 104))

	Kit.Add(Column, Kit.Text(self, ID, "regular-bold"), { Padding = Kit.Margin(0, 14, 0, 4) })
	local function Line(Name, Value)
		local Row = CreateWidget(self, "HorizontalBox")
		Kit.Add(Row, Kit.Sized(self, Kit.Text(self, Name, "small", "Third", { Opacity = 0.7 }), 72))
		Kit.Add(Row, Kit.Text(self, Value, "small"))
		Kit.Add(Column, Row, { Padding = Kit.Margin(0, 3, 0, 0) })
	end
	Line("Regular", Kit.Hex(Fill))
	Line("Contrast", Simple and "none" or Kit.Hex(Front))
	Line("Ratio", string.format("%.1f : 1", Kit.ContrastRatio(Fill, Front)))

	local Card = Kit.Card(self, 16)
	Kit.Add(Card, Column)
	Kit.Add(Panel, Kit.Sized(self, Card, 216))
end

local function AddGroup(self, Title, Fill)
	Kit.Add(self.Content, Kit.Text(self, Title, "h5-b"), { Padding = Kit.Margin(0, 0, 0, 12) })
	local Panel = CreateWidget(self, "WrapBox")
	Panel:SetInnerSlotPadding({ X = 16, Y = 16 })
	Fill(Panel)
	Kit.Add(self.Content, Panel, { Padding = Kit.Margin(0, 0, 0, 28) })
end

function PreConstruct(self)
	local Style = Load(Default("/Script/HalvexProUI.HalvexProUISettings").ProjectUIConfiguration)
	Kit.StyleBorder(self.Background, "Secondary", 1)
	self.Content:ClearChildren()
	Kit.Heading(self, self.Content, "Colours", "Colours go by identifier. A style colour has a contrast variant that is readable on it; a simple colour stands alone.")
	AddGroup(self, "Style colours", function(Panel)
		for _, ID in ipairs(Keys(Style, "ColorStyleMap")) do
			AddSwatch(self, Panel, ID, Kit.Color(ID), Kit.Color(ID, true))
		end
	end)
	AddGroup(self, "Simple colours", function(Panel)
		for _, ID in ipairs(Keys(Style, "ColorSimpleMap")) do
			AddSwatch(self, Panel, ID, Kit.Color(ID), Kit.Color("Secondary"), true)
		end
	end)
end

-- Every font schema, set in the project's family.

local Kit = Import("/HalvexPro/Shared/Kit")

local Scripts = {
	{ "Latin", "Bright rooms by the quay" },
	{ "Latin Extended", "Łódź, Ångström, Çeşme, Győr" },
	{ "Cyrillic", "Светлые комнаты у набережной" },
	{ "Vietnamese", "Căn hộ sáng bên bến cảng" },
}

local function AddRow(self, Panel, Name, Details, Sample)
	local Label = CreateWidget(self, "VerticalBox")
	Kit.Add(Label, Kit.Text(self, Name, "regular-bold"))
	if Details then
		Kit.Add(Label, Kit.Text(self, Details, "small", "Third", { Opacity = 0.7 }), { Padding = Kit.Margin(0, 3, 0, 0) })
	end
	local Row = CreateWidget(self, "HorizontalBox")
	Kit.Add(Row, Kit.Sized(self, Label, 176), { VerticalAlignment = "VAlign_Center" })
	-- The largest sizes need more room than a narrow window has.
	Sample:SetTextOverflowPolicy("Ellipsis")
	Kit.Add(Row, Sample, { VerticalAlignment = "VAlign_Center", Size = { SizeRule = "Fill", Value = 1 } })
	Kit.Add(Panel, Row, { Padding = Kit.Margin(0, 9, 0, 9) })
end

local function AddCard(self, Title, Fill)
	Kit.Add(self.Content, Kit.Text(self, Title, "h5-b"), { Padding = Kit.Margin(0, 0, 0, 12) })
	local Panel = CreateWidget(self, "VerticalBox")
	Fill(Panel)
	local Card = Kit.Card(self, 20)
	Kit.Add(Card, Panel)
	Kit.Add(self.Content, Card, { Padding = Kit.Margin(0, 0, 0, 28) })
end

function PreConstruct(self)
	local Style = Load(Default("/Script/HalvexProUI.HalvexProUISettings").ProjectUIConfiguration)
	local Sizing = Style.FontStyle.FontSizing
	Kit.StyleBorder(self.Background, "Secondary", 1)
	self.Content:ClearChildren()
	Kit.Heading(self, self.Content, "Type", "Text asks for a font schema by name, and the style says which size and typeface of the family that is.")
	AddCard(self, "Schemas", function(Panel)
		for _, Schema in ipairs(Keys(Style, "FontStyle.FontSizing")) do
			local Size = Sizing[Schema]
			AddRow(self, Panel, Schema, string.format("%d pt, %s", Size.FontSize, Size.Typeface), Kit.Text(self, "Quayside, flat 12", Schema))
		end
	end)
	AddCard(self, "Scripts", function(Panel)
		for _, Script in ipairs(Scripts) do
			AddRow(self, Panel, Script[1], nil, Kit.Text(self, Script[2], "h4"))
		end
	end)
end

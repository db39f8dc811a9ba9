-- The icons of the icon font, by typeface, with a search.

local Kit = Import("/HalvexPro/Shared/Kit")

local Typefaces = { "Solid", "Regular", "Brands" }
local TilesOnPage = 70

local function Contains(List, Value)
	for _, Candidate in ipairs(List) do
		if Candidate == Value then return true end
	end
	return false
end

local function Matches(Name, Row, Search)
	if string.find(Name, Search, 1, true) or string.find(string.lower(Row.Label), Search, 1, true) then
		return true
	end
	for _, Term in ipairs(Row.Search) do
		if string.find(string.lower(Term), Search, 1, true) then return true end
	end
	return false
end

local function FindIcons(Typeface, Search)
	local Found = {}
	Search = string.lower(Search)
	for _, Name in ipairs(RowNames(Kit.Icons())) do
		local Icon = Row(Kit.Icons(), Name)
		if Contains(Icon.Styles, Typeface) and (Search == "" or Matches(Name, Icon, Search)) then
			Found[#Found + 1] = Name
		end
	end
	return Found
end

local function AddTile(self, Name)
	local Column = CreateWidget(self, "VerticalBox")
	Kit.Add(Column, Kit.Icon(self, Name, self.Typeface, 18, Kit.Color("Primary")), { HorizontalAlignment = "HAlign_Center" })
	local Label = Kit.Text(self, Name, "extra-small")
	Label:SetTextOverflowPolicy("Ellipsis")
	Kit.Add(Column, Label, { HorizontalAlignment = "HAlign_Center", Padding = Kit.Margin(0, 10, 0, 0) })
	local Card = Kit.Card(self, 8)
	Card:SetVerticalAlignment("VAlign_Center")
	Kit.Add(Card, Column)
	Kit.Add(self.Tiles, Kit.Sized(self, Card, 88, 78))
end

local function ShowTiles(self)
	local Found = FindIcons(self.Typeface, self.Search)
	local Last = math.min(#Found, self.FirstIcon + TilesOnPage - 1)
	self.Tiles:ClearChildren()
	for Index = self.FirstIcon, Last do
		AddTile(self, Found[Index])
	end
	self.Count:SetText(#Found == 0 and "No icon found" or string.format("%d to %d of %d", self.FirstIcon, Last, #Found))
	self.Previous:SetIsEnabled(self.FirstIcon > 1)
	self.Next:SetIsEnabled(Last < #Found)
end

local function ShowTypefaces(self)
	self.Typefaces:ClearChildren()
	for _, Name in ipairs(Typefaces) do
		local Chosen = Name == self.Typeface
		local Button = CreateWidget(self, "Button")
		Kit.StyleButton(Button, Kit.Color(Chosen and "Primary" or "Third"), Chosen and 1 or 0.08, Chosen and 1 or 0.14, 8)
		local Label = Kit.Text(self, Name, "regular")
		Label:SetColorAndOpacity(Kit.Slate(Chosen and Kit.Color("Primary", true) or Kit.Color("Third")))
		Kit.Add(Button, Label, { Padding = Kit.Margin(14, 8) })
		Button.OnClicked:Add(function()
			self.Typeface = Name
			self.FirstIcon = 1
			ShowTypefaces(self)
			ShowTiles(self)
		end)
		Kit.Add(self.Typefaces, Button, { Padding = Kit.Margin(0, 0, 6, 0) })
	end
end

local function StyleSearchBox(Box)
	local Line = Kit.Color("Third", false, 0.25)
	local Fill = Kit.Color("Third", false, 0.04)
	local Style = Box.WidgetStyle
	Style.BackgroundImageNormal = Kit.RoundedBrush(Fill, 8, Line)
	Style.BackgroundImageHovered = Kit.RoundedBrush(Fill, 8, Kit.Color("Third", false, 0.5))
	Style.BackgroundImageFocused = Kit.RoundedBrush(Fill, 8, Kit.Color("Primary"))
	Style.Padding = Kit.Margin(12, 9)
	Style.ForegroundColor = Kit.Slate(Kit.Color("Third"))
	Style.FocusedForegroundColor = Kit.Slate(Kit.Color("Third"))
	Style.TextStyle.Font = Class("/Script/HalvexProUI.HalvexStyleModels"):GetFontInfoFromFontSchema("regular")
	Box:SetWidgetStyle(Style)
end

function OnInitialized(self)
	self.SearchBox.OnTextChanged:Add(function(Value)
		self.Search = Value
		self.FirstIcon = 1
		ShowTiles(self)
	end)
	self.Previous.OnClicked:Add(function()
		self.FirstIcon = math.max(1, self.FirstIcon - TilesOnPage)
		ShowTiles(self)
	end)
	self.Next.OnClicked:Add(function()
		self.FirstIcon = self.FirstIcon + TilesOnPage
		ShowTiles(self)
	end)
end

function PreConstruct(self)
	Kit.StyleBorder(self.Background, "Secondary", 1)
	self.Top:ClearChildren()
	Kit.Heading(self, self.Top, "Icons", "An icon is a glyph of the icon font. It is named by the font, the typeface and the row of the font's table.")
	StyleSearchBox(self.SearchBox)
	Kit.StyleText(self.Count, "small", "Third", { Opacity = 0.7 })
	for Name, Symbol in pairs({ Previous = "chevron-left", Next = "chevron-right" }) do
		Kit.StyleButton(self[Name], Kit.Color("Third"), 0.08, 0.14, 8)
		Kit.StyleIcon(self[Name .. "Icon"], Symbol, "Solid", 10, Kit.Color("Third"))
	end
	ShowTypefaces(self)
	ShowTiles(self)
end

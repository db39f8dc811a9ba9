-- The engine's controls in the project's style.

local Kit = Import("/HalvexPro/Shared/Kit")

local Models = Class("/Script/HalvexProUI.HalvexStyleModels")

local None = { DrawAs = "NoDrawType" }

-- The face of an HxButton takes its colour from the button, and is multiplied with these.
local function MakeBarFaces(Radius)
	local function Face(Light)
		return Kit.RoundedBrush({ R = Light, G = Light, B = Light, A = 1 }, Radius)
	end
	return { Normal = Face(1), Hovered = Face(0.82), Pressed = Face(0.7), Disabled = Face(1) }
end

function StyleBarButton(Button)
	Button.WidgetStyle = MakeBarFaces(8)
end

-- The same for a button whose content alone says how much room there is around it.
function StyleTightButton(Button, Radius)
	local Style = MakeBarFaces(Radius or 8)
	Style.NormalPadding = Kit.Margin(0)
	Style.PressedPadding = Kit.Margin(0)
	Button.WidgetStyle = Style
end

-- A round face of a colour, darker under the mouse; for the engine's button, which the keyboard focus can be given to.
function StyleRoundButton(Button, Color, Radius)
	local function Face(Light)
		return Kit.RoundedBrush({ R = Light * Color.R, G = Light * Color.G, B = Light * Color.B, A = Color.A }, Radius)
	end
	Button:SetStyle({
		Normal = Face(1),
		Hovered = Face(0.7),
		Pressed = Face(0.5),
		Disabled = Face(1),
		NormalPadding = Kit.Margin(0),
		PressedPadding = Kit.Margin(0),
	})
end

-- The same around what brings its own padding, an icon or a short text.
function StyleTightButton(Button)
	StyleBarButton(Button)
	Button.WidgetStyle = { NormalPadding = Kit.Margin(0), PressedPadding = Kit.Margin(0) }
end

-- A box with a rounded outline, and a list that floats over the screen.
function StyleComboBox(Box)
	local Front = Kit.Color("Third")
	local Text = Kit.Slate(Front)
	local function Face(Fill, Outline)
		return Kit.RoundedBrush(Kit.Color("Third", false, Fill), 8, Kit.Color("Third", false, Outline))
	end
	local function Row(Opacity)
		return Kit.RoundedBrush(Kit.Color("Primary", false, Opacity), 6)
	end
	Box.WidgetStyle = {
		ComboButtonStyle = {
			ButtonStyle = {
				Normal = Face(0.04, 0.16),
				Hovered = Face(0.08, 0.32),
				Pressed = Face(0.12, 0.32),
				Disabled = Face(0.02, 0.08),
				NormalForeground = Text,
				HoveredForeground = Text,
				PressedForeground = Text,
				DisabledForeground = Text,
				NormalPadding = Kit.Margin(0),
				PressedPadding = Kit.Margin(0),
			},
			MenuBorderBrush = Kit.RoundedBrush(Kit.Color("Secondary"), 8, Kit.Color("Third", false, 0.24)),
			MenuBorderPadding = Kit.Margin(4),
		},
		MenuRowPadding = Kit.Margin(8, 6),
	}
	Box.ItemStyle = {
		ActiveBrush = Row(1),
		ActiveHoveredBrush = Row(1),
		EvenRowBackgroundBrush = None,
		OddRowBackgroundBrush = None,
		EvenRowBackgroundHoveredBrush = Row(0.16),
		OddRowBackgroundHoveredBrush = Row(0.16),
		TextColor = Text,
		SelectedTextColor = Kit.Slate(Kit.Color("Primary", true)),
	}
	Box.ForegroundColor = Text
	Box.Font = Models:GetFontInfoFromFontSchema("regular")
end

-- A switch: the box itself shows nothing, what is in it does.
function StyleSwitch(Box)
	local Style = { CheckBoxType = "ToggleButton", Padding = Kit.Margin(0) }
	for _, State in ipairs({ "Unchecked", "Checked", "Undetermined", "Background" }) do
		for _, Touch in ipairs({ "", "Hovered", "Pressed" }) do
			Style[State .. Touch .. "Image"] = None
		end
	end
	Box:SetWidgetStyle(Style)
end

function StyleSlider(Slider)
	local Bar = Kit.RoundedBrush(Kit.Color("Third", false, 0.2), 2)
	local function Thumb(Opacity)
		local Brush = Kit.RoundedBrush(Kit.Color("Primary", false, Opacity), 8)
		Brush.ImageSize = { X = 16, Y = 16 }
		return Brush
	end
	Slider.WidgetStyle = {
		NormalBarImage = Bar,
		HoveredBarImage = Bar,
		DisabledBarImage = Bar,
		NormalThumbImage = Thumb(1),
		HoveredThumbImage = Thumb(0.85),
		DisabledThumbImage = Thumb(0.5),
		BarThickness = 4,
	}
end

local function ScrollBarStyle()
	local function Thumb(Opacity)
		local Brush = Kit.RoundedBrush(Kit.Color("Third", false, Opacity), 4)
		Brush.ImageSize = { X = 8, Y = 8 }
		return Brush
	end
	local Style = { NormalThumbImage = Thumb(0.24), HoveredThumbImage = Thumb(0.4), DraggedThumbImage = Thumb(0.5), Thickness = 8 }
	for _, Part in ipairs({ "HorizontalBackgroundImage", "VerticalBackgroundImage", "VerticalTopSlotImage", "VerticalBottomSlotImage", "HorizontalTopSlotImage", "HorizontalBottomSlotImage" }) do
		Style[Part] = None
	end
	return Style
end

function StyleScrollBox(Box)
	Box.WidgetBarStyle = ScrollBarStyle()
end

-- Before the list is shown for the first time.
function StyleList(List)
	List.ScrollBarStyle = ScrollBarStyle()
end

function StyleCountBar(Bar)
	Bar.WidgetStyle = {
		BackgroundImage = Kit.RoundedBrush(Kit.Color("Third", false, 0.12), 2),
		FillImage = Kit.RoundedBrush(Kit.Color("Primary"), 2),
	}
	Bar:SetFillColorAndOpacity({ R = 1, G = 1, B = 1, A = 1 })
end

-- A field to type into, in the frame of a combo box. Room is that above and below the text.
function StyleTextBox(Box, Room)
	local function Face(Fill, Outline)
		return Kit.RoundedBrush(Kit.Color("Third", false, Fill), 8, Outline)
	end
	local Front = Kit.Slate(Kit.Color("Third"))
	local Quiet = Kit.Color("Third", false, 0.16)
	Box.WidgetStyle = {
		BackgroundImageNormal = Face(0.04, Quiet),
		BackgroundImageHovered = Face(0.08, Kit.Color("Third", false, 0.32)),
		BackgroundImageFocused = Face(0.04, Kit.Color("Primary")),
		BackgroundImageReadOnly = Face(0.02, Quiet),
		ForegroundColor = Front,
		FocusedForegroundColor = Front,
		Padding = Kit.Margin(12, Room or 9),
		TextStyle = {
			Font = Models:GetFontInfoFromFontSchema("regular"),
			ColorAndOpacity = Front,
		},
	}
end

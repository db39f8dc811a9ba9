-- What screens share: making widgets in the project's style, and saying colours.

local Models = Class("/Script/HalvexProUI.HalvexStyleModels")
local Styles = Subsystem("/Script/HalvexProUI.HalvexUISubsystem")

local IconFont = "/HalvexPro/Widgets/FontIcon/FontAwesomeFree/F_FontAwesomeFree.F_FontAwesomeFree"
local IconTable = Load("/HalvexPro/Widgets/FontIcon/FontAwesomeFree/DT_FontAwesomeFree.DT_FontAwesomeFree")

-- A colour of the style; Opacity replaces its alpha.
function Color(ID, Contrast, Opacity)
	local Result = Styles:GetHalvexColorByID(ID, Contrast or false)
	Result.A = Opacity or Result.A
	return Result
end

function Slate(Value)
	return { SpecifiedColor = Value, ColorUseRule = "UseColor_Specified" }
end

function Margin(Left, Top, Right, Bottom)
	return { Left = Left, Top = Top or Left, Right = Right or Left, Bottom = Bottom or Top or Left }
end

-- Gives a text block a font schema and a colour of the style.
function StyleText(Widget, Schema, ID, Options)
	Options = Options or {}
	Models:SetHalvexTextStyle(Widget, {
		FontSchema = Schema,
		ColorStyle = {
			ColorID = ID or "Third",
			bUseContrast = Options.Contrast or false,
			bOverrideOpacity = Options.Opacity ~= nil,
			OpacityOverride = Options.Opacity or 1,
		},
	})
	return Widget
end

function Text(Owner, Value, Schema, ID, Options)
	local Widget = CreateWidget(Owner, "TextBlock")
	Widget:SetText(Value)
	return StyleText(Widget, Schema, ID, Options)
end

-- Makes a text block show an icon.
function StyleIcon(Widget, Name, Typeface, Size, Tint)
	local Row = Row(IconTable, Name)
	Widget:SetFont({ FontObject = IconFont, TypefaceFontName = Typeface, Size = Size })
	Widget:SetColorAndOpacity(Slate(Tint))
	Widget:SetText(Row and Row.Unicode or "?")
	return Widget
end

function Icon(Owner, Name, Typeface, Size, Tint)
	return StyleIcon(CreateWidget(Owner, "TextBlock"), Name, Typeface, Size, Tint)
end

function Icons()
	return IconTable
end

-- Fills a border with a colour of the style.
function StyleBorder(Border, ID, Opacity, Radius)
	Models:SetHalvexBorderStyle(Border, { ColorStyle = { ColorID = ID }, Opacity = Opacity, UniformBorder = Radius or 0 })
	return Border
end

-- A rounded panel a little off the background.
function Card(Owner, Padding)
	local Border = StyleBorder(CreateWidget(Owner, "Border"), "Third", 0.05, 12)
	Border:SetPadding(Margin(Padding or 20))
	return Border
end

function RoundedBrush(Fill, Radius, Outline)
	return {
		DrawAs = "RoundedBox",
		TintColor = Slate(Fill),
		OutlineSettings = {
			CornerRadii = { X = Radius, Y = Radius, Z = Radius, W = Radius },
			RoundingType = "FixedRadius",
			Width = Outline and 1 or 0,
			Color = Slate(Outline or { R = 0, G = 0, B = 0, A = 0 }),
		},
	}
end

-- Gives a button a face that is stronger under the mouse.
function StyleButton(Button, Fill, Rest, Hover, Radius)
	local function Face(Alpha)
		return RoundedBrush({ R = Fill.R, G = Fill.G, B = Fill.B, A = Alpha }, Radius)
	end
	Button:SetStyle({ Normal = Face(Rest), Hovered = Face(Hover), Pressed = Face(math.min(1, Hover * 1.5)), Disabled = Face(Rest * 0.5) })
	return Button
end

-- Shows a widget, or takes it out of the screen.
function Show(Widget, Shown)
	Widget:SetVisibility(Shown and "Visible" or "Collapsed")
end

-- Adds a child and sets properties of its place.
function Add(Panel, Child, Place)
	local Slot = Panel:AddChild(Child)
	for Name, Value in pairs(Place or {}) do
		Slot[Name] = Value
	end
	return Child
end

-- A box of a fixed width or height around a widget.
function Sized(Owner, Child, Width, Height)
	local Box = CreateWidget(Owner, "SizeBox")
	if Width then Box:SetWidthOverride(Width) end
	if Height then Box:SetHeightOverride(Height) end
	if Child then Box:AddChild(Child) end
	return Box
end

-- Title and explanation at the top of a page.
function Heading(Page, Panel, Title, Line)
	Add(Panel, Text(Page, Title, "h2-b"))
	local Explanation = Text(Page, Line, "regular", "Third", { Opacity = 0.7 })
	Explanation:SetAutoWrapText(true)
	Add(Panel, Explanation, { Padding = Margin(0, 8, 0, 28) })
end

local function ToGamma(Linear)
	local Value = Linear <= 0.0031308 and Linear * 12.92 or 1.055 * Linear ^ (1 / 2.4) - 0.055
	return math.floor(math.max(0, math.min(1, Value)) * 255 + 0.5)
end

-- "#RRGGBB" of a linear colour.
function Hex(Value)
	return string.format("#%02X%02X%02X", ToGamma(Value.R), ToGamma(Value.G), ToGamma(Value.B))
end

local function Luminance(Value)
	return 0.2126 * Value.R + 0.7152 * Value.G + 0.0722 * Value.B
end

-- How well one colour is read on the other, from 1 to 21; text needs 4.5.
function ContrastRatio(A, B)
	local Bright, Dim = math.max(Luminance(A), Luminance(B)), math.min(Luminance(A), Luminance(B))
	return (Bright + 0.05) / (Dim + 0.05)
end

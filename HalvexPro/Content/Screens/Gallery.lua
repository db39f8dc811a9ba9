-- The frame around the gallery's pages: chooses the page and the style.

local Kit = Import("/HalvexPro/Gallery/Kit")

local Pages = { "Colours", "Type", "Icons", "Shapes" }
local PageIcons = { Colours = "palette", Type = "font", Icons = "icons", Shapes = "shapes" }

local Light = "/HalvexPro/Widgets/UIStyle_Hx_Light.UIStyle_Hx_Light"
local Dark = "/HalvexPro/Widgets/UIStyle_Hx_Dark.UIStyle_Hx_Dark"

local function ProjectSettings()
	return Default("/Script/HalvexProUI.HalvexProUISettings")
end

local function IsDark()
	return ProjectSettings().ProjectUIConfiguration == Dark
end

local function RestyleNavigation(self)
	local Accent = Kit.Color("Primary")
	local Plain = Kit.Color("Third")
	for _, Name in ipairs(Pages) do
		local Chosen = Name == self.Page
		local Button = self["Nav" .. Name]
		Kit.StyleButton(Button, Chosen and Accent or Plain, Chosen and 1 or 0, Chosen and 1 or 0.08, 8)
		local Front = Chosen and Kit.Color("Primary", true) or Plain
		Kit.StyleIcon(self["NavIcon" .. Name], PageIcons[Name], "Solid", 12, Front)
		Kit.StyleText(self["NavText" .. Name], Chosen and "regular-bold" or "regular")
		self["NavText" .. Name]:SetColorAndOpacity(Kit.Slate(Front))
	end
end

local function RestyleFrame(self)
	Kit.StyleBorder(self.Background, "Secondary", 1)
	Kit.StyleBorder(self.Side, "Third", 0.05)
	Kit.StyleText(self.Brand, "h4-b", "Primary")
	Kit.StyleText(self.BrandLine, "small", "Third", { Opacity = 0.7 })
	Kit.StyleButton(self.SwitchStyle, Kit.Color("Third"), 0.08, 0.14, 8)
	Kit.StyleIcon(self.SwitchIcon, IsDark() and "sun" or "moon", "Solid", 12, Kit.Color("Third"))
	Kit.StyleText(self.SwitchText, "regular")
	self.SwitchText:SetText(IsDark() and "Light style" or "Dark style")
	RestyleNavigation(self)
end

function ShowPage(self)
	self.PageHost:ClearChildren()
	self.PageHost:AddChild(CreateWidget(self, "/HalvexPro/Gallery/Page" .. self.Page .. ".Page" .. self.Page))
	self.Scroll:ScrollToStart()
	RestyleFrame(self)
end

function OnInitialized(self)
	for _, Name in ipairs(Pages) do
		self["Nav" .. Name].OnClicked:Add(function()
			self.Page = Name
			ShowPage(self)
		end)
	end
	self.SwitchStyle.OnClicked:Add(function()
		ProjectSettings().ProjectUIConfiguration = IsDark() and Light or Dark
		Subsystem("/Script/HalvexProUI.HalvexUISubsystem"):RefreshSettingsReferences()
		ShowPage(self)
	end)
end

function PreConstruct(self)
	ShowPage(self)
end

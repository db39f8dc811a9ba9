-- The frame around the gallery's pages: chooses the page and the style.

local Kit = Import("/HalvexPro/Shared/Kit")

local Light = "/HalvexPro/Widgets/UIStyle_Hx_Light.UIStyle_Hx_Light"
local Dark = "/HalvexPro/Widgets/UIStyle_Hx_Dark.UIStyle_Hx_Dark"

local function ProjectSettings()
	return Default("/Script/HalvexProUI.HalvexProUISettings")
end

local function IsDark()
	return ProjectSettings().ProjectUIConfiguration == Dark
end

local function RestyleFrame(self)
	for _, Widget in ipairs({ self.Background, self.Side, self.Brand, self.BrandLine, self.SwitchText }) do
		Widget:UpdateStyle()
	end
	Kit.StyleButton(self.SwitchStyle, Kit.Color("Third"), 0.08, 0.14, 8)
	self.SwitchIcon:SetIconByHandler({ IconStyle = "Solid", IconName = IsDark() and "sun" or "moon", IconColor = { ColorID = "Third" } })
	self.SwitchText:SetText(IsDark() and "Light style" or "Dark style")
	for _, Entry in ipairs(self.Navigation.ButtonList) do
		Entry:Restyle()
	end
end

local function ShowPage(self)
	self.PageHost:ClearChildren()
	self.PageHost:AddChild(CreateWidget(self, "/HalvexPro/Gallery/Page" .. self.Page .. ".Page" .. self.Page))
	self.Scroll:ScrollToStart()
end

function OnInitialized(self)
	self.Navigation.OnSelectionChange:Add(function(Index, ID)
		self.Page = ID
		ShowPage(self)
	end)
	self.SwitchStyle.OnClicked:Add(function()
		ProjectSettings().ProjectUIConfiguration = IsDark() and Light or Dark
		Subsystem("/Script/HalvexProUI.HalvexUISubsystem"):RefreshSettingsReferences()
		RestyleFrame(self)
		ShowPage(self)
	end)
end

function PreConstruct(self, IsDesignTime)
	RestyleFrame(self)
	self.Navigation["Nav" .. self.Page]:SelectButton()
	-- In the designer nobody listens to the navigation.
	if IsDesignTime then
		ShowPage(self)
	end
end

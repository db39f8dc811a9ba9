-- A setting that is on or off.

local Controls = Import("/HalvexPro/Shared/Controls")
local Row = Import("/HalvexPro/Settings/Row")

local function ShowSwitch(self)
	local On = self.SettingWidget:IsChecked()
	self.Switch:SetIconByHandler({
		IconStyle = "Solid",
		IconName = On and "toggle-on" or "toggle-off",
		IconColor = { ColorID = On and "Primary" or "Third" },
	})
end

function SetSetting(self)
	Super.SetSetting(self)
	ShowSwitch(self)
	Row.Changed(self)
end

function ApplySetting(self)
	Super.ApplySetting(self)
	-- Vertical sync alone leaves the window as it is.
	if self.SettingType == "ESTT_FullScreen" then
		Row.Applied(self)
	end
end

function RefreshSetting(self)
	Super.RefreshSetting(self)
	ShowSwitch(self)
	Row.Refreshed(self)
end

function PreConstruct(self)
	Row.Restyle(self)
	Controls.StyleSwitch(self.SettingWidget)
	ShowSwitch(self)
end

-- A setting with several values.

local Controls = Import("/HalvexPro/Shared/Controls")
local Row = Import("/HalvexPro/Settings/Row")

-- Levels of quality that differ have no place among the options of the overall level.
local function ShowWhetherCustom(self)
	local Custom = self.SettingType == "ESTD_General" and self:GetGameUserSetting():GetOverallScalabilityLevel() < 0
	if Custom then
		self.SettingWidget:ClearSelection()
	end
	self.CustomText:SetVisibility(Custom and "HitTestInvisible" or "Collapsed")
end

function SetSetting(self)
	-- What the row shows by itself is no choice of the user.
	if not self.Showing then
		Super.SetSetting(self)
		Row.Changed(self)
	end
end

function ApplySetting(self)
	Super.ApplySetting(self)
	Row.Applied(self)
end

function RefreshSetting(self)
	self.Showing = true
	Super.RefreshSetting(self)
	ShowWhetherCustom(self)
	self.Showing = false
	Row.Refreshed(self)
end

function PreConstruct(self)
	Row.Restyle(self)
	Controls.StyleComboBox(self.SettingWidget)
end

-- How many pixels a scene is drawn with, in percent of the window's along an axis.

local Controls = Import("/HalvexPro/Shared/Controls")
local Row = Import("/HalvexPro/Settings/Row")

local function ShowValue(self)
	self.ValueText:SetText(string.format("%d %%", math.floor(self.Slider:GetValue() + 0.5)))
end

-- The variable is 0 as long as nobody has said anything, and -1 when there is no such variable.
local function ShowVariable(self)
	local Percentage = self:GetScreenPercentageValue()
	self.Slider:SetValue(Percentage > 0 and Percentage or 100)
	ShowValue(self)
end

-- The choice goes into the user settings too: the variable alone would be forgotten when the program ends.
function SetSetting(self)
	self:GetGameUserSetting():SetResolutionScaleValueEx(self.Slider:GetValue())
	Super.SetSetting(self)
	Row.Changed(self)
end

function ApplySetting(self)
	self:SetScreenPercentageValue(self.Slider:GetValue())
	Super.ApplySetting(self)
end

function RefreshSetting(self)
	if self.bSettingMarkDirty then
		self:SetScreenPercentageValue(self.Slider:GetValue())
	end
	Super.RefreshSetting(self)
	ShowVariable(self)
	Row.Refreshed(self)
end

function OnInitialized(self)
	local Held = false
	self.Slider.OnMouseCaptureBegin:Add(function() Held = true end)
	self.Slider.OnMouseCaptureEnd:Add(function()
		Held = false
		self:SetSetting()
	end)
	self.Slider.OnValueChanged:Add(function()
		ShowValue(self)
		if not Held then
			self:SetSetting()
		end
	end)
end

function PreConstruct(self)
	Row.Restyle(self)
	Controls.StyleSlider(self.Slider)
	ShowVariable(self)
end

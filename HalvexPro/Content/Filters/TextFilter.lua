-- A text that units contain, whatever the case and the accents.

local Controls = Import("/HalvexPro/Shared/Controls")

local Texts = Class("/Script/HalvexPro.UnitTextFilter")

function ShowValue(self)
	self.Box:SetText(self.Sought)
end

function OnFilterReset(self)
	self.Sought = ""
	self:ShowValue()
end

function GetBuildUnitFilter(self)
	if self.Sought ~= "" then
		return Texts:CreateTextFilter(self.Field, self.Sought)
	end
end

function OnInitialized(self)
	self.Box.OnTextChanged:Add(function(Text)
		-- A text that was set by a reset or a kept set is in force already.
		if Text ~= self.Sought then
			self.Sought = Text
			self:FilterValueHasChange()
		end
	end)
end

function PreConstruct(self)
	self.CaptionText:SetText(self.Caption)
	self.Box:SetHintText(self.Hint)
	Controls.StyleTextBox(self.Box, 7)
end

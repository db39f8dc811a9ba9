-- Buttons: what a click does to the selection, what follows it, sizes, corners and colours.

local Modes = { "ModeNone", "ModeToggle", "ModeBlocked" }

local function Describe(Sample, Clicks)
	local Selected = Sample:IsSelectedButton() and "selected" or "not selected"
	Sample.NoteText:SetText(string.format("%s, %d %s", Selected, Clicks, Clicks == 1 and "click" or "clicks"))
end

function OnInitialized(self)
	for _, Name in ipairs(Modes) do
		local Sample = self[Name]
		local Clicks = 0
		Sample.OnButtonPressed:Add(function()
			Clicks = Clicks + 1
			Describe(Sample, Clicks)
		end)
		Sample.OnButtonSelectionChange:Add(function()
			Describe(Sample, Clicks)
		end)
	end
	self.Release.OnButtonPressed:Add(function()
		self.ModeBlocked:UnSelectButton()
	end)
end

function PreConstruct(self)
	for _, Name in ipairs(Modes) do
		Describe(self[Name], 0)
	end
end

-- One thing that the filters ask for; a click takes it away.

local Controls = Import("/HalvexPro/Shared/Controls")
local Filters = Import("/HalvexPro/Filters/Filters")

function OnInitialized(self)
	self.Remove.OnClickWithID:Add(function() Filters.Remove(self.Component, self.Value) end)
end

function PreConstruct(self)
	Controls.StyleTightButton(self.Remove, 13)
end

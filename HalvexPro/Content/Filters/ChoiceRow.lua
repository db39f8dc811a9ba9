-- A value to check, with how many units there are of it.

local Controls = Import("/HalvexPro/Shared/Controls")

function PreConstruct(self)
	Controls.StyleSwitch(self.Box)
	self.Label:SetTextOverflowPolicy("Ellipsis")
end

-- Shown while a project is on its way, and when it does not arrive.

local Kit = Import("/HalvexPro/Shared/Kit")
local Controls = Import("/HalvexPro/Shared/Controls")

function PreConstruct(self)
	Controls.StyleCountBar(self.Bar)
	Kit.StyleButton(self.Cancel, Kit.Color("Third"), 0.08, 0.16, 8)
	Controls.StyleRoundButton(self.Retry, Kit.Color("Primary"), 8)
end

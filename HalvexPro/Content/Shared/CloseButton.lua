-- A cross that closes what it stands on.

local Controls = Import("/HalvexPro/Shared/Controls")

function PreConstruct(self)
	Controls.StyleTightButton(self.Button)
end

-- One change of the configuration.

local Controls = Import("/HalvexPro/Shared/Controls")

function PreConstruct(self)
	Controls.StyleTightButton(self.TakeBack)
end

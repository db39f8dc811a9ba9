-- Levels of quality cost nothing to try, so they apply at once; what changes the window waits.

local AtOnce = { "Overall", "Shadow", "AntiAliasing", "Texture", "Shading", "Reflection", "GlobalIllumination", "PostProcess", "VisualEffect", "Foliage", "ViewDistance", "ScreenPercentage", "Audio" }

function OnInitialized(self)
	Super.OnInitialized(self)
	for _, Name in ipairs(AtOnce) do
		self[Name].bAutoApplyOnChange = true
	end
end

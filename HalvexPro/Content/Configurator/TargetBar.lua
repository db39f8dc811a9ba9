-- The way from a selected unit into its rooms; there only for units that can be configured.

local Controls = Import("/HalvexPro/Shared/Controls")
local Session = Import("/HalvexPro/Configurator/Session")

local function ShowTarget(self)
	local Unit = Session.FindConfigurableTarget()
	if Unit then
		self.TargetName:SetText(Unit.Name)
	end
	self.Background:SetVisibility(Unit and "Visible" or "Collapsed")
end

function OnInitialized(self)
	self.Configure.OnClickWithID:Add(function() Session.Project():OpenConfigurator() end)
end

function Construct(self)
	self.Updates = Session.OnUpdate(function() ShowTarget(self) end)
	ShowTarget(self)
end

function Destruct(self)
	Session.StopUpdates(self.Updates)
end

function PreConstruct(self)
	Controls.StyleBarButton(self.Configure)
end

-- The way from the rooms of a unit back to all units; there only where there is such a way.

local Controls = Import("/HalvexPro/Shared/Controls")
local Session = Import("/HalvexPro/Configurator/Session")

local function ShowWay(self)
	self:SetVisibility(Session.Project():IsConfiguratorOpen() and "SelfHitTestInvisible" or "Collapsed")
end

function OnInitialized(self)
	self.ToUnits.OnClickWithID:Add(function() Session.Project():CloseConfigurator() end)
end

function Construct(self)
	self.Updates = Session.OnUpdate(function() ShowWay(self) end)
	ShowWay(self)
end

function Destruct(self)
	Session.StopUpdates(self.Updates)
end

function PreConstruct(self)
	Controls.StyleBarButton(self.ToUnits)
end

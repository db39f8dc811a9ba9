-- A floor plan that is zoomed and moved, with buttons for those who have no wheel.

-- With smooth transitions an area goes back to its last drag when it is zoomed after a reset, so a plan in its place and size is a new one.
local function ShowPlan(self)
	self.PlanHost:ClearChildren()
	self.Plan = CreateWidget(self, "/HalvexPro/Gallery/FloorPlan.FloorPlan")
	local Slot = self.PlanHost:AddChild(self.Plan)
	Slot.HorizontalAlignment = "HAlign_Fill"
	Slot.VerticalAlignment = "VAlign_Fill"
	local Area = self.Plan.Area
	local function ShowZoom(Zoom)
		self.Percent:SetText(string.format("%.0f %%", Zoom * 100))
	end
	Area.bEnableSmoothTransition = self.Smooth:IsSelectedButton()
	Area.OnZoomValueChanged:Add(ShowZoom)
	Area.OnStartCaptureMouse:Add(function() self.Hand:SetText("The plan follows the mouse") end)
	Area.OnStopCaptureMouse:Add(function() self.Hand:SetText("Turn the wheel, drag the plan") end)
	ShowZoom(Area:GetZoomValue())
end

function OnInitialized(self)
	self.In.OnButtonPressed:Add(function() self.Plan.Area:ZoomIn() end)
	self.Out.OnButtonPressed:Add(function() self.Plan.Area:ZoomOut() end)
	self.Reset.OnButtonPressed:Add(function() ShowPlan(self) end)
	self.Smooth.OnButtonPressed:Add(function()
		self.Plan.Area.bEnableSmoothTransition = self.Smooth:IsSelectedButton()
	end)
end

function PreConstruct(self)
	ShowPlan(self)
end

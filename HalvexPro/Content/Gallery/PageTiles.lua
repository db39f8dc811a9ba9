-- Widget blueprints around a button, and a group of them.

local EventLog = Import("/HalvexPro/Gallery/EventLog")

local function ShowSelection(self)
	local ID = self.Group:GetSelectedButtonID()
	self.State:SetText(self.Group:HasSelection() and "Selected: " .. self.Group[ID].Caption or "Nothing is selected.")
end

function OnInitialized(self)
	local Log = EventLog.Start(self.Log)
	self.Group.OnSelectionChange:Add(function(Index, ID)
		Log(string.format("OnSelectionChange (%d, %s)", Index, ID))
		ShowSelection(self)
	end)
	self.Group.OnClearSelection:Add(function()
		Log("OnClearSelection")
		ShowSelection(self)
	end)
end

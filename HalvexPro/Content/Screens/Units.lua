-- The units of the scene: their list at the left, their filters at the right when they are wanted.

local function ShowFilters(self, Shown)
	self.FiltersShown = Shown
	if Shown then
		self.Filters:ActivatePanel()
	else
		self.Filters:DeactivatePanel()
		self.UnitList.FiltersButton:SetKeyboardFocus()
	end
	self.UnitList.FiltersButton.Color = {
		ColorID = Shown and "Primary" or "Third",
		bUseContrast = false,
		bOverrideOpacity = true,
		OpacityOverride = Shown and 0.24 or 0.08,
	}
	self.UnitList.FiltersButton:UpdateStyle()
	self:ShowActive()
	local Manager = self.Filters.UnitVolumesManager
	if Manager then
		Manager:AnnouncePanelChange()
	end
end

-- What the filters ask for stands in their panel, or over the list while that is closed.
function ShowActive(self)
	local Active = self.Filters.NumActive
	self.UnitList.ActiveFilters:SetVisibility(Active > 0 and not self.FiltersShown and "SelfHitTestInvisible" or "Collapsed")
	self.UnitList.FiltersText:SetText(Active > 0 and "Filters · " .. Active or "Filters")
end

-- The panel tells of a new result, which the list shows already.
function FiltersChanged(self)
	self.UnitList:KeepView()
	self:ShowActive()
end

function OnInitialized(self)
	self.Filters.OtherChips = self.UnitList.ActiveFilters
	self.Filters.Screen = self
	self.UnitList.FiltersButton.OnClickWithID:Add(function() ShowFilters(self, not self.FiltersShown) end)
	self.Filters.Close.OnClickWithID:Add(function() ShowFilters(self, false) end)
end

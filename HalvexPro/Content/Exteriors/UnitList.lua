-- The units of the scene: search, sort, and a count.

local Kit = Import("/HalvexPro/Shared/Kit")
local Controls = Import("/HalvexPro/Shared/Controls")
local Managers = Class("/Script/HalvexPro.UnitVolumesManager")

local function ShowOrder(self)
	self.OrderIcon:SetIconByHandler({
		IconStyle = "Solid",
		IconName = self.Descending and "arrow-up-wide-short" or "arrow-down-short-wide",
		IconColor = { ColorID = "Third" },
	})
	self:SortUnitList()
	if self.Descending then
		self:ReverseUnitList()
	end
end

function OnElementSorted(self, A, B)
	local Key = self.SortKey
	if Key == "Name" then
		return Super.OnElementSorted(self, A, B)
	end
	return A[Key] < B[Key]
end

function OnRefreshListViewNum(self)
	local Count = self.ListViewContainer:GetNumItems()
	self.CountText:SetText(Count .. (Count == 1 and " unit" or " units"))
	self.NothingText:SetVisibility(Count == 0 and "HitTestInvisible" or "Collapsed")
end

-- So many units are ordered while a handle moves; more wait until it rests.
local OrderedAtOnce = 2000

local function KeepNow(self)
	if self.SortKey ~= "Name" or self.Descending then
		ShowOrder(self)
	end
	local Sought = self.SearchBox:GetText()
	if Sought ~= "" then
		self:FilterUnitList(Sought)
	end
	local Manager = Managers:GetUnitVolumesManager(self)
	if Manager then
		-- What was selected is an item of before, which the list forgets with the next frame.
		self.ListViewContainer:BP_ClearSelection()
		self:ReceivedUnitVolumeSelectionChange(Manager:GetSelectedUnitVolumes())
	end
end

-- New filters show their units in the scene's order, without the search and with nothing selected: this brings all that back.
function KeepView(self)
	if self.ListViewContainer:GetNumItems() <= OrderedAtOnce then
		KeepNow(self)
		return
	end
	self.Changes = self.Changes + 1
	local Change = self.Changes
	Delay(self, 0.3, function()
		if self.Changes == Change then
			KeepNow(self)
		end
	end)
end

function OnInitialized(self)
	self.SortBox.OnSelectionChanged:Add(function(Option)
		self.SortKey = Option
		ShowOrder(self)
	end)
	self.Order.OnClickWithID:Add(function()
		self.Descending = not self.Descending
		ShowOrder(self)
	end)
end

function PreConstruct(self)
	Controls.StyleComboBox(self.SortBox)
	Controls.StyleBarButton(self.Order)
	Controls.StyleTightButton(self.FiltersButton)
	Controls.StyleTextBox(self.SearchBox)
	Controls.StyleList(self.ListViewContainer)
end

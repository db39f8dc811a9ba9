-- The units of the scene: search, sort, and a count.

local Kit = Import("/HalvexPro/Shared/Kit")
local Controls = Import("/HalvexPro/Shared/Controls")

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
end

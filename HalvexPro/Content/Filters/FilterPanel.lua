-- The filters of the scene's units: what they ask for, how many units pass, and where they are kept.

local Controls = Import("/HalvexPro/Shared/Controls")
local Filters = Import("/HalvexPro/Filters/Filters")

local function Show(Widget, Shown)
	Widget:SetVisibility(Shown and "SelfHitTestInvisible" or "Collapsed")
end

local function ShowChips(self)
	local Boxes = { self.Chips }
	if self.OtherChips then
		Boxes[2] = self.OtherChips
	end
	self.NumActive = Filters.ShowChips(self, Boxes)
	Show(self.Chips, self.NumActive > 0)
	self.Reset:SetIsEnabled(self.NumActive > 0)
	self.Reset:SetRenderOpacity(self.NumActive > 0 and 1 or 0.45)
end

-- Prices are told in a currency; units of several have none in common.
local function ShowCurrency(self)
	local Currencies = self.FilterManager:CountChoices("Currency")
	local Currency = #Currencies == 1 and Currencies[1].Value or "None"
	self.Price.Suffix = Currency ~= "None" and Currency or ""
	self.Price.SuffixText:SetText(self.Price.Suffix)
end

function OnUnitDataUpdated(self)
	ShowCurrency(self)
end

function OnFilterDataUpdated(self, Passing, Total)
	self.PassingText:SetText(string.format("%d of %d %s", Passing, Total, Total == 1 and "unit" or "units"))
	self.CountBar:SetPercent(Total > 0 and Passing / Total or 0)
	Show(self.NothingText, Passing == 0 and Total > 0)
	for _, Name in ipairs(Filters.Names) do
		if self[Name].Kind == "Choice" then
			self[Name]:ShowCounts()
		end
	end
	ShowChips(self)
	if self.Screen then
		self.Screen:FiltersChanged()
	end
end

function ShowMain(self)
	Show(self.Main, true)
	Show(self.Store, false)
	self.OpenStore:SetKeyboardFocus()
end

local function ShowStore(self)
	Show(self.Main, false)
	Show(self.Store, true)
	self.Store:Refresh()
end

function ActivatePanel(self)
	self:SetVisibility("SelfHitTestInvisible")
	self.Close:SetKeyboardFocus()
end

function DeactivatePanel(self)
	self:SetVisibility("Collapsed")
end

function RefreshPanel(self)
	self:Received_OnFilterChange()
end

function OnInitialized(self)
	local Components = {}
	for Index, Name in ipairs(Filters.Names) do
		Components[Index] = self[Name]
	end
	self:SetFiltersWidgets(Components)
	self.Reset.OnClickWithID:Add(function()
		self:ResetFilters()
		self:Received_OnFilterChange()
	end)
	self.Store.Panel = self
	self.OpenStore.OnClickWithID:Add(function() ShowStore(self) end)
end

function PreConstruct(self)
	for _, Button in ipairs({ self.Reset, self.Close, self.OpenStore }) do
		Controls.StyleTightButton(Button)
	end
	Controls.StyleScrollBox(self.Scroll)
	Controls.StyleCountBar(self.CountBar)
end

-- What the filters of a panel have in common: whether they ask for anything, the chips that tell it, and how they are kept.

local Words = Import("/HalvexPro/Filters/FilterWords")

-- Beyond it a kept limit is none.
local NoLimit = 1e300

-- The components of a panel in the order in which they are shown.
Names = { "Price", "Area", "Level", "Rooms", "Building", "Status", "Orientation", "Words" }

function IsActive(Component)
	if Component.Kind == "Number" then
		return Component.HasLimits and (Component.Low > Component.Least or Component.High < Component.Most)
	elseif Component.Kind == "Choice" then
		return #Component.Selected > 0
	end
	return Component.Sought ~= ""
end

-- A chip for each thing that is asked for.
local function FindChips(Panel)
	local Chips = {}
	for _, Name in ipairs(Names) do
		local Component = Panel[Name]
		if not IsActive(Component) then
			-- It asks for nothing.
		elseif Component.Kind == "Number" then
			Chips[#Chips + 1] = { Component = Component, Text = Words.Range(Component), Value = "" }
		elseif Component.Kind == "Choice" then
			for _, Value in ipairs(Component.Selected) do
				Chips[#Chips + 1] = { Component = Component, Text = Words.Choice(Component, Value), Value = Value }
			end
		else
			Chips[#Chips + 1] = { Component = Component, Text = Component.Caption .. " “" .. Component.Sought .. "”", Value = "" }
		end
	end
	return Chips
end

-- Shows the chips in boxes. Chips that are there already are used again: while a handle moves only a text changes.
function ShowChips(Panel, Boxes)
	local Chips = FindChips(Panel)
	for _, Box in ipairs(Boxes) do
		while Box:GetChildrenCount() > #Chips do
			Box:RemoveChildAt(Box:GetChildrenCount() - 1)
		end
		for Index, Shown in ipairs(Chips) do
			local Chip = Box:GetChildAt(Index - 1)
			if not Chip then
				Chip = CreateWidget(Panel, "/HalvexPro/Filters/Chip.Chip")
				Box:AddChild(Chip)
			end
			Chip.Component = Shown.Component
			Chip.Value = Shown.Value
			Chip.Label:SetText(Shown.Text)
		end
	end
	return #Chips
end

-- Takes away what a chip stands for.
function Remove(Component, Value)
	if Component.Kind == "Choice" then
		local Kept = {}
		for _, Selected in ipairs(Component.Selected) do
			if Selected ~= Value then
				Kept[#Kept + 1] = Selected
			end
		end
		Component.Selected = Kept
		Component:ShowValue()
	else
		Component:OnFilterReset()
	end
	Component:FilterValueHasChange()
end

-- What is set, to be kept. A limit that nobody moved is none, so that the set also fits projects with other limits.
function Gather(Panel, Name)
	local Records = {}
	for _, ComponentName in ipairs(Names) do
		local Component = Panel[ComponentName]
		if IsActive(Component) then
			local Record = { Kind = Component.Kind, Field = Component.Field }
			if Component.Kind == "Number" then
				Record.Minimum = Component.Low > Component.Least and Component.Low or nil
				Record.Maximum = Component.High < Component.Most and Component.High or nil
			elseif Component.Kind == "Choice" then
				Record.Values = Component.Selected
			else
				Record.Text = Component.Sought
			end
			Records[#Records + 1] = Record
		end
	end
	return { Name = Name, Filters = Records }
end

local function FindComponent(Panel, Record)
	for _, Name in ipairs(Names) do
		local Component = Panel[Name]
		if Component.Kind == Record.Kind and Component.Field == Record.Field then
			return Component
		end
	end
end

-- Sets a component as a record says; what cannot be set is told.
local function ApplyRecord(Component, Record, Missing)
	if Component.Kind == "Number" then
		local Low = Record.Minimum > -NoLimit and Record.Minimum or Component.Least
		local High = Record.Maximum < NoLimit and Record.Maximum or Component.Most
		if not Component.HasLimits or Low > Component.Most or High < Component.Least or Low > High then
			Missing[#Missing + 1] = Component.Caption:lower() .. " in that range"
			return
		end
		Component.Low = math.max(Low, Component.Least)
		Component.High = math.min(High, Component.Most)
	elseif Component.Kind == "Choice" then
		local Known, Selected = {}, {}
		for _, Value in ipairs(Component.Values) do
			Known[Value] = true
		end
		for _, Value in ipairs(Record.Values) do
			if Known[Value] then
				Selected[#Selected + 1] = Value
			end
		end
		Component.Selected = Selected
	else
		Component.Sought = Record.Text
	end
	Component:ShowValue()
end

-- Sets all components as a kept set says, and tells what of it the project lacks.
function Apply(Panel, Set)
	local Missing = Panel.FilterManager:FindMissingValues(Set)
	Panel:ResetFilters()
	for _, Record in ipairs(Set.Filters) do
		local Component = FindComponent(Panel, Record)
		if Component then
			ApplyRecord(Component, Record, Missing)
		else
			Missing[#Missing + 1] = Record.Kind == "Availability" and "availability" or Record.Field:lower()
		end
	end
	Panel:Received_OnFilterChange()
	return Missing
end

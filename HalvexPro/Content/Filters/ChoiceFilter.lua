-- Values to check; nothing checked asks for nothing. The values are those of the scene's units.

local Facts = Import("/HalvexPro/Exteriors/UnitFacts")
local Words = Import("/HalvexPro/Filters/FilterWords")

local Managers = Class("/Script/HalvexPro.UnitVolumesManager")
local Choices = Class("/Script/HalvexPro.UnitChoiceFilter")

local function CountChoices(self)
	local Manager = Managers:GetUnitVolumesManager(self)
	return Manager and Manager:GetUnitFilterManager():CountChoices(self.Field) or {}
end

-- The rows in the order of their values.
local function FindRows(self)
	local Rows = self.First:GetAllChildren()
	for _, Row in ipairs(self.Second:GetAllChildren()) do
		Rows[#Rows + 1] = Row
	end
	return Rows
end

local function FindSelected(self)
	local Selected = {}
	for _, Value in ipairs(self.Selected) do
		Selected[Value] = true
	end
	return Selected
end

local function Select(self, Value, Checked)
	local Selected = FindSelected(self)
	Selected[Value] = Checked
	local List = {}
	for _, Known in ipairs(self.Values) do
		if Selected[Known] then
			List[#List + 1] = Known
		end
	end
	self.Selected = List
	self:ShowValue()
	self:FilterValueHasChange()
end

local function MakeRow(self, Value)
	local Row = CreateWidget(self, "/HalvexPro/Filters/ChoiceRow.ChoiceRow")
	Row.Label:SetText(Words.Choice(self, Value))
	if self.Field == "Status" then
		Row.Dot.ColorID = Facts.StatusColor({ Status = Value })
		Row.Dot:SetVisibility("HitTestInvisible")
	end
	Row.Box.OnCheckStateChanged:Add(function(Checked) Select(self, Value, Checked) end)
	return Row
end

local function MakeRows(self)
	self.First:ClearChildren()
	self.Second:ClearChildren()
	local NumFirst = math.ceil(#self.Values / self.Columns)
	for Index, Value in ipairs(self.Values) do
		(Index <= NumFirst and self.First or self.Second):AddChild(MakeRow(self, Value))
	end
	self.Second:SetVisibility(self.Columns > 1 and "SelfHitTestInvisible" or "Collapsed")
end

function ShowValue(self)
	local Selected = FindSelected(self)
	local Values = self.Values
	for Index, Row in ipairs(FindRows(self)) do
		local Checked = Selected[Values[Index]] or false
		Row.Box:SetIsChecked(Checked)
		Row.Mark:SetIconByHandler({
			IconStyle = Checked and "Solid" or "Regular",
			IconName = Checked and "square-check" or "square",
			IconColor = { ColorID = Checked and "Primary" or "Third" },
		})
	end
end

-- How many units there would be of each value, with all other filters as they are.
function ShowCounts(self)
	local Counts = CountChoices(self)
	for Index, Row in ipairs(FindRows(self)) do
		local Count = Counts[Index]
		Row.CountText:SetText(Count.PassingNum)
		Row:SetRenderOpacity((Count.PassingNum > 0 or Row.Box:IsChecked()) and 1 or 0.45)
	end
end

function OnFilterUnitData(self)
	local Values, Known = {}, {}
	for Index, Count in ipairs(CountChoices(self)) do
		Values[Index] = Count.Value
		Known[Count.Value] = true
	end
	-- What a set chose that no unit has any more stops counting.
	local Selected = {}
	for _, Value in ipairs(self.Selected) do
		if Known[Value] then
			Selected[#Selected + 1] = Value
		end
	end
	self.Selected = Selected
	if table.concat(Values, "\n") ~= table.concat(self.Values, "\n") then
		self.Values = Values
		MakeRows(self)
	end
	self:SetVisibility(#Values > 1 and "SelfHitTestInvisible" or "Collapsed")
	self:ShowValue()
	self:ShowCounts()
end

function OnFilterReset(self)
	self.Selected = {}
	self:ShowValue()
end

function GetBuildUnitFilter(self)
	if #self.Selected > 0 then
		return Choices:CreateChoiceFilter(self.Field, self.Selected)
	end
end

function PreConstruct(self)
	self.CaptionText:SetText(self.Caption)
end

-- A number between two ends: two handles, and two fields to type into. Its limits are those of the scene's units.

local Controls = Import("/HalvexPro/Shared/Controls")
local Words = Import("/HalvexPro/Filters/FilterWords")

local Managers = Class("/Script/HalvexPro.UnitVolumesManager")
local Ranges = Class("/Script/HalvexPro.UnitNumberRangeFilter")

-- So many places a handle should at least have.
local Places = 300

-- The largest of 1, 2, 5, 10, 20 ... that leaves room for the places.
local function FindStep(Length, LeastStep)
	if Length <= LeastStep * Places then
		return LeastStep
	end
	local Power = 10 ^ math.floor(math.log(Length / Places, 10))
	for _, Factor in ipairs({ 5, 2, 1 }) do
		if Factor * Power <= Length / Places then
			return math.max(LeastStep, Factor * Power)
		end
	end
end

local function Clamp(Value, Least, Most)
	return math.max(Least, math.min(Most, Value))
end

function ShowValue(self)
	self.Slider:SetRange(self.Low, self.High)
	self.From:SetText(Words.Number(self, self.Low))
	self.To:SetText(Words.Number(self, self.High))
end

local function Choose(self, Low, High)
	if Low ~= self.Low or High ~= self.High then
		self.Low = Low
		self.High = High
		self:ShowValue()
		self:FilterValueHasChange()
	end
end

-- The data itself is not looked at here: the scene has the limits of all its units at hand.
function OnFilterUnitData(self)
	local Manager = Managers:GetUnitVolumesManager(self)
	local Found, Least, Most = false, 0, 0
	if Manager then
		Found, Least, Most = Manager:GetUnitFilterManager():GetNumberLimits(self.Field, self.ZeroIsUnknown)
	end
	local LowMoved, HighMoved = self.Low > self.Least, self.High < self.Most
	local Step = FindStep(Most - Least, self.LeastStep)
	Least = math.floor(Least / Step) * Step
	Most = math.ceil(Most / Step) * Step
	self.HasLimits = Found and Least < Most
	self:SetVisibility(self.HasLimits and "SelfHitTestInvisible" or "Collapsed")
	self.Step = Step
	self.Least = Least
	self.Most = Most
	self.Low = LowMoved and Clamp(self.Low, Least, Most) or Least
	self.High = HighMoved and Clamp(self.High, Least, Most) or Most
	self.Slider:SetStepSize(Step)
	self.Slider:SetLimits(Least, Most)
	self:ShowValue()
end

function OnFilterReset(self)
	self.Low = self.Least
	self.High = self.Most
	self:ShowValue()
end

function GetBuildUnitFilter(self)
	if self.HasLimits and (self.Low > self.Least or self.High < self.Most) then
		return Ranges:CreateNumberRangeFilter(self.Field, self.Low, self.High)
	end
end

-- Of two ends that would cross, the one that was typed counts, and the other comes along.
local function Typed(self, Text, IsLow)
	local Value = Words.Parse(self, Text)
	if not Value then
		self:ShowValue()
		return
	end
	if self.Whole then
		Value = math.floor(Value + 0.5)
	end
	Value = Clamp(Value, self.Least, self.Most)
	if IsLow then
		Choose(self, Value, math.max(Value, self.High))
	else
		Choose(self, math.min(Value, self.Low), Value)
	end
	self:ShowValue()
end

function OnInitialized(self)
	local function Place(Value)
		return Clamp(math.floor(Value / self.Step + 0.5) * self.Step, self.Least, self.Most)
	end
	self.Slider.OnRangeChanged:Add(function(Lower, Upper)
		-- A handle that stays where it is keeps a number that was typed between two places.
		local Low = Place(Lower) == Place(self.Low) and self.Low or Place(Lower)
		local High = Place(Upper) == Place(self.High) and self.High or Place(Upper)
		Choose(self, Low, High)
	end)
	self.From.OnTextCommitted:Add(function(Text) Typed(self, Text, true) end)
	self.To.OnTextCommitted:Add(function(Text) Typed(self, Text, false) end)
end

function PreConstruct(self)
	self.CaptionText:SetText(self.Caption)
	self.SuffixText:SetText(self.Suffix)
	Controls.StyleTextBox(self.From, 7)
	Controls.StyleTextBox(self.To, 7)
end

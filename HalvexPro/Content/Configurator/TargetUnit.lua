-- The unit that is configured, and what it costs so.

local Facts = Import("/HalvexPro/Exteriors/UnitFacts")
local Level = Import("/HalvexPro/Configurator/Level")
local Money = Import("/HalvexPro/Shared/Money")

local function ShowPrice(self)
	local Unit = self.Unit
	local Handler = Level.FindHandler(self)
	local Difference = Handler and Handler:GetPriceOfChanges() or 0
	local Total = Facts.Price(Unit)
	if Unit.Price > 0 then
		Total = Money.Amount(Unit.Price + Difference, Unit.Currency)
	elseif Difference ~= 0 then
		Total = Total .. " " .. Money.Difference(Difference, Unit.Currency)
	end
	self.PriceText:SetText(Facts.Price(Unit))
	self.TotalText:SetText(Total)
end

function OnConfiguratorUnitTarget(self, Unit)
	self.Unit = Unit
	self.NobodyText:SetVisibility("Collapsed")
	self.Facts:SetVisibility("SelfHitTestInvisible")
	self.NameText:SetText(Unit.Name)
	self.FactsText:SetText(Facts.Facts(Unit))
	local Handler = Level.FindHandler(self)
	if Handler then
		Handler:SetConfiguredUnit(Unit.UnitId)
	end
	ShowPrice(self)
end

function Construct(self)
	local Handler = Level.FindHandler(self)
	if Handler then
		self.Heard = Handler
		self.ChangesToken = Handler.OnChangeListChanged:Add(function() ShowPrice(self) end)
	end
	ShowPrice(self)
end

function Destruct(self)
	if self.Heard then
		self.Heard.OnChangeListChanged:Remove(self.ChangesToken)
		self.Heard = nil
	end
end

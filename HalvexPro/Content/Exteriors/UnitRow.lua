-- A unit in the list.

local Facts = Import("/HalvexPro/Exteriors/UnitFacts")

local function Highlight(self, Selected)
	self.Frame.ColorID = {
		ColorID = Selected and "Primary" or "Third",
		bUseContrast = false,
		bOverrideOpacity = true,
		OpacityOverride = Selected and 0.24 or 0.05,
	}
	self.Frame:UpdateStyle()
end

function OnListItemObjectSet(self, Item)
	local UnitVolume = Item.UnitVolumeActorRef
	if not UnitVolume then
		return
	end
	local Unit = UnitVolume:GetUnitVolumeSceneData()
	self.NameText:SetText(Unit.Name)
	self.FactsText:SetText(Facts.Facts(Unit))
	self.PriceText:SetText(Facts.Price(Unit))
	self.StatusText:SetText(Facts.Status(Unit))
	self.StatusDot.ColorID = Facts.StatusColor(Unit)
	self.StatusDot:UpdateStyle()
	Highlight(self, false)
end

function BP_OnItemSelectionChanged(self, bIsSelected)
	Highlight(self, bIsSelected)
end

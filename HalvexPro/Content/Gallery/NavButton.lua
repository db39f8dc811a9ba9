-- An entry of the gallery's navigation.

function Restyle(self)
	self.SelectableButton:UpdateStyle()
	self.Label:UpdateStyle()
	self.Icon:SetIconByHandler({ IconStyle = "Solid", IconName = self.Glyph, IconColor = { ColorID = "Third" } })
	self.Icon:SetContrastIconByHandler({ IconStyle = "Solid", IconName = self.Glyph, IconColor = { ColorID = "Secondary" } })
end

function PreConstruct(self, IsDesignTime)
	self.Label:SetText(self.Caption)
	Restyle(self)
end

function OnSelectionButtonChanged(self, Selected)
	self.Label:SetFontStyleFromName(Selected and "regular-bold" or "regular")
end

-- A small button with an icon, and a caption where there is one.

function PreConstruct(self, IsDesignTime)
	local Icon = { IconStyle = "Solid", IconName = self.Glyph, IconColor = { ColorID = "Third" } }
	self.Icon:SetIconByHandler(Icon)
	self.Icon:SetContrastIconByHandler({ IconStyle = "Solid", IconName = self.Glyph, IconColor = { ColorID = "Secondary" } })
	self.Label:SetText(self.Caption)
	self.Label:SetVisibility(self.Caption == "" and "Collapsed" or "Visible")
	self.SelectableButton:UpdateStyle()
end

-- A button in a look of its own, with a note below it.

function PreConstruct(self, IsDesignTime)
	local Button = self.SelectableButton
	Button:SetButtonStyle(self.Look)
	Button.ReactivityMode = self.Reactivity
	self.Label:SetText(self.Caption)
	self.Label:SetColorByHandler(self.Front)
	self.NoteText:SetText(self.Note)
	if self.Glyph == "None" then
		self.Icon:SetVisibility("Collapsed")
	else
		self.Icon:SetIconByHandler({ IconStyle = "Solid", IconName = self.Glyph, IconColor = self.Front })
		self.Icon:SetContrastIconByHandler({ IconStyle = "Solid", IconName = self.Glyph, IconColor = { ColorID = "Primary" } })
	end
end

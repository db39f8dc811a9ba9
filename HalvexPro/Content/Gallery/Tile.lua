-- A large button with an icon that grows under the pointer, a title and a line.

function PreConstruct(self, IsDesignTime)
	self.Label:SetText(self.Caption)
	self.Details:SetText(self.Line)
	self.Icon:SetIconByHandler({ IconStyle = "Solid", IconName = self.Glyph, IconColor = { ColorID = "Primary" } })
	self.Icon:SetContrastIconByHandler({ IconStyle = "Solid", IconName = self.Glyph, IconColor = { ColorID = "Secondary" } })
end

function OnInitialized(self)
	self.SelectableButton.OnHovered:Add(function()
		self:PlayAnimation(self.HoverAnimation)
	end)
	self.SelectableButton.OnUnhovered:Add(function()
		self:PlayAnimation(self.UnHoverAnimation)
	end)
end

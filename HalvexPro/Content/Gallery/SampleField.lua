-- Text to edit in a frame, with a caption above it.

local Kit = Import("/HalvexPro/Shared/Kit")

local function Fill(Color)
	return { DrawAs = "Image", TintColor = Kit.Slate(Color) }
end

function PreConstruct(self, IsDesignTime)
	self.CaptionText:SetText(self.Caption)
	self.Field.WidgetStyle = { CaretImage = Fill(Kit.Color("Primary")), BackgroundImageSelected = Fill(Kit.Color("Primary", false, 0.35)) }
	self.Field:UpdateStyle()
	self.Field:SetText(self.Value)
	self.Field:SetHintText(self.Hint)
	self.Field:SetIsPassword(self.Password)
	self.Field:SetIsReadOnly(self.ReadOnly)
end

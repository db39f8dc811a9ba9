-- A button as wide as its place, with a caption and perhaps an icon; the primary one stands out.

local Controls = Import("/HalvexPro/Shared/Controls")

local function ShowIcon(self)
	local Glyph = self.Spinning and "circle-notch" or self.Glyph
	if Glyph ~= "" then
		self.Icon:SetIconByHandler({ IconStyle = "Solid", IconName = Glyph, IconColor = { ColorID = self.Primary and "Primary" or "Third", bUseContrast = self.Primary } })
	end
	self.Icon:SetVisibility(Glyph == "" and "Collapsed" or "HitTestInvisible")
end

-- Shows another Caption, and with Spinning that the work goes on.
function Refresh(self)
	self.Label:SetText(self.Caption)
	ShowIcon(self)
	if self.Spinning then
		self:PlayAnimation(self.Spin, 0, 0)
	else
		self:StopAnimation(self.Spin)
		self.Icon:SetRenderTransformAngle(0)
	end
end

function PreConstruct(self)
	Controls.StyleBarButton(self.Button)
	self.Button.Color = { ColorID = self.Primary and "Primary" or "Third", bOverrideOpacity = not self.Primary, OpacityOverride = 0.08 }
	self.Button:UpdateStyle()
	self.Label.ColorText = { ColorID = self.Primary and "Primary" or "Third", bUseContrast = self.Primary }
	self.Label:UpdateStyle()
	self.Label:SetText(self.Caption)
	ShowIcon(self)
end

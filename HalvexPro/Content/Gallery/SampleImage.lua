-- A picture that is fetched, in a frame, with its state below it.

local Missing = Load("/HalvexPro/Gallery/Pictures/Missing.Missing")

function PreConstruct(self, IsDesignTime)
	self.CaptionText:SetText(self.Caption)
	if self.Fallback then
		self.Picture.AltImage = Missing
	end
end

function Construct(self)
	self.Picture.OnImageStateChanged:Clear()
	self.Picture.OnImageStateChanged:Add(function(State)
		self.State:SetText(State)
		if State == "EID_Downloading" then
			self.Picture:SetBrushFromTexture(self.Picture.DownloadingImage, self.Picture.bMatchTexture)
		end
	end)
	if self.Address ~= "" then
		self.Picture:SetImageFromData({ ImageName = self.Caption, Address = self.Address }, "EIRS_Medium")
	end
end

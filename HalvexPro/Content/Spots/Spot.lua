-- An interactive spot: a marker where it is, and a card about it while it is selected.

local Kit = Import("/HalvexPro/Shared/Kit")
local Controls = Import("/HalvexPro/Shared/Controls")

local function ShowPicture(self)
	local Picture = self.OwnISPSpot.Picture
	self.PictureBox:SetVisibility(Picture.Address ~= "" and "HitTestInvisible" or "Collapsed")
	if Picture.Address ~= "" then
		self.Picture:SetImageFromData(Picture, "EIRS_Medium")
	end
end

local function ShowSelection(self)
	local Selected = self.OwnISPSpot:IsISPSelected()
	local HadFocus = self.Close:HasKeyboardFocus()
	self.Ring:SetVisibility(Selected and "Collapsed" or "Visible")
	self.Card:SetVisibility(Selected and "Visible" or "Collapsed")
	if Selected then
		-- Pictures are fetched when they are wanted, and only once.
		if not self.bAsked then
			self.bAsked = true
			ShowPicture(self)
		end
		self.Close:SetKeyboardFocus()
	elseif HadFocus then
		self.Marker:SetKeyboardFocus()
	end
end

function OnISPConstruct(self, Spot)
	Super.OnISPConstruct(self, Spot)
	local Data = Spot.SpotData
	self.TitleText:SetText(Data.Title)
	self.DescriptionText:SetText(Data.Description)
	self.DescriptionText:SetVisibility(Data.Description ~= "" and "HitTestInvisible" or "Collapsed")
	self.Marker:SetToolTipText(Data.Title)
	Spot.OnISPSelectionChange:Add(function() ShowSelection(self) end)
	if Spot:IsISPSelected() then
		ShowSelection(self)
	end
end

function OnInitialized(self)
	self.Marker.OnClicked:Add(function() self:SelectOwnISPSpot() end)
	self.Close.OnClicked:Add(function() self:UnSelectOwnISPSpot() end)
	self.Picture.OnImageStateChanged:Add(function(State)
		-- Until there is a picture its place is empty; without one it closes.
		self.Picture:SetVisibility(State == "EID_Downloaded" and "HitTestInvisible" or "Hidden")
		if State == "EID_FailedDownload" then
			self.PictureBox:SetVisibility("Collapsed")
		end
	end)
end

function PreConstruct(self)
	Controls.StyleRoundButton(self.Marker, Kit.Color("Primary"), 15)
	Kit.StyleButton(self.Close, Kit.Color("Third"), 0.08, 0.16, 14)
end

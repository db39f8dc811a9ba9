-- The user at the top right of the screen, with a menu. It covers the whole screen, and takes clicks beside the menu while that
-- is open.

local Kit = Import("/HalvexPro/Shared/Kit")
local Controls = Import("/HalvexPro/Shared/Controls")
local Account = Import("/HalvexPro/User/Account")
local Texts = Import("/HalvexPro/User/UserTexts")

local function ShowMenu(self, Shown)
	Kit.Show(self.Menu, Shown)
	Kit.Show(self.ClickAway, Shown)
	self.Arrow:SetRenderTransformAngle(Shown and 180 or 0)
end

-- A screen that has the badge may follow who is signed in.
local function TellScreen(self)
	if self.Screen then
		self.Screen:UserChanged()
	end
end

local function ShowPicture(self, Texture)
	local Brush = Kit.RoundedBrush({ R = 1, G = 1, B = 1, A = 1 }, 17)
	Brush.ResourceObject = Texture
	Brush.ImageSize = { X = 34, Y = 34 }
	self.Picture:SetBrush(Brush)
	Kit.Show(self.Picture, true)
end

function OnUserLogged(self, Info)
	self.NameText:SetText(Info.DisplayName)
	self.InitialsText:SetText(Texts.Initials(Info.DisplayName))
	self.MenuNameText:SetText(Info.DisplayName)
	self.MenuMailText:SetText(Info.bIsGuest and "Signed in as a guest" or Info.Email)
	Kit.Show(self.MenuMailText, Info.bIsGuest or Info.Email ~= "")
	Kit.Show(self.SignIn, Info.bIsGuest)
	Kit.Show(self.Picture, false)
	Kit.Show(self.Stack, true)
	ShowMenu(self, false)
	TellScreen(self)
	if Info.UserImage.Address ~= "" then
		self:GetUserImage(function(Success, Texture)
			-- Another user may have come meanwhile.
			local _, Now = self:GetUserData()
			if Success and Now.UserId == Info.UserId then
				ShowPicture(self, Texture)
			end
		end)
	end
end

function OnUserLogout(self)
	ShowMenu(self, false)
	Kit.Show(self.Stack, false)
	TellScreen(self)
end

function OnInitialized(self)
	self.BadgeButton.OnClickWithID:Add(function() ShowMenu(self, self.Menu:GetVisibility() ~= "Visible") end)
	self.ClickAway.OnClicked:Add(function() ShowMenu(self, false) end)
	self.SignOut.Button.OnClickWithID:Add(function() Account.User():RequestUserLogout() end)
	self.SignIn.Button.OnClickWithID:Add(function()
		ShowMenu(self, false)
		if self.Screen then
			self.Screen:ShowSignIn()
		end
	end)
end

function PreConstruct(self)
	Controls.StyleBarButton(self.BadgeButton)
	Kit.StyleButton(self.ClickAway, { R = 0, G = 0, B = 0, A = 0 }, 0, 0, 0)
end

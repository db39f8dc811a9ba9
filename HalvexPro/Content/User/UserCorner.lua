-- What belongs to the user, over the right side of a scene: the badge or the way to sign in, and the settings.

local Controls = Import("/HalvexPro/Shared/Controls")

-- Over the screen that this is part of.
local PageOrder = 10

function UserChanged(self)
	self.SignIn:SetVisibility(self.Badge:IsUserLogged() and "Collapsed" or "Visible")
end

function ShowSignIn(self)
	local Page = CreateWidget(self, "/HalvexPro/User/SignInPage.SignInPage")
	Page.Dismissable = true
	Page:AddToViewport(PageOrder)
end

function OnInitialized(self)
	self.SignIn.OnClickWithID:Add(function() self:ShowSignIn() end)
	self.Settings.OnClickWithID:Add(function()
		CreateWidget(self, "/HalvexPro/Settings/SettingsPage.SettingsPage"):AddToViewport(PageOrder)
	end)
	self.Badge.Screen = self
	self:UserChanged()
end

function PreConstruct(self)
	Controls.StyleBarButton(self.SignIn)
	Controls.StyleBarButton(self.Settings)
end

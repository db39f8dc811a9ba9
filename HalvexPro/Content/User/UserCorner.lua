-- What belongs to the user, over the right side of a scene: the badge or the way to sign in, and the settings.

local Kit = Import("/HalvexPro/Shared/Kit")
local Controls = Import("/HalvexPro/Shared/Controls")

-- Over the screen that this is part of.
local PageOrder = 10

function UserChanged(self)
	Kit.Show(self.ToSignIn, not self.Badge:IsUserLogged())
end

function ShowSignIn(self)
	self.SignInPage = CreateWidget(self, "/HalvexPro/User/SignInPage.SignInPage")
	self.SignInPage.Dismissable = true
	self.SignInPage:AddToViewport(PageOrder)
end

local function ToggleSettings(self)
	if self.SettingsPage and self.SettingsPage:IsInViewport() then
		self.SettingsPage:RemoveFromParent()
	else
		self.SettingsPage = CreateWidget(self, "/HalvexPro/Settings/SettingsPage.SettingsPage")
		self.SettingsPage:AddToViewport(PageOrder)
	end
end

function OnInitialized(self)
	self.ToSignIn.OnClickWithID:Add(function() self:ShowSignIn() end)
	self.ToSettings.OnClickWithID:Add(function() ToggleSettings(self) end)
	self.Badge.Screen = self
	self:UserChanged()
end

-- Pages do not outlast the screen that they were opened from.
function Destruct(self)
	for _, Page in pairs({ self.SignInPage, self.SettingsPage }) do
		Page:RemoveFromParent()
	end
end

function PreConstruct(self)
	Controls.StyleTightButton(self.ToSignIn)
	Controls.StyleTightButton(self.ToSettings)
end

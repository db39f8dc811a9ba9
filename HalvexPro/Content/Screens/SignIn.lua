-- The page to sign in on, until somebody has; then the user's badge alone.

local function User()
	return Subsystem("/Script/HalvexSDK.HalvexSDKEngineSubsystem"):GetHalvexUser()
end

local function ShowPage(self, Shown)
	self.Page:SetVisibility(Shown and "Visible" or "Collapsed")
end

function ShowSignIn(self)
	self.Page.Panel:StartAnew()
	ShowPage(self, true)
end

function UserChanged(self)
	if not self.Badge:IsUserLogged() then
		self:ShowSignIn()
	end
end

function OnInitialized(self)
	self.Badge.Screen = self
	self.Page.Panel.OnLoginResult:Add(function(Successful)
		if Successful then
			ShowPage(self, false)
		end
	end)
end

function Construct(self)
	ShowPage(self, not (User() and User():HasValidToken()))
end

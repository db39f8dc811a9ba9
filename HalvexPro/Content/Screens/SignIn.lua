-- The page to sign in on, until somebody has; then the user's badge alone.

local Kit = Import("/HalvexPro/Shared/Kit")
local Account = Import("/HalvexPro/User/Account")

function ShowSignIn(self)
	self.Page.Panel:StartAnew()
	Kit.Show(self.Page, true)
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
			Kit.Show(self.Page, false)
		end
	end)
end

function Construct(self)
	Kit.Show(self.Page, not (Account.User() and Account.User():HasValidToken()))
end

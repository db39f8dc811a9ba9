-- Sign in by name and password, as who is remembered, or as a guest.

local Kit = Import("/HalvexPro/Shared/Kit")
local Controls = Import("/HalvexPro/Shared/Controls")
local Account = Import("/HalvexPro/User/Account")
local Texts = Import("/HalvexPro/User/UserTexts")

local function ShowMessage(self, Message)
	self.MessageText:SetText(Message)
	Kit.Show(self.MessageBar, Message ~= "")
end

local function ShowRemember(self)
	local On = self.RememberBox:IsChecked()
	self.RememberIcon:SetIconByHandler({
		IconStyle = On and "Solid" or "Regular",
		IconName = On and "square-check" or "square",
		IconColor = { ColorID = On and "Primary" or "Third" },
	})
end

local function SetRemember(self, Wanted)
	self.RememberBox:SetIsChecked(Wanted)
	self:SetRememberMeOption(Wanted)
	ShowRemember(self)
end

local function ShowAsDots(self, Dots)
	self.PasswordBox:SetIsPassword(Dots)
	self.ShowIcon:SetIconByHandler({ IconStyle = "Solid", IconName = Dots and "eye" or "eye-slash", IconColor = { ColorID = "Third" } })
	self.ShowPassword:SetToolTipText(Dots and "Show the password" or "Hide the password")
end

local function ForgetPassword(self)
	self.PasswordBox:SetText("")
	ShowAsDots(self, true)
end

local function IsFormShown(self)
	return self.FormBox:GetVisibility() ~= "Collapsed"
end

-- Gives the keyboard to the first field that is empty, else to the password.
local function FocusField(self)
	-- Not before the screen shows, nor while a click is being worked on.
	Delay(self, 0.01, function()
		if IsFormShown(self) and not self.Busy then
			local Field = self.NameBox:GetText() == "" and self.NameBox or self.PasswordBox
			Field:SetKeyboardFocus()
		end
	end)
end

local function ShowForm(self)
	Kit.Show(self.RememberedBox, false)
	Kit.Show(self.FormBox, true)
	self.Explanation:SetText("With your user name and password.")
	FocusField(self)
end

local function ShowRemembered(self, Name)
	self.RememberedName = Name
	self.RememberedText:SetText(Name)
	self.RememberedInitials:SetText(Texts.Initials(Name))
	self.Continue.Caption = "Continue as " .. Name
	self.Continue:Refresh()
	Kit.Show(self.FormBox, false)
	self.Explanation:SetText("Welcome back.")
	Kit.Show(self.RememberedBox, true)
end

local function Submit(self)
	if self.Busy then
		return
	end
	local Name, Password = self.NameBox:GetText(), self.PasswordBox:GetText()
	if Name == "" or Password == "" then
		ShowMessage(self, Name == "" and "Enter your user name." or "Enter your password.")
		FocusField(self)
		return
	end
	self:RequestUserLogin(Name, Password)
end

-- As at the first time, for the next who signs in.
function StartAnew(self)
	ShowMessage(self, "")
	self.NameBox:SetText("")
	ForgetPassword(self)
	SetRemember(self, false)
	if Account.User() and Account.User():HasRememberedCredentials() then
		OnLoadRememberOptions(self, Account.User():GetUserInfo())
	else
		ShowForm(self)
	end
end

function OnLoadRememberOptions(self, Known)
	SetRemember(self, Known.bRememberMe)
	ShowRemembered(self, Known.UserName)
end

function OnLoginInProcess(self, InProgress)
	self.Busy = InProgress
	local Form = IsFormShown(self)
	local Pressed = Form and self.SignIn or self.Continue
	self.Fields:SetIsEnabled(not InProgress)
	self.OtherAccount:SetIsEnabled(not InProgress)
	Kit.Show(self.Guest, not InProgress)
	Kit.Show(self.Cancel, InProgress)
	Pressed.Spinning = InProgress
	self.SignIn.Caption = InProgress and Form and "Signing in ..." or "Sign in"
	Pressed:Refresh()
	if InProgress then
		ShowMessage(self, "")
	end
end

function OnReceivedLoginResult(self, Successful, Info)
	if Successful then
		ForgetPassword(self)
		return
	end
	ShowMessage(self, Texts.Failure(Info))
	if Info.Error == "InvalidCredentials" then
		ForgetPassword(self)
	elseif Info.Error == "SessionEnded" then
		self.NameBox:SetText(self.RememberedName)
		ShowForm(self)
	end
	FocusField(self)
end

function OnInitialized(self)
	self.NameBox.OnTextCommitted:Add(function(_, Method)
		if Method == "OnEnter" and not self.Busy then
			if self.PasswordBox:GetText() == "" then
				FocusField(self)
			else
				Submit(self)
			end
		end
	end)
	self.PasswordBox.OnTextCommitted:Add(function(_, Method)
		if Method == "OnEnter" then
			Submit(self)
		end
	end)
	self.ShowPassword.OnClickWithID:Add(function() ShowAsDots(self, self.ShowIcon.IconStyling.IconName ~= "eye") end)
	self.RememberBox.OnCheckStateChanged:Add(function(Checked) SetRemember(self, Checked) end)
	self.SignIn.Button.OnClickWithID:Add(function() Submit(self) end)
	self.Continue.Button.OnClickWithID:Add(function()
		if not self.Busy then
			self:RequestUserLogin(self.RememberedName, "")
		end
	end)
	self.OtherAccount.Button.OnClickWithID:Add(function()
		ShowMessage(self, "")
		SetRemember(self, false)
		ShowForm(self)
	end)
	self.Guest.Button.OnClickWithID:Add(function() self:RequestGuestLogin() end)
	self.Cancel.Button.OnClickWithID:Add(function() Account.User():CancelLogin() end)
end

function PreConstruct(self)
	Controls.StyleTextBox(self.NameBox)
	Controls.StyleTextBox(self.PasswordBox)
	-- The button lies over its end.
	self.PasswordBox.WidgetStyle.Padding = Kit.Margin(12, 9, 44, 9)
	Controls.StyleSwitch(self.RememberBox)
	Controls.StyleBarButton(self.ShowPassword)
	ShowRemember(self)
end

function Construct(self)
	FocusField(self)
end

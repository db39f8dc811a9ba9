-- A settings screen: its rows, the bar that waits for a confirmation, and the count after which an unconfirmed video mode is
-- put back.

local Kit = Import("/HalvexPro/Shared/Kit")
local Controls = Import("/HalvexPro/Shared/Controls")

local Levels = { "Shadow", "AntiAliasing", "Texture", "Shading", "Reflection", "GlobalIllumination", "PostProcess", "VisualEffect", "Foliage", "ViewDistance" }
local OtherRows = { "Resolution", "FullScreen", "VSync", "ScreenPercentage", "Overall", "Audio" }

local SecondsToConfirm = 15

local function User(self)
	return self.Overall:GetGameUserSetting()
end

local function IsCounting(self)
	return self.SecondsLeft > 0
end

local function ShowBars(self)
	Kit.Show(self.VideoModeBar, IsCounting(self))
	Kit.Show(self.ConfirmBar, self:IsSettingsMarkAsDirty() and not IsCounting(self))
	self.Rows:SetIsEnabled(not IsCounting(self))
	-- Without a frame the window is as large as the desktop, whatever is chosen here.
	self.Resolution:SetIsEnabled(User(self):GetFullscreenMode() == "Windowed")
end

local function ShowCount(self)
	local Seconds = self.SecondsLeft
	self.CountText:SetText(string.format("The old one comes back in %d %s.", Seconds, Seconds == 1 and "second" or "seconds"))
	self.CountBar:SetPercent(Seconds / SecondsToConfirm)
end

local function EndCount(self)
	self.SecondsLeft = 0
	self.Count = self.Count + 1
end

local function KeepMode(self)
	EndCount(self)
	User(self):ConfirmVideoMode()
	User(self):SaveSettings()
	ShowBars(self)
end

local function RevertMode(self)
	EndCount(self)
	User(self):RevertVideoMode()
	User(self):ApplyResolutionSettings(false)
	User(self):SaveSettings()
	self:RefreshChildrenSettingsItems()
	ShowBars(self)
end

local function CountDown(self)
	local Count = self.Count
	Delay(self, 1, function()
		-- Another count may have begun meanwhile.
		if not IsCounting(self) or self.Count ~= Count then
			return
		end
		self.SecondsLeft = self.SecondsLeft - 1
		if IsCounting(self) then
			ShowCount(self)
			CountDown(self)
		else
			RevertMode(self)
		end
	end)
end

local function IsModeConfirmed(Settings)
	local Size, Confirmed = Settings:GetScreenResolution(), Settings:GetLastConfirmedScreenResolution()
	return Size.X == Confirmed.X and Size.Y == Confirmed.Y and Settings:GetFullscreenMode() == Settings:GetLastConfirmedFullscreenMode()
end

local function AskForMode(self)
	if IsCounting(self) or IsModeConfirmed(User(self)) then
		return
	end
	self.Count = self.Count + 1
	self.SecondsLeft = SecondsToConfirm
	ShowCount(self)
	CountDown(self)
end

-- A row tells that the user chose something.
function RowChanged(self)
	self.Overall:RefreshSetting()
	for _, Name in ipairs(Levels) do
		self[Name]:RefreshSetting()
	end
	ShowBars(self)
end

-- A row tells that everything was applied.
function RowApplied(self)
	AskForMode(self)
	ShowBars(self)
end

-- A row tells that it shows what the settings hold.
function RowRefreshed(self)
	if not self:IsSettingsMarkAsDirty() then
		AskForMode(self)
		ShowBars(self)
	end
end

function OnInitialized(self)
	self.Discard.OnClickWithID:Add(function()
		User(self):LoadSettings(false)
		self:ApplySettings()
	end)
	self.Keep.OnClickWithID:Add(function() KeepMode(self) end)
	self.RevertNow.OnClickWithID:Add(function() RevertMode(self) end)
end

function PreConstruct(self)
	self.ExplanationText:SetText(self.Explanation)
	for _, Button in ipairs({ self.Discard, self.Btn_ApplyConfirmation, self.Keep, self.RevertNow }) do
		Controls.StyleBarButton(Button)
	end
	Controls.StyleScrollBox(self.Scroll)
	Controls.StyleCountBar(self.CountBar)
	ShowBars(self)
end

function Construct(self)
	for _, Names in ipairs({ Levels, OtherRows }) do
		for _, Name in ipairs(Names) do
			self[Name].Panel = self
		end
	end
end

-- Who leaves during the count has not kept the mode.
function Destruct(self)
	if IsCounting(self) then
		RevertMode(self)
	end
end

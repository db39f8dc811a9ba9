-- A saved set of filters: a click sets it; it can be renamed, and deleted once that is confirmed.

local Controls = Import("/HalvexPro/Shared/Controls")

local function ShowPart(self, Shown)
	for _, Part in ipairs({ "AtRest", "Renaming", "Deleting" }) do
		self[Part]:SetVisibility(Part == Shown and "SelfHitTestInvisible" or "Collapsed")
	end
end

function Show(self)
	self.NameText:SetText(self.SetName)
	self.DeleteText:SetText(self.SetName .. "?")
end

local function Ask(self)
	self.Store.Asked = self.SetName
	self.Store.NewName = self.NewNameField:GetText()
	return self.Store
end

function OnInitialized(self)
	self.Load.OnClickWithID:Add(function() Ask(self):LoadAsked() end)
	self.Rename.OnClickWithID:Add(function()
		self.NewNameField:SetText(self.SetName)
		ShowPart(self, "Renaming")
		self.NewNameField:SetKeyboardFocus()
	end)
	self.Keep.OnClickWithID:Add(function() Ask(self):RenameAsked() end)
	self.NewNameField.OnTextCommitted:Add(function(Text, Method)
		if Method == "OnEnter" then
			Ask(self):RenameAsked()
		end
	end)
	self.Cancel.OnClickWithID:Add(function() ShowPart(self, "AtRest") end)
	self.Delete.OnClickWithID:Add(function()
		ShowPart(self, "Deleting")
		self.Spare:SetKeyboardFocus()
	end)
	self.ReallyDelete.OnClickWithID:Add(function() Ask(self):DeleteAsked() end)
	self.Spare.OnClickWithID:Add(function() ShowPart(self, "AtRest") end)
end

function PreConstruct(self)
	for _, Button in ipairs({ self.Load, self.Rename, self.Delete, self.Keep, self.Cancel, self.ReallyDelete, self.Spare }) do
		Controls.StyleTightButton(Button)
	end
	Controls.StyleTextBox(self.NewNameField, 7)
	self.NameText:SetTextOverflowPolicy("Ellipsis")
	self.DeleteText:SetTextOverflowPolicy("Ellipsis")
end

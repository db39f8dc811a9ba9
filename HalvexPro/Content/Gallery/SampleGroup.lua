-- A group of four buttons, and what is selected of them.

local Letters = { "A", "B", "C", "D" }

function ShowSelection(self)
	local Names = {}
	for _, Index in ipairs(self.Group:GetSelectionButtonIndexs()) do
		Names[#Names + 1] = self.Captions[Index + 1]
	end
	self.State:SetText(#Names > 0 and "Selected: " .. table.concat(Names, ", ") or "Nothing is selected")
end

function PreConstruct(self, IsDesignTime)
	self.TitleText:SetText(self.Title)
	for Index, Letter in ipairs(Letters) do
		self[Letter .. "Text"]:SetText(self.Captions[Index])
		self[Letter].ButtonID = self.Captions[Index]
		self[Letter].SelectionMode = "EBSM_Toggle"
	end
	self.Group.ButtonGroupControlMode = self.Mode
	self.Group.bAllowNoneSelection = self.AllowNone
	self.Group.SelectedButtonsIndex = self.Selected
	self.Group:RefreshButtonReferences()
	ShowSelection(self)
end

function OnInitialized(self)
	self.Group.OnSelectionChange:Add(function() ShowSelection(self) end)
	self.Clear.OnClickWithID:Add(function() self.Group:ClearAllButtonSelection() end)
end

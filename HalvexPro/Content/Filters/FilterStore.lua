-- Where filters are kept under a name, shared as files, and what passes them exported as a table.

local Controls = Import("/HalvexPro/Shared/Controls")
local Filters = Import("/HalvexPro/Filters/Filters")

local Sets = Class("/Script/HalvexPro.UnitFilterSetLibrary")

local Icons = {
	Good = { Name = "circle-check", Color = "Success" },
	Partly = { Name = "circle-exclamation", Color = "Warning" },
	Bad = { Name = "circle-exclamation", Color = "Danger" },
}

local function Tell(self, Kind, Text)
	local Icon = Icons[Kind]
	self.MessageIcon:SetIconByHandler({
		IconStyle = "Solid",
		IconName = Icon.Name,
		IconColor = { ColorID = Icon.Color, ColorMode = "ECHM_ColorSimple" },
	})
	self.MessageText:SetText(Text)
	self.MessageBar:SetVisibility("SelfHitTestInvisible")
end

local function ShowSets(self)
	local Names = Sets:ListFilterSets()
	self.Sets:ClearChildren()
	for _, Name in ipairs(Names) do
		local Row = CreateWidget(self, "/HalvexPro/Filters/FilterStoreRow.FilterStoreRow")
		Row.SetName = Name
		Row.Store = self
		Row:Show()
		self.Sets:AddChild(Row)
	end
	self.NoneText:SetVisibility(#Names == 0 and "HitTestInvisible" or "Collapsed")
end

local function TrimmedName(self)
	return self.NameField:GetText():match("^%s*(.-)%s*$")
end

-- What the name means for the buttons: whether there is one, and whether its set exists.
local function ShowName(self)
	local Name = TrimmedName(self)
	self.SaveText:SetText(Name ~= "" and Sets:HasFilterSet(Name) and "Replace" or "Save")
	self.Save:SetIsEnabled(Name ~= "")
	self.Save:SetRenderOpacity(Name ~= "" and 1 or 0.45)
	self.FileField:SetText(Sets:SuggestFilename(Name, "json"))
end

-- The page is shown, or the scene's units are others.
function Refresh(self)
	self.MessageBar:SetVisibility("Collapsed")
	self.TableField:SetText(Sets:SuggestFilename("Units", "csv"))
	ShowSets(self)
	ShowName(self)
	self.NameField:SetKeyboardFocus()
end

local function Save(self)
	local Name = TrimmedName(self)
	if Name == "" then
		return
	end
	if Sets:SaveFilterSet(Filters.Gather(self.Panel, Name)) then
		Tell(self, "Good", "“" .. Name .. "” is saved.")
	else
		Tell(self, "Bad", "“" .. Name .. "” could not be saved.")
	end
	ShowSets(self)
	ShowName(self)
end

local function Apply(self, Set)
	local Missing = Filters.Apply(self.Panel, Set)
	if #Missing == 0 then
		Tell(self, "Good", "“" .. Set.Name .. "” is set.")
	else
		Tell(self, "Partly", "“" .. Set.Name .. "” is set, but for what this project lacks: " .. table.concat(Missing, ", ") .. ".")
	end
end

-- A row asks for its set, which is Asked.
function LoadAsked(self)
	local Read, Set = Sets:LoadFilterSet(self.Asked)
	if Read then
		self.NameField:SetText(Set.Name)
		ShowName(self)
		Apply(self, Set)
	else
		Tell(self, "Bad", "“" .. self.Asked .. "” cannot be read any more.")
		ShowSets(self)
	end
end

-- A row asks for another name for its set.
function RenameAsked(self)
	local Name = self.NewName:match("^%s*(.-)%s*$")
	if Name ~= "" and Name ~= self.Asked then
		if Name:lower() ~= self.Asked:lower() and Sets:HasFilterSet(Name) then
			Tell(self, "Bad", "There is a “" .. Name .. "” already.")
		elseif Sets:RenameFilterSet(self.Asked, Name) then
			Tell(self, "Good", "“" .. self.Asked .. "” is now “" .. Name .. "”.")
		else
			Tell(self, "Bad", "“" .. self.Asked .. "” could not be renamed.")
		end
	end
	ShowSets(self)
	ShowName(self)
end

function DeleteAsked(self)
	if Sets:DeleteFilterSet(self.Asked) then
		Tell(self, "Good", "“" .. self.Asked .. "” is deleted.")
	else
		Tell(self, "Bad", "“" .. self.Asked .. "” could not be deleted.")
	end
	ShowSets(self)
	ShowName(self)
end

local function WriteFile(self)
	local Path = self.FileField:GetText()
	local Name = TrimmedName(self)
	if Sets:ExportFilterSet(Filters.Gather(self.Panel, Name), Path) then
		Tell(self, "Good", "The filters are written to " .. Path)
	else
		Tell(self, "Bad", "The filters could not be written to " .. Path)
	end
end

local function OpenFile(self)
	local Path = self.FileField:GetText()
	local Read, Set = Sets:ImportFilterSet(Path)
	if Read then
		self.NameField:SetText(Set.Name)
		ShowName(self)
		self.FileField:SetText(Path)
		Apply(self, Set)
	else
		Tell(self, "Bad", "There are no filters in " .. Path)
	end
end

local function Export(self)
	local Path = self.TableField:GetText()
	local Count = #self.Panel:GetUnitVolumeActorsFromFilters()
	if self.Panel.FilterManager and self.Panel.FilterManager:SavePassingUnits(Path) then
		Tell(self, "Good", Count .. (Count == 1 and " unit is" or " units are") .. " written to " .. Path)
	else
		Tell(self, "Bad", "The table could not be written to " .. Path)
	end
end

function OnInitialized(self)
	self.Back.OnClickWithID:Add(function() self.Panel:ShowMain() end)
	self.NameField.OnTextChanged:Add(function() ShowName(self) end)
	self.NameField.OnTextCommitted:Add(function(Text, Method)
		if Method == "OnEnter" then
			Save(self)
		end
	end)
	self.Save.OnClickWithID:Add(function() Save(self) end)
	self.WriteFile.OnClickWithID:Add(function() WriteFile(self) end)
	self.OpenFile.OnClickWithID:Add(function() OpenFile(self) end)
	self.Export.OnClickWithID:Add(function() Export(self) end)
end

function PreConstruct(self)
	for _, Button in ipairs({ self.Back, self.Save, self.WriteFile, self.OpenFile, self.Export }) do
		Controls.StyleTightButton(Button)
	end
	for _, Field in ipairs({ self.NameField, self.FileField, self.TableField }) do
		Controls.StyleTextBox(Field, 7)
	end
	Controls.StyleScrollBox(self.Scroll)
end

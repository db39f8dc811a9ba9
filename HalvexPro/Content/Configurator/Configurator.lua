-- Walks the catalogue of the level: cards of categories, subcategories and products, a trail and a way back.

local Kit = Import("/HalvexPro/Shared/Kit")
local Controls = Import("/HalvexPro/Shared/Controls")

local Entries = Class("/Script/UMG.UserObjectListEntryLibrary")

local function FindHandler(self)
	return self.HxLevelVariantSetRef and self.HxLevelVariantSetRef:GetVariantHandler()
end

-- What people read of the item of that key.
local function NameOf(Items, Key)
	for _, Item in ipairs(Items) do
		if Item.KeyName == Key then
			return Item.DisplayText
		end
	end
	return ""
end

local function ShowTrail(self)
	local Handler = FindHandler(self)
	local Level = self.CurrentElementType
	self.ShownLevel = Level
	local Category = Handler and NameOf(Handler:GetAllCategoryOverrideData(), Handler:GetSelectedCategory()) or ""
	local SubCategory = Handler and NameOf(Handler:GetSubCategoryOverrideData(), Handler:GetSelectedSubCategory()) or ""
	local First, Last = Level == "ECLET_Category", Level == "ECLET_Product"
	Kit.Show(self.Back, not First)
	Kit.Show(self.AllButton, not First)
	Kit.Show(self.CategorySlash, not First)
	Kit.Show(self.CategoryButton, Last)
	Kit.Show(self.SubCategorySlash, Last)
	self.CategoryText:SetText(Category)
	self.CurrentText:SetText(First and "All" or Last and SubCategory or Category)
	local Empty = self.ListDisplay:GetNumItems() == 0
	self.NothingText:SetVisibility(Empty and "HitTestInvisible" or "Collapsed")
end

-- The keys go on in the list: what was pressed may be gone.
local function ShowLevel(self, Level)
	if Level == "ECLET_Category" then
		self:ResetToFirstLevel()
	else
		self:SetElementType(Level)
	end
	ShowTrail(self)
	local Active = self.ListDisplay:BP_GetSelectedItem()
	if Active then
		self.ListDisplay:BP_NavigateToItem(Active)
	else
		self.ListDisplay:ScrollIndexIntoView(0)
	end
	self.ListDisplay:SetKeyboardFocus()
end

local function StopListening(self)
	if self.Heard then
		self.Heard.OnVariantChange:Remove(self.VariantToken)
		self.Heard.OnThumbnailReady:Remove(self.ThumbnailToken)
		self.Heard = nil
	end
end

-- The handler may come long after the screen, and outlive it.
local function Listen(self)
	local Handler = FindHandler(self)
	if not Handler or self.Heard == Handler then
		return
	end
	StopListening(self)
	self.Heard = Handler
	self.VariantToken = Handler.OnVariantChange:Add(function()
		for _, Card in ipairs(self.ListDisplay:GetDisplayedEntryWidgets()) do
			Card:ShowState()
		end
	end)
	self.ThumbnailToken = Handler.OnThumbnailReady:Add(function(Image)
		for _, Card in ipairs(self.ListDisplay:GetDisplayedEntryWidgets()) do
			local Item = Entries:GetListItemObject(Card)
			if Item and Item.ItemData.Image == Image then
				Card:ShowPicture()
			end
		end
	end)
end

function OnConfiguratorElementSelected(self, Element)
	local Level = Element.ConfiguratorElementType
	if Level == "ECLET_Category" then
		ShowTrail(self)
	elseif Level == "ECLET_SubCategory" then
		Element:SetItemHasSelected()
		ShowLevel(self, "ECLET_Product")
	else
		Element:SetItemHasSelected()
	end
end

function OnInitialized(self)
	self.ListDisplay.BP_OnEntryInitialized:Add(function()
		Listen(self)
		if self.ShownLevel ~= self.CurrentElementType then
			ShowTrail(self)
		end
		self.NothingText:SetVisibility("Collapsed")
	end)
	self.AllButton.OnClickWithID:Add(function() ShowLevel(self, "ECLET_Category") end)
	self.CategoryButton.OnClickWithID:Add(function() ShowLevel(self, "ECLET_SubCategory") end)
	self.Back.OnClickWithID:Add(function()
		ShowLevel(self, self.CurrentElementType == "ECLET_Product" and "ECLET_SubCategory" or "ECLET_Category")
	end)
end

function PreConstruct(self)
	Controls.StyleList(self.ListDisplay)
	for _, Button in ipairs({ self.Back, self.AllButton, self.CategoryButton }) do
		Controls.StyleTightButton(Button)
	end
	ShowTrail(self)
end

function Destruct(self)
	StopListening(self)
end

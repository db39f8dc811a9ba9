-- A category, a subcategory or a product of the configurator.

local Kit = Import("/HalvexPro/Shared/Kit")
local Money = Import("/HalvexPro/Shared/Money")

local Entries = Class("/Script/UMG.UserObjectListEntryLibrary")

local function CountChanges(Handler, Category)
	local Count = 0
	for _, Choice in ipairs(Handler:GetConfiguratorState().Choices) do
		if Choice.Key:sub(1, #Category + 1) == Category .. "." then
			Count = Count + 1
		end
	end
	return Count
end

-- What is said of an item below its name and beside it, and whether it is the chosen one.
local Describe = {
	ECLET_Category = function(Handler, Key)
		local Count = CountChanges(Handler, Key)
		return Count == 0 and "As it comes" or Count .. (Count == 1 and " change" or " changes"), "", false
	end,
	ECLET_SubCategory = function(Handler, Key)
		local Active = Handler:GetActiveVariant(Handler:GetSelectedCategory(), Key)
		local Found, Product = Handler:GetProductDataFromVariant(Active)
		if not Found then
			return "Nothing chosen yet", "", false
		end
		local Difference = Handler:GetPriceDifference(Active)
		return Product.Name, Difference ~= 0 and Money.Difference(Difference, Product.Currency) or "", false
	end,
	ECLET_Product = function(Handler, Key)
		local Found, Product = Handler:GetProductDataFromVariant(Key)
		if not Found then
			return "", "", false
		end
		local Configurator = Handler:GetVariantConfigurator()
		local Chosen = Handler:IsVariantActive(Key)
		if Configurator:IsSelectingByProductList() then
			Chosen = Configurator:IsProductInList(Key)
		end
		return Product.Maker, Money.Difference(Handler:GetPriceDifference(Key), Product.Currency), Chosen
	end,
}

local function ShowFrame(self)
	local Opacity = self.Chosen and 0.2 or self.Marked and 0.12 or 0.05
	self.Frame.ColorID = {
		ColorID = (self.Chosen or self.Marked) and "Primary" or "Third",
		bUseContrast = false,
		bOverrideOpacity = true,
		OpacityOverride = Opacity,
	}
	self.Frame:UpdateStyle()
end

-- What may change while the card shows the same item.
function ShowState(self)
	local Item = Entries:GetListItemObject(self)
	if not Item or not Item.VariantHandler then
		return
	end
	local Details, Price, Chosen = Describe[Item.ConfiguratorElementType](Item.VariantHandler, Item.ItemData.KeyName)
	self.DetailsText:SetText(Details)
	self.PriceText:SetText(Price)
	self.PriceText:SetVisibility(Price == "" and "Collapsed" or "HitTestInvisible")
	self.Chosen = Chosen
	self.Check:SetVisibility(Chosen and "HitTestInvisible" or "Collapsed")
	ShowFrame(self)
end

-- The picture, as soon as it is there.
function ShowPicture(self)
	local Item = Entries:GetListItemObject(self)
	local Texture = Item and Item:GetThumbnailFromOverride()
	if Item and Item.VariantHandler and not Texture then
		local There, Thumbnail = Item.VariantHandler:GetThumbnail(Item.ItemData.Image)
		Texture = There and Thumbnail or nil
	end
	self.Picture:SetVisibility(Texture and "HitTestInvisible" or "Collapsed")
	self.NoPicture:SetVisibility(Texture and "Collapsed" or "HitTestInvisible")
	if Texture then
		local Brush = Kit.RoundedBrush({ R = 1, G = 1, B = 1, A = 1 }, 8)
		Brush.ResourceObject = Texture
		self.Picture:SetBrush(Brush)
	end
end

function OnListItemObjectSet(self, Item)
	self.Marked = false
	self.NameText:SetText(Item.ItemData.DisplayText)
	self.More:SetVisibility(Item.ConfiguratorElementType == "ECLET_Product" and "Collapsed" or "HitTestInvisible")
	ShowState(self)
	ShowPicture(self)
end

function BP_OnItemSelectionChanged(self, bIsSelected)
	self.Marked = bIsSelected
	ShowFrame(self)
end

-- What was changed, by category, with prices and a total.

local Kit = Import("/HalvexPro/Shared/Kit")
local Money = Import("/HalvexPro/Shared/Money")
local Controls = Import("/HalvexPro/Shared/Controls")

-- The changes in the order of their choice, those of a category together.
local function Sort(Handler, ChangeList)
	local Groups, GroupOfName = {}, {}
	for _, Choice in ipairs(Handler:GetConfiguratorState().Choices) do
		local Found, Category, SubCategory = Handler:GetDisplayTexts(Choice.Key)
		local Product = ChangeList[Choice.Key]
		if Found and Product then
			local Group = GroupOfName[Category]
			if not Group then
				Group = { Name = Category, Price = 0, Currency = Product.Currency, Changes = {} }
				GroupOfName[Category] = Group
				Groups[#Groups + 1] = Group
			end
			local Price = Handler:GetPriceDifference(Product.ProductKey)
			Group.Price = Group.Price + Price
			Group.Changes[#Group.Changes + 1] = { Key = Choice.Key, SubCategory = SubCategory, Product = Product, Price = Price }
		end
	end
	return Groups
end

local function AddHeading(self, Group, First)
	local Line = CreateWidget(self, "HorizontalBox")
	Kit.Add(Line, Kit.Text(self, Group.Name, "regular-bold"), { Size = { SizeRule = "Fill" } })
	Kit.Add(Line, Kit.Text(self, Money.Difference(Group.Price, Group.Currency), "regular", "Third", { Opacity = 0.7 }))
	Kit.Add(self.Lines, Line, { Padding = Kit.Margin(0, First and 0 or 12, 0, 8) })
end

local function AddChange(self, Change)
	local Row = CreateWidget(self, "/HalvexPro/Configurator/ChangeRow.ChangeRow_C")
	Row.SubCategoryText:SetText(Change.SubCategory)
	Row.ProductText:SetText(Change.Product.Name)
	Row.PriceText:SetText(Money.Difference(Change.Price, Change.Product.Currency))
	Row.TakeBack.OnClickWithID:Add(function()
		self.VariantHandler:TakeBackChange(Change.Key)
		-- The pressed button is gone; the keys go on from here.
		self.Reset:SetKeyboardFocus()
	end)
	Kit.Add(self.Lines, Row, { Padding = Kit.Margin(0, 0, 0, 6) })
end

function OnConfiguratorChangesListUpdate(self, ChangeList)
	local Groups = Sort(self.VariantHandler, ChangeList)
	self.Lines:ClearChildren()
	for Index, Group in ipairs(Groups) do
		AddHeading(self, Group, Index == 1)
		for _, Change in ipairs(Group.Changes) do
			AddChange(self, Change)
		end
	end
	local Any = #Groups > 0
	self.NothingText:SetVisibility(Any and "Collapsed" or "HitTestInvisible")
	self.Reset:SetVisibility(Any and "Visible" or "Collapsed")
	self.TotalRow:SetVisibility(Any and "HitTestInvisible" or "Collapsed")
	if Any then
		self.TotalText:SetText(Money.Difference(self.VariantHandler:GetPriceOfChanges(), Groups[1].Currency))
	end
end

function OnInitialized(self)
	self.Reset.OnClicked:Add(function()
		self.VariantHandler:ResetChanges()
	end)
end

function PreConstruct(self)
	Controls.StyleRoundButton(self.Reset, Kit.Color("Third", false, 0.08), 8)
	Controls.StyleScrollBox(self.Scroll)
end

-- Configures a flat of Quayside as a person does: from the list of units to the summary, and back to the units. Leaves a picture
-- of the rooms as they come, KitchenBefore.png.

local function Text(Locator)
	return Find(Locator):GetText()
end

local function ExpectText(Locator, Expected)
	local Found = Text(Locator)
	Expect(Found == Expected, Locator .. " reads '" .. Found .. "', not '" .. Expected .. "'")
end

local function Choose(SubCategory, Product)
	Click("Configurator/text:" .. SubCategory)
	WaitFor("Configurator/text:" .. Product)
	Click("Configurator/text:" .. Product)
	WaitFor("Summary/text:" .. Product)
end

-- The flat.
WaitFor("UnitList")
Expect(Count("Configure") == 0, "nothing is selected, and something can be configured")
Click("SearchBox")
Type("Harbour 1.02")
WaitUntil(function() return Count("class:UnitRow") == 1 end)
Click("class:UnitRow")
WaitFor("Configure")
ExpectText("TargetName", "Harbour 1.02")

-- Its rooms.
Click("Configure")
WaitFor("Configurator/text:Kitchen")
Expect(Count("UnitList") == 0, "the list of units is still there")
ExpectText("TargetUnit/NameText", "Harbour 1.02")
ExpectText("TargetUnit/TotalText", Text("TargetUnit/PriceText"))
for _, Category in ipairs({ "Kitchen", "Bath", "Living room", "Bedroom", "Windows and terrace" }) do
	Expect(Count("Configurator/text:" .. Category) == 1, "there is no category " .. Category)
end

Wait(2)
Picture("KitchenBefore.png")

-- The kitchen.
Click("Configurator/text:Kitchen")
WaitFor("Configurator/text:Appliances")
Expect(Count("Configurator/class:Card") == 4, "a kitchen has fronts, a worktop, a splashback and appliances")
Choose("Cupboard fronts", "Oiled oak")
ExpectText("Summary/TotalText", "+1 900 EUR")
Click("Configurator/CategoryButton")
Choose("Worktop", "Black granite")
Click("Configurator/Back")
Choose("Splashback", "Bottle green tiles")
ExpectText("Summary/TotalText", "+4 220 EUR")

-- Another mind.
Click("Configurator/text:White metro tiles")
WaitUntil(function() return Count("Summary/text:Bottle green tiles") == 0 end)
ExpectText("Summary/TotalText", "+3 880 EUR")
Expect(Count("Summary/class:ChangeRow") == 2, "the summary holds fronts and worktop")

-- Back to the units, and to the same rooms again.
Click("ToUnits")
WaitFor("UnitList")
Expect(Count("Configurator") == 0, "the configurator is still there")
Click("Configure")
WaitFor("Summary/text:Oiled oak")
ExpectText("Summary/TotalText", "+3 880 EUR")
Wait(2)

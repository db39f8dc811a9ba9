-- What people read of filters.

local Facts = Import("/HalvexPro/Exteriors/UnitFacts")
local Money = Import("/HalvexPro/Shared/Money")
local Managers = Class("/Script/HalvexPro.UnitVolumesManager")

local Directions = {
	NorthEast = "North-east",
	SouthEast = "South-east",
	SouthWest = "South-west",
	NorthWest = "North-west",
}

-- A number of a range to a tenth, without its unit of measure.
function Number(Component, Value)
	if Component.Field == "Level" and Value == 0 then
		return "Ground floor"
	end
	local Tenths = math.floor(math.abs(Value) * 10 + 0.5)
	local Text = Money.Group(Tenths // 10)
	if Tenths % 10 > 0 then
		Text = Text .. "." .. Tenths % 10
	end
	return Value < 0 and "-" .. Text or Text
end

-- The same with its unit of measure.
function Measure(Component, Value)
	local Text = Number(Component, Value)
	return Component.Suffix == "" and Text or Text .. " " .. Component.Suffix
end

-- What a range asks for.
function Range(Component)
	local Low, High = Component.Low, Component.High
	if Low == High then
		return Component.Caption .. " " .. Measure(Component, Low)
	elseif Low <= Component.Least then
		return Component.Caption .. " up to " .. Measure(Component, High)
	elseif High >= Component.Most then
		return Component.Caption .. " from " .. Measure(Component, Low)
	end
	return Component.Caption .. " " .. Number(Component, Low) .. " – " .. Measure(Component, High)
end

-- A value of a choice.
function Choice(Component, Value)
	if Value == "None" then
		return "Not stated"
	elseif Component.Field == "Status" then
		return Facts.Status({ Status = Value })
	elseif Component.Field == "Building" then
		return Managers:GetUnitVolumesManager(Component):GetUnitGroupName(Value)
	end
	return Directions[Value] or Value
end

-- What was typed as a number: "650 000", "650,000", "49.7", "650k", "ground floor"; nil when it is none.
function Parse(Component, Text)
	local Plain = Text:lower():gsub("\u{A0}", ""):gsub("\u{202F}", ""):gsub("[%s']", "")
	if Component.Field == "Level" and Plain:find("ground", 1, true) then
		return 0
	end
	local Sign, Digits, Rest = Plain:match("^(-?)([%d.,]*%d)(.*)$")
	if not Digits then
		return nil
	end
	local Separators = select(2, Digits:gsub("[.,]", ""))
	-- Three digits behind each separator: those group thousands.
	if Separators > 0 and select(2, Digits:gsub("[.,]%d%d%d%f[^%d]", "")) == Separators and not Digits:match("^0") then
		Digits = Digits:gsub("[.,]", "")
	else
		Digits = Digits:gsub(",", ".")
	end
	local Value = tonumber(Sign .. Digits)
	if Value and Component.Field == "Price" then
		Value = Value * (Rest:match("^k") and 1000 or Rest:match("^m") and 1000000 or 1)
	end
	return Value
end

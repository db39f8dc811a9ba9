-- Amounts of money as people read them.

-- 1234567 as "1 234 567".
local function Group(Number)
	local Digits = string.format("%d", math.floor(Number + 0.5))
	local Rest = #Digits % 3
	local Parts = {}
	if Rest > 0 then
		Parts[1] = Digits:sub(1, Rest)
	end
	for Index = Rest + 1, #Digits, 3 do
		Parts[#Parts + 1] = Digits:sub(Index, Index + 2)
	end
	return table.concat(Parts, " ")
end

function Amount(Value, Currency)
	return Group(Value) .. " " .. Currency
end

-- What something costs more than what is included.
function Difference(Value, Currency)
	if Value == 0 then
		return "Included"
	end
	return (Value > 0 and "+" or "−") .. Amount(math.abs(Value), Currency)
end

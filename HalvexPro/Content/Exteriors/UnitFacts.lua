-- What people read of a unit.

local Money = Import("/HalvexPro/Shared/Money")

local Statuses = {
	Available = { Text = "Available", Color = "Success" },
	Reserved = { Text = "Reserved", Color = "Warning" },
	Sold = { Text = "Sold", Color = "Danger" },
	NotForSale = { Text = "Not for sale" },
}

function Price(Unit)
	return Unit.Price > 0 and Money.Amount(Unit.Price, Unit.Currency) or "On request"
end

function Level(Unit)
	return Unit.Level == 0 and "Ground floor" or "Level " .. Unit.Level
end

function Facts(Unit)
	local Parts = { Level(Unit), string.format("%.0f m²", Unit.Area) }
	if Unit.Rooms > 0 then
		Parts[#Parts + 1] = Unit.Rooms .. (Unit.Rooms == 1 and " room" or " rooms")
	end
	return table.concat(Parts, " · ")
end

function Status(Unit)
	return Statuses[Unit.Status].Text
end

-- A handler for the colour of the status; grey for what is not on offer.
function StatusColor(Unit)
	local ID = Statuses[Unit.Status].Color
	-- All members: an entry of a list is used again, and what is left out would stay from the unit before.
	return {
		ColorID = ID or "Third",
		bUseContrast = false,
		ColorMode = ID and "ECHM_ColorSimple" or "ECHM_ColorStyle",
		bOverrideOpacity = ID == nil,
		OpacityOverride = 0.4,
	}
end

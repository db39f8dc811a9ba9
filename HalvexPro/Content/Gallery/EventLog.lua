-- The last events of a page, the newest first.

local Limit = 8

-- Makes a log that is shown in a text.
function Start(Text)
	local Lines = {}
	return function(Line)
		table.insert(Lines, 1, Line)
		Lines[Limit + 1] = nil
		Text:SetText(table.concat(Lines, "\n"))
	end
end

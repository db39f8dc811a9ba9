-- Groups of buttons, and the events that they send.

local EventLog = Import("/HalvexPro/Gallery/EventLog")

function OnInitialized(self)
	local Log = EventLog.Start(self.Log)
	for _, Name in ipairs({ "AnyOne", "JustOne", "AnySome", "SomeOne" }) do
		local Sample = self[Name]
		Sample.Group.OnSelectionChange:Add(function(Empty, ChangeList)
			Log(string.format("%s: OnSelectionChange (%s, [%s])", Sample.Title, tostring(Empty), table.concat(ChangeList, ", ")))
		end)
		Sample.Group.OnClearSelection:Add(function()
			Log(Sample.Title .. ": OnClearSelection")
		end)
	end
end

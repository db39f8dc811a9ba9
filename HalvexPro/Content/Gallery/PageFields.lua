-- Text to edit, and the events that it sends.

local EventLog = Import("/HalvexPro/Gallery/EventLog")

-- Not earlier: the fields get their first texts when they are built, and that is no news.
function Construct(self)
	local Log = EventLog.Start(self.Log)
	for _, Name in ipairs({ "FullName", "City", "Secret", "Fixed" }) do
		local Sample = self[Name]
		local function Shown(Text)
			return Sample.Password and string.rep("•", utf8.len(Text)) or Text
		end
		Sample.Field.OnTextChanged:Clear()
		Sample.Field.OnTextChanged:Add(function(Text)
			Log(string.format("%s: OnTextChanged (%s)", Sample.Caption, Shown(Text)))
		end)
		Sample.Field.OnTextCommitted:Clear()
		Sample.Field.OnTextCommitted:Add(function(Text, Method)
			Log(string.format("%s: OnTextCommitted (%s, %s)", Sample.Caption, Shown(Text), Method))
		end)
	end
end

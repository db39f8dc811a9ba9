-- What the rows of a settings screen have in common: their texts, and what they tell the panel that they are in.

function Restyle(self)
	self.CaptionText:SetText(self.Caption)
	self.NoteText:SetText(self.Note)
	self.NoteText:SetVisibility(self.Note == "" and "Collapsed" or "HitTestInvisible")
end

-- The user chose something.
function Changed(self)
	if self.Panel then
		self.Panel:RowChanged()
	end
end

-- All of the user settings were applied.
function Applied(self)
	if self.Panel then
		self.Panel:RowApplied()
	end
end

-- The row shows what the user settings hold.
function Refreshed(self)
	if self.Panel then
		self.Panel:RowRefreshed()
	end
end

-- The settings over another screen, until they are closed. What waits for a confirmation then is dropped.

function OnInitialized(self)
	self.Close.Button.OnClickWithID:Add(function() self:RemoveFromParent() end)
end

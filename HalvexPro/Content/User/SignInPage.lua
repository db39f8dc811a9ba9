-- The page to sign in on, over the whole screen. One that can be dismissed goes by its cross or once somebody has signed in; the
-- other stays until the screen that it is part of hides it.

function OnInitialized(self)
	self.Close.Button.OnClickWithID:Add(function() self:RemoveFromParent() end)
	self.Panel.OnLoginResult:Add(function(Successful)
		if Successful and self.Dismissable then
			self:RemoveFromParent()
		end
	end)
end

function PreConstruct(self)
	self.Close:SetVisibility(self.Dismissable and "SelfHitTestInvisible" or "Collapsed")
end

-- Panels that are dragged by a grip: one with the grip over its head, one with the grip above it and a highlight.

local EventLog = Import("/HalvexPro/Gallery/EventLog")
local Kit = Import("/HalvexPro/Shared/Kit")

local Names = { "Apartment", "Layers" }

local function ShowPlaces(self)
	local Places = {}
	for _, Name in ipairs(Names) do
		local Moved = self[Name].RenderTransform.Translation
		if Moved.X ~= 0 or Moved.Y ~= 0 then
			Places[#Places + 1] = string.format("%s moved by %.0f, %.0f", Name, Moved.X, Moved.Y)
		end
	end
	self.State:SetText(#Places > 0 and table.concat(Places, "; ") or "Both panels stand where the layout has put them")
end

function PreConstruct(self)
	local Grip = Kit.RoundedBrush(Kit.Color("Primary"), 0)
	Grip.OutlineSettings.CornerRadii = { X = 12, Y = 12, Z = 0, W = 0 }
	self.Layers.BorderBrush = Grip
	local Frame = Kit.RoundedBrush({ R = 0, G = 0, B = 0, A = 0 }, 0, Kit.Color("Primary"))
	Frame.OutlineSettings.CornerRadii = { X = 0, Y = 0, Z = 12, W = 12 }
	Frame.OutlineSettings.Width = 2
	self.Layers.BrushHighlight = Frame
end

function OnInitialized(self)
	local Log = EventLog.Start(self.Log)
	for _, Name in ipairs(Names) do
		self[Name].OnStartCaptureMouse:Add(function() Log(Name .. ": OnStartCaptureMouse") end)
		self[Name].OnStopCaptureMouse:Add(function()
			Log(Name .. ": OnStopCaptureMouse")
			ShowPlaces(self)
		end)
	end
	self.Restore.OnButtonPressed:Add(function()
		for _, Name in ipairs(Names) do
			self[Name]:RestorePosition()
		end
		ShowPlaces(self)
	end)
end

-- The project that the user looks at, and the unit that is configured in it.

local function Manager()
	return Subsystem("/Script/HalvexSDK.HalvexSDKEngineSubsystem"):GetUserRequestManager()
end

-- Another one after each project that was loaded.
function Project()
	return Manager():GetProjectWrapper()
end

-- Calls when anything of the project, its targets or the configurator has changed, until StopUpdates with what this gives.
function OnUpdate(Function)
	return Manager().OnManagerDataUpdated:Add(Function)
end

function StopUpdates(Token)
	Manager().OnManagerDataUpdated:Remove(Token)
end

-- The data of the unit that could be configured now; nil when there is none.
function FindConfigurableTarget()
	local Current = Project()
	if Current:CanConfigureTarget() then
		return Current:GetUnitGroupTarget():GetConfiguratorWrapper():GetConfiguratorUnitTarget()
	end
end

-- Who uses the program.

-- Keeps the sign-in.
function User()
	return Subsystem("/Script/HalvexSDK.HalvexSDKEngineSubsystem"):GetHalvexUser()
end

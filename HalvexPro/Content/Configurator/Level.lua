-- The level that is configured.

local Statics = Class("/Script/Engine.GameplayStatics")

-- The handler of the level's variants; nil until there is one.
function FindHandler(Owner)
	local Actor = Statics:GetActorOfClass(Owner, "/Script/HalvexPro.HalvexLevelVariantSetsActor")
	return Actor and Actor:GetVariantHandler()
end

using UnrealBuildTool;

public class HalvexSDK : ModuleRules
{
	public HalvexSDK(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;

		PublicDependencyModuleNames.AddRange(new string[]
		{
			"Core", "CoreUObject", "Engine", "DeveloperSettings", "HTTP", "ImageWrapper", "Json"
		});
	}
}

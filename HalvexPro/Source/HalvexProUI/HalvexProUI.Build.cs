using UnrealBuildTool;

public class HalvexProUI : ModuleRules
{
	public HalvexProUI(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;

		PublicDependencyModuleNames.AddRange(new string[]
		{
			"Core", "CoreUObject", "Engine", "InputCore", "SlateCore", "Slate", "UMG", "DeveloperSettings",
			"HalvexPro", "HalvexSDK"
		});
	}
}

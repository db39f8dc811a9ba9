using UnrealBuildTool;

public class HalvexPro : ModuleRules
{
	public HalvexPro(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;

		PublicDependencyModuleNames.AddRange(new string[]
		{
			"Core", "CoreUObject", "Engine", "InputCore", "SlateCore", "Slate", "UMG", "Json", "HalvexSDK"
		});
	}
}

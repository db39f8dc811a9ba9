#include "ViewerScreens.h"

#include "Blueprint/UserWidget.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Host/Mounts.h"
#include "Misc/Paths.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogViewer, Log, All);

namespace
{
	const TCHAR* const ScreenRoot = TEXT("/HalvexPro/Screens/");
}

TArray<FString> ViewerScreens::List()
{
	TArray<FString> Names;
	for (const FString& Package : Host::FMounts::FindPackages(TEXT("/HalvexPro/"), TEXT(".widget.json")))
	{
		if (Package.StartsWith(ScreenRoot))
		{
			Names.Add(FPaths::GetCleanFilename(Package));
		}
	}
	return Names;
}

FString ViewerScreens::FindClassPath(const FString& Name)
{
	if (!List().Contains(Name))
	{
		UE_LOG(LogViewer, Error, TEXT("There is no screen '%s'; there are: %s."), *Name, *FString::Join(List(), TEXT(", ")));
		return FString();
	}
	return FString::Printf(TEXT("%s%s.%s_C"), ScreenRoot, *Name, *Name);
}

UUserWidget* ViewerScreens::Show(const FString& Name)
{
	const FString ClassPath = FindClassPath(Name);
	UClass* Class = ClassPath.IsEmpty() ? nullptr : LoadObject<UClass>(nullptr, *ClassPath);
	UUserWidget* Screen = Class ? CreateWidget<UUserWidget>(GEngine->GetGameInstance(), Class) : nullptr;
	if (Screen)
	{
		Screen->AddToViewport();
	}
	return Screen;
}

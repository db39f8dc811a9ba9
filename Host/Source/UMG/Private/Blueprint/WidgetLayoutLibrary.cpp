#include "Blueprint/WidgetLayoutLibrary.h"

#include "Engine/GameInstance.h"
#include "Engine/GameViewportClient.h"
#include "Engine/World.h"
#include "Framework/Application/SlateApplication.h"
#include "Widgets/SOverlay.h"

namespace
{
	FGeometry FindViewportGeometry(const UObject* WorldContextObject)
	{
		const UWorld* World = WorldContextObject ? WorldContextObject->GetWorld() : nullptr;
		const UGameViewportClient* Viewport = World && World->GetGameInstance() ? World->GetGameInstance()->GetGameViewportClient() : nullptr;
		return Viewport ? Viewport->GetViewportOverlay()->GetCachedGeometry() : FGeometry();
	}
}

FVector2D UWidgetLayoutLibrary::GetMousePositionOnPlatform()
{
	return FSlateApplication::IsInitialized() ? FSlateApplication::Get().GetCursorPos() : FVector2D(0.0, 0.0);
}

FVector2D UWidgetLayoutLibrary::GetMousePositionOnViewport(UObject* WorldContextObject)
{
	const FGeometry Geometry = FindViewportGeometry(WorldContextObject);
	const bool bNowhere = Geometry.GetLocalSize() == FGeometry().GetLocalSize();
	return bNowhere ? FVector2D(0.0, 0.0) : FVector2D(Geometry.AbsoluteToLocal(GetMousePositionOnPlatform()));
}

FGeometry UWidgetLayoutLibrary::GetViewportWidgetGeometry(UObject* WorldContextObject)
{
	return FindViewportGeometry(WorldContextObject);
}

float UWidgetLayoutLibrary::GetViewportScale(const UObject* WorldContextObject)
{
	return FindViewportGeometry(WorldContextObject).Scale;
}

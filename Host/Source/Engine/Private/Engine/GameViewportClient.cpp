#include "Engine/GameViewportClient.h"

#include "Engine/GameInstance.h"
#include "Templates/Casts.h"
#include "Widgets/SOverlay.h"

UGameViewportClient::UGameViewportClient(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, Overlay(SNew(SOverlay).Visibility(EVisibility::SelfHitTestInvisible))
{
}

UGameViewportClient::~UGameViewportClient() = default;

UWorld* UGameViewportClient::GetWorld() const
{
	const UGameInstance* GameInstance = Cast<UGameInstance>(GetOuter());
	return GameInstance ? GameInstance->GetWorld() : nullptr;
}

void UGameViewportClient::AddViewportWidgetContent(TSharedRef<SWidget> ViewportContent, const int32 ZOrder)
{
	Overlay->AddSlot(ZOrder)[ViewportContent];
}

void UGameViewportClient::RemoveViewportWidgetContent(TSharedRef<SWidget> ViewportContent)
{
	Overlay->RemoveSlot(ViewportContent);
}

void UGameViewportClient::RemoveAllViewportWidgets()
{
	Overlay->ClearChildren();
}

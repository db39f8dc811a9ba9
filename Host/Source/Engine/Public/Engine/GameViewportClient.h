#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "GameViewportClient.generated.h"

class SOverlay;
class SWidget;

/** The place in a window where the game shows: widgets lie in it by their z order. */
UCLASS(Transient)
class ENGINE_API UGameViewportClient : public UObject
{
	GENERATED_BODY()

public:
	UGameViewportClient(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
	virtual ~UGameViewportClient() override;

	virtual UWorld* GetWorld() const override;

	/** Shows the widget over the whole viewport, above those of a lower order and those of the same order that came before. */
	void AddViewportWidgetContent(TSharedRef<SWidget> ViewportContent, const int32 ZOrder = 0);

	/** Takes the widget away; nothing happens when it is not shown. */
	void RemoveViewportWidgetContent(TSharedRef<SWidget> ViewportContent);

	void RemoveAllViewportWidgets();

	/** The Slate side of the viewport, for the window that shows it. */
	TSharedRef<SOverlay> GetViewportOverlay() const { return Overlay; }

private:
	TSharedRef<SOverlay> Overlay;
};

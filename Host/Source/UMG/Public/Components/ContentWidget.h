#pragma once

#include "CoreMinimal.h"
#include "Components/PanelWidget.h"
#include "ContentWidget.generated.h"

/** Base of widgets that hold one other widget. */
UCLASS(Abstract, MinimalAPI)
class UContentWidget : public UPanelWidget
{
	GENERATED_BODY()

public:
	UMG_API UContentWidget(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The slot of the content; null when there is none. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UMG_API UPanelSlot* GetContentSlot() const;

	/** Replaces the content. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UMG_API UPanelSlot* SetContent(UWidget* Content);

	/** The content; null when there is none. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UMG_API UWidget* GetContent() const;
};

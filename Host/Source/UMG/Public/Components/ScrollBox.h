#pragma once

#include "CoreMinimal.h"
#include "Components/PanelWidget.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"
#include "ScrollBox.generated.h"

class SScrollBox;
class UScrollBoxSlot;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnUserScrolledEvent, float, CurrentOffset);

/** Lays its children out in a line that can be longer than the room and is scrolled through. */
UCLASS(MinimalAPI)
class UScrollBox : public UPanelWidget
{
	GENERATED_BODY()

public:
	/** Called when the user scrolled. */
	UPROPERTY(BlueprintAssignable, Category = "Scroll Box|Event")
	FOnUserScrolledEvent OnUserScrolled;

	/** The direction of scrolling. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Scroll")
	TEnumAsByte<EOrientation> Orientation = Orient_Vertical;

	/** Room around the scroll bar, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Scroll")
	FMargin ScrollbarPadding = FMargin(2.0f);

	/** How the scroll bar looks. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Style", meta = (DisplayName = "Bar Style"))
	FScrollBarStyle WidgetBarStyle;

	UMG_API UScrollBox(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	FMargin GetScrollbarPadding() const { return ScrollbarPadding; }

	const FScrollBarStyle& GetWidgetBarStyle() const { return WidgetBarStyle; }

	/** Replaces the look of the scroll bar. */
	UMG_API void SetWidgetBarStyle(const FScrollBarStyle& NewWidgetBarStyle);

	UFUNCTION(BlueprintCallable, Category = "Scroll")
	UMG_API void SetScrollbarPadding(const FMargin& NewScrollbarPadding);

	/** How far the content is scrolled, in Slate units. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API float GetScrollOffset() const;

	/** The farthest that the content can be scrolled, in Slate units. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API float GetScrollOffsetOfEnd() const;

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void SetScrollOffset(float NewScrollOffset);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void ScrollToStart();

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void ScrollToEnd();

	/** Scrolls so that the widget, which is in the box, is in view. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void ScrollWidgetIntoView(UWidget* WidgetToFind);

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void SetOrientation(EOrientation NewOrientation);

	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;
	UMG_API virtual void SynchronizeProperties() override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual UClass* GetSlotClass() const override;
	UMG_API virtual void OnSlotAdded(UPanelSlot* InSlot) override;
	UMG_API virtual void OnSlotRemoved(UPanelSlot* InSlot) override;
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;

	UMG_API void SlateHandleUserScrolled(float CurrentOffset);

	TSharedPtr<SScrollBox> MyScrollBox;
};

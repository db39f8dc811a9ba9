#pragma once

#include "CoreMinimal.h"
#include "Components/NamedSlot.h"
#include "Input/Reply.h"
#include "Layout/Margin.h"
#include "Styling/SlateBrush.h"
#include "Widgets/SOverlay.h"
#include "HxMovableArea.generated.h"

class SBorder;
class SBox;
struct FGeometry;
struct FPointerEvent;

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnMovableAreaMouseCapture);

/**
 * UI Component created to be able to have a zone that moves across the screen as if it were a drag and drop but instead of
 * using that operation we use the translation of the widget so that it can be implemented anywhere in an independent way from
 * the parent. independent of the parent. To use it you only have to add this widget and add a child and it will be able to move
 * if you click on the specified area.
 */
UCLASS()
class HALVEXPROUI_API UHxMovableArea : public UNamedSlot
{
	GENERATED_BODY()

public:
	UHxMovableArea(const FObjectInitializer& ObjectInitializer);

	/** Height of the grip along the top edge, in slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxMovableArea")
	float ClickableZoneHeight = 20.0f;

	/** Whether the grip lies over the top of the content; if not, content and highlight start below it. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxMovableArea")
	bool bOverlapZone = true;

	/** Whether the highlight shows while the area is dragged. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxMovableArea")
	bool bUseSelectableBorder = false;

	/** Frame that shows while the area is dragged. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxMovableArea")
	FSlateBrush BrushHighlight;

	/** flag that controls if we want to enable the border of the MovableArea. Shows the outline of the grip in the designer. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxMovableArea|Debug")
	bool bDebugArea = false;

	/** Whether the designer shows the highlight, where there is one. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxMovableArea")
	bool bPreviewHighlight = false;

	/** Face of the grip. Its outline takes the transparency of its tint, but for the designer with bDebugArea. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxMovableArea")
	FSlateBrush BorderBrush;

	/** Called when a mouse button is pressed on the grip. */
	UPROPERTY(BlueprintAssignable, Category = "HxMovableArea")
	FOnMovableAreaMouseCapture OnStartCaptureMouse;

	/** Called when a mouse button is released on the grip, or after a drag; a press need not have come before. */
	UPROPERTY(BlueprintAssignable, Category = "HxMovableArea")
	FOnMovableAreaMouseCapture OnStopCaptureMouse;

	/** Moves the area back to where the layout has put it. */
	UFUNCTION(BlueprintCallable, Category = "HxMovableArea")
	void RestorePosition();

	/** Replaces the content. */
	UFUNCTION(BlueprintCallable, Category = "HxMovableArea")
	void SetContentWidget(UWidget* InContent);

	/** Shows the highlight, where there is one, or hides it. The area must have been built. */
	UFUNCTION(BlueprintCallable, Category = "HxMovableArea")
	void SetHighlight(bool Visible) const;

	virtual void SynchronizeProperties() override;
	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;
	virtual const FText GetPaletteCategory() override;
#endif

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;

	FReply HandleMouseDown(const FGeometry& Geometry, const FPointerEvent& MouseEvent);
	FReply HandleMouseMove(const FGeometry& Geometry, const FPointerEvent& MouseEvent);
	FReply HandleMouseUp(const FGeometry& Geometry, const FPointerEvent& MouseEvent);

	/** What content and highlight leave free for the grip. */
	FMargin GetMarginOverlap() const;

	/** The mouse in the units of the grip. */
	FVector2D GetMouseLocalPos(const FGeometry& Geometry) const;

private:
	/** True while the overlay lives, and with it the slots. */
	bool HasSlots() const;

	/** A drag is in progress. */
	bool bIsMouseDown = false;

	/** Where the mouse was pressed, in the units of the grip. */
	FVector2D MouseDownLocalPosition = FVector2D::ZeroVector;

	/** Rules the height of the grip. */
	TSharedPtr<SBox> ClickableZoneBox;

	/** The grip, which takes the mouse. */
	TSharedPtr<SBorder> ClickableZoneBorder;

	TSharedPtr<SBorder> HighlightBorder;

	/** The overlay's, and only valid with it. */
	SOverlay::FOverlaySlot* ContentSlot = nullptr;
	SOverlay::FOverlaySlot* HighlightSlot = nullptr;
};

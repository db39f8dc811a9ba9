#pragma once

#include "CoreMinimal.h"
#include "Components/ContentWidget.h"
#include "Engine/TimerHandle.h"
#include "Input/Reply.h"
#include "HxZoomyArea.generated.h"

class SBoxWithWheel;
struct FGeometry;
struct FPointerEvent;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnZoomyAreaZoomChanged, float, ZoomValue);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnZoomyAreaMouseCapture);

/**
 * Lets the user zoom its child with the mouse wheel and pan it by dragging. Both go to the render transform of the child:
 * its layout stays, and the area cuts it off. The zoom leaves the pivot of the child in place, not what is under the mouse.
 * A child that is set while the area is shown appears when the area is built anew.
 */
UCLASS()
class HALVEXPROUI_API UHxZoomyArea : public UContentWidget
{
	GENERATED_BODY()

public:
	UHxZoomyArea(const FObjectInitializer& ObjectInitializer);

	/** Determines whether smooth transitions are enabled for zooming operations. Panning follows it too. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxZoomyArea")
	bool bEnableSmoothTransition = true;

	/**
	 * Specifies the speed of smooth transitions for zooming operations. It is only active when smooth transitions are enabled.
	 * Each hundredth of a second covers a hundredth of it of the way that is left; 0 or below goes all the way at once.
	 */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxZoomyArea")
	float SmoothTransitionSpeed = 5.0f;

	/** Specifies the incremental step value for zooming operations within the HxZoomyArea. Added to the scale, or taken from it. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxZoomyArea")
	float ZoomStep = 0.1f;

	/** Defines the permissible minimum and maximum zoom levels within the HxZoomyArea. Of bounds the wrong way round the minimum counts. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxZoomyArea")
	FVector2D ZoomMinMax = FVector2D(0.3, 5.0);

	/** Called at the end of every request for a zoom, with what it came to within the limits, also when that is the zoom of before. */
	UPROPERTY(BlueprintAssignable, Category = "HxZoomyArea")
	FOnZoomyAreaZoomChanged OnZoomValueChanged;

	/** Called when a mouse button is pressed over the area. */
	UPROPERTY(BlueprintAssignable, Category = "HxZoomyArea")
	FOnZoomyAreaMouseCapture OnStartCaptureMouse;

	/** Called when a mouse button is released over the area, or after a drag; a press need not have come before. */
	UPROPERTY(BlueprintAssignable, Category = "HxZoomyArea")
	FOnZoomyAreaMouseCapture OnStopCaptureMouse;

	/** The zoom that was asked for last, within the limits; the content may still be on its way there. */
	UFUNCTION(BlueprintCallable, Category = "HxZoomyArea")
	float GetZoomValue() const;

	/** Zooms to the scale, within the limits. */
	UFUNCTION(BlueprintCallable, Category = "HxZoomyArea")
	void SetZoomValue(float NewZoom);

	/** Apply the action using the zoom step: adds it to the scale that the content has at the moment. */
	UFUNCTION(BlueprintCallable, Category = "HxZoomyArea")
	void ZoomIn();

	/** Apply the action using the zoom step: takes it from the scale that the content has at the moment. */
	UFUNCTION(BlueprintCallable, Category = "HxZoomyArea")
	void ZoomOut();

	/** Reset the content widget translation to default values. Always at once; where an easing goes stays. */
	UFUNCTION(BlueprintCallable, Category = "HxZoomyArea")
	void ResetPosition();

	/** Reset the content widget scale to default values */
	UFUNCTION(BlueprintCallable, Category = "HxZoomyArea")
	void ResetScale();

	/** Reset the content widget transformation to default values */
	UFUNCTION(BlueprintCallable, Category = "HxZoomyArea")
	void ResetTransformation();

	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	virtual const FText GetPaletteCategory() override;
#endif

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;

	FReply HandleMouseDown(const FGeometry& Geometry, const FPointerEvent& MouseEvent);
	FReply HandleMouseMove(const FGeometry& Geometry, const FPointerEvent& MouseEvent);
	FReply HandleMouseUp(const FGeometry& Geometry, const FPointerEvent& MouseEvent);
	FReply HandleMouseWheel(const FGeometry& Geometry, const FPointerEvent& MouseEvent);

	/** Starts the easing, unless it goes on already. */
	void CheckSmoothTimer();

	/** Moves the content a part of the way towards the targets, and ends the easing when it is there. */
	void SmoothTransitionTick();

	/** The mouse in the units of the area. */
	FVector2D GetMouseLocalPos(const FGeometry& Geometry) const;

private:
	void StopSmoothTimer();

	/** Adds to the scale that the content has at the moment. */
	void ZoomBy(float Step);

	/** A drag is in progress. */
	bool bIsMouseDown = false;

	/** Where the mouse was pressed, in the units of the area. */
	FVector2D MouseDownLocalPosition = FVector2D::ZeroVector;

	/** Translation of the content when the mouse was pressed. */
	FVector2D ContentStartTranslation = FVector2D::ZeroVector;

	FTimerHandle SmoothTimerHandle;

	/** Where the easing goes. */
	FVector2D TargetTranslation = FVector2D::ZeroVector;
	FVector2D TargetScale = FVector2D::UnitVector;

	TSharedPtr<SBoxWithWheel> MyBox;
};

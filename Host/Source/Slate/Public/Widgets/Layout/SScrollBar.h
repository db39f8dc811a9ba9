#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SBorder.h"

class SImage;
class SScrollBarTrack;
class SSpacer;

/** The user moved a scroll bar: the offset as a share of the whole content. */
DECLARE_DELEGATE_OneParam(FOnUserScrolled, float);

/**
 * Shows what part of some content is in view, and lets the user move it. It knows nothing of the content: its owner
 * tells it by SetState, and is told by OnUserScrolled.
 */
class SLATE_API SScrollBar : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SScrollBar)
		: _Style(nullptr)
		, _OnUserScrolled()
		, _AlwaysShowScrollbar(false)
		, _AlwaysShowScrollbarTrack(true)
		, _Orientation(Orient_Vertical)
		, _Padding(FMargin(2.0f))
	{
	}
		/** Kept by address. Without one, that of the core style. */
		SLATE_STYLE_ARGUMENT(FScrollBarStyle, Style)
		SLATE_EVENT(FOnUserScrolled, OnUserScrolled)
		/** Shown even while all of the content is in view. */
		SLATE_ARGUMENT(bool, AlwaysShowScrollbar)
		/** Whether the track is drawn while there is something to scroll; else only the thumb is. */
		SLATE_ARGUMENT(bool, AlwaysShowScrollbarTrack)
		SLATE_ARGUMENT(EOrientation, Orientation)
		/** Of the thumb, across the bar. Without one, that of the style. */
		SLATE_ATTRIBUTE(FVector2D, Thickness)
		/** Around the thumb. */
		SLATE_ATTRIBUTE(FMargin, Padding)
	SLATE_END_ARGS()

	SScrollBar();
	void Construct(const FArguments& InArgs);

	/**
	 * @param InOffsetFraction	begin of the part in view, as a share of the whole
	 * @param InThumbSizeFraction	length of the part in view, as a share of the whole; 1 and more: nothing to scroll
	 * @param bCallOnUserScrolled	tells OnUserScrolled too, as if the user had moved the thumb
	 */
	virtual void SetState(float InOffsetFraction, float InThumbSizeFraction, bool bCallOnUserScrolled = false);

	void SetOnUserScrolled(const FOnUserScrolled& InHandler);

	/** There is something to scroll. */
	bool IsNeeded() const;
	/** Shares of the content before, behind and in the view. */
	float DistanceFromTop() const;
	float DistanceFromBottom() const;
	float ThumbSizeFraction() const;

	/** The user is dragging the thumb. */
	bool IsScrolling() const;
	EOrientation GetOrientation() const { return Orientation; }

	/** The visibility that the user of the bar wants while there is something to scroll, else collapsed. */
	EVisibility ShouldBeVisible() const;

	void SetStyle(const FScrollBarStyle* InStyle);
	/** Also to be called when the style was changed in place. */
	void InvalidateStyle();
	void SetThickness(TAttribute<FVector2D> InThickness);
	/** Visibility while it is needed or always shown. */
	void SetUserVisibility(EVisibility InUserVisibility);
	void SetScrollBarAlwaysVisible(bool InAlwaysVisible);
	void SetScrollBarTrackAlwaysVisible(bool InAlwaysVisible);

	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent) override;
	virtual void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent) override;

private:
	/** Moves the content as if its begin was dragged to a place on the track. */
	void ScrollTo(float PlaceOnTrack);
	/** Where on the track, in local units, the cursor is. */
	float GetPlaceOnTrack(const FPointerEvent& MouseEvent) const;
	void EndDrag();
	const FSlateBrush* ChooseThumbBrush() const;
	void UpdateThumb();
	void UpdateTrackVisibility();

	TSharedPtr<SScrollBarTrack> Track;
	TSharedPtr<SImage> SlotBefore;
	TSharedPtr<SImage> SlotBehind;
	TSharedPtr<SBorder> Thumb;
	TSharedPtr<SSpacer> ThumbSpacer;
	const FScrollBarStyle* Style = nullptr;
	FOnUserScrolled OnUserScrolled;
	/** From the begin of the thumb to where it was taken; meaningless unless dragging. */
	float DragGrabOffset = 0.0f;
	EVisibility UserVisibility = EVisibility::Visible;
	EOrientation Orientation = Orient_Vertical;
	bool bDragging = false;
	bool bThumbHovered = false;
	bool bAlwaysShowScrollbar = false;
	bool bAlwaysShowScrollbarTrack = true;
	bool bThicknessFromStyle = true;
};

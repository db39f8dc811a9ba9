#pragma once

#include "CoreMinimal.h"
#include "Layout/BasicLayoutWidgetSlot.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Templates/UniquePtr.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SScrollBar.h"
#include "Widgets/SCompoundWidget.h"
#include "SScrollBox.generated.h"

class SImage;
class SScrollPanel;

namespace Host
{
	class FDragScroll;
	class FScrollState;
}

/** Where a descendant stands in the view after it was scrolled there. */
UENUM(BlueprintType)
enum class EDescendantScrollDestination : uint8
{
	/** Scrolls no farther than needed to see it. */
	IntoView,
	/** At the begin of the view. */
	TopOrLeft,
	/** In the middle. */
	Center,
	/** At the end of the view. */
	BottomOrRight,
};

/** Whether a scroll box follows the focus. Focus that was moved by keys is always followed. */
UENUM(BlueprintType)
enum class EScrollWhenFocusChanges : uint8
{
	NoScroll,
	InstantScroll,
	AnimatedScroll,
};

/**
 * Shows as much of a row or column of children as there is room for, and lets the user scroll to the others: by the wheel,
 * the scroll bar, page keys, or by dragging with the right mouse button. Children out of view cost nothing but their
 * measuring.
 */
class SLATE_API SScrollBox : public SCompoundWidget
{
public:
	class SLATE_API FSlot : public TBasicLayoutWidgetSlot<FSlot>
	{
	public:
		SLATE_SLOT_BEGIN_ARGS(FSlot, TBasicLayoutWidgetSlot<FSlot>)
		SLATE_SLOT_END_ARGS()
	};

	using FScopedWidgetSlotArguments = TPanelChildren<FSlot>::FScopedWidgetSlotArguments;

	SLATE_BEGIN_ARGS(SScrollBox)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FScrollBoxStyle>("ScrollBox"))
		, _ScrollBarStyle(&FCoreStyle::Get().GetWidgetStyle<FScrollBarStyle>("ScrollBar"))
		, _Orientation(Orient_Vertical)
		, _ScrollBarVisibility(EVisibility::Visible)
		, _ScrollBarAlwaysVisible(false)
		, _ScrollBarPadding(FMargin(2.0f))
		, _AnimateWheelScrolling(false)
		, _WheelScrollMultiplier(1.0f)
		, _NavigationDestination(EDescendantScrollDestination::IntoView)
		, _NavigationScrollPadding(0.0f)
		, _ScrollWhenFocusChanges(EScrollWhenFocusChanges::NoScroll)
		, _ConsumeMouseWheel(EConsumeMouseWheel::WhenScrollingPossible)
		, _IsFocusable(false)
	{
		_Clipping = EWidgetClipping::ClipToBounds;
	}
		SLATE_SLOT_ARGUMENT(FSlot, Slots)
		/** Kept by address. */
		SLATE_STYLE_ARGUMENT(FScrollBoxStyle, Style)
		SLATE_STYLE_ARGUMENT(FScrollBarStyle, ScrollBarStyle)
		/** A scroll bar that stands elsewhere, in place of the own one. */
		SLATE_ARGUMENT(TSharedPtr<SScrollBar>, ExternalScrollbar)
		/** Direction in which children follow each other, and of scrolling. */
		SLATE_ARGUMENT(EOrientation, Orientation)
		/** Of the scroll bar while there is something to scroll. */
		SLATE_ARGUMENT(EVisibility, ScrollBarVisibility)
		SLATE_ARGUMENT(bool, ScrollBarAlwaysVisible)
		/** Without one, that of the style. */
		SLATE_ARGUMENT(TOptional<FVector2D>, ScrollBarThickness)
		SLATE_ARGUMENT(FMargin, ScrollBarPadding)
		/** Whether the wheel moves the content in a short motion rather than at once. */
		SLATE_ARGUMENT(bool, AnimateWheelScrolling)
		SLATE_ARGUMENT(float, WheelScrollMultiplier)
		/** Where focused descendants are scrolled to. */
		SLATE_ARGUMENT(EDescendantScrollDestination, NavigationDestination)
		/** Room to leave between them and the edge of the view, in slate units. */
		SLATE_ARGUMENT(float, NavigationScrollPadding)
		SLATE_ARGUMENT(EScrollWhenFocusChanges, ScrollWhenFocusChanges)
		SLATE_ARGUMENT(EConsumeMouseWheel, ConsumeMouseWheel)
		/** Whether the box takes the focus itself, so that arrow keys scroll it. */
		SLATE_ARGUMENT(bool, IsFocusable)
		/** The user scrolled: the offset in slate units. */
		SLATE_EVENT(FOnUserScrolled, OnUserScrolled)
	SLATE_END_ARGS()

	SScrollBox();
	virtual ~SScrollBox() override;
	void Construct(const FArguments& InArgs);

	static FSlot::FSlotArguments Slot();
	FScopedWidgetSlotArguments AddSlot();
	/** Adds a slot at an index, at the end for INDEX_NONE. */
	FScopedWidgetSlotArguments InsertSlot(int32 Index = INDEX_NONE);
	void RemoveSlot(const TSharedRef<SWidget>& WidgetToRemove);
	void ClearChildren();

	/** Slate units that the content is scrolled by. */
	float GetScrollOffset() const;
	/** Offsets out of range become the nearest one in it, as soon as the content is laid out. */
	void SetScrollOffset(float NewScrollOffset);
	/** The greatest offset, as of the last layout. */
	float GetScrollOffsetOfEnd() const;
	/** Share of the content in view. */
	float GetViewFraction() const;
	/** Share of the content before the view. */
	float GetViewOffsetFraction() const;
	void ScrollToStart();
	/** Also shows the end of content that was added since the last layout. */
	void ScrollToEnd();
	void EndInertialScrolling();

	/**
	 * Scrolls until a descendant is seen, when the layout is known next. Widgets elsewhere are ignored.
	 * @param InScrollPadding	room to leave between the descendant and the edge of the view
	 */
	void ScrollDescendantIntoView(const TSharedPtr<SWidget>& WidgetToScrollIntoView, bool InAnimateScroll = true,
		EDescendantScrollDestination InDestination = EDescendantScrollDestination::IntoView, float InScrollPadding = 0.0f);

	EOrientation GetOrientation() const { return Orientation; }
	void SetOrientation(EOrientation InOrientation);
	void SetStyle(const FScrollBoxStyle* InStyle);
	void SetScrollBarStyle(const FScrollBarStyle* InStyle);
	/** To be called when the style was changed in place. */
	void InvalidateStyle();
	void InvalidateScrollBarStyle();
	void SetScrollBarVisibility(EVisibility InVisibility);
	void SetScrollBarAlwaysVisible(bool InAlwaysVisible);
	void SetScrollBarThickness(FVector2D InThickness);
	void SetScrollBarPadding(const FMargin& InPadding);
	void SetAnimateWheelScrolling(bool bInAnimateWheelScrolling) { bAnimateWheelScrolling = bInAnimateWheelScrolling; }
	void SetWheelScrollMultiplier(float InWheelScrollMultiplier) { WheelScrollMultiplier = InWheelScrollMultiplier; }
	void SetNavigationDestination(EDescendantScrollDestination InDestination) { NavigationDestination = InDestination; }
	void SetNavigationScrollPadding(float InPadding) { NavigationScrollPadding = InPadding; }
	void SetScrollWhenFocusChanges(EScrollWhenFocusChanges InScrollWhenFocusChanges) { ScrollWhenFocusChanges = InScrollWhenFocusChanges; }
	void SetConsumeMouseWheel(EConsumeMouseWheel InConsumeMouseWheel) { ConsumeMouseWheel = InConsumeMouseWheel; }
	void SetScrollBarRightClickDragAllowed(bool bInAllowed) { bAllowsRightClickDragScrolling = bInAllowed; }
	void SetIsFocusable(bool bInIsFocusable) { bIsFocusable = bInIsFocusable; }

	/** The user drags the content with the right mouse button. */
	bool IsRightClickScrolling() const;

	virtual bool SupportsKeyboardFocus() const override { return bIsFocusable; }
	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual void OnFocusChanging(const FWidgetPath& NewWidgetPath, const FFocusEvent& InFocusEvent) override;

protected:
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

private:
	struct FScrollIntoViewRequest
	{
		TWeakPtr<SWidget> Descendant;
		EDescendantScrollDestination Destination = EDescendantScrollDestination::IntoView;
		float Padding = 0.0f;
		bool bAnimate = false;
	};

	/** Puts panel, shadows and scroll bar together for the orientation. */
	void Build();
	void MakeScrollBar();
	/** Takes over the sizes of a layout that is being made. */
	void UpdateFromLayout(const FGeometry& AllottedGeometry);
	void ResolveScrollRequest();
	float ComputeOffsetFor(float Begin, float Length, EDescendantScrollDestination Destination, float Padding) const;

	/** Scrolls to an offset because the user wants it. True when that is another one than before. */
	bool ScrollByUser(float NewOffset);
	/** Moves to an offset over some frames. */
	void AnimateTo(float NewOffset);
	/** Shows the offset in force. */
	void ApplyOffset();
	void UpdateShadows();
	void HandleScrollBarMoved(float OffsetFraction);
	void EnsureMotion();
	EActiveTimerReturnType UpdateMotion(double InCurrentTime, float InDeltaTime);
	/** The offset that a key scrolls to, if it is a key that scrolls. */
	TOptional<float> GetOffsetForKey(const FKey& Key) const;

	TSharedPtr<SScrollPanel> ScrollPanel;
	TSharedPtr<SScrollBar> ScrollBar;
	TSharedPtr<SImage> ShadowBefore;
	TSharedPtr<SImage> ShadowBehind;
	TUniquePtr<Host::FScrollState> Scroll;
	TUniquePtr<Host::FDragScroll> Drag;
	TSharedPtr<FActiveTimerHandle> MotionTimer;
	/** Where an animated scroll ends. */
	TOptional<float> MotionTarget;
	TOptional<FScrollIntoViewRequest> ScrollRequest;

	const FScrollBoxStyle* Style = nullptr;
	const FScrollBarStyle* ScrollBarStyle = nullptr;
	FOnUserScrolled OnUserScrolled;
	TOptional<FVector2D> ScrollBarThickness;
	FMargin ScrollBarPadding;
	EVisibility ScrollBarVisibility = EVisibility::Visible;
	EOrientation Orientation = Orient_Vertical;
	float WheelScrollMultiplier = 1.0f;
	float NavigationScrollPadding = 0.0f;
	EDescendantScrollDestination NavigationDestination = EDescendantScrollDestination::IntoView;
	EScrollWhenFocusChanges ScrollWhenFocusChanges = EScrollWhenFocusChanges::NoScroll;
	EConsumeMouseWheel ConsumeMouseWheel = EConsumeMouseWheel::WhenScrollingPossible;
	bool bAnimateWheelScrolling = false;
	bool bScrollBarAlwaysVisible = false;
	bool bScrollBarIsExternal = false;
	bool bAllowsRightClickDragScrolling = true;
	bool bIsFocusable = false;
};

#pragma once

#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Styling/SlateBrush.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/HxRangeModel.h"
#include "Widgets/SCompoundWidget.h"

DECLARE_DELEGATE_TwoParams(FOnHxRange, float /*Lower*/, float /*Upper*/);

/** Look of a range slider; sizes are in Slate units. */
struct HALVEXPROUI_API FHxRangeSliderStyle
{
	FLinearColor BarColor = FLinearColor::White;
	FLinearColor RangeColor = FLinearColor::White;
	FLinearColor HandleColor = FLinearColor::White;
	FLinearColor FocusColor = FLinearColor::White;
	float BarThickness = 4.0f;

	/** Diameter. */
	float HandleSize = 16.0f;

	bool operator==(const FHxRangeSliderStyle& Other) const = default;
};

/**
 * A bar with two handles, the ends of a range. The widget itself stands for the lower handle where the keyboard is concerned and
 * holds a widget for the upper one, so that the focus goes from one to the other. Touch comes as the mouse.
 */
class HALVEXPROUI_API SHxRangeSlider : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SHxRangeSlider) {}
		/** The user moved the range, by a drag that goes on or by a step. */
		SLATE_EVENT(FOnHxRange, OnRangeChanged)
		/** The user is done with moving it. */
		SLATE_EVENT(FOnHxRange, OnRangeCommitted)
	SLATE_END_ARGS()

	SHxRangeSlider();
	void Construct(const FArguments& InArgs);

	/** Shows a range, and tells nobody. A drag that is in progress goes on from there. */
	void SetModel(const FHxRangeModel& InModel);
	const FHxRangeModel& GetModel() const { return Model; }

	/** The user cannot move the handles. */
	void SetLocked(bool bInLocked);
	void SetStyle(const FHxRangeSliderStyle& InStyle);

	virtual bool SupportsKeyboardFocus() const override { return Model.IsUsable(); }
	/** The handle that has the focus shows a ring instead. */
	virtual const FSlateBrush* GetFocusBrush() const override { return nullptr; }
	virtual bool IsInteractable() const override { return IsEnabled(); }
	virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) override;
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent) override;
	virtual FNavigationReply OnNavigation(const FGeometry& MyGeometry, const FNavigationEvent& InNavigationEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent) override;
	virtual void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	/** What a press takes hold of, or what is being dragged. */
	enum class EGrip : uint8
	{
		None,
		Lower,
		Upper,
		/** The stretch between the handles, and with it both of them. */
		Both,
		/** The same, of which it is not known yet whether it becomes a drag or a click. */
		BothUnlessClicked,
		/** Handles that lie on one place: the direction decides. */
		Either
	};

	struct FHit
	{
		EGrip Grip = EGrip::None;
		/** The handle comes to the pointer instead of keeping its distance from it. */
		bool bJumps = false;
	};

	bool CanMove() const { return !bLocked && Model.IsUsable(); }

	/** Middle of a handle, in the units of the widget. */
	float GetPlace(const FGeometry& Geometry, EHxRangeHandle Handle) const;
	/** Way that the middles of the handles have, in the units of the widget. */
	float GetTrackLength(const FGeometry& Geometry) const;
	/** The value whose handle has its middle at a place. */
	double GetValueAt(const FGeometry& Geometry, float Place) const;

	FHit FindHit(const FGeometry& Geometry, float Place) const;
	EHxRangeHandle FindNearer(const FGeometry& Geometry, float Place) const;
	void Hover(EGrip Grip);

	/** Moves what is held to where the pointer is. @return whether something moved */
	bool FollowPointer(const FGeometry& Geometry, float Place);
	bool MoveHandle(const FGeometry& Geometry, EHxRangeHandle Handle, float Place);
	void TellChanged();
	void EndDrag();
	void TakeDragBack();

	void StepFocused(int32 NumSteps);
	/** Tells of a move that is at its end already. */
	void FinishMove(bool bMoved);

	void GiveFocus(EHxRangeHandle Handle, EFocusCause Cause);
	void TakeFocus(EHxRangeHandle Handle);
	TSharedRef<SWidget> GetFocusWidget(EHxRangeHandle Handle);
	/** The handle that a press leaves the keyboard with. */
	EHxRangeHandle ChooseFocus(const FGeometry& Geometry, EGrip Grip, float Place) const;

	bool IsLit(EHxRangeHandle Handle, EGrip Grip) const;

	FHxRangeModel Model;
	FHxRangeSliderStyle Style;
	FSlateBrush FillBrush;
	FSlateBrush RingBrush;
	FOnHxRange OnRangeChanged;
	FOnHxRange OnRangeCommitted;
	TSharedPtr<SWidget> UpperHandle;

	TOptional<EHxRangeHandle> FocusedHandle;
	bool bShowsFocus = false;
	bool bLocked = false;
	EGrip Hovered = EGrip::None;

	/** The drag in progress, what the range was before it, and whether it told of a change. */
	EGrip Dragged = EGrip::None;
	FHxRangeModel BeforeDrag;
	bool bDragMoved = false;
	uint32 DragPointer = 0;
	/** Where it began, in the units of the widget and on the screen, and how far from the middle of the handle. */
	float DragOrigin = 0.0f;
	FVector2D DragScreenOrigin = FVector2D::ZeroVector;
	float GripOffset = 0.0f;
};

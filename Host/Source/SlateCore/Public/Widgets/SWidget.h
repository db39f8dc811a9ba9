#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Host/WidgetState.h"
#include "Input/CursorReply.h"
#include "Input/Events.h"
#include "Input/NavigationReply.h"
#include "Input/Reply.h"
#include "Layout/ArrangedWidget.h"
#include "Layout/Clipping.h"
#include "Layout/Geometry.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"
#include "Rendering/SlateRenderTransform.h"
#include "Styling/WidgetStyle.h"
#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"
#include "Types/ISlateMetaData.h"
#include "Types/PaintArgs.h"
#include "Types/SlateAttribute.h"
#include "Widgets/ActiveTimerHandle.h"
#include "Widgets/InvalidateWidgetReason.h"

class FArrangedChildren;
class FChildren;
class FSlateWindowElementList;
class FWidgetPath;
class IToolTip;
struct FSlateBaseNamedArgs;
struct FSlateBrush;

namespace Host
{
	struct FWidgetExtras;
	struct FWidgetPasses;
	class FSlateRoot;
}

DECLARE_DELEGATE_RetVal_TwoParams(FReply, FPointerEventHandler, const FGeometry&, const FPointerEvent&);
DECLARE_DELEGATE_TwoParams(FNoReplyPointerEventHandler, const FGeometry&, const FPointerEvent&);
DECLARE_DELEGATE_OneParam(FSimpleNoReplyPointerEventHandler, const FPointerEvent&);

/**
 * Base of all widgets.
 *
 * A widget is measured from the leaves up (ComputeDesiredSize), arranged from the root down (OnArrangeChildren), and
 * painted (OnPaint). It keeps the results of all three; whoever changes what they depend on calls Invalidate with the
 * reason, and the next frame visits only what that touches. The setters here do so.
 *
 * Widgets are made by SNew, are held by TSharedRef, and live on the game thread.
 */
class SLATECORE_API SWidget : public TSharedFromThis<SWidget>
{
public:
	virtual ~SWidget();
	SWidget(const SWidget&) = delete;
	SWidget& operator=(const SWidget&) = delete;

	/** Called by SNew with the arguments that all widgets share, before the widget's own Construct. */
	void SWidgetConstruct(const FSlateBaseNamedArgs& Args, const ANSICHAR* InTypeName);

	/** The type as written in SNew, such as SButton. */
	FName GetType() const;
	FString GetTypeAsString() const;
	/** Type and tag, for logs. */
	FString ToString() const;

	// Events. They bubble from the widget under the cursor, or with the focus, to its ancestors until one handles them.

	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);
	/** As OnMouseButtonDown, but from the root down to the widget, before it. */
	virtual FReply OnPreviewMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);
	/** The cursor came over the widget or something in it. Does not bubble. */
	virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent);
	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);
	/** In place of the second OnMouseButtonDown of two quick ones; unhandled, that one follows. */
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);
	/** The mouse moved far enough since the press for which FReply::DetectDrag was answered. */
	virtual FReply OnDragDetected(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent);
	virtual void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent);
	virtual FCursorReply OnCursorQuery(const FGeometry& MyGeometry, const FPointerEvent& CursorEvent) const;

	virtual FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent);
	/** As OnKeyDown, but from the root down to the focused widget, before it. */
	virtual FReply OnPreviewKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent);
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent);
	virtual FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent);
	virtual FNavigationReply OnNavigation(const FGeometry& MyGeometry, const FNavigationEvent& InNavigationEvent);

	virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent);
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent);
	/** The focus moved, and this widget is on the old or the new path. */
	virtual void OnFocusChanging(const FWidgetPath& NewWidgetPath, const FFocusEvent& InFocusEvent);

	/** Called on each frame when SetCanTick asked for it and the widget is shown, before it is laid out. The geometry is that of the last frame. */
	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime);

	virtual bool SupportsKeyboardFocus() const { return false; }
	/** True for widgets that answer to clicks. */
	virtual bool IsInteractable() const { return false; }
	/** Drawn over the widget when navigation has given it the focus; null for nothing. */
	virtual const FSlateBrush* GetFocusBrush() const;
	virtual TSharedPtr<IToolTip> GetToolTip();

	// Layout and painting.

	/** Measures what changed in this widget and below it. */
	void SlatePrepass(float InLayoutScaleMultiplier = 1.0f);

	/** In slate units, as of the last prepass. */
	UE::Slate::FDeprecateVector2DResult GetDesiredSize() const { return UE::Slate::FDeprecateVector2DResult(State.DesiredSize); }

	/** Fills in the children with their places in the given geometry. */
	void ArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const;

	/**
	 * Paints the widget, and those below it, where something changed; what did not change stays as it was painted. Called by
	 * the parent's OnPaint for each child that is to be seen, in the order in which they were arranged.
	 * @return the highest layer used
	 */
	int32 Paint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId,
		const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const;

	/** The children, whether seen or not. */
	virtual FChildren* GetChildren() = 0;
	const FChildren* GetChildren() const { return const_cast<SWidget*>(this)->GetChildren(); }

	/** Scale of a child in this widget, besides that of the widget itself; part of the scale that children are measured for. */
	virtual float GetRelativeLayoutScale(int32 ChildIndex, float LayoutScaleMultiplier) const;

	/** Marks what must be done anew. Costs nothing when it is marked already. */
	void Invalidate(EInvalidateWidgetReason InvalidateReason);
	/** As Invalidate for Prepass: everything below is measured again too. */
	void MarkPrepassAsDirty() { Invalidate(EInvalidateWidgetReason::Prepass); }

	/** Where it was last arranged. */
	const FGeometry& GetCachedGeometry() const { return State.Geometry; }
	const FGeometry& GetTickSpaceGeometry() const { return State.Geometry; }
	const FGeometry& GetPaintSpaceGeometry() const { return State.Geometry; }

	// State.

	void SetVisibility(TAttribute<EVisibility> InVisibility);
	EVisibility GetVisibility() const { return Visibility; }

	void SetEnabled(const TAttribute<bool>& InEnabledState);
	/** Of the widget itself; an ancestor may be disabled. */
	bool IsEnabled() const { return bEnabled; }
	/** Whether it takes part, given its parent. */
	bool ShouldBeEnabled(bool bParentEnabled) const { return bParentEnabled && IsEnabled(); }

	void SetClipping(EWidgetClipping InClipping);
	EWidgetClipping GetClipping() const { return Clipping; }

	/** Multiplies the opacity of the widget and everything in it. */
	void SetRenderOpacity(float InRenderOpacity);
	float GetRenderOpacity() const { return RenderOpacity; }

	void SetRenderTransform(TAttribute<TOptional<FSlateRenderTransform>> InTransform);
	const TOptional<FSlateRenderTransform>& GetRenderTransform() const;

	/** The point that a render transform leaves in place, in shares of the size; top left by default. */
	void SetRenderTransformPivot(TAttribute<FVector2D> InTransformPivot);
	FVector2D GetRenderTransformPivot() const;

	void SetCursor(const TAttribute<TOptional<EMouseCursor::Type>>& InCursor);
	TOptional<EMouseCursor::Type> GetCursor() const;

	void SetToolTipText(const TAttribute<FText>& ToolTipText);
	void SetToolTip(const TAttribute<TSharedPtr<IToolTip>>& InToolTip);
	/** The text set by SetToolTipText. */
	FText GetToolTipText() const;

	void SetTag(FName InTag);
	/** The tag, or the name in the first tag metadata. */
	FName GetTag() const;
	void AddMetadata(const TSharedRef<ISlateMetaData>& AddMe) { AddMetadataInternal(AddMe); }
	int32 RemoveMetaData(const TSharedRef<ISlateMetaData>& RemoveMe);

	template <typename MetaDataType>
	TSharedPtr<MetaDataType> GetMetaData() const
	{
		for (const TSharedRef<ISlateMetaData>& Entry : GetAllMetaData())
		{
			if (Entry->template IsOfType<MetaDataType>())
			{
				return StaticCastSharedRef<MetaDataType>(Entry);
			}
		}
		return nullptr;
	}

	template <typename MetaDataType>
	void AddMetadata(const TSharedRef<MetaDataType>& AddMe)
	{
		AddMetadataInternal(StaticCastSharedRef<ISlateMetaData>(AddMe));
	}

	/** A volatile widget is painted on every frame. */
	void ForceVolatile(bool bForce);
	bool IsVolatile() const { return bVolatile; }

	/** Whether Tick is called; not unless asked for. Ticking does not by itself make frames come. */
	void SetCanTick(bool bInCanTick);
	bool GetCanTick() const { return bCanTick; }

	/** The cursor is over the widget or something in it, or something in it captured the mouse over it. */
	virtual bool IsHovered() const { return bIsHovered; }
	bool IsDirectlyHovered() const;
	bool HasMouseCapture() const;
	bool HasMouseCaptureByUser(int32 UserIndex, TOptional<int32> PointerIndex = TOptional<int32>()) const;
	bool HasKeyboardFocus() const { return HasAnyUserFocus().IsSet(); }
	TOptional<EFocusCause> HasUserFocus(int32 UserIndex) const;
	TOptional<EFocusCause> HasAnyUserFocus() const;
	/** Something in it, or it itself, has the focus. */
	bool HasFocusedDescendants() const;
	bool HasUserFocusedDescendants(int32 UserIndex) const;

	TSharedPtr<SWidget> GetParentWidget() const;
	bool IsParentValid() const { return State.Parent != nullptr; }

	// Handlers, asked by the events of the same names above.

	void SetOnMouseButtonDown(FPointerEventHandler EventHandler);
	void SetOnMouseButtonUp(FPointerEventHandler EventHandler);
	void SetOnMouseMove(FPointerEventHandler EventHandler);
	void SetOnMouseDoubleClick(FPointerEventHandler EventHandler);
	void SetOnMouseEnter(FNoReplyPointerEventHandler EventHandler);
	void SetOnMouseLeave(FSimpleNoReplyPointerEventHandler EventHandler);

	/** Calls the function every so many seconds, 0 for every frame, until it says to stop. Lives no longer than the widget. */
	TSharedRef<FActiveTimerHandle> RegisterActiveTimer(float TickPeriod, FWidgetActiveTimerDelegate TickFunction);
	void UnRegisterActiveTimer(const TSharedRef<FActiveTimerHandle>& ActiveTimerHandle);
	bool HasActiveTimers() const;

	/** Widgets alive now, for the account at shutdown and for tests. */
	static int32 GetNumAlive();

protected:
	SWidget();

	/** What the widget would like to measure, in slate units. Children have been measured. */
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const = 0;

	/** Called before the children are measured: the last chance to change them for this frame. Only when SetHasCustomPrepass asked for it. */
	virtual bool CustomPrepass(float LayoutScaleMultiplier);
	void SetHasCustomPrepass(bool bInHasCustomPrepass) { bHasCustomPrepass = bInHasCustomPrepass; }

	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const = 0;

	/**
	 * Appends what the widget looks like to the list, and paints its children. It runs only when something that it depends on
	 * changed, so it must depend on nothing that does not invalidate.
	 * @return the highest layer used
	 */
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const = 0;

	/** Paints the arranged children that are not culled, in order. */
	int32 PaintArrangedChildren(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const;

	/** True when the child lies outside the rectangle by its drawn box, so that painting it can be left out. */
	bool IsChildWidgetCulled(const FSlateRect& MyCullingRect, const FArrangedWidget& ArrangedChild) const;

	/** IsEnabled gives another answer than before. */
	virtual void OnEnabledChanged() {}

	void SetIsHovered(bool bInIsHovered) { bIsHovered = bInIsHovered; }

private:
	friend struct Host::FWidgetExtras;
	friend class Host::FAttributeBindings;
	friend class Host::FSlateRoot;
	friend struct Host::FWidgetPasses;
	friend class FSlotBase;
	friend class FSlateApplicationBase;


	Host::FWidgetExtras& GetExtras() const;
	void AddMetadataInternal(const TSharedRef<ISlateMetaData>& AddMe);
	const TArray<TSharedRef<ISlateMetaData>>& GetAllMetaData() const;

	const ANSICHAR* TypeName = nullptr;
	/** What few widgets have; null for the others. */
	mutable TUniquePtr<Host::FWidgetExtras> Extras;
	mutable Host::FWidgetState State;

	float RenderOpacity = 1.0f;
	EVisibility Visibility = EVisibility::Visible;
	/** The one that the parent knows of. */
	EVisibility AppliedVisibility = EVisibility::Visible;
	bool bEnabled = true;
	/** The one that OnEnabledChanged was told of. */
	bool bAppliedEnabled = true;
	EWidgetClipping Clipping = EWidgetClipping::Inherit;
	bool bVolatile : 1 = false;
	bool bCanTick : 1 = false;
	bool bIsHovered : 1 = false;
	bool bHasCustomPrepass : 1 = false;
	bool bIsRoot : 1 = false;
	bool bShowsFocus : 1 = false;
};
static_assert(sizeof(SWidget) <= 300, "there are thousands of widgets");

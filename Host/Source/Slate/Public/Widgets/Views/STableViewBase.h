#pragma once

#include "CoreMinimal.h"
#include "Layout/Geometry.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"
#include "Styling/SlateTypes.h"
#include "Templates/UniquePtr.h"
#include "Types/SlateEnums.h"
#include "Widgets/Layout/SScrollBar.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/Views/ITableRow.h"

/** The list shows another part of its items: the offset, and how much more there is to scroll, both in items. */
DECLARE_DELEGATE_TwoParams(FOnTableViewScrolled, double, double);

namespace Host
{
	class FDragScroll;
	class FListFill;
	class SListPanel;
	class STableRowBase;

	/** A row in view. Items that are null have none, and take no room. */
	struct FShownRow
	{
		TSharedPtr<ITableRow> Row;
		TSharedPtr<SWidget> Widget;
		/** Address of the item that it shows. */
		const void* Key = nullptr;
		/** By the last measuring, in slate units. */
		float Length = 0.0f;
	};
}

/**
 * Base of lists and trees: shows a part of many items, with one row widget for each item in view and none for the others.
 *
 * Items count, not lengths: the scroll offset is that of the first item in view, with the share of it that is out of view
 * as its fraction, so a list of any length costs no more than its view, and rows may differ in length.
 *
 * Scrolling, and changes of the items, are carried out at the next frame. The list has the keyboard itself; one item, the
 * one that was clicked or navigated to last, is where keys go from.
 */
class SLATE_API STableViewBase : public SCompoundWidget
{
public:
	virtual ~STableViewBase() override;

	/** To be called when the items changed: at the next frame rows and selection follow them. */
	virtual void RequestListRefresh();
	/** Makes all rows anew, at the next frame. */
	void RebuildList();
	bool IsPendingRefresh() const { return bItemsChanged || bLayoutDirty; }

	/** In items: 2.5 begins in the middle of the third one. */
	float GetScrollOffset() const { return static_cast<float>(Offset); }
	/** Offsets out of range become the nearest one in it. */
	void SetScrollOffset(const float InScrollOffset);
	void ScrollToTop() { SetScrollOffset(0.0f); }
	void ScrollToBottom();
	void EndInertialScrolling();

	/** The user drags the rows with the right mouse button. */
	bool IsRightClickScrolling() const;
	/** Rows that exist. */
	int32 GetNumGeneratedChildren() const { return Shown.Num(); }
	EOrientation GetOrientation() const { return Orientation; }

	void SetScrollbarVisibility(const EVisibility InVisibility);
	void SetIsRightClickScrollingEnabled(const bool bInIsRightClickScrollingEnabled) { bRightClickScrolls = bInIsRightClickScrollingEnabled; }
	void SetWheelScrollMultiplier(float NewWheelScrollMultiplier) { WheelScrollMultiplier = NewWheelScrollMultiplier; }
	void SetIsScrollAnimationEnabled(bool bInEnableScrollAnimation) { bAnimateScrolling = bInEnableScrollAnimation; }
	void SetConsumeMouseWheel(EConsumeMouseWheel InConsumeMouseWheel) { ConsumeMouseWheel = InConsumeMouseWheel; }

	ESelectionMode::Type GetSelectionMode() const { return SelectionMode; }
	/** Does not change what is selected. */
	void SetSelectionMode(ESelectionMode::Type InSelectionMode) { SelectionMode = InSelectionMode; }

	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;
	virtual bool SupportsKeyboardFocus() const override { return bIsFocusable; }
	/** The row where keys go from shows the focus. */
	virtual const FSlateBrush* GetFocusBrush() const override { return nullptr; }
	virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) override;
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent) override;

protected:
	/** How the list looks and behaves; derived classes fill it in from their own arguments. */
	struct FTableArguments
	{
		const FScrollBarStyle* ScrollBarStyle = nullptr;
		TSharedPtr<SScrollBar> ExternalScrollbar;
		FOnTableViewScrolled OnScrolled;
		EOrientation Orientation = Orient_Vertical;
		ESelectionMode::Type SelectionMode = ESelectionMode::Multi;
		EVisibility ScrollbarVisibility = EVisibility::Visible;
		EConsumeMouseWheel ConsumeMouseWheel = EConsumeMouseWheel::WhenScrollingPossible;
		float WheelScrollMultiplier = 1.0f;
		bool bClearSelectionOnClick = true;
		bool bAnimateScrolling = false;
		bool bIsFocusable = true;
	};

	STableViewBase();
	void ConstructTable(const FTableArguments& Arguments);

	/** The rows are laid out anew at the next frame. */
	void RequestLayoutRefresh();

	/** Scrolls an item into view at the next frame, and with bNavigate makes it the one where keys go from. */
	void RequestScrollTo(const void* Key, bool bNavigate);

	// What derived classes know of the items. Indices are below GetNumItemsBeingObserved.

	virtual int32 GetNumItemsBeingObserved() const = 0;
	/** The address that an item is known by; null for items that are null, and for indices without one. */
	virtual const void* GetItemKey(int32 Index) const = 0;
	virtual TSharedRef<ITableRow> GenerateRow(int32 Index) = 0;
	virtual void ReleaseRow(const TSharedRef<ITableRow>& Row) = 0;
	/** The rows in view are others than before. */
	virtual void OnShownRowsChanged() = 0;
	/** The items changed: forgets about those that went. */
	virtual void OnItemsChanged() = 0;

	virtual bool IsSelectedAt(int32 Index) const = 0;
	virtual int32 CountSelected() const = 0;
	virtual void SetSelectedAt(int32 Index, bool bSelected) = 0;
	virtual void EmptySelection() = 0;
	/** Tells of the selection, whatever changed in it. */
	virtual void SignalSelectionChanged(ESelectInfo::Type SelectInfo) = 0;
	virtual void SignalClicked(int32 Index) = 0;
	/** False when nobody wants to know: the press counts as a further click then. */
	virtual bool SignalDoubleClicked(int32 Index) = 0;
	virtual void SignalHovered(int32 Index, bool bIsHovered) = 0;
	virtual void SignalScrolledIntoView(int32 Index, const TSharedRef<ITableRow>& Row) = 0;

	virtual bool IsTree() const { return false; }
	virtual void FillRowState(int32 Index, Host::FTableRowState& OutState) const;
	/** Opens or closes an item. False when it has nothing to open, or stands so already. */
	virtual bool SetExpandedAt(int32, bool) { return false; }
	/** The item that an item is a child of; INDEX_NONE for those of the top level. */
	virtual int32 GetParentIndex(int32) const { return INDEX_NONE; }

	int32 FindIndex(const void* Key, int32 Hint = INDEX_NONE) const;
	const TArray<Host::FShownRow>& GetShown() const { return Shown; }
	int32 GetFirstShown() const { return FirstShown; }
	/** Hands every row in view the state of its item. */
	void UpdateRowStates();
	void UpdateRowState(ITableRow& Row, int32 Index) const;

private:
	/** Rows tell the list of their use. They stand for an item only while they are in view. */
	friend class Host::STableRowBase;
	friend class Host::FListFill;

	struct FScrollRequest
	{
		const void* Key = nullptr;
		bool bNavigate = false;
	};

	/** An item that is kept track of while items come and go. */
	struct FItemMark
	{
		const void* Key = nullptr;
		int32 Index = INDEX_NONE;
	};

	void BuildView(const FTableArguments& Arguments);
	void EnsureFrame();
	EActiveTimerReturnType OnFrame(double InCurrentTime, float InDeltaTime);
	/** True when the room is another one than before. */
	bool LearnGeometry(const FGeometry& Geometry);
	/** Carries out what was asked for. */
	void Update();
	void UpdateRows();
	void ResolveScrollRequest();
	void TakeRows(Host::FListFill& Fill);
	void ReleaseShownRow(Host::FShownRow& ShownRow);
	void UpdateScrollBar();

	/** Scrolls by slate units, at the next frame. */
	void ScrollBy(float Units);
	bool CanScroll(float Units) const;
	/** Length of the view, in slate units. */
	float GetView() const;
	/** Moves on what moves by itself; false once it rests. */
	bool UpdateMotion(float DeltaTime);
	void HandleScrollBarMoved(float OffsetFraction);
	void HandleRowResized();

	// Selection by the user.

	FItemMark MakeMark(int32 Index) const { return FItemMark{GetItemKey(Index), Index}; }
	int32 ResolveMark(FItemMark& Mark) const;
	int32 FindShownIndex(const ITableRow& Row) const;
	bool SelectOnly(int32 Index);
	void SelectRange(int32 Index);
	void ToggleSelected(int32 Index);
	/** What a click on the item, or the key that stands for one, does to the selection. True when that changed. */
	bool SelectAsClicked(int32 Index, const FInputEvent& Event);
	FReply Activate(int32 Index, const FKeyEvent& InKeyEvent);
	FReply MoveSelector(int32 Index, const FKeyEvent& InKeyEvent);
	TOptional<int32> GetIndexForKey(const FKey& Key, int32 From) const;
	TOptional<FReply> OnExpansionKey(const FKeyEvent& InKeyEvent, int32 From);
	int32 CountFullyShown() const;

	FReply OnRowPressed(const ITableRow& Row, const FPointerEvent& MouseEvent);
	void OnRowReleased(const ITableRow& Row, bool bOverRow);
	void ClickMarked(FItemMark Mark);
	bool OnRowDoubleClicked(const ITableRow& Row);
	void OnRowHovered(const ITableRow& Row, bool bIsHovered);
	void OnRowExpansionToggled(const ITableRow& Row);
	/** Tells of a selection that was changed by a press, once the button goes up. */
	void FlushSelectionSignal();

	TSharedPtr<Host::SListPanel> Panel;
	TSharedPtr<SScrollBar> ScrollBar;
	TSharedPtr<FActiveTimerHandle> FrameTimer;
	TUniquePtr<Host::FDragScroll> Drag;
	FOnTableViewScrolled OnScrolled;

	/** The size that the rows are laid out for. */
	FVector2f KnownSize = FVector2f(0.0f, 0.0f);
	TArray<Host::FShownRow> Shown;
	int32 FirstShown = 0;
	/** Where the first row begins in the view, in slate units. */
	float Begin = 0.0f;
	/** Of the first item in view, with the share of it that is out of view. */
	double Offset = 0.0;
	/** Items in view, with the shares of those that are in view in part. */
	double NumInView = 0.0;
	/** Items when the length of all was estimated. */
	int32 EstimatedNum = INDEX_NONE;

	TOptional<double> WantedOffset;
	TOptional<FScrollRequest> ScrollRequest;
	/** Slate units to scroll by at the next frame, and over some frames. */
	float PendingUnits = 0.0f;
	float AnimatedUnits = 0.0f;

	/** Where keys go from, and the end of a range that stays. */
	FItemMark Selector;
	FItemMark Anchor;

	float WheelScrollMultiplier = 1.0f;
	EOrientation Orientation = Orient_Vertical;
	ESelectionMode::Type SelectionMode = ESelectionMode::Multi;
	EConsumeMouseWheel ConsumeMouseWheel = EConsumeMouseWheel::WhenScrollingPossible;
	bool bClearSelectionOnClick = true;
	bool bAnimateScrolling = false;
	bool bIsFocusable = true;
	bool bRightClickScrolls = true;
	bool bHasGeometry = false;
	bool bAwaitsGeometry = false;
	bool bItemsChanged = false;
	bool bLayoutDirty = false;
	bool bDropRows = false;
	bool bUpdating = false;
	bool bShowsFocus = false;
	bool bSignalPending = false;
};

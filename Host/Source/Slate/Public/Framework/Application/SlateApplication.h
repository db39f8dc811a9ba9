#pragma once

#include "CoreMinimal.h"
#include "Application/SlateApplicationBase.h"
#include "Framework/Application/IMenu.h"
#include "GenericPlatform/GenericWindow.h"
#include "GenericPlatform/ICursor.h"
#include "Input/Events.h"
#include "Input/Reply.h"
#include "Layout/WidgetPath.h"
#include "Rendering/SlateRenderer.h"
#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"

class SWidget;
class SWindow;

namespace Host
{
	class FFocusTracker;
	class FMemoryCursor;
	class FMenuStack;
	class FPointerTracker;
	class FSlateLoop;
	class FTextInput;
	class FToolTipPresenter;
	class FWindowSurfaces;
}

/** How a menu comes up. It stands at its place at once; which it is only says where that place is. */
struct FPopupTransitionEffect
{
	enum ESlideDirection
	{
		None,
		/** Below the control it belongs to, or above when there is more room. */
		ComboButton,
		TopMenu,
		SubMenu,
		TypeInPopup,
		ContextMenu,
	};

	FPopupTransitionEffect(ESlideDirection InDirection) : SlideDirection(InDirection) {}

	ESlideDirection SlideDirection;
};

/**
 * Runs the windows of the program: makes their frames, and brings input to their widgets. There is one user, of index 0,
 * with one mouse. Positions are pixels of the client area of the window that has the input.
 *
 * Before input is routed, what was changed is laid out, so that it meets what the user is about to see.
 */
class SLATE_API FSlateApplication : public FSlateApplicationBase
{
public:
	virtual ~FSlateApplication() override;

	/** Makes the one application. */
	static TSharedRef<FSlateApplication> Create();

	static FSlateApplication& Get()
	{
		check(IsInitialized());
		return static_cast<FSlateApplication&>(*CurrentBaseApplication);
	}

	/** Closes all windows and ends the application. */
	static void Shutdown();

	/** Draws the windows from now on. Without a renderer they are laid out and painted, but not drawn. */
	bool InitializeRenderer(TSharedRef<FSlateRenderer> InRenderer);
	FSlateRenderer* GetRenderer() const { return Renderer.Get(); }

	/** A frame: timers, ticks and changed attributes, layout and painting of what changed, drawing of what is to be seen of it. */
	void Tick();

	// Windows.

	/** The window takes part from now on. It is shown if the system has a window for it. */
	TSharedRef<SWindow> AddWindow(TSharedRef<SWindow> InSlateWindow, const bool bShowImmediately = true);
	virtual void RequestDestroyWindow(TSharedRef<SWindow> WindowToDestroy) override;
	/** As RequestDestroyWindow, at once. */
	void DestroyWindowImmediately(TSharedRef<SWindow> WindowToDestroy);
	/** The last one is the one in front. */
	const TArray<TSharedRef<SWindow>>& GetTopLevelWindows() const { return Windows; }
	virtual TSharedPtr<SWindow> GetActiveTopLevelWindow() const override { return ActiveWindow.Pin(); }
	TSharedPtr<SWindow> FindWidgetWindow(TSharedRef<const SWidget> InWidget) const;
	/** True when the widget stands in a window; the path leads to it. */
	bool FindPathToWidget(TSharedRef<const SWidget> InWidget, FWidgetPath& OutWidgetPath) const;
	/** As FindPathToWidget; an empty path when there is none. */
	bool GeneratePathToWidgetUnchecked(TSharedRef<const SWidget> InWidget, FWidgetPath& OutWidgetPath) const { return FindPathToWidget(InWidget, OutWidgetPath); }
	/** The widgets at a position, down to the first disabled one unless that is to be ignored. */
	FWidgetPath LocateWindowUnderMouse(FVector2D ScreenspaceMouseCoordinate, const TArray<TSharedRef<SWindow>>& InWindows, bool bIgnoreEnabledStatus = false);

	// Input. The answers say whether a widget handled it.

	bool ProcessMouseMoveEvent(const FPointerEvent& MouseEvent, bool bIsSynthetic = false);
	/** Two quick ones at one place make a double click. */
	bool ProcessMouseButtonDownEvent(const TSharedPtr<FGenericWindow>& PlatformWindow, const FPointerEvent& InMouseEvent);
	bool ProcessMouseButtonDoubleClickEvent(const TSharedPtr<FGenericWindow>& PlatformWindow, const FPointerEvent& InMouseEvent);
	bool ProcessMouseButtonUpEvent(const FPointerEvent& MouseEvent);
	bool ProcessMouseWheelOrGestureEvent(const FPointerEvent& InWheelEvent, const FPointerEvent* InGestureEvent = nullptr);
	bool ProcessKeyDownEvent(const FKeyEvent& InKeyEvent);
	bool ProcessKeyUpEvent(const FKeyEvent& InKeyEvent);
	bool ProcessKeyCharEvent(const FCharacterEvent& InCharacterEvent);
	bool ProcessWindowActivatedEvent(const FWindowActivateEvent& ActivateEvent);
	/** The system asks to close the window. */
	void OnWindowClose(const TSharedRef<FGenericWindow>& PlatformWindow);
	/** The system changed the size of the window's client area. */
	bool OnSizeChanged(const TSharedRef<FGenericWindow>& PlatformWindow, const int32 Width, const int32 Height, bool bWasMinimized = false);

	/** What a routed event asked for. The event may be null when the reply is to no pointer. */
	void ProcessReply(const FWidgetPath& CurrentEventPath, const FReply& TheReply, const FPointerEvent* InMouseEvent = nullptr);

	FModifierKeysState GetModifierKeys() const { return ModifierKeys; }
	const TSet<FKey>& GetPressedMouseButtons() const;

	// Cursor.

	FVector2D GetCursorPos() const;
	FVector2D GetLastCursorPos() const;
	void SetCursorPos(const FVector2D& MouseCoordinate);
	TSharedRef<ICursor> GetPlatformCursor() const { return Cursor; }
	/** The system's cursor, in place of one that is only remembered. */
	void SetPlatformCursor(TSharedRef<ICursor> InCursor);
	/** Pixels that the mouse moves before a drag is detected. */
	float GetDragTriggerDistance() const { return 5.0f; }
	bool HasTraveledFarEnoughToTriggerDrag(const FPointerEvent& PointerEvent, const FVector2D ScreenSpaceOrigin) const;

	// Capture.

	TSharedPtr<SWidget> GetMouseCaptor() const;
	bool HasAnyMouseCaptor() const { return GetMouseCaptor().IsValid(); }
	void ReleaseMouseCapture();
	void ReleaseAllPointerCapture() { ReleaseMouseCapture(); }
	virtual bool DoesWidgetHaveMouseCapture(const TSharedPtr<const SWidget> Widget) const override;
	virtual bool DoesWidgetHaveMouseCaptureByUser(const TSharedPtr<const SWidget> Widget, int32 UserIndex, TOptional<int32> PointerIndex) const override;
	virtual bool IsWidgetDirectlyHovered(const TSharedPtr<const SWidget> Widget) const override;

	// Focus.

	/** Focuses the widget, or its nearest ancestor that takes the focus. False when there is none, or it has the focus already. */
	bool SetUserFocus(uint32 UserIndex, const TSharedPtr<SWidget>& WidgetToFocus, EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly);
	bool SetKeyboardFocus(const TSharedPtr<SWidget>& OptionalWidgetToFocus, EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly);
	void SetAllUserFocus(const TSharedPtr<SWidget>& WidgetToFocus, EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly) { SetUserFocus(0, WidgetToFocus, ReasonFocusIsChanging); }
	void ClearUserFocus(uint32 UserIndex, EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly);
	void ClearKeyboardFocus(const EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly) { ClearUserFocus(0, ReasonFocusIsChanging); }
	void ClearAllUserFocus(EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly) { ClearUserFocus(0, ReasonFocusIsChanging); }
	TSharedPtr<SWidget> GetUserFocusedWidget(uint32 UserIndex) const;
	TSharedPtr<SWidget> GetKeyboardFocusedWidget() const { return GetUserFocusedWidget(0); }
	virtual TOptional<EFocusCause> HasUserFocus(const TSharedPtr<const SWidget> Widget, int32 UserIndex) const override;
	virtual bool HasUserFocusedDescendants(const TSharedRef<const SWidget>& Widget, int32 UserIndex) const override;
	/** Moves the focus from the focused widget. */
	bool AttemptNavigation(EUINavigation Direction);

	// Menus.

	/**
	 * Puts content above a window.
	 * @param InParentWidget	its window is the one; a menu that it is in stays open
	 * @param SummonLocation	where its top left is to be, moved so that it is within the window
	 * @param SummonLocationSize	size of the control at that place, which is not to be covered
	 */
	TSharedPtr<IMenu> PushMenu(const TSharedRef<SWidget>& InParentWidget, const FWidgetPath& InOwnerPath, const TSharedRef<SWidget>& InContent,
		const UE::Slate::FDeprecateVector2DParameter& SummonLocation, const FPopupTransitionEffect& TransitionEffect, const bool bFocusImmediately = true,
		const UE::Slate::FDeprecateVector2DParameter& SummonLocationSize = FVector2f(0.0f, 0.0f));
	void DismissAllMenus();
	void DismissMenu(const TSharedPtr<IMenu>& InFromMenu);
	/** Dismisses the menu that the widget is in. */
	void DismissMenuByWidget(const TSharedRef<SWidget>& InWidgetInMenu);
	bool AnyMenusVisible() const;

	/** Takes the tool tip away; it comes again after the delay. */
	void CloseToolTip();
	/** Seconds that the cursor rests before a tool tip comes. */
	float GetToolTipDelay() const;

	virtual double GetCurrentTime() const override { return CurrentTime; }
	virtual float GetDeltaTime() const override { return DeltaTime; }

private:
	friend class Host::FFocusTracker;
	friend class Host::FPointerTracker;
	friend class Host::FSlateLoop;
	friend class Host::FTextInput;

	FSlateApplication();

	void RefreshWindows();
	void RefreshHovering();
	/** Another number whenever a picture changed. */
	uint64 GetGeneration() const;
	/** The mouse is there, says an event. */
	void RememberCursorPos(FVector2D Position);
	void DestroyRequestedWindows();
	void SetActiveWindow(const TSharedPtr<SWindow>& Window);
	TSharedPtr<SWindow> FindWindow(const FGenericWindow* PlatformWindow) const;
	FWidgetPath GetKeyPath() const;
	EUINavigation GetNavigationForKey(const FKeyEvent& InKeyEvent) const;

	TArray<TSharedRef<SWindow>> Windows;
	TArray<TSharedRef<SWindow>> WindowsToDestroy;
	TWeakPtr<SWindow> ActiveWindow;
	/** Had the focus when the last active window ceased to be it, and gets it back. */
	TWeakPtr<SWidget> WidgetToFocusAgain;
	TSharedPtr<FSlateRenderer> Renderer;
	TSharedRef<Host::FMemoryCursor> RememberedCursor;
	/** The remembered one while the system has none. */
	TSharedRef<ICursor> Cursor;
	TUniquePtr<Host::FWindowSurfaces> Surfaces;
	TUniquePtr<Host::FPointerTracker> Pointer;
	TUniquePtr<Host::FFocusTracker> Focus;
	TUniquePtr<Host::FMenuStack> Menus;
	TUniquePtr<Host::FToolTipPresenter> ToolTips;
	TUniquePtr<Host::FTextInput> TextInput;
	FModifierKeysState ModifierKeys;
	double CurrentTime = 0.0;
	float DeltaTime = 0.0f;
	/** Sum of the generations of the windows when hovering was last looked at. */
	uint64 HoveredGeneration = 0;
};

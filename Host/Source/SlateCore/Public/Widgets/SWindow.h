#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/GenericWindow.h"
#include "Host/SlateRoot.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/SOverlay.h"

DECLARE_DELEGATE_OneParam(FRequestDestroyWindowOverride, const TSharedRef<SWindow>&);
DECLARE_MULTICAST_DELEGATE_OneParam(FOnWindowClosedMulticast, const TSharedRef<SWindow>&);

/**
 * A window: content that fills it, and layers on top for menus and tool tips. It needs no window of the system: then it is
 * painted, but shown nowhere. Absolute coordinates in it are the pixels of its client area.
 */
class SLATECORE_API SWindow : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SWindow) : _ClientSize(FVector2D(800.0, 600.0)), _IsInitiallyMaximized(false) {}
		SLATE_ATTRIBUTE(FText, Title)
		/** Size of the client area, in pixels. */
		SLATE_ARGUMENT(FVector2D, ClientSize)
		SLATE_ARGUMENT(bool, IsInitiallyMaximized)
		SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	SWindow();
	virtual ~SWindow() override;
	void Construct(const FArguments& InArgs);

	const FText& GetTitle() const { return Title.Get(); }
	void SetTitle(const FText& InTitle);

	void SetContent(TSharedRef<SWidget> InContent);
	TSharedRef<const SWidget> GetContent() const;
	TSharedRef<SWidget> GetContent();

	/** A layer above the content, and above layers of a lower order. */
	SOverlay::FScopedWidgetSlotArguments AddOverlaySlot(const int32 ZOrder = INDEX_NONE);
	/** True when the widget was a layer. */
	bool RemoveOverlaySlot(const TSharedRef<SWidget>& InContent);

	/** Changes the size of the client area, of the system's window too. */
	void Resize(FVector2D NewClientSize);
	/** Takes over a size that the system's window already has. */
	void SetCachedSize(FVector2D NewClientSize);
	/** In pixels. */
	FVector2D GetClientSizeInScreen() const;
	FVector2D GetSizeInScreen() const { return GetClientSizeInScreen(); }
	FVector2D GetPositionInScreen() const { return FVector2D(0.0, 0.0); }
	FSlateRect GetClientRectInScreen() const;
	FGeometry GetWindowGeometryInWindow() const;
	FGeometry GetWindowGeometryInScreen() const { return GetWindowGeometryInWindow(); }

	/** Pixels a slate unit. */
	float GetDPIScaleFactor() const { return Root.GetScale(); }
	void SetDPIScaleFactor(float InFactor);

	void SetWindowMode(EWindowMode::Type WindowMode);
	EWindowMode::Type GetWindowMode() const { return WindowMode; }

	TSharedPtr<FGenericWindow> GetNativeWindow() const { return NativeWindow; }
	void SetNativeWindow(TSharedRef<FGenericWindow> InNativeWindow);
	bool IsInitiallyMaximized() const { return bInitiallyMaximized; }

	bool IsActive() const;
	void BringToFront(bool bForce = false);
	void Minimize();
	void Maximize();
	void Restore();
	void ShowWindow();
	void HideWindow();

	/** Asks to be closed: the override decides, else the application closes the window. */
	void RequestDestroyWindow();
	void SetRequestDestroyWindowOverride(const FRequestDestroyWindowOverride& InOverride) { RequestDestroyWindowOverride = InOverride; }
	/** Called by the application when it has closed the window. */
	void NotifyWindowBeingDestroyed();
	FOnWindowClosedMulticast& GetOnWindowClosedEvent() { return OnWindowClosed; }

	/** The widget that has the focus when the window becomes active; null for none. */
	void SetWidgetToFocusOnActivate(TSharedPtr<SWidget> InWidget) { WidgetToFocusOnActivate = InWidget; }
	TWeakPtr<SWidget> GetWidgetToFocusOnActivate() const { return WidgetToFocusOnActivate; }

	Host::FSlateRoot& GetRoot() { return Root; }
	const Host::FSlateRoot& GetRoot() const { return Root; }

private:
	Host::FSlateRoot Root;
	TSlateAttribute<FText, EInvalidateWidgetReason::None> Title;
	TSharedPtr<SOverlay> Layers;
	SOverlay::FOverlaySlot* ContentSlot = nullptr;
	TSharedPtr<FGenericWindow> NativeWindow;
	TWeakPtr<SWidget> WidgetToFocusOnActivate;
	FRequestDestroyWindowOverride RequestDestroyWindowOverride;
	FOnWindowClosedMulticast OnWindowClosed;
	EWindowMode::Type WindowMode = EWindowMode::Windowed;
	bool bInitiallyMaximized = false;
};

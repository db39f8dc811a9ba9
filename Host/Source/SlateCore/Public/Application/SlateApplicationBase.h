#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "Templates/SharedPointer.h"
#include "Types/SlateEnums.h"

class SWidget;
class SWindow;

/** What widgets ask the application for. */
class SLATECORE_API FSlateApplicationBase
{
public:
	virtual ~FSlateApplicationBase() = default;

	static FSlateApplicationBase& Get()
	{
		check(CurrentBaseApplication.IsValid());
		return *CurrentBaseApplication;
	}

	static bool IsInitialized() { return CurrentBaseApplication.IsValid(); }

	/** Seconds of the frame that is made. */
	virtual double GetCurrentTime() const = 0;
	virtual float GetDeltaTime() const = 0;

	virtual bool DoesWidgetHaveMouseCapture(const TSharedPtr<const SWidget> Widget) const = 0;
	virtual bool DoesWidgetHaveMouseCaptureByUser(const TSharedPtr<const SWidget> Widget, int32 UserIndex, TOptional<int32> PointerIndex) const = 0;
	virtual bool IsWidgetDirectlyHovered(const TSharedPtr<const SWidget> Widget) const = 0;
	virtual TOptional<EFocusCause> HasUserFocus(const TSharedPtr<const SWidget> Widget, int32 UserIndex) const = 0;
	virtual bool HasUserFocusedDescendants(const TSharedRef<const SWidget>& Widget, int32 UserIndex) const = 0;

	/** Closes a window at the end of the frame. */
	virtual void RequestDestroyWindow(TSharedRef<SWindow> WindowToDestroy) = 0;
	virtual TSharedPtr<SWindow> GetActiveTopLevelWindow() const = 0;

protected:
	/** Shows or hides that the widget has the focus. */
	static void SetShowsFocus(SWidget& Widget, bool bShow);

	static TSharedPtr<FSlateApplicationBase> CurrentBaseApplication;
};

#pragma once

#include "CoreMinimal.h"
#include "InputCoreTypes.h"
#include "Input/Events.h"
#include "Input/ReplyBase.h"
#include "Misc/Optional.h"
#include "Templates/SharedPointer.h"
#include "Types/SlateEnums.h"

class SWidget;

/**
 * What a widget answers to an event: whether it dealt with it (else its parent is asked next), and what it wants to
 * happen then.
 */
class SLATECORE_API FReply : public TReplyBase<FReply>
{
public:
	static FReply Handled() { return FReply(true); }
	static FReply Unhandled() { return FReply(false); }

	/** Later mouse events go to the widget, wherever the cursor is, until it is released. */
	FReply& CaptureMouse(TSharedRef<SWidget> InMouseCaptor)
	{
		MouseCaptor = MoveTemp(InMouseCaptor);
		bReleaseMouseCapture = false;
		return *this;
	}

	FReply& ReleaseMouseCapture()
	{
		MouseCaptor.Reset();
		bReleaseMouseCapture = true;
		return *this;
	}

	FReply& SetUserFocus(TSharedRef<SWidget> GiveMeFocus, EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly, bool bInAllUsers = false)
	{
		(void)bInAllUsers;
		FocusRecipient = MoveTemp(GiveMeFocus);
		FocusChangeReason = ReasonFocusIsChanging;
		bSetUserFocus = true;
		bReleaseUserFocus = false;
		return *this;
	}

	FReply& ClearUserFocus(EFocusCause ReasonFocusIsChanging, bool bInAllUsers = false)
	{
		(void)bInAllUsers;
		FocusRecipient.Reset();
		FocusChangeReason = ReasonFocusIsChanging;
		bReleaseUserFocus = true;
		bSetUserFocus = false;
		return *this;
	}

	FReply& ClearUserFocus(bool bInAllUsers = false) { return ClearUserFocus(EFocusCause::SetDirectly, bInAllUsers); }

	/** Cursor position in window pixels. */
	FReply& SetMousePos(const FIntPoint& NewMousePos)
	{
		RequestedMousePos = NewMousePos;
		return *this;
	}

	/** When the mouse moves far enough with the button held, the widget is told by OnDragDetected. */
	FReply& DetectDrag(const TSharedRef<SWidget>& DetectDragInMe, FKey MouseButton)
	{
		DetectDragForWidget = DetectDragInMe;
		DetectDragForMouseButton = MouseButton;
		return *this;
	}

	/** Moves the focus. */
	FReply& SetNavigation(EUINavigation InNavigationType)
	{
		NavigationType = InNavigationType;
		return *this;
	}

	/** Keeps frames coming while the mouse is captured. Frames come whenever something changes, so nothing is to be done. */
	FReply& PreventThrottling() { return *this; }

	TSharedPtr<SWidget> GetMouseCaptor() const { return MouseCaptor; }
	bool ShouldReleaseMouse() const { return bReleaseMouseCapture; }
	bool ShouldSetUserFocus() const { return bSetUserFocus; }
	bool ShouldReleaseUserFocus() const { return bReleaseUserFocus; }
	TSharedPtr<SWidget> GetUserFocusRecepient() const { return FocusRecipient; }
	EFocusCause GetFocusCause() const { return FocusChangeReason; }
	TSharedPtr<SWidget> GetDetectDragRequest() const { return DetectDragForWidget; }
	FKey GetDetectDragRequestButton() const { return DetectDragForMouseButton; }
	const TOptional<FIntPoint>& GetRequestedMousePos() const { return RequestedMousePos; }
	EUINavigation GetNavigationType() const { return NavigationType; }

private:
	explicit FReply(bool bInIsHandled) : TReplyBase<FReply>(bInIsHandled) {}

	TSharedPtr<SWidget> MouseCaptor;
	TSharedPtr<SWidget> FocusRecipient;
	TSharedPtr<SWidget> DetectDragForWidget;
	FKey DetectDragForMouseButton;
	TOptional<FIntPoint> RequestedMousePos;
	EFocusCause FocusChangeReason = EFocusCause::SetDirectly;
	EUINavigation NavigationType = EUINavigation::Invalid;
	bool bReleaseMouseCapture = false;
	bool bSetUserFocus = false;
	bool bReleaseUserFocus = false;
};

#pragma once

#include "ApplicationTestTools.h"
#include "Host/DrawElement.h"
#include "Host/SlateCounters.h"
#include "LayoutTestTools.h"
#include "Styling/CoreStyle.h"

/** The application with controls in its window, driven by mouse and keys. */
class FControlTest : public FApplicationTest
{
protected:
	/** Moves to the middle of a widget. */
	void MoveTo(const TSharedRef<const SWidget>& Widget)
	{
		const FVector2f Middle = Widget->GetCachedGeometry().GetAbsolutePositionAtCoordinates(FVector2f(0.5f, 0.5f));
		Move(Middle.X, Middle.Y);
	}

	void Click(const TSharedRef<const SWidget>& Widget)
	{
		MoveTo(Widget);
		Press();
		Release();
	}

	bool KeyDown(const FKey& InKey, bool bControl = false, bool bShift = false, bool bRepeat = false)
	{
		return App().ProcessKeyDownEvent(FKeyEvent(InKey, Modifiers(bControl, bShift), 0, bRepeat, 0, 0));
	}

	bool KeyUp(const FKey& InKey) { return App().ProcessKeyUpEvent(FKeyEvent(InKey, FModifierKeysState(), 0, false, 0, 0)); }

	/** Presses a key and lets it go. */
	void Stroke(const FKey& InKey, bool bControl = false, bool bShift = false)
	{
		KeyDown(InKey, bControl, bShift);
		App().ProcessKeyUpEvent(FKeyEvent(InKey, Modifiers(bControl, bShift), 0, false, 0, 0));
	}

	void Type(const TCHAR* Text)
	{
		for (; *Text; ++Text)
		{
			App().ProcessKeyCharEvent(FCharacterEvent(*Text, FModifierKeysState(), 0, false));
		}
	}

	/** Makes a frame, and notes the work that it took. */
	void Frame()
	{
		FrameAfter([]() {});
	}

	/** The same with some input ahead of the frame, which may make the application lay out and paint at once. */
	void FrameAfter(TFunctionRef<void()> Input)
	{
		const Host::FSlateCounters Before = Host::FSlateCounters::Get();
		Input();
		App().Tick();
		Work = Host::FSlateCounters::Get() - Before;
	}

	/** The pixels of the ring that shows where the keyboard is; empty when there is none. */
	Host::FPixelRect FindFocusRing() const
	{
		const FColor Colour = FCoreStyle::Get().GetBrush("FocusRectangle")->OutlineSettings.Color.GetSpecifiedColor().ToFColorSRGB();
		Host::FPixelRect Ring;
		Window->GetRoot().ForEachElement(Host::FPixelRect::Everything(), [&](TConstArrayView<Host::FDrawElement> Elements)
		{
			for (const Host::FDrawElement& Element : Elements)
			{
				Ring = Element.OutlineColour == Colour ? Element.Bounds : Ring;
			}
		});
		return Ring;
	}

	static FModifierKeysState Modifiers(bool bControl, bool bShift)
	{
		return FModifierKeysState(bShift, false, bControl, false, false, false, false, false, false);
	}

	static std::string ToStd(const FText& Text) { return TCHAR_TO_UTF8(*Text.ToString()); }

	Host::FSlateCounters Work;
};

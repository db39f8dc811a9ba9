#pragma once

#include "CoreMinimal.h"
#include "Framework/Application/EventRoute.h"
#include "Input/Events.h"
#include "Layout/WidgetPath.h"

class FSlateApplication;

namespace Host
{
	/** The mouse: what it is over, what it has pressed, and who has captured it. */
	class FPointerTracker
	{
	public:
		explicit FPointerTracker(FSlateApplication& InApplication) : Application(InApplication) {}

		bool Move(const FPointerEvent& InEvent);
		bool ButtonDown(const FPointerEvent& InEvent);
		bool DoubleClick(const FPointerEvent& InEvent);
		bool ButtonUp(const FPointerEvent& InEvent);
		bool Wheel(const FPointerEvent& InEvent);

		/** Looks again at what is under the mouse, because widgets moved. */
		void RefreshHovering();
		/** Nothing is hovered any more. */
		void Leave();

		void Capture(const TSharedRef<SWidget>& Widget);
		/** The one who had it is told. */
		void ReleaseCapture();
		/** A captor that left its window loses the capture. */
		void ValidateCapture();
		TSharedPtr<SWidget> GetCaptor() const { return Captor.Pin(); }

		void DetectDrag(const TSharedRef<SWidget>& Widget, FKey Button, FVector2f Origin);

		/** True when the press makes a double click with the one before. */
		bool IsDoubleClick(const FPointerEvent& Event) const;

		const TSet<FKey>& GetPressedButtons() const { return PressedButtons; }
		FVector2f GetPosition() const { return Position; }
		FVector2f GetLastPosition() const { return LastPosition; }
		void SetPosition(FVector2f NewPosition);
		bool IsInside() const { return bInside; }
		bool IsDirectlyOver(const SWidget* Widget) const;
		/** The widgets that are hovered. */
		FWidgetPath GetHoveredPath() const { return Hovered.ToWidgetPath(); }

	private:
		/** Empty when nobody has captured the mouse. */
		FWidgetPath GetCaptorPath();
		FWidgetPath Locate(const FPointerEvent& Event) const;
		void UpdateHovering(const FWidgetPath& UnderMouse, const FPointerEvent& Event);
		void UpdateCursor(const FWidgetPath& UnderMouse, const FPointerEvent& Event);
		bool CheckDrag(const FPointerEvent& Event);
		void FocusUnderMouse(const FWidgetPath& Path, const TSharedPtr<SWidget>& FocusedBefore);
		FPointerEvent MakeSyntheticMove() const;

		template <typename AskType>
		FRoutedReply Route(const FWidgetPath& UnderMouse, AskType&& Ask);

		FSlateApplication& Application;
		TSet<FKey> PressedButtons;
		FVector2f Position = FVector2f(0.0f, 0.0f);
		FVector2f LastPosition = FVector2f(0.0f, 0.0f);
		bool bInside = false;

		FWeakWidgetPath Hovered;
		TWeakPtr<SWidget> Captor;

		TWeakPtr<SWidget> DragWidget;
		FKey DragButton;
		FVector2f DragOrigin = FVector2f(0.0f, 0.0f);

		FKey LastPressButton;
		FVector2f LastPressPosition = FVector2f(0.0f, 0.0f);
		/** Far in the past, so that the first press is not a second one. */
		double LastPressTime = -1.0e9;
	};
}

#include "Layout/DragScroll.h"

#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "Layout/Oriented.h"

namespace Host
{
	void FDragScroll::Press()
	{
		bPending = true;
		Distance = 0.0f;
	}

	void FDragScroll::Cancel()
	{
		bPending = false;
		bDragging = false;
	}

	bool FDragScroll::Move(const FPointerEvent& MouseEvent, EOrientation Orientation, float Scale, float& OutUnits)
	{
		const float Delta = Along(FVector2f(MouseEvent.GetCursorDelta()), Orientation);
		Distance += FMath::Abs(Delta);
		const bool bBegins = !bDragging && Distance >= FSlateApplication::Get().GetDragTriggerDistance();
		bDragging |= bBegins;
		OutUnits = bDragging ? -Delta / Scale : 0.0f;
		return bBegins;
	}

	void FDragScroll::NoteScrolled(float Units)
	{
		Inertia.AddScrollSample(Units, FSlateApplication::Get().GetCurrentTime());
	}

	bool FDragScroll::Release()
	{
		const bool bWasDragging = bDragging;
		Cancel();
		if (bWasDragging)
		{
			// A pause before letting go means that the content shall stay.
			NoteScrolled(0.0f);
		}
		return bWasDragging;
	}

	float FDragScroll::TakeMotion(float DeltaTime)
	{
		Inertia.UpdateScrollVelocity(DeltaTime);
		return Inertia.GetScrollVelocity() * DeltaTime;
	}
}

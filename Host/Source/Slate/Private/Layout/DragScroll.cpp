#include "Layout/DragScroll.h"

#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "Layout/Oriented.h"
#include "Widgets/SWidget.h"

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

	TOptional<FReply> FDragScroll::Move(SWidget& Captor, const FGeometry& Geometry, const FPointerEvent& MouseEvent, EOrientation Orientation, TFunctionRef<float(float Units)> Scroll)
	{
		if (!bPending || !MouseEvent.IsMouseButtonDown(EKeys::RightMouseButton))
		{
			Cancel();
			return TOptional<FReply>();
		}
		FReply Reply = FReply::Handled();
		const float Delta = Along(FVector2f(MouseEvent.GetCursorDelta()), Orientation);
		Distance += FMath::Abs(Delta);
		if (!bDragging && Distance >= FSlateApplication::Get().GetDragTriggerDistance())
		{
			bDragging = true;
			Reply.CaptureMouse(Captor.AsShared());
		}
		if (bDragging)
		{
			NoteScrolled(Scroll(-Delta / Geometry.Scale));
		}
		return Reply;
	}

	void FDragScroll::NoteScrolled(float Units)
	{
		Inertia.AddScrollSample(Units, FSlateApplication::Get().GetCurrentTime());
	}

	TOptional<FReply> FDragScroll::Release(const FPointerEvent& MouseEvent, bool& bOutGoesOn)
	{
		bOutGoesOn = false;
		if (MouseEvent.GetEffectingButton() != EKeys::RightMouseButton || !bPending)
		{
			return TOptional<FReply>();
		}
		bOutGoesOn = bDragging;
		Cancel();
		if (!bOutGoesOn)
		{
			return FReply::Handled();
		}
		// A pause before letting go means that the content shall stay.
		NoteScrolled(0.0f);
		return FReply::Handled().ReleaseMouseCapture();
	}

	float FDragScroll::TakeMotion(float DeltaTime)
	{
		Inertia.UpdateScrollVelocity(DeltaTime);
		return Inertia.GetScrollVelocity() * DeltaTime;
	}
}

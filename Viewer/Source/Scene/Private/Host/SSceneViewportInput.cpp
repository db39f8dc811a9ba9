#include "Host/SSceneViewport.h"
#include "InputCoreTypes.h"

namespace Host
{
	namespace
	{
		/** Local units that a press may move and still be a click. */
		constexpr double ClickReach = 4.0;
		/** Degrees for a way as long as the view is high. */
		constexpr double OrbitTurn = 170.0;
		/** Distance that is left after one notch of the wheel. */
		constexpr double ZoomStep = 0.85;
		/** Radii of a volume that a double click shows about it. */
		constexpr double FocusRadii = 3.0;

		bool IsDragButton(const FKey& Button)
		{
			return Button == EKeys::LeftMouseButton || Button == EKeys::RightMouseButton || Button == EKeys::MiddleMouseButton;
		}

		FVector2D GetPosition(const FGeometry& Geometry, const FPointerEvent& Event)
		{
			return FVector2D(Geometry.AbsoluteToLocal(Event.GetScreenSpacePosition()));
		}
	}

	FReply SSceneViewport::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
	{
		if (Press.IsSet() || !IsDragButton(MouseEvent.GetEffectingButton()))
		{
			return FReply::Unhandled();
		}
		Press = FPress{ MouseEvent.GetEffectingButton(), GetPosition(MyGeometry, MouseEvent) };
		return FReply::Handled().CaptureMouse(AsShared());
	}

	FReply SSceneViewport::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
	{
		if (!Press.IsSet() || Press->Button != MouseEvent.GetEffectingButton())
		{
			return FReply::Unhandled();
		}
		const bool bClicked = Press->Button == EKeys::LeftMouseButton && !Press->bDragged;
		Press.Reset();
		if (bClicked)
		{
			FSceneHit Hit;
			OnVolumeClicked.ExecuteIfBound(Pick(GetPosition(MyGeometry, MouseEvent), Hit) ? Hit.Volume : INDEX_NONE, MouseEvent);
		}
		return FReply::Handled().ReleaseMouseCapture();
	}

	FReply SSceneViewport::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
	{
		const FVector2D Position = GetPosition(MyGeometry, MouseEvent);
		Cursor = Position;
		if (!Press.IsSet())
		{
			HoverAt(Position);
			return FReply::Handled();
		}
		const FVector2D Way = Position - Press->Position;
		if (!Press->bDragged && Way.Size() > ClickReach)
		{
			Press->bDragged = true;
			Hover(INDEX_NONE);
		}
		if (Press->bDragged)
		{
			Press->Position = Position;
			Drag(Way);
		}
		return FReply::Handled();
	}

	void SSceneViewport::Drag(const FVector2D& Way)
	{
		const double Height = FMath::Max(1.0, GetViewSize().Y);
		MoveCamera([&](FSceneCamera& Moved)
		{
			if (Press->Button == EKeys::LeftMouseButton)
			{
				Moved.Orbit(OrbitTurn * Way.X / Height, -OrbitTurn * Way.Y / Height);
			}
			else
			{
				Moved.Pan(Way, Height);
			}
		});
	}

	FReply SSceneViewport::OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
	{
		const FVector2D Position = GetPosition(MyGeometry, MouseEvent);
		const FSceneView View = Camera.GetView();
		const FVector Direction = View.Deproject(Position, GetViewSize());
		FVector Around = Camera.GetGoal().Target;
		FSceneHit Hit;
		if (Pick(Position, Hit))
		{
			Around = Hit.Place;
		}
		else if (const double Distance = RayCaster->GetDistanceToGround(View.Location, Direction); Distance > 0.0)
		{
			// Far toward the horizon, the ground would draw the target away from the scene.
			Around = View.Location + Direction * FMath::Min(Distance, 2.0 * Camera.GetPose().Distance);
		}
		MoveCamera([&](FSceneCamera& Moved) { Moved.Zoom(FMath::Pow(ZoomStep, static_cast<double>(MouseEvent.GetWheelDelta())), Around); });
		return FReply::Handled();
	}

	FReply SSceneViewport::OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
	{
		if (MouseEvent.GetEffectingButton() != EKeys::LeftMouseButton)
		{
			return FReply::Unhandled();
		}
		FSceneHit Hit;
		const bool bHit = Pick(GetPosition(MyGeometry, MouseEvent), Hit);
		const FBox Bounds = bHit ? Content->GetVolumeBounds(Hit.Volume) : FBox(ForceInit);
		if (!bHit || !GetSubject().IsInsideOrOn(Bounds.Min) || !GetSubject().IsInsideOrOn(Bounds.Max))
		{
			FrameAll();
			return FReply::Handled();
		}
		const double Radius = FocusRadii * 0.5 * (Bounds.Max - Bounds.Min).Size();
		MoveCamera([&](FSceneCamera& Moved) { Moved.Focus((Bounds.Min + Bounds.Max) * 0.5, Radius, GetAspectRatio()); });
		return FReply::Handled();
	}

	void SSceneViewport::OnMouseLeave(const FPointerEvent& MouseEvent)
	{
		SLeafWidget::OnMouseLeave(MouseEvent);
		Cursor.Reset();
		Hover(INDEX_NONE);
	}

	void SSceneViewport::OnMouseCaptureLost(const FCaptureLostEvent&)
	{
		Press.Reset();
	}

	void SSceneViewport::HoverAt(const FVector2D& Position)
	{
		FSceneHit Hit;
		Hover(Pick(Position, Hit) ? Hit.Volume : INDEX_NONE);
	}

	void SSceneViewport::Hover(int32 Volume)
	{
		if (Volume != HoveredVolume)
		{
			HoveredVolume = Volume;
			OnVolumeHovered.ExecuteIfBound(Volume);
		}
	}
}

#include "Host/SSceneViewport.h"

#include "Brushes/SlateColorBrush.h"
#include "Host/Texture.h"
#include "Layout/PaintGeometry.h"
#include "Rendering/DrawElements.h"

namespace Host
{
	namespace
	{
		/** Shown where no scene can be. */
		const FLinearColor PlainBackground(0.34f, 0.38f, 0.42f);

		FIntPoint GetPixelSize(const FGeometry& Geometry)
		{
			const FVector2D Size(Geometry.GetDrawSize());
			return FIntPoint(FMath::RoundToInt32(Size.X), FMath::RoundToInt32(Size.Y));
		}
	}

	SSceneViewport::SSceneViewport()
		: Quality(FSimpleDelegate::CreateLambda([this]
		{
			MotionQuality.Forget();
			Invalidate(EInvalidateWidgetReason::Paint);
		}))
	{
	}

	void SSceneViewport::Construct(const FArguments& InArgs)
	{
		Content = InArgs._Content.IsValid() ? InArgs._Content : MakeShared<FSceneContent>();
		Picture = MakeUnique<FScenePicture>(InArgs._WindowRenderer);
		RayCaster = MakeUnique<FSceneRayCaster>(Content.ToSharedRef());
		OnVolumeHovered = InArgs._OnVolumeHovered;
		OnVolumeClicked = InArgs._OnVolumeClicked;
		Camera.SetBounds(Content->GetBounds());
		Camera.Finish();
	}

	void SSceneViewport::ContentChanged()
	{
		MoveCamera([this](FSceneCamera& Moved) { Moved.SetBounds(GetSubject()); });
	}

	void SSceneViewport::SetSubject(const FBox& InSubject)
	{
		Subject = InSubject;
		ContentChanged();
	}

	void SSceneViewport::MoveCamera(TFunctionRef<void(FSceneCamera&)> Move)
	{
		Move(Camera);
		Invalidate(EInvalidateWidgetReason::Paint);
		ViewChanged.Broadcast();
		if (Camera.IsMoving() && !EasingTimer.IsValid())
		{
			EasingTimer = RegisterActiveTimer(0.0f, FWidgetActiveTimerDelegate::CreateSP(this, &SSceneViewport::Ease));
		}
	}

	EActiveTimerReturnType SSceneViewport::Ease(double, float DeltaTime)
	{
		if (bEasing)
		{
			MotionQuality.NoteFrame(DeltaTime);
		}
		else
		{
			// Before it there may have been no frame for long.
			bEasing = true;
			const FIntPoint Size = GetPixelSize(GetCachedGeometry());
			MotionQuality.Begin(int64(Size.X) * Size.Y);
		}
		if (Camera.Tick(DeltaTime))
		{
			Invalidate(EInvalidateWidgetReason::Paint);
			ViewChanged.Broadcast();
		}
		if (Camera.IsMoving())
		{
			return EActiveTimerReturnType::Continue;
		}
		bEasing = false;
		if (MotionQuality.IsReduced())
		{
			Invalidate(EInvalidateWidgetReason::Paint);
		}
		MotionQuality.End();
		if (Cursor.IsSet() && !Press.IsSet())
		{
			// Under a cursor that rests there may be something else by now.
			HoverAt(Cursor.GetValue());
		}
		return EActiveTimerReturnType::Stop;
	}

	void SSceneViewport::SetCoveredSides(double Left, double Right)
	{
		CoveredLeft = Left;
		CoveredRight = Right;
	}

	void SSceneViewport::FrameAll()
	{
		MoveCamera([this](FSceneCamera& Moved)
		{
			const double Height = FMath::Max(1.0, GetViewSize().Y);
			// A window may have become narrower than what covers it.
			constexpr double LeastAspectRatio = 0.1;
			Moved.Frame(GetSubject(), FMath::Max(LeastAspectRatio, GetAspectRatio() - (CoveredLeft + CoveredRight) / Height));
			if (CoveredLeft != CoveredRight)
			{
				Moved.Pan(FVector2D(0.5 * (CoveredLeft - CoveredRight), 0.0), Height);
			}
		});
	}

	FBox2D SSceneViewport::GetFreeArea(const FVector2D& Size) const
	{
		return FBox2D(FVector2D(CoveredLeft, 0.0), FVector2D(FMath::Max(CoveredLeft, Size.X - CoveredRight), Size.Y));
	}

	bool SSceneViewport::IsInSight(const FVector& Place)
	{
		const FSceneView View = Camera.GetView();
		return ((Place - View.Location) | View.Forward) > 0.0 && !RayCaster->IsBlocked(View.Location, Place);
	}

	ESceneSpot SSceneViewport::Locate(const FVector& Place, FVector2D& OutPosition)
	{
		const FSceneView View = Camera.GetView();
		const FVector2D Size = GetViewSize();
		if (!View.Project(Place, Size, OutPosition) || !GetFreeArea(Size).IsInsideOrOn(OutPosition))
		{
			return ESceneSpot::OutOfView;
		}
		return RayCaster->IsBlocked(View.Location, Place) ? ESceneSpot::Hidden : ESceneSpot::InSight;
	}

	int32 SSceneViewport::CountSeenPlaces(const FSceneView& View, int32 Volume)
	{
		const FBox Bounds = Content->GetVolumeBounds(Volume);
		const FVector2D Size = GetViewSize();
		const FBox2D Free = GetFreeArea(Size);
		// Corners a little inside: at the very end it is chance what a ray meets.
		constexpr double Shares[] = { 0.05, 0.5, 0.95 };
		int32 NumSeen = 0;
		for (const double X : Shares)
		{
			for (const double Y : Shares)
			{
				for (const double Z : Shares)
				{
					const FVector Place = Bounds.Min + (Bounds.Max - Bounds.Min) * FVector(X, Y, Z);
					FVector2D Pixel;
					FSceneHit Hit;
					NumSeen += View.Project(Place, Size, Pixel) && Free.IsInsideOrOn(Pixel) && RayCaster->Cast(View.Location, Place - View.Location, Hit) && Hit.Volume == Volume;
				}
			}
		}
		return NumSeen;
	}

	void SSceneViewport::RevealVolume(int32 Volume)
	{
		/** Places that make a volume well seen. */
		constexpr int32 Enough = 4;
		constexpr double TurnStep = 20.0;
		constexpr double TiltStep = 15.0;
		FSceneCamera Goal = Camera;
		Goal.Finish();
		if (CountSeenPlaces(Goal.GetView(), Volume) > 0)
		{
			return;
		}
		FVector2D Best = FVector2D::ZeroVector;
		int32 MostSeen = 0;
		for (int32 Turn = 0; Turn <= 9 && MostSeen < Enough; ++Turn)
		{
			for (int32 Tilt = 0; Tilt <= 3; ++Tilt)
			{
				for (const double Side : { 1.0, -1.0 })
				{
					const FVector2D Way(Side * TurnStep * Turn, -TiltStep * Tilt);
					FSceneCamera Tried = Goal;
					Tried.Orbit(Way.X, Way.Y);
					Tried.Finish();
					if (const int32 NumSeen = CountSeenPlaces(Tried.GetView(), Volume); NumSeen > MostSeen)
					{
						MostSeen = NumSeen;
						Best = Way;
					}
				}
			}
		}
		if (MostSeen > 0)
		{
			MoveCamera([&](FSceneCamera& Moved) { Moved.Orbit(Best.X, Best.Y); });
		}
	}

	bool SSceneViewport::Pick(const FVector2D& Position, FSceneHit& OutHit)
	{
		const FSceneView View = Camera.GetView();
		return RayCaster->Cast(View.Location, View.Deproject(Position, GetViewSize()), OutHit);
	}

	double SSceneViewport::GetAspectRatio() const
	{
		const FVector2D Size(GetCachedGeometry().GetLocalSize());
		return Size.X > 0.0 && Size.Y > 0.0 ? Size.X / Size.Y : 1.0;
	}

	FVector2D SSceneViewport::ComputeDesiredSize(float) const
	{
		// As large as it is given.
		return FVector2D(0.0, 0.0);
	}

	int32 SSceneViewport::OnPaint(const FPaintArgs&, const FGeometry& AllottedGeometry, const FSlateRect&, FSlateWindowElementList& OutDrawElements, int32 LayerId,
		const FWidgetStyle& InWidgetStyle, bool) const
	{
		const FIntPoint Size = GetPixelSize(AllottedGeometry);
		if (Size.X <= 0 || Size.Y <= 0)
		{
			return LayerId;
		}
		const FLinearColor Tint = InWidgetStyle.GetColorAndOpacityTint();
		if (const TSharedPtr<const FTexture> Texture = Picture->Update(*Content, Camera.GetView(), Size, MotionQuality.Apply(Quality.Get())))
		{
			FSlateDrawElement::MakeTexture(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), Texture.ToSharedRef(), ESlateDrawEffect::None, Tint);
		}
		else
		{
			const FSlateColorBrush Brush(FLinearColor::White);
			FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), &Brush, ESlateDrawEffect::None, PlainBackground * Tint);
		}
		return LayerId;
	}
}

#include "Host/SlateRoot.h"

#include "Algo/Reverse.h"
#include "Host/SlateCounters.h"
#include "Host/WidgetExtras.h"
#include "Host/WidgetPasses.h"
#include "Rendering/DrawElements.h"
#include "Widgets/SWindow.h"

namespace Host
{
	namespace
	{
		/** More rectangles cost a renderer more than the pixels that they save. */
		constexpr int32 MaxDamage = 8;

		/** Rounds of layout in which widgets may answer to a new geometry. */
		constexpr int32 MaxRounds = 4;
	}

	FSlateRoot::~FSlateRoot()
	{
		SetWidget(nullptr);
	}

	void FSlateRoot::SetWidget(SWidget* InWidget)
	{
		if (Widget)
		{
			Widget->bIsRoot = false;
			Widget->GetExtras().Root = nullptr;
			Widget->State.bInView = false;
		}
		Widget = InWidget;
		if (Widget)
		{
			checkf(!Widget->State.Parent, TEXT("%s has a parent, so it cannot be the top of a tree"), *Widget->ToString());
			Widget->bIsRoot = true;
			Widget->GetExtras().Root = this;
		}
		bNeedsFrame = true;
		DamageEverything();
	}

	void FSlateRoot::SetSize(FIntPoint InSizePixels, float InScale)
	{
		if (SizePixels == InSizePixels && Scale == InScale)
		{
			return;
		}
		SizePixels = InSizePixels;
		Scale = InScale;
		bNeedsFrame = true;
		DamageEverything();
	}

	void FSlateRoot::Layout(double CurrentTime)
	{
		const FVector2f LocalSize(SizePixels.X / Scale, SizePixels.Y / Scale);
		const FGeometry Geometry = FGeometry::MakeRoot(LocalSize, FSlateLayoutTransform(Scale));
		for (int32 Round = 0; Round < MaxRounds; ++Round)
		{
			FWidgetPasses::Prepass(*Widget, Scale);
			FWidgetPasses::Arrange(*Widget, Geometry);
			TickMoved(CurrentTime);
			// Those that tick, and those that learn something from the room they are given, may ask for another round.
			if (!EnumHasAnyFlags(Widget->State.Dirt, EWidgetDirt::AnyPrepass | EWidgetDirt::AnyArrange))
			{
				break;
			}
		}
		FWidgetPasses::MovedTickers.Reset();
	}

	void FSlateRoot::TickMoved(double CurrentTime)
	{
		const TArray<TWeakPtr<SWidget>> Moved = MoveTemp(FWidgetPasses::MovedTickers);
		FWidgetPasses::MovedTickers.Reset();
		for (const TWeakPtr<SWidget>& Weak : Moved)
		{
			if (const TSharedPtr<SWidget> Ticking = Weak.Pin())
			{
				++FSlateCounters::Get().Ticked;
				Ticking->Tick(Ticking->GetCachedGeometry(), CurrentTime, 0.0f);
			}
		}
	}

	bool FSlateRoot::RunFrame(double CurrentTime, float DeltaTime)
	{
		// A widget that ticks while a frame is made may ask for the layout to be brought up to date: that is being done.
		if (!bNeedsFrame || !Widget || FWidgetPasses::CurrentRoot)
		{
			return !Damage.IsEmpty();
		}
		const TSharedRef<SWidget> KeepAlive = Widget->AsShared();
		bNeedsFrame = false;
		FWidgetPasses::CurrentRoot = this;
		Layout(CurrentTime);

		FWidgetState& State = Widget->State;
		const FSlateRect Picture(0.0f, 0.0f, static_cast<float>(SizePixels.X), static_cast<float>(SizePixels.Y));
		if (EnumHasAnyFlags(State.Dirt, EWidgetDirt::AnyPaint) || !State.bInView || !(State.Inputs.CullingRect == Picture))
		{
			FSlateWindowElementList List(nullptr);
			FClipState Clip;
			Clip.Rect = FPixelRect::Make(0, 0, SizePixels.X, SizePixels.Y);
			List.PushClipState(Clip);
			State.bWasInView = State.bInView;
			FWidgetPasses::Paint(*Widget, FPaintArgs(nullptr, CurrentTime, DeltaTime), State.Geometry, Picture, List, 0, FWidgetStyle(), true);
		}
		FWidgetPasses::CurrentRoot = nullptr;
		return !Damage.IsEmpty();
	}

	void FSlateRoot::DamageEverything()
	{
		Damage.Reset();
		AddDamage(FPixelRect::Everything());
		++Generation;
	}

	void FSlateRoot::AddDamage(const FPixelRect& InArea)
	{
		FPixelRect Area = InArea.Intersect(FPixelRect::Make(0, 0, SizePixels.X, SizePixels.Y));
		if (Area.IsEmpty())
		{
			return;
		}
		for (int32 Index = 0; Index < Damage.Num();)
		{
			const FPixelRect Both = Damage[Index].Union(Area);
			if (Both == Damage[Index])
			{
				return;
			}
			// Together they are hardly larger than apart.
			if (Both.Area() <= Damage[Index].Area() + Area.Area() + 1024)
			{
				Area = Both;
				Damage.RemoveAtSwap(Index, EAllowShrinking::No);
				Index = 0;
				continue;
			}
			++Index;
		}
		if (Damage.Num() < MaxDamage)
		{
			Damage.Add(Area);
			return;
		}
		int32 Best = 0;
		int64 BestWaste = TNumericLimits<int64>::Max();
		for (int32 Index = 0; Index < Damage.Num(); ++Index)
		{
			const int64 Waste = Damage[Index].Union(Area).Area() - Damage[Index].Area();
			if (Waste < BestWaste)
			{
				BestWaste = Waste;
				Best = Index;
			}
		}
		Damage[Best] = Damage[Best].Union(Area);
	}

	void FSlateRoot::ForEachElement(const FPixelRect& Area, TFunctionRef<void(TConstArrayView<FDrawElement>)> Visitor) const
	{
		if (Widget)
		{
			FWidgetPasses::VisitElements(*Widget, Area, Visitor);
		}
	}

	void FSlateRoot::ForEachWidget(TFunctionRef<bool(SWidget&)> Visitor) const
	{
		if (Widget)
		{
			FWidgetPasses::VisitWidgets(*Widget, Visitor);
		}
	}

	TArray<FArrangedWidget> FSlateRoot::HitTest(FVector2f Point) const
	{
		TArray<FArrangedWidget> Path;
		if (Widget)
		{
			FWidgetPasses::HitTest(*Widget, Point, Path);
			Algo::Reverse(Path);
		}
		return Path;
	}
}

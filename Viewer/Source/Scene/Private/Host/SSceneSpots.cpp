#include "Host/SSceneSpots.h"

#include "Brushes/SlateRoundedBoxBrush.h"
#include "Host/SSceneViewport.h"
#include "InputCoreTypes.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/PaintGeometry.h"
#include "Rendering/DrawElements.h"
#include "Widgets/Layout/SBox.h"

namespace Host
{
	namespace
	{
		// In local units.

		/** Between two widgets that would cover each other. */
		constexpr double Gap = 4.0;
		/** Between the place of an open widget and the widget, and between that and the end of the free area. */
		constexpr double OpenGap = 22.0;
		constexpr double EdgeGap = 12.0;
		/** A widget farther than this from its place is told by a line where it belongs. */
		constexpr double LeastLine = 3.0;
		constexpr float LineWidth = 2.0f;
		constexpr float DotSize = 8.0f;

		/** Nearer ones may push one after the other. */
		constexpr int32 MaxPushes = 8;

		/** As near as possible to the value, the first limit counting more. */
		double ClampTo(double Value, double Least, double Most)
		{
			return FMath::Max(Least, FMath::Min(Most, Value));
		}

		double GetReach(const FBox2D& Box)
		{
			const FVector2D Size = Box.GetSize();
			return 0.5 * FMath::Max(Size.X, Size.Y);
		}
	}

	void SSceneSpots::FSlot::Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs)
	{
		TSlotBase<FSlot>::Construct(SlotOwner, MoveTemp(InArgs));
		Place = InArgs.Place;
	}

	SSceneSpots::SSceneSpots()
		: Slots(this)
	{
	}

	SSceneSpots::~SSceneSpots()
	{
		Viewport->OnViewChanged().Remove(ViewChangedHandle);
	}

	void SSceneSpots::Construct(const FArguments& InArgs)
	{
		Viewport = InArgs._Viewport;
		LineColour = InArgs._LineColour;
		OnEscape = InArgs._OnEscape;
		SetHasCustomPrepass(true);
		ViewChangedHandle = Viewport->OnViewChanged().AddRaw(this, &SSceneSpots::Update);
	}

	int32 SSceneSpots::Add(const FVector& Place, const TSharedRef<SWidget>& Widget)
	{
		FSlot::FSlotArguments Arguments(MakeUnique<FSlot>());
		Arguments.Place = Place;
		// The widget's own visibility is its own matter.
		Arguments[SNew(SBox)[Widget]];
		const int32 Index = Slots.AddSlot(MoveTemp(Arguments));
		Order.Add(Index);
		Update();
		return Index;
	}

	void SSceneSpots::SetOpen(int32 Index)
	{
		if (Open != Index)
		{
			Open = Index;
			Invalidate(EInvalidateWidgetReason::Layout);
		}
	}

	bool SSceneSpots::IsShown(int32 Index) const
	{
		return Slots[Index].bInSight;
	}

	void SSceneSpots::Update()
	{
		++NumUpdates;
		const FSceneView View = Viewport->GetCamera().GetView();
		for (int32 Index = 0; Index < Slots.Num(); ++Index)
		{
			FSlot& Slot = Slots[Index];
			Slot.Depth = (Slot.Place - View.Location) | View.Forward;
			Slot.bInSight = Viewport->IsInSight(Slot.Place);
			Slot.GetWidget()->SetVisibility(Slot.bInSight ? EVisibility::SelfHitTestInvisible : EVisibility::Collapsed);
		}
		Order.Sort([this](int32 A, int32 B) { return Slots[A].Depth != Slots[B].Depth ? Slots[A].Depth > Slots[B].Depth : A < B; });
		Invalidate(EInvalidateWidgetReason::Layout);
	}

	FReply SSceneSpots::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
	{
		if (InKeyEvent.GetKey() == EKeys::Escape && Open != INDEX_NONE && OnEscape.IsBound())
		{
			OnEscape.Execute();
			return FReply::Handled();
		}
		return SPanel::OnKeyDown(MyGeometry, InKeyEvent);
	}

	bool SSceneSpots::CustomPrepass(float)
	{
		// A widget of another size lies elsewhere, and so does the line to it.
		Invalidate(EInvalidateWidgetReason::Paint);
		return true;
	}

	FVector2D SSceneSpots::ComputeDesiredSize(float) const
	{
		// As large as it is given.
		return FVector2D(0.0, 0.0);
	}

	FBox2D SSceneSpots::PlaceOpen(const FVector2D& Point, const FVector2D& Size, const FVector2D& Room) const
	{
		const FBox2D Free = Viewport->GetFreeArea(Room);
		const double Above = Point.Y - OpenGap - Size.Y;
		const double Top = Above >= Free.Min.Y + EdgeGap ? Above : Point.Y + OpenGap;
		const FVector2D TopLeft(ClampTo(Point.X - 0.5 * Size.X, Free.Min.X + EdgeGap, Free.Max.X - EdgeGap - Size.X),
			ClampTo(Top, Free.Min.Y + EdgeGap, Free.Max.Y - EdgeGap - Size.Y));
		return FBox2D(TopLeft, TopLeft + Size);
	}

	void SSceneSpots::LinkToCell(int32 PlacedIndex, const FVector2D& Centre) const
	{
		const int32 X = FMath::Clamp(FMath::FloorToInt32(Centre.X / CellSize), 0, NumCells.X - 1);
		const int32 Y = FMath::Clamp(FMath::FloorToInt32(Centre.Y / CellSize), 0, NumCells.Y - 1);
		int32& Last = LastInCell[Y * NumCells.X + X];
		BeforeInCell[PlacedIndex] = Last;
		Last = PlacedIndex;
	}

	void SSceneSpots::KeepApart(int32 Own) const
	{
		const double Reach = GetReach(Placed[Own].Box);
		FVector2D Centre = Placed[Own].Box.GetCenter();
		for (int32 Push = 0; Push < MaxPushes; ++Push)
		{
			// The one that is covered most; cells are so large that only neighbours can be.
			int32 Nearest = INDEX_NONE;
			double Most = 0.0;
			const FIntPoint Cell(FMath::FloorToInt32(Centre.X / CellSize), FMath::FloorToInt32(Centre.Y / CellSize));
			for (int32 Y = FMath::Max(0, Cell.Y - 1); Y <= FMath::Min(NumCells.Y - 1, Cell.Y + 1); ++Y)
			{
				for (int32 X = FMath::Max(0, Cell.X - 1); X <= FMath::Min(NumCells.X - 1, Cell.X + 1); ++X)
				{
					for (int32 Other = LastInCell[Y * NumCells.X + X]; Other != INDEX_NONE; Other = BeforeInCell[Other])
					{
						const double Covered = Reach + GetReach(Placed[Other].Box) + Gap - FVector2D::Distance(Centre, Placed[Other].Box.GetCenter());
						if (Covered > Most)
						{
							Most = Covered;
							Nearest = Other;
						}
					}
				}
			}
			constexpr double Unseen = 0.01;
			if (Most <= Unseen)
			{
				break;
			}
			const FVector2D Away = Centre - Placed[Nearest].Box.GetCenter();
			// Of two at one place the farther one goes up, as things that are farther away do.
			Centre += (Away.SizeSquared() > Unseen ? Away.GetSafeNormal() : FVector2D(0.0, -1.0)) * Most;
		}
		const FVector2D Half = 0.5 * Placed[Own].Box.GetSize();
		Placed[Own].Box = FBox2D(Centre - Half, Centre + Half);
		LinkToCell(Own, Centre);
	}

	void SSceneSpots::FindPlaced(const FVector2D& Room) const
	{
		Placed.Reset();
		const FSceneView View = Viewport->GetCamera().GetView();
		for (int32 Place = Order.Num() - 1; Place >= 0; --Place)
		{
			const FSlot& Slot = Slots[Order[Place]];
			FVector2D Point;
			if (Slot.bInSight && View.Project(Slot.Place, Room, Point) && FBox2D(FVector2D(0.0, 0.0), Room).IsInsideOrOn(Point))
			{
				const FVector2D Half = 0.5 * FVector2D(Slot.GetWidget()->GetDesiredSize());
				Placed.Add({ Order[Place], Point, FBox2D(Point - Half, Point + Half) });
			}
		}
	}

	void SSceneSpots::KeepAllApart(const FVector2D& Room) const
	{
		double LargestReach = 1.0;
		for (const FPlaced& Each : Placed)
		{
			LargestReach = Each.Index == Open ? LargestReach : FMath::Max(LargestReach, GetReach(Each.Box));
		}
		CellSize = 2.0 * LargestReach + Gap;
		NumCells = FIntPoint(1 + FMath::FloorToInt32(Room.X / CellSize), 1 + FMath::FloorToInt32(Room.Y / CellSize));
		LastInCell.Init(INDEX_NONE, NumCells.X * NumCells.Y);
		BeforeInCell.SetNumUninitialized(Placed.Num());
		for (int32 Own = 0; Own < Placed.Num(); ++Own)
		{
			if (Placed[Own].Index != Open)
			{
				KeepApart(Own);
			}
		}
	}

	void SSceneSpots::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
	{
		const FVector2D Room(AllottedGeometry.GetLocalSize());
		if (Room.X <= 0.0 || Room.Y <= 0.0)
		{
			Placed.Reset();
			return;
		}
		FindPlaced(Room);
		KeepAllApart(Room);
		const FVector2D Origin(AllottedGeometry.AbsolutePosition);
		const auto Arrange = [&](FPlaced& Each)
		{
			// On whole pixels, so that text is as sharp as elsewhere.
			const FVector2D Pixel = Origin + Each.Box.Min * AllottedGeometry.Scale;
			const FVector2D TopLeft = (FVector2D(FMath::RoundToDouble(Pixel.X), FMath::RoundToDouble(Pixel.Y)) - Origin) / AllottedGeometry.Scale;
			Each.Box = FBox2D(TopLeft, TopLeft + Each.Box.GetSize());
			ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Slots[Each.Index].GetWidget(), TopLeft, Each.Box.GetSize()));
		};
		FPlaced* OpenOne = nullptr;
		for (int32 Index = Placed.Num() - 1; Index >= 0; --Index)
		{
			if (Placed[Index].Index == Open)
			{
				OpenOne = &Placed[Index];
				OpenOne->Box = PlaceOpen(OpenOne->Point, OpenOne->Box.GetSize(), Room);
			}
			else
			{
				Arrange(Placed[Index]);
			}
		}
		if (OpenOne)
		{
			Arrange(*OpenOne);
		}
	}

	int32 SSceneSpots::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
	{
		const FSlateRoundedBoxBrush Dot(LineColour, 0.5f * DotSize);
		for (const FPlaced& Each : Placed)
		{
			if (FVector2D::Distance(Each.Box.GetCenter(), Each.Point) <= LeastLine)
			{
				continue;
			}
			FSlateDrawElement::MakeLines(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), { FVector2f(Each.Point), FVector2f(Each.Box.GetClosestPointTo(Each.Point)) },
				ESlateDrawEffect::None, LineColour, true, LineWidth);
			const FVector2f Half(0.5f * DotSize, 0.5f * DotSize);
			FSlateDrawElement::MakeBox(OutDrawElements, LayerId + 1, AllottedGeometry.ToPaintGeometry(2.0f * Half, FSlateLayoutTransform(FVector2f(Each.Point) - Half)), &Dot,
				ESlateDrawEffect::None, LineColour);
		}
		return PaintArrangedChildren(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId + 2, InWidgetStyle, bParentEnabled);
	}
}

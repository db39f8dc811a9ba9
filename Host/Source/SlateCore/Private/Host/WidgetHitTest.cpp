#include <cmath>

#include "Host/WidgetPasses.h"

namespace Host
{
	namespace
	{
		bool IsInside(const FClipState& Clip, FVector2f Point)
		{
			if (!(Point.X >= Clip.Rect.Left && Point.X < Clip.Rect.Right && Point.Y >= Clip.Rect.Top && Point.Y < Clip.Rect.Bottom))
			{
				return false;
			}
			if (!Clip.Quads.IsValid())
			{
				return true;
			}
			for (const FClipQuad& Quad : Clip.Quads->Quads)
			{
				for (const FClipQuad::FEdge& Edge : Quad.Edges)
				{
					if (Edge.A * Point.X + Edge.B * Point.Y + Edge.C < 0.0f)
					{
						return false;
					}
				}
			}
			return true;
		}
	}

	bool FWidgetPasses::HitTest(SWidget& Widget, FVector2f Point, TArray<FArrangedWidget>& OutPath)
	{
		const FWidgetState& State = Widget.State;
		const FPixelRect& Bounds = State.TreeBounds;
		if (!State.bInView || !(Point.X >= Bounds.Left && Point.X < Bounds.Right && Point.Y >= Bounds.Top && Point.Y < Bounds.Bottom))
		{
			return false;
		}
		bool bHit = false;
		if (Widget.Visibility.AreChildrenHitTestVisible())
		{
			// Later children lie on top, and the list runs forward only.
			TArray<SWidget*, TInlineAllocator<16>> Candidates;
			for (SWidget* Child = State.FirstArranged; Child; Child = Child->State.NextArranged)
			{
				const FPixelRect& ChildBounds = Child->State.TreeBounds;
				if (Point.X >= ChildBounds.Left && Point.X < ChildBounds.Right && Point.Y >= ChildBounds.Top && Point.Y < ChildBounds.Bottom)
				{
					Candidates.Add(Child);
				}
			}
			for (int32 Index = Candidates.Num() - 1; Index >= 0 && !bHit; --Index)
			{
				bHit = HitTest(*Candidates[Index], Point, OutPath);
			}
		}
		if (!bHit && Widget.Visibility.IsHitTestVisible())
		{
			bHit = IsInside(State.Inputs.Clip, Point) && State.Geometry.IsUnderLocation(Point);
		}
		if (bHit)
		{
			OutPath.Add(FArrangedWidget(Widget.AsShared(), State.Geometry));
		}
		return bHit;
	}

	void FWidgetPasses::VisitWidgets(SWidget& Widget, TFunctionRef<bool(SWidget&)> Visitor)
	{
		if (Widget.State.bInView && Visitor(Widget))
		{
			for (SWidget* Child = Widget.State.FirstArranged; Child; Child = Child->State.NextArranged)
			{
				VisitWidgets(*Child, Visitor);
			}
		}
	}
}

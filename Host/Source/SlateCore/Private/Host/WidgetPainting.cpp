#include "Host/ElementDifference.h"
#include "Host/SlateCounters.h"
#include "Host/SlateRoot.h"
#include "Host/WidgetExtras.h"
#include "Host/WidgetPasses.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/Clipping.h"
#include "Rendering/DrawElements.h"
#include "Styling/SlateBrush.h"

namespace Host
{
	FSlateRoot* FWidgetPasses::CurrentRoot = nullptr;

	namespace
	{
		/** Arrays that take elements while they are painted, one for each level of nesting and side of the children. */
		class FElementScratch
		{
		public:
			static FElementScratch& Get()
			{
				static FElementScratch Scratch;
				return Scratch;
			}

			TArray<FDrawElement>& Take()
			{
				if (NumTaken == Arrays.Num())
				{
					Arrays.Add(MakeUnique<TArray<FDrawElement>>());
				}
				TArray<FDrawElement>& Taken = *Arrays[NumTaken++];
				Taken.Reset();
				return Taken;
			}

			void Return(int32 Count) { NumTaken -= Count; }

		private:
			TArray<TUniquePtr<TArray<FDrawElement>>> Arrays;
			int32 NumTaken = 0;
		};

		/** The widget whose OnPaint runs. */
		struct FPaintingWidget
		{
			const SWidget* Widget = nullptr;
			TArray<FDrawElement>* Under = nullptr;
			TArray<FDrawElement>* Over = nullptr;
			bool bPaintsOver = false;
		};

		FPaintingWidget Painting;
		/** Something that came into view is being painted: all of it is damaged in the end, so its parts need not be. */
		bool bDamageFollows = false;

		void Damage(const FPixelRect& Area)
		{
			if (FWidgetPasses::CurrentRoot && !bDamageFollows)
			{
				FWidgetPasses::CurrentRoot->AddDamage(Area);
			}
		}

		bool ClipsToItself(EWidgetClipping Clipping, const FGeometry& Geometry, FVector2f DesiredSize)
		{
			switch (Clipping)
			{
			case EWidgetClipping::Inherit:
				return false;
			case EWidgetClipping::OnDemand:
				return DesiredSize.X > Geometry.Size.X || DesiredSize.Y > Geometry.Size.Y;
			default:
				return true;
			}
		}

		/** What those ancestors clip to whose clipping nothing escapes, and the picture. */
		FClipState GetInescapableClip(const SWidget& Widget)
		{
			FClipState Clip;
			if (FWidgetPasses::CurrentRoot)
			{
				const FIntPoint Size = FWidgetPasses::CurrentRoot->GetSizePixels();
				Clip.Rect = FPixelRect::Make(0, 0, Size.X, Size.Y);
			}
			for (const SWidget* Ancestor = FWidgetPasses::StateOf(Widget).Parent; Ancestor; Ancestor = FWidgetPasses::StateOf(*Ancestor).Parent)
			{
				if (Ancestor->GetClipping() == EWidgetClipping::ClipToBoundsAlways)
				{
					Clip = Clip.Intersect(FSlateClippingZone(FWidgetPasses::StateOf(*Ancestor).Geometry));
				}
			}
			return Clip;
		}

		void PaintFocus(const SWidget& Widget, FSlateWindowElementList& List, int32 LayerId)
		{
			if (const FSlateBrush* Brush = Widget.GetFocusBrush())
			{
				FSlateDrawElement::MakeBox(List, LayerId, Widget.GetCachedGeometry().ToPaintGeometry(), Brush, ESlateDrawEffect::None, Brush->GetTint(FWidgetStyle()));
			}
		}

		FSlateRect ToRect(const FPixelRect& Rect)
		{
			return FSlateRect(Rect.Left, Rect.Top, Rect.Right, Rect.Bottom);
		}
	}

	int32 FWidgetPasses::Paint(const SWidget& Widget, const FPaintArgs& Args, const FGeometry& Geometry, const FSlateRect& CullingRect, FSlateWindowElementList& List,
		int32 LayerId, const FWidgetStyle& Style, bool bParentEnabled)
	{
		if (IsNull(Widget))
		{
			return LayerId;
		}
		checkf(Widget.State.bArranged || !Widget.State.Parent, TEXT("%s painted %s, which it did not arrange"), *Widget.State.Parent->ToString(), *Widget.ToString());
		++FSlateCounters::Get().Visited;
		if (Painting.Widget && !Painting.bPaintsOver)
		{
			// What the parent paints from now on lies above its children.
			Painting.bPaintsOver = true;
			List.EndWidget();
			List.BeginWidget(*Painting.Over);
		}
		FWidgetState& State = Widget.State;
		if (!(State.Geometry == Geometry) || EnumHasAnyFlags(State.Dirt, EWidgetDirt::AnyArrange))
		{
			// Painted elsewhere than it was arranged, or never arranged.
			Arrange(const_cast<SWidget&>(Widget), Geometry);
		}
		FPaintInputs& Inputs = State.Inputs;
		const FClipState& Clip = List.GetClipState();
		const bool bSame = State.bHasInputs && Inputs.bParentEnabled == bParentEnabled && Inputs.Style == Style && Inputs.CullingRect == CullingRect && Inputs.Clip == Clip;
		if (!bSame)
		{
			Inputs.Style = Style;
			Inputs.CullingRect = CullingRect;
			Inputs.Clip = Clip;
			Inputs.bParentEnabled = bParentEnabled;
			State.bHasInputs = true;
		}
		Inputs.LayerId = LayerId;

		const bool bAppears = !State.bWasInView;
		State.bInView = true;
		const bool bDamageFollowed = bDamageFollows;
		bDamageFollows |= bAppears;
		if (!bSame || EnumHasAnyFlags(State.Dirt, EWidgetDirt::Paint))
		{
			PaintAnew(Widget, Args, List);
		}
		else
		{
			PaintDirtyChildren(Widget, Args, List);
		}
		bDamageFollows = bDamageFollowed;
		if (bAppears && !bDamageFollows && CurrentRoot)
		{
			DamageTree(Widget, *CurrentRoot);
		}
		return LayerId + State.LayerSpan;
	}

	void FWidgetPasses::PaintAnew(const SWidget& Widget, const FPaintArgs& Args, FSlateWindowElementList& List)
	{
		++FSlateCounters::Get().Painted;
		FWidgetState& State = Widget.State;
		State.Dirt &= ~EWidgetDirt::AnyPaint;
		SWidget* DirtyChildren = TakeDirtyChildren(State);
		for (SWidget* Child = State.FirstArranged; Child; Child = Child->State.NextArranged)
		{
			Child->State.bWasInView = Child->State.bInView;
			Child->State.bInView = false;
		}

		FElementScratch& Scratch = FElementScratch::Get();
		const FPaintingWidget Outer = Painting;
		Painting = FPaintingWidget{ &Widget, &Scratch.Take(), &Scratch.Take(), false };
		FSlateRect CullingRect = State.Inputs.CullingRect;
		const bool bClips = PushClipping(Widget, List, CullingRect);
		FWidgetStyle Style = State.Inputs.Style;
		if (Widget.RenderOpacity != 1.0f)
		{
			Style.BlendOpacity(Widget.RenderOpacity);
		}
		List.BeginWidget(*Painting.Under);
		int32 TopLayer = Widget.OnPaint(Args.WithNewParent(State.Parent), State.Geometry, CullingRect, List, State.Inputs.LayerId, Style, State.Inputs.bParentEnabled);
		if (Widget.bShowsFocus)
		{
			PaintFocus(Widget, List, ++TopLayer);
		}
		List.EndWidget();
		if (bClips)
		{
			List.PopClip();
		}
		State.LayerSpan = FMath::Max(TopLayer - State.Inputs.LayerId, 0);
		FSlateCounters::Get().Elements += Painting.Under->Num() + Painting.Over->Num();
		StoreElements(State.Elements, *Painting.Under);
		if (State.bHasOverElements || !Painting.Over->IsEmpty())
		{
			StoreElements(Widget.GetExtras().OverElements, *Painting.Over);
			State.bHasOverElements = !Widget.GetExtras().OverElements.IsEmpty();
		}
		Scratch.Return(2);
		Painting = Outer;

		for (SWidget* Child = State.FirstArranged; Child; Child = Child->State.NextArranged)
		{
			if (Child->State.bWasInView && !Child->State.bInView && CurrentRoot && !bDamageFollows)
			{
				DamageTree(*Child, *CurrentRoot);
			}
		}
		SettleDirtyChildren(State, DirtyChildren);
		State.TreeBounds = ComputeTreeBounds(Widget);
		if (CurrentRoot)
		{
			++CurrentRoot->Generation;
		}
	}

	void FWidgetPasses::PaintDirtyChildren(const SWidget& Widget, const FPaintArgs& Args, FSlateWindowElementList& List)
	{
		FWidgetState& State = Widget.State;
		if (!EnumHasAnyFlags(State.Dirt, EWidgetDirt::ChildPaint))
		{
			return;
		}
		State.Dirt &= ~EWidgetDirt::ChildPaint;
		SWidget* DirtyChildren = TakeDirtyChildren(State);
		for (SWidget* Child = DirtyChildren; Child; Child = Child->State.NextDirty)
		{
			FWidgetState& ChildState = Child->State;
			if (!ChildState.bInView || !EnumHasAnyFlags(ChildState.Dirt, EWidgetDirt::AnyPaint))
			{
				continue;
			}
			++FSlateCounters::Get().Visited;
			const FPixelRect Before = ChildState.TreeBounds;
			if (EnumHasAnyFlags(ChildState.Dirt, EWidgetDirt::Paint))
			{
				List.PushClipState(ChildState.Inputs.Clip);
				PaintAnew(*Child, Args, List);
				List.PopClip();
			}
			else
			{
				PaintDirtyChildren(*Child, Args, List);
			}
			GrowTreeBounds(Widget, Before, ChildState.TreeBounds);
		}
		SettleDirtyChildren(State, DirtyChildren);
	}

	SWidget* FWidgetPasses::TakeDirtyChildren(FWidgetState& State)
	{
		SWidget* Queue = State.FirstDirty;
		State.FirstDirty = nullptr;
		return Queue;
	}

	void FWidgetPasses::SettleDirtyChildren(FWidgetState& State, SWidget* Queue)
	{
		while (Queue)
		{
			SWidget* Child = Queue;
			Queue = Child->State.NextDirty;
			Child->State.bQueued = false;
			Child->State.NextDirty = nullptr;
			// Marked again meanwhile. Children that the passes do not reach keep their dirt, but need no place in the queue.
			if (EnumHasAnyFlags(ToChildFlags(Child->State.Dirt), State.Dirt))
			{
				Enqueue(State, *Child);
			}
		}
	}

	void FWidgetPasses::StoreElements(TArray<FDrawElement>& Kept, TArray<FDrawElement>& Painted)
	{
		const int32 NumBefore = Kept.Num();
		const int32 NumNow = Painted.Num();
		for (int32 Index = 0, Count = FMath::Max(NumBefore, NumNow); Index < Count; ++Index)
		{
			const bool bBoth = Index < NumBefore && Index < NumNow;
			if (bBoth && IsSameElement(Kept[Index], Painted[Index]))
			{
				continue;
			}
			if (Index < NumBefore && !(bBoth && Kept[Index].Bounds == Painted[Index].Bounds))
			{
				Damage(Kept[Index].Bounds);
			}
			if (Index < NumNow)
			{
				Damage(Painted[Index].Bounds);
			}
		}
		// Kept in memory of exactly that size: there are many widgets, and their elements seldom change in number.
		if (NumBefore == NumNow)
		{
			for (int32 Index = 0; Index < NumNow; ++Index)
			{
				Kept[Index] = MoveTemp(Painted[Index]);
			}
			return;
		}
		Kept.Empty(NumNow);
		for (FDrawElement& Element : Painted)
		{
			Kept.Add(MoveTemp(Element));
		}
	}

	bool FWidgetPasses::PushClipping(const SWidget& Widget, FSlateWindowElementList& List, FSlateRect& InOutCullingRect)
	{
		const FGeometry& Geometry = Widget.State.Geometry;
		if (!ClipsToItself(Widget.Clipping, Geometry, Widget.State.DesiredSize))
		{
			return false;
		}
		const FSlateClippingZone Zone(Geometry);
		if (Widget.Clipping == EWidgetClipping::ClipToBoundsWithoutIntersecting)
		{
			const FClipState Clip = GetInescapableClip(Widget).Intersect(Zone);
			InOutCullingRect = ToRect(Clip.Rect);
			List.PushClipState(Clip);
		}
		else
		{
			InOutCullingRect = InOutCullingRect.IntersectionWith(Zone.GetBoundingBox());
			List.PushClip(Zone);
		}
		return true;
	}

	FPixelRect FWidgetPasses::ComputeTreeBounds(const SWidget& Widget)
	{
		const FWidgetState& State = Widget.State;
		const FSlateRect Box = State.Geometry.GetRenderBoundingRect();
		FPixelRect Bounds = FPixelRect::Around(Box.Left, Box.Top, Box.Right, Box.Bottom).Intersect(State.Inputs.Clip.Rect);
		for (const FDrawElement& Element : State.Elements)
		{
			Bounds = Bounds.Union(Element.Bounds);
		}
		if (State.bHasOverElements)
		{
			for (const FDrawElement& Element : Widget.GetExtras().OverElements)
			{
				Bounds = Bounds.Union(Element.Bounds);
			}
		}
		for (const SWidget* Child = State.FirstArranged; Child; Child = Child->State.NextArranged)
		{
			if (Child->State.bInView)
			{
				Bounds = Bounds.Union(Child->State.TreeBounds);
			}
		}
		return Bounds;
	}

	void FWidgetPasses::GrowTreeBounds(const SWidget& Widget, const FPixelRect& Before, const FPixelRect& After)
	{
		FPixelRect& Bounds = Widget.State.TreeBounds;
		if (Before == After)
		{
			return;
		}
		const bool bHeldAnEdge = !Before.IsEmpty()
			&& (Before.Left <= Bounds.Left || Before.Top <= Bounds.Top || Before.Right >= Bounds.Right || Before.Bottom >= Bounds.Bottom);
		Bounds = bHeldAnEdge && !After.Contains(Before) ? ComputeTreeBounds(Widget) : Bounds.Union(After);
	}

	void FWidgetPasses::DamageTree(const SWidget& Widget, FSlateRoot& Root)
	{
		const FWidgetState& State = Widget.State;
		for (const FDrawElement& Element : State.Elements)
		{
			Root.AddDamage(Element.Bounds);
		}
		for (const SWidget* Child = State.FirstArranged; Child; Child = Child->State.NextArranged)
		{
			if (Child->State.bInView)
			{
				DamageTree(*Child, Root);
			}
		}
		if (State.bHasOverElements)
		{
			for (const FDrawElement& Element : Widget.GetExtras().OverElements)
			{
				Root.AddDamage(Element.Bounds);
			}
		}
		++Root.Generation;
	}

	void FWidgetPasses::VisitElements(const SWidget& Widget, const FPixelRect& Area, TFunctionRef<void(TConstArrayView<FDrawElement>)> Visitor)
	{
		const FWidgetState& State = Widget.State;
		if (!State.bInView || !State.TreeBounds.Intersects(Area))
		{
			return;
		}
		if (!State.Elements.IsEmpty())
		{
			Visitor(State.Elements);
		}
		for (const SWidget* Child = State.FirstArranged; Child; Child = Child->State.NextArranged)
		{
			VisitElements(*Child, Area, Visitor);
		}
		if (State.bHasOverElements)
		{
			Visitor(Widget.GetExtras().OverElements);
		}
	}
}

#include "Rendering/DrawElements.h"

#include "Layout/Clipping.h"
#include "Widgets/SWindow.h"

FSlateWindowElementList::FSlateWindowElementList(const TSharedPtr<SWindow>& InPaintWindow)
	: PaintWindow(InPaintWindow)
{
	ClipStack.Add(Host::FClipState());
}

void FSlateWindowElementList::PushClip(const FSlateClippingZone& InClipZone)
{
	ClipStack.Add(ClipStack.Last().Intersect(InClipZone));
}

void FSlateWindowElementList::PopClip()
{
	checkf(ClipStack.Num() > 1, TEXT("more clipping zones popped than were pushed"));
	ClipStack.Pop(EAllowShrinking::No);
}

void FSlateWindowElementList::PushClipState(const Host::FClipState& State)
{
	ClipStack.Add(State);
}

void FSlateWindowElementList::Append(Host::FDrawElement&& Element)
{
	checkf(Targets.Num() > 0, TEXT("an element was painted outside of a widget"));
	const Host::FClipState& Clip = ClipStack.Last();
	Element.Bounds = Element.Bounds.Intersect(Clip.Rect);
	if (Element.Bounds.IsEmpty())
	{
		return;
	}
	Element.ClipQuads = Clip.Quads;

	TArray<Host::FDrawElement>& Elements = *Targets.Last();
	int32 Index = Elements.Num();
	while (Index > 0 && Elements[Index - 1].Layer > Element.Layer)
	{
		--Index;
	}
	Elements.Insert(MoveTemp(Element), Index);
	++NumAppended;
}

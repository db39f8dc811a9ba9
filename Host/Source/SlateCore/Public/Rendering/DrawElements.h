#pragma once

#include "CoreMinimal.h"
#include "Host/ClipState.h"
#include "Rendering/DrawElementTypes.h"

class FSlateClippingZone;
class SWindow;

/**
 * Where painting goes. The list holds no elements itself: it appends to the array of the widget that is being painted,
 * so that a widget keeps what it painted until it is painted again. It also holds the clipping in force.
 */
class SLATECORE_API FSlateWindowElementList
{
public:
	/** The window may be null when a tree is painted that stands in no window. */
	explicit FSlateWindowElementList(const TSharedPtr<SWindow>& InPaintWindow);
	FSlateWindowElementList(const FSlateWindowElementList&) = delete;
	FSlateWindowElementList& operator=(const FSlateWindowElementList&) = delete;

	SWindow* GetPaintWindow() const { return PaintWindow.Get(); }

	/** Clips what is appended from now on to the zone too, given in window pixels. Each push is undone by PopClip. */
	void PushClip(const FSlateClippingZone& InClipZone);
	void PopClip();

	/** Replaces the clipping in force until PopClip: for repainting one widget under the clipping of its last painting. */
	void PushClipState(const Host::FClipState& State);

	/** The clipping in force. */
	const Host::FClipState& GetClipState() const { return ClipStack.Last(); }

	/**
	 * Names the array that takes the elements until EndWidget. Calls nest. The array must outlive the nest level and not
	 * move. It is not emptied.
	 */
	void BeginWidget(TArray<Host::FDrawElement>& Elements) { Targets.Add(&Elements); }
	void EndWidget() { Targets.Pop(EAllowShrinking::No); }

	/** Appends an element, after those of the same widget whose layer is not greater. Without bounds it is dropped. */
	void Append(Host::FDrawElement&& Element);

	/** Elements appended since the list was made, over all widgets. */
	int32 GetNumAppended() const { return NumAppended; }

private:
	TSharedPtr<SWindow> PaintWindow;
	TArray<Host::FClipState> ClipStack;
	TArray<TArray<Host::FDrawElement>*> Targets;
	int32 NumAppended = 0;
};

#pragma once

#include "CoreMinimal.h"
#include "Host/DrawElement.h"

namespace Host
{
	/** Takes elements in paint order, the lowest first, some at a time. */
	using FElementVisitor = TFunctionRef<void(TConstArrayView<FDrawElement>)>;

	/** One picture of a window: what changed, and how to come by the elements. */
	struct FWindowFrame
	{
		/** Filled in before the elements, as straight sRGB; alpha below 255 makes see-through pictures. */
		FColor ClearColour = FColor(0, 0, 0, 255);
		/** The parts that may differ from the last frame. Nothing outside is touched. Overlaps do no harm. */
		TConstArrayView<FPixelRect> Damage;
		/**
		 * Hands the visitor all elements, in paint order, that may touch the area. Called at least once for each frame with
		 * damage. The elements stay in place until DrawFrame returns.
		 */
		TFunctionRef<void(const FPixelRect& Area, FElementVisitor Visitor)> Traverse;
	};

	/** The drawing surface of one window. */
	class FWindowSurface
	{
	public:
		virtual ~FWindowSurface() = default;

		virtual FIntPoint GetSize() const = 0;

		/** Changes the size in pixels. The content is lost: the next frame must damage everything. */
		virtual void Resize(FIntPoint Size) = 0;

		/** Redraws the damaged parts and shows the result, if the surface belongs to a visible window. */
		virtual void DrawFrame(const FWindowFrame& Frame) = 0;

		/** Shows again what was drawn last, because the system lost it. */
		virtual void Present() = 0;

		/** What was drawn last: straight alpha, rows from the top. */
		virtual void ReadPixels(TArray<FColor>& OutPixels, FIntPoint& OutSize) = 0;
	};

	/** Work of the renderer since it was made; differences between two readings belong to what happened between. */
	struct FRenderCounters
	{
		int64 Frames = 0;
		/** Elements drawn, counted again for each damaged part that they touch. */
		int64 Elements = 0;
		/** Draw calls, or passes over pixels for the CPU renderer: then equal to Elements. */
		int64 DrawCalls = 0;
		/** Pixels of damage. */
		int64 DamagedPixels = 0;
		/** Bytes of pictures and glyphs handed to the graphics processor. */
		int64 UploadedBytes = 0;
	};
}

/** Draws the elements of windows. There is one renderer in a process; all calls on the game thread. */
class SLATECORE_API FSlateRenderer
{
public:
	virtual ~FSlateRenderer() = default;

	/**
	 * Makes ready to draw. On failure nothing is held and OutError says in one line what is missing; it may be tried again.
	 * A renderer that is ready stays as it is and gives true, so that whoever made it may have initialised it already.
	 */
	virtual bool Initialize(FString& OutError) = 0;

	/** Frees everything; logs what was not given back. Surfaces must be gone. */
	virtual void Destroy() = 0;

	/** "cpu" or "gl". */
	virtual const TCHAR* GetName() const = 0;

	/**
	 * Makes the surface for a window.
	 * @param NativeWindow	handle of the system's window (FGenericWindow::GetOSWindowHandle), or null to draw without one
	 * @return null after an error, which is logged
	 */
	virtual TUniquePtr<Host::FWindowSurface> CreateSurface(FIntPoint Size, void* NativeWindow) = 0;

	/**
	 * Directs OpenGL commands to the renderer's context, so that a scene can be drawn into a texture for FTexture::MakeNative.
	 * To be called again whenever windows were drawn in between. Objects that the scene makes live in this context, and go
	 * before the renderer is destroyed.
	 * @return false when the renderer does not draw with OpenGL
	 */
	virtual bool BeginNativeDrawing() { return false; }

	/**
	 * Tells of a part that was filled in of a picture that is not shown yet (FTexture::MakeUnfilled). A renderer with a memory
	 * of its own takes it there now, so that the frame which shows the picture first need not take all of it.
	 */
	virtual void TakeFilled(const TSharedRef<const Host::FTexture>& /*Texture*/, const Host::FPixelRect& /*Area*/) {}

	const Host::FRenderCounters& GetCounters() const { return Counters; }

protected:
	Host::FRenderCounters Counters;
};

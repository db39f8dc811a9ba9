#pragma once

#include "CoreMinimal.h"
#include "Host/PixelRect.h"

namespace Host
{
	/** Whether the colour channels of given pixels are already multiplied by their alpha. */
	enum class EPixelAlpha : uint8
	{
		Straight,
		Premultiplied,
		/** The alpha channel is meaningless; every pixel is taken as opaque. */
		Ignored,
	};

	/**
	 * A picture that draw elements show: 8 bits a channel in the order B, G, R, A, sRGB, kept premultiplied, rows from
	 * the top without gaps. Either immutable, or updatable: then each change raises the generation, by which a renderer
	 * knows that its copy is old. Used on the game thread only.
	 */
	class FTexture
	{
	public:
		/** Largest width and height. */
		static constexpr int32 MaxSize = 16384;

		/**
		 * @param Size	width and height in pixels, each from 1 to MaxSize
		 * @param Pixels	Size.X * Size.Y pixels, FColor order in memory
		 */
		static TSharedRef<const FTexture> Make(FIntPoint Size, TConstArrayView<FColor> Pixels, EPixelAlpha Alpha, FString DebugName = FString());

		/** As Make, but pixels can be replaced later. Starts out with the given pixels, or transparent when there are none. */
		static TSharedRef<FTexture> MakeUpdatable(FIntPoint Size, TConstArrayView<FColor> Pixels, EPixelAlpha Alpha, FString DebugName = FString());

		/**
		 * As MakeUpdatable, for a picture that is filled part by part before it is shown: its pixels are undefined until then, and
		 * it is opaque when all that it is filled with is. Filled by whole rows from the top, it makes the smaller levels along
		 * with each part, so that the frame which shows it first has nothing left to make.
		 */
		static TSharedRef<FTexture> MakeUnfilled(FIntPoint Size, FString DebugName = FString());

		/**
		 * A picture that lives in the memory of the OpenGL renderer only, such as a rendered scene. It has no pixels here,
		 * so the CPU renderer draws nothing for it.
		 * @param NativeHandle	texture name in a context that shares with the renderer's; whoever made it deletes it
		 * @param bBottomUp	true when the first row is the lowest, as in a framebuffer
		 */
		static TSharedRef<FTexture> MakeNative(FIntPoint Size, uint32 NativeHandle, bool bBottomUp, FString DebugName = FString());

		~FTexture();
		FTexture(const FTexture&) = delete;
		FTexture& operator=(const FTexture&) = delete;

		FIntPoint GetSize() const { return Size; }
		bool IsUpdatable() const { return bUpdatable; }
		/** True when every pixel is known to have full alpha. An update can make it false, never true again. */
		bool IsOpaque() const { return bOpaque; }
		/** Unique in this process, never used again. */
		uint64 GetId() const { return Id; }
		/** Raised by each update; 1 in the beginning. */
		uint32 GetGeneration() const { return Generation; }
		uint32 GetNativeHandle() const { return NativeHandle; }
		bool IsBottomUp() const { return bBottomUp; }
		/** Shown in logs and by graphics debuggers. */
		const FString& GetDebugName() const { return DebugName; }

		/** Premultiplied pixels of the full size; empty for a native texture. */
		const uint32* GetPixels() const;

		/**
		 * The picture halved Level times in each direction (at least one pixel stays), averaged over two by two pixels.
		 * Made when first asked for, as far as it is not there yet. Level 0 is the picture itself.
		 */
		const uint32* GetMip(int32 Level, FIntPoint& OutSize) const;
		/** Number of levels down to one pixel, level 0 included. */
		int32 GetNumMips() const;

		/**
		 * What is there of a level by now, and nothing is made for it: rows from the top that are filled in or made. Those of
		 * level 0 are followed while a picture is filled by whole rows from the top.
		 * @return null when OutNumRows is 0
		 */
		const uint32* GetReadyRows(int32 Level, int32& OutNumRows) const;

		/** Replaces a part of an updatable texture. Pixels holds the rows of Area, which must lie within the texture. */
		void Update(const FPixelRect& Area, TConstArrayView<FColor> Pixels, EPixelAlpha Alpha);

		/** Pixels written into the textures of this process so far, those of smaller levels included: the work they made. */
		static int64 GetNumWrittenPixels();

		/** Textures alive now, for the account at shutdown. */
		static int32 GetNumAlive();

	private:
		FTexture(FIntPoint InSize, FString InDebugName);
		void AllocatePixels(TConstArrayView<FColor> Source, EPixelAlpha Alpha);
		void Store(const FPixelRect& Area, TConstArrayView<FColor> Source, EPixelAlpha Alpha);

		struct FMip
		{
			FIntPoint Size = FIntPoint(0, 0);
			TArray<uint32> Pixels;
			/** Rows from the top that are made and up to date. */
			int32 NumRows = 0;
		};

		/** Makes what is missing of the first smaller levels, as far as the first rows of the picture give it. */
		void MakeMips(int32 Count, int32 NumSourceRows) const;

		FIntPoint Size;
		TArray<uint32> Pixels;
		/** Levels from 1 on, as far as they are made. */
		mutable TArray<FMip> Mips;
		FString DebugName;
		uint64 Id;
		/** Rows from the top that are filled in, as far as that is followed; all of them for a picture that was made with pixels. */
		int32 NumFilledRows;
		uint32 Generation = 1;
		uint32 NativeHandle = 0;
		bool bUpdatable = false;
		bool bOpaque = true;
		bool bBottomUp = false;
	};
}

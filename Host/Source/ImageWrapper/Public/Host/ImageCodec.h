#pragma once

#include "CoreMinimal.h"
#include "IImageWrapper.h"

namespace Host
{
	/** WebP, which the engine's own module does not read. Reading only. */
	inline constexpr EImageFormat WebPImageFormat = static_cast<EImageFormat>(64);

	/** What is refused before memory is taken for it. */
	struct FImageLimits
	{
		/** Largest width and height. */
		static constexpr int32 MaxSize = 16384;
		/** Most pixels: 256 MiB of them. */
		static constexpr int64 MaxPixels = 64 * 1024 * 1024;
		/** Most passes of a progressive file; each costs as much as the whole image. */
		static constexpr int32 MaxScans = 200;

		/** False, with the reason, for sizes that are not accepted. */
		static bool Accept(int64 Width, int64 Height, FString& OutError);
	};

	/** Reads and writes image files, and says what is wrong with them. May be used on any thread. */
	class FImageCodec
	{
	public:
		static EImageFormat Detect(TConstArrayView<uint8> Data);

		/** "PNG", "JPEG" or "WebP". */
		static const TCHAR* GetName(EImageFormat Format);

		/** Reads only as much as tells the size. */
		static bool ReadSize(EImageFormat Format, TConstArrayView<uint8> Data, FIntPoint& OutSize, FString& OutError);

		/** Reads an image. After an error the output is empty, and OutError is one line without position of the file. */
		static bool Decode(EImageFormat Format, TConstArrayView<uint8> Data, FImage& OutImage, FString& OutError);

		/** As above, in whatever format the data is. */
		static bool Decode(TConstArrayView<uint8> Data, FImage& OutImage, FString& OutError);

		/**
		 * Writes an image.
		 * @param Quality	of JPEG, 1 to 100; 0 for 85. PNG loses nothing.
		 */
		static bool Encode(EImageFormat Format, const FImageView& Image, int32 Quality, TArray64<uint8>& OutData, FString& OutError);
	};
}

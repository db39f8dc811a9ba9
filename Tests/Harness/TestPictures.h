#pragma once

#include "CoreMinimal.h"
#include "Host/ImageCodec.h"
#include "Misc/Crc.h"

#include <string>

namespace Host::TestPictures
{
	/** The file of a picture of one colour. */
	inline std::string Make(int32 Width, int32 Height, FColor Colour, EImageFormat Format = EImageFormat::PNG)
	{
		FImage Image;
		Image.Init(Width, Height, ERawImageFormat::BGRA8);
		for (FColor& Pixel : Image.AsBGRA8())
		{
			Pixel = Colour;
		}
		TArray64<uint8> Data;
		FString Error;
		const bool bMade = FImageCodec::Encode(Format, Image, 90, Data, Error);
		checkf(bMade, TEXT("%s"), *Error);
		return std::string(reinterpret_cast<const char*>(Data.GetData()), static_cast<size_t>(Data.Num()));
	}

	/** A small PNG file that says it has so many pixels. */
	inline std::string MakeLyingPng(uint32 Width, uint32 Height)
	{
		std::string File = Make(1, 1, FColor::White);
		// The signature, a length, "IHDR", then width and height; the check sum follows 13 bytes of content.
		constexpr size_t Chunk = 12;
		const auto Put = [&File](size_t Place, uint32 Value)
		{
			for (int32 Index = 0; Index < 4; ++Index)
			{
				File[Place + static_cast<size_t>(Index)] = static_cast<char>(Value >> (24 - 8 * Index));
			}
		};
		Put(Chunk + 4, Width);
		Put(Chunk + 8, Height);
		Put(Chunk + 4 + 13, FCrc::MemCrc32(File.data() + Chunk, 4 + 13));
		return File;
	}
}

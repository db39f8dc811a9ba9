#pragma once

#include "CoreMinimal.h"
#include "ImageCore.h"

/** Formats of image files. */
enum class EImageFormat : int8
{
	/** None that is known. */
	Invalid = -1,
	/** Portable network graphics. */
	PNG = 0,
	/** Joint photographic experts group; without alpha. */
	JPEG = 1,
};

/** Order of the channels of raw pixels. */
enum class ERGBFormat : int8
{
	Invalid = -1,
	RGBA = 0,
	BGRA = 1,
};

/**
 * Turns one image file into pixels, or pixels into a file. What cannot be read is refused with one line in the log.
 */
class IImageWrapper
{
public:
	virtual ~IImageWrapper() = default;

	/** Takes the content of a file. False when it is not in this wrapper's format or its size is beyond all limits. */
	virtual bool SetCompressed(const void* InCompressedData, int64 InCompressedSize) = 0;

	/**
	 * Takes pixels.
	 * @param InBitDepth	bits of a channel: 8
	 * @param InBytesPerRow	from the start of one row to the next; 0 for rows without gaps
	 */
	virtual bool SetRaw(const void* InRawData, int64 InRawSize, const int32 InWidth, const int32 InHeight, const ERGBFormat InFormat, const int32 InBitDepth, const int32 InBytesPerRow = 0) = 0;

	/**
	 * The content of a file with the pixels; empty after an error.
	 * @param Quality	1 to 100 for lossy formats; 0 for the default
	 */
	virtual TArray64<uint8> GetCompressed(int32 Quality = 0) = 0;

	/** The pixels in the given order, 8 bits a channel. False when the file is damaged. */
	virtual bool GetRaw(const ERGBFormat InFormat, int32 InBitDepth, TArray64<uint8>& OutRawData) = 0;

	/** The pixels in the order of GetFormat. */
	virtual bool GetRaw(TArray64<uint8>& OutRawData) = 0;

	/** The image as pixels. False when the file is damaged; the output is then empty. */
	virtual bool GetRawImage(FImage& OutImage) = 0;

	/** Size in pixels; known once data was set. */
	virtual int64 GetWidth() const = 0;
	virtual int64 GetHeight() const = 0;
	virtual int32 GetBitDepth() const = 0;
	virtual ERGBFormat GetFormat() const = 0;
};

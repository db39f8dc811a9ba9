#pragma once

#include "IImageWrapper.h"

/** One image in one format, on top of the codecs. */
class FImageWrapperBase final : public IImageWrapper
{
public:
	FImageWrapperBase(EImageFormat InFormat, FString InDebugName);

	virtual bool SetCompressed(const void* InCompressedData, int64 InCompressedSize) override;
	virtual bool SetRaw(const void* InRawData, int64 InRawSize, const int32 InWidth, const int32 InHeight, const ERGBFormat InFormat, const int32 InBitDepth, const int32 InBytesPerRow) override;
	virtual TArray64<uint8> GetCompressed(int32 Quality) override;
	virtual bool GetRaw(const ERGBFormat InFormat, int32 InBitDepth, TArray64<uint8>& OutRawData) override;
	virtual bool GetRaw(TArray64<uint8>& OutRawData) override;
	virtual bool GetRawImage(FImage& OutImage) override;
	virtual int64 GetWidth() const override { return Size.X; }
	virtual int64 GetHeight() const override { return Size.Y; }
	virtual int32 GetBitDepth() const override { return 8; }
	virtual ERGBFormat GetFormat() const override { return ERGBFormat::BGRA; }

private:
	bool Decode();
	void LogFailure(const FString& Error) const;

	EImageFormat Format;
	FString DebugName;
	FIntPoint Size = FIntPoint(0, 0);
	TArray<uint8> Compressed;
	/** The pixels, once decoded or given. */
	FImage Image;
};

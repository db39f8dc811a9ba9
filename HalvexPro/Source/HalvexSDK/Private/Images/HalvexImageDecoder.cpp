#include "Images/HalvexImageDecoder.h"

#include "IImageWrapper.h"
#include "IImageWrapperModule.h"

namespace
{
	FHalvexDecodedImage MakeFailure(const FString& Error, const bool bTold)
	{
		FHalvexDecodedImage Failure;
		Failure.Error = Error;
		Failure.bErrorTold = bTold;
		return Failure;
	}
}

FHalvexDecodedImage HalvexImageDecoder::Decode(IImageWrapperModule& Codecs, const TArray<uint8>& Content, const FString& Name, const int64 MaxPixels)
{
	const EImageFormat Format = Codecs.DetectImageFormat(Content.GetData(), Content.Num());
	const TSharedPtr<IImageWrapper> Wrapper = Format != EImageFormat::Invalid ? Codecs.CreateImageWrapper(Format, *Name) : nullptr;
	if (!Wrapper.IsValid())
	{
		return MakeFailure(Content.IsEmpty() ? TEXT("the file is empty") : TEXT("the content is no picture of a known format"), false);
	}
	// The wrappers tell the log themselves what is wrong, under the name they were given.
	if (!Wrapper->SetCompressed(Content.GetData(), Content.Num()))
	{
		return MakeFailure(TEXT("the picture is damaged"), true);
	}
	FHalvexDecodedImage Image;
	Image.Width = static_cast<int32>(Wrapper->GetWidth());
	Image.Height = static_cast<int32>(Wrapper->GetHeight());
	if (Wrapper->GetWidth() * Wrapper->GetHeight() > MaxPixels)
	{
		return MakeFailure(FString::Printf(TEXT("the picture has %d x %d pixels, more than the %lld that are accepted"), Image.Width, Image.Height,
			static_cast<long long>(MaxPixels)), false);
	}
	if (!Wrapper->GetRaw(ERGBFormat::BGRA, 8, Image.Pixels))
	{
		return MakeFailure(TEXT("the picture is damaged"), true);
	}
	return Image;
}

#include "Codecs.h"

#include <webp/decode.h>

#include "Host/ImageCodec.h"

namespace Host::Codecs
{
	namespace
	{
		const TCHAR* Describe(VP8StatusCode Status)
		{
			switch (Status)
			{
			case VP8_STATUS_OUT_OF_MEMORY:
				return TEXT("out of memory");
			case VP8_STATUS_UNSUPPORTED_FEATURE:
				return TEXT("uses a feature that is not supported");
			case VP8_STATUS_NOT_ENOUGH_DATA:
			case VP8_STATUS_SUSPENDED:
				return TEXT("the data ends early");
			default:
				return TEXT("the data is damaged");
			}
		}

		bool Fail(VP8StatusCode Status, FString& OutError)
		{
			OutError = FString::Printf(TEXT("WebP: %s"), Describe(Status));
			return false;
		}
	}

	bool ReadWebPSize(TConstArrayView<uint8> Data, FIntPoint& OutSize, FString& OutError)
	{
		WebPBitstreamFeatures Features;
		const VP8StatusCode Status = WebPGetFeatures(Data.GetData(), static_cast<size_t>(Data.Num()), &Features);
		if (Status != VP8_STATUS_OK)
		{
			return Fail(Status, OutError);
		}
		if (Features.has_animation)
		{
			return Fail(VP8_STATUS_UNSUPPORTED_FEATURE, OutError);
		}
		OutSize = FIntPoint(Features.width, Features.height);
		return FImageLimits::Accept(Features.width, Features.height, OutError);
	}

	bool ReadWebP(TConstArrayView<uint8> Data, FImage& OutImage, FString& OutError)
	{
		FIntPoint Size;
		if (!ReadWebPSize(Data, Size, OutError))
		{
			return false;
		}
		OutImage.Init(Size.X, Size.Y, ERawImageFormat::BGRA8);
		WebPDecoderConfig Config;
		WebPInitDecoderConfig(&Config);
		Config.output.colorspace = MODE_BGRA;
		Config.output.is_external_memory = 1;
		Config.output.u.RGBA.rgba = OutImage.RawData.GetData();
		Config.output.u.RGBA.stride = Size.X * 4;
		Config.output.u.RGBA.size = static_cast<size_t>(OutImage.RawData.Num());
		const VP8StatusCode Status = WebPDecode(Data.GetData(), static_cast<size_t>(Data.Num()), &Config);
		return Status == VP8_STATUS_OK || Fail(Status, OutError);
	}
}

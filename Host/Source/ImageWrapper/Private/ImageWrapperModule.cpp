#include "IImageWrapperModule.h"

#include "Host/ImageCodec.h"
#include "ImageWrapperBase.h"
#include "ImageWrapperLog.h"
#include "Modules/ModuleManager.h"

DEFINE_LOG_CATEGORY(LogImageWrapper);

namespace
{
	TConstArrayView<uint8> MakeDataView(const void* Data, int64 Size)
	{
		const bool bUsable = Data && Size > 0 && Size <= MAX_int32;
		return TConstArrayView<uint8>(static_cast<const uint8*>(Data), bUsable ? static_cast<int32>(Size) : 0);
	}

	class FImageWrapperModule final : public IImageWrapperModule
	{
	public:
		virtual TSharedPtr<IImageWrapper> CreateImageWrapper(const EImageFormat InFormat, const TCHAR* InOptionalDebugImageName) override
		{
			if (InFormat != EImageFormat::PNG && InFormat != EImageFormat::JPEG && InFormat != Host::WebPImageFormat)
			{
				return nullptr;
			}
			return MakeShared<FImageWrapperBase>(InFormat, FString(InOptionalDebugImageName ? InOptionalDebugImageName : TEXT("")));
		}

		virtual EImageFormat DetectImageFormat(const void* InCompressedData, int64 InCompressedSize) override
		{
			return Host::FImageCodec::Detect(MakeDataView(InCompressedData, InCompressedSize));
		}

		virtual bool CompressImage(TArray64<uint8>& OutData, EImageFormat ToFormat, const FImageView& InImage, int32 Quality) override
		{
			FString Error;
			if (Host::FImageCodec::Encode(ToFormat, InImage, Quality, OutData, Error))
			{
				return true;
			}
			UE_LOG(LogImageWrapper, Error, TEXT("The image was not written: %s"), *Error);
			return false;
		}

		virtual bool DecompressImage(const void* InCompressedData, int64 InCompressedSize, FImage& OutImage) override
		{
			FString Error;
			if (Host::FImageCodec::Decode(MakeDataView(InCompressedData, InCompressedSize), OutImage, Error))
			{
				return true;
			}
			UE_LOG(LogImageWrapper, Error, TEXT("The image was not read: %s"), *Error);
			return false;
		}
	};
}

IMPLEMENT_MODULE(FImageWrapperModule, ImageWrapper);

#include <cstddef>
#include <cstdint>

#include "Host/ImageCodec.h"

/** Any bytes: read or refused with a reason, never a crash; what was read has as many pixels as it says. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
	FImage Image;
	FString Error;
	const TConstArrayView<uint8> View(Data, static_cast<int32>(Size));
	if (Host::FImageCodec::Decode(View, Image, Error))
	{
		check(Image.RawData.Num() == Image.GetImageSizeBytes());
		check(Error.IsEmpty());
	}
	else
	{
		check(Image.RawData.Num() == 0);
		check(!Error.IsEmpty());
	}
	return 0;
}

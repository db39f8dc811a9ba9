#include "Host/FontFileStream.h"

namespace Host
{
	FFontFileStream::~FFontFileStream()
	{
		if (File)
		{
			std::fclose(File);
		}
	}

	bool FFontFileStream::Open(const FString& Filename)
	{
		File = std::fopen(TCHAR_TO_UTF8(*Filename), "rb");
		if (!File || std::fseek(File, 0, SEEK_END) != 0)
		{
			return false;
		}
		const long Size = std::ftell(File);
		// What cannot be sized, such as a folder, reports an enormous or a negative size.
		if (Size < 0 || Size == LONG_MAX)
		{
			return false;
		}
		Stream.size = static_cast<unsigned long>(Size);
		Stream.descriptor.pointer = this;
		Stream.read = &FFontFileStream::Read;
		return true;
	}

	TArray<uint8> FFontFileStream::ReadStart(int32 Count)
	{
		TArray<uint8> Bytes;
		Bytes.SetNumUninitialized(static_cast<int32>(FMath::Min<int64>(Count, GetSize())));
		Bytes.SetNum(static_cast<int32>(Read(&Stream, 0, Bytes.GetData(), static_cast<unsigned long>(Bytes.Num()))));
		return Bytes;
	}

	unsigned long FFontFileStream::Read(FT_Stream Stream, unsigned long Offset, unsigned char* Buffer, unsigned long Count)
	{
		std::FILE* File = static_cast<FFontFileStream*>(Stream->descriptor.pointer)->File;
		const bool bFound = Offset <= Stream->size && std::fseek(File, static_cast<long>(Offset), SEEK_SET) == 0;
		if (Count == 0)
		{
			// FreeType only wants to know whether one can go there; anything but 0 means no.
			return bFound ? 0 : 1;
		}
		return bFound ? std::fread(Buffer, 1, Count, File) : 0;
	}
}

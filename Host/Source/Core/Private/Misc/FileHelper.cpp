#include "Misc/FileHelper.h"

#include "Containers/StringConv.h"
#include "Host/Files.h"
#include "Logging/LogMacros.h"
#include "Math/NumericLimits.h"

namespace
{
	constexpr TCHAR ByteOrderMark = 0xFEFF;

	bool HasBytes(const uint8* Buffer, int32 Size, std::initializer_list<uint8> Start)
	{
		if (Size < int32(Start.size()))
		{
			return false;
		}
		for (const uint8 Byte : Start)
		{
			if (*Buffer++ != Byte)
			{
				return false;
			}
		}
		return true;
	}

	/** The text of 16-bit units, either byte first. A last half unit is left out. */
	void ReadUnits(FString& Result, const uint8* Buffer, int32 Size, bool bLowByteFirst)
	{
		TArray<TCHAR> Units;
		Units.Reserve(Size / 2);
		for (int32 Index = 0; Index + 1 < Size; Index += 2)
		{
			const uint8 First = Buffer[Index];
			const uint8 Second = Buffer[Index + 1];
			Units.Add(bLowByteFirst ? TCHAR(First | Second << 8) : TCHAR(First << 8 | Second));
		}
		Result = FString(Units.Num(), Units.GetData());
	}

	void AppendUnit(TArray<uint8>& Bytes, TCHAR Unit)
	{
		Bytes.Add(uint8(Unit));
		Bytes.Add(uint8(Unit >> 8));
	}

	TArray<uint8> EncodeUtf16(FStringView Text)
	{
		TArray<uint8> Bytes;
		Bytes.Reserve(2 * Text.Len() + 2);
		AppendUnit(Bytes, ByteOrderMark);
		for (const TCHAR Unit : Text)
		{
			AppendUnit(Bytes, Unit);
		}
		return Bytes;
	}

	TArray<uint8> EncodeUtf8(FStringView Text, bool bMark)
	{
		TArray<uint8> Bytes;
		if (bMark)
		{
			Bytes.Append({0xEF, 0xBB, 0xBF});
		}
		const FTCHARToUTF8 Utf8(Text.GetData(), Text.Len());
		Bytes.Append(reinterpret_cast<const uint8*>(Utf8.Get()), Utf8.Length());
		return Bytes;
	}

	TArray<uint8> EncodeAscii(FStringView Text)
	{
		TArray<uint8> Bytes;
		Bytes.Reserve(Text.Len());
		for (const TCHAR Unit : Text)
		{
			Bytes.Add(Unit < 0x80 ? uint8(Unit) : uint8('?'));
		}
		return Bytes;
	}

	TArray<uint8> Encode(FStringView Text, FFileHelper::EEncodingOptions Options)
	{
		using EEncodingOptions = FFileHelper::EEncodingOptions;
		if (Options == EEncodingOptions::AutoDetect)
		{
			Options = FCString::IsPureAnsi(Text.GetData(), Text.Len()) ? EEncodingOptions::ForceAnsi : EEncodingOptions::ForceUnicode;
		}
		switch (Options)
		{
		case EEncodingOptions::ForceUnicode: return EncodeUtf16(Text);
		case EEncodingOptions::ForceUTF8: return EncodeUtf8(Text, true);
		case EEncodingOptions::ForceUTF8WithoutBOM: return EncodeUtf8(Text, false);
		default: return EncodeAscii(Text);
		}
	}
}

bool FFileHelper::LoadFileToArray(TArray<uint8>& Result, const TCHAR* Filename, uint32 Flags)
{
	FString Reason;
	if (Host::FFiles::Read(Filename, MAX_int32, Result, Reason))
	{
		return true;
	}
	UE_CLOG(!(Flags & FILEREAD_Silent), LogCore, Warning, TEXT("%s: cannot be read: %s"), Filename, *Reason);
	return false;
}

void FFileHelper::BufferToString(FString& Result, const uint8* Buffer, int32 Size)
{
	if (HasBytes(Buffer, Size, {0xFF, 0xFE}))
	{
		ReadUnits(Result, Buffer + 2, Size - 2, true);
		return;
	}
	if (HasBytes(Buffer, Size, {0xFE, 0xFF}))
	{
		ReadUnits(Result, Buffer + 2, Size - 2, false);
		return;
	}
	const int32 Start = HasBytes(Buffer, Size, {0xEF, 0xBB, 0xBF}) ? 3 : 0;
	const FUTF8ToTCHAR Text(reinterpret_cast<const ANSICHAR*>(Buffer) + Start, Size - Start);
	Result = FString(Text.Length(), Text.Get());
}

bool FFileHelper::LoadFileToString(FString& Result, const TCHAR* Filename, EHashOptions, uint32 ReadFlags)
{
	TArray<uint8> Bytes;
	if (!LoadFileToArray(Bytes, Filename, ReadFlags))
	{
		return false;
	}
	BufferToString(Result, Bytes.GetData(), Bytes.Num());
	return true;
}

bool FFileHelper::LoadFileToStringArray(TArray<FString>& Result, const TCHAR* Filename)
{
	FString Text;
	if (!LoadFileToString(Text, Filename))
	{
		return false;
	}
	Text.ParseIntoArrayLines(Result, false);
	return true;
}

bool FFileHelper::SaveArrayToFile(const TArray<uint8>& Array, const TCHAR* Filename)
{
	FString Reason;
	if (Host::FFiles::Write(Filename, Array.GetData(), Array.Num(), Reason))
	{
		return true;
	}
	UE_LOG(LogCore, Warning, TEXT("%s: cannot be written: %s"), Filename, *Reason);
	return false;
}

bool FFileHelper::SaveStringToFile(FStringView String, const TCHAR* Filename, EEncodingOptions EncodingOptions)
{
	return SaveArrayToFile(Encode(String, EncodingOptions), Filename);
}

#pragma once

#include "Containers/Array.h"
#include "Containers/StringView.h"
#include "Containers/UnrealString.h"

/** Flags of the functions that read files. */
enum EFileRead
{
	FILEREAD_None = 0x00,
	/** A failure is not logged. */
	FILEREAD_Silent = 0x02
};

/** Whole files as texts and bytes. A failure is one warning line with the reason. */
struct FFileHelper
{
	/** How a text is written. */
	enum class EEncodingOptions
	{
		/** ASCII where that suffices, else UTF-16 with a byte order mark. */
		AutoDetect,
		/** Characters beyond ASCII become question marks. */
		ForceAnsi,
		/** UTF-16, little-endian, with a byte order mark. */
		ForceUnicode,
		/** UTF-8 with a byte order mark. */
		ForceUTF8,
		ForceUTF8WithoutBOM
	};

	/** Whether the content of a file is compared with a known check sum when it is read. */
	enum class EHashOptions
	{
		None = 0
	};

	CORE_API static bool LoadFileToArray(TArray<uint8>& Result, const TCHAR* Filename, uint32 Flags = FILEREAD_None);

	/** UTF-8, or UTF-16 where a byte order mark says so. Malformed characters become U+FFFD. */
	CORE_API static bool LoadFileToString(FString& Result, const TCHAR* Filename, EHashOptions VerifyFlags = EHashOptions::None, uint32 ReadFlags = FILEREAD_None);

	/** As LoadFileToString, cut at line ends, which are left out. */
	CORE_API static bool LoadFileToStringArray(TArray<FString>& Result, const TCHAR* Filename);

	/** The text of bytes in UTF-8 or, after a byte order mark, UTF-16. */
	CORE_API static void BufferToString(FString& Result, const uint8* Buffer, int32 Size);

	/** Writes the file whole or not at all, and makes the folders on the way. */
	CORE_API static bool SaveArrayToFile(const TArray<uint8>& Array, const TCHAR* Filename);
	CORE_API static bool SaveStringToFile(FStringView String, const TCHAR* Filename, EEncodingOptions EncodingOptions = EEncodingOptions::AutoDetect);
};

#pragma once

#include "CoreTypes.h"
#include "HAL/UnrealMemory.h"
#include "Host/StringOps.h"
#include "Misc/CString.h"

namespace Host
{
	/**
	 * Transcoding. Dest has room for the longest possible outcome; returned is the number of units written, without a
	 * terminator. What is malformed becomes U+FFFD.
	 */
	CORE_API int32 Utf8ToUtf16(TCHAR* Dest, const ANSICHAR* Source, int32 SourceLen);
	CORE_API int32 Utf16ToUtf8(ANSICHAR* Dest, const TCHAR* Source, int32 SourceLen);
	CORE_API int32 Utf32ToUtf16(TCHAR* Dest, const UTF32CHAR* Source, int32 SourceLen);

	/** Most units that one unit of the source can become. */
	inline constexpr int32 MaxUtf8PerUtf16 = 3;
	inline constexpr int32 MaxUtf16PerUtf8 = 1;

	/** A converted text, terminated; short ones need no memory from the heap. */
	template <typename CharType>
	class TConvertedText
	{
	public:
		UE_NONCOPYABLE(TConvertedText)

		/** Address of the text; null when the source was null. */
		const CharType* Get() const { return Text; }
		/** Units before the terminator. */
		int32 Length() const { return Len; }

	protected:
		TConvertedText() = default;

		~TConvertedText()
		{
			if (Text != Inline && Text != nullptr)
			{
				FMemory::Free(Text);
			}
		}

		CharType* Allocate(int32 MaxLen)
		{
			Text = MaxLen < InlineUnits ? Inline : static_cast<CharType*>(FMemory::Malloc(((SIZE_T)MaxLen + 1) * sizeof(CharType)));
			return Text;
		}

		void Finish(int32 InLen)
		{
			Len = InLen;
			Text[Len] = 0;
		}

	private:
		static constexpr int32 InlineUnits = 128;
		CharType* Text = nullptr;
		int32 Len = 0;
		CharType Inline[InlineUnits];
	};
}

class FTCHARToUTF8 : public Host::TConvertedText<ANSICHAR>
{
public:
	explicit FTCHARToUTF8(const TCHAR* Source)
		: FTCHARToUTF8(Source, Host::Strings::Length(Source))
	{
	}

	FTCHARToUTF8(const TCHAR* Source, int32 SourceLen)
	{
		if (Source != nullptr)
		{
			ANSICHAR* Dest = Allocate(SourceLen * Host::MaxUtf8PerUtf16);
			Finish(Host::Utf16ToUtf8(Dest, Source, SourceLen));
		}
	}
};

class FUTF8ToTCHAR : public Host::TConvertedText<TCHAR>
{
public:
	explicit FUTF8ToTCHAR(const ANSICHAR* Source)
		: FUTF8ToTCHAR(Source, Source != nullptr ? (int32)std::strlen(Source) : 0)
	{
	}

	FUTF8ToTCHAR(const ANSICHAR* Source, int32 SourceLen)
	{
		if (Source != nullptr)
		{
			TCHAR* Dest = Allocate(SourceLen * Host::MaxUtf16PerUtf8);
			Finish(Host::Utf8ToUtf16(Dest, Source, SourceLen));
		}
	}
};

/** ASCII; other units become question marks. */
class FTCHARToANSI : public Host::TConvertedText<ANSICHAR>
{
public:
	explicit FTCHARToANSI(const TCHAR* Source)
	{
		if (Source != nullptr)
		{
			const int32 SourceLen = Host::Strings::Length(Source);
			ANSICHAR* Dest = Allocate(SourceLen);
			for (int32 Index = 0; Index < SourceLen; ++Index)
			{
				Dest[Index] = Source[Index] < 0x80 ? (ANSICHAR)Source[Index] : '?';
			}
			Finish(SourceLen);
		}
	}
};

/** Each byte becomes one unit. */
class FANSIToTCHAR : public Host::TConvertedText<TCHAR>
{
public:
	explicit FANSIToTCHAR(const ANSICHAR* Source)
	{
		if (Source != nullptr)
		{
			const int32 SourceLen = (int32)std::strlen(Source);
			TCHAR* Dest = Allocate(SourceLen);
			for (int32 Index = 0; Index < SourceLen; ++Index)
			{
				Dest[Index] = (uint8)Source[Index];
			}
			Finish(SourceLen);
		}
	}
};

/** The converted text lives until the end of the full expression: pass it on at once, do not keep the pointer. */
#define TCHAR_TO_UTF8(Text) (const ANSICHAR*)FTCHARToUTF8((const TCHAR*)(Text)).Get()
#define UTF8_TO_TCHAR(Text) (const TCHAR*)FUTF8ToTCHAR((const ANSICHAR*)(Text)).Get()
#define TCHAR_TO_ANSI(Text) (const ANSICHAR*)FTCHARToANSI((const TCHAR*)(Text)).Get()
#define ANSI_TO_TCHAR(Text) (const TCHAR*)FANSIToTCHAR((const ANSICHAR*)(Text)).Get()

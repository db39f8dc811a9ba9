#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

/** Builds a text in a buffer that starts on the stack. */
class FStringBuilderBase
{
public:
	UE_NONCOPYABLE(FStringBuilderBase)

	/** The terminated text so far. */
	const TCHAR* ToString() const { return Data; }
	const TCHAR* operator*() const { return Data; }
	FStringView ToView() const { return FStringView(Data, Length); }
	operator FStringView() const { return ToView(); }
	const TCHAR* GetData() const { return Data; }
	int32 Len() const { return Length; }

	void Reset()
	{
		Length = 0;
		Data[0] = 0;
	}

	FStringBuilderBase& Append(const TCHAR* Text, int32 Count)
	{
		if (Count > Capacity - Length)
		{
			Grow(Length + Count);
		}
		FMemory::Memcpy(Data + Length, Text, sizeof(TCHAR) * (SIZE_T)Count);
		Length += Count;
		Data[Length] = 0;
		return *this;
	}

	FStringBuilderBase& Append(FStringView Text) { return Append(Text.GetData(), Text.Len()); }
	FStringBuilderBase& AppendChar(TCHAR Char) { return Append(&Char, 1); }

	template <typename FmtType, typename... ArgTypes>
	FStringBuilderBase& Appendf(const FmtType& Format, const ArgTypes&... Args)
	{
		return Append(FString::Printf(Format, Args...));
	}

	void RemoveSuffix(int32 Count)
	{
		check(Count >= 0 && Count <= Length);
		Length -= Count;
		Data[Length] = 0;
	}

protected:
	FStringBuilderBase(TCHAR* Buffer, int32 BufferSize)
		: Data(Buffer)
		, Capacity(BufferSize - 1)
	{
		Data[0] = 0;
	}

	~FStringBuilderBase()
	{
		FMemory::Free(Heap);
	}

private:
	CORE_API void Grow(int32 MinLength);

	TCHAR* Data;
	TCHAR* Heap = nullptr;
	/** Units before the terminator, and how many fit. */
	int32 Length = 0;
	int32 Capacity;
};

/** A text builder with room for BufferSize units, the terminator included, before it needs the heap. */
template <int32 BufferSize>
class TStringBuilder : public FStringBuilderBase
{
public:
	TStringBuilder() : FStringBuilderBase(Buffer, BufferSize) {}

private:
	TCHAR Buffer[BufferSize];
};

inline FStringBuilderBase& operator<<(FStringBuilderBase& Builder, FStringView Text)
{
	return Builder.Append(Text);
}

inline FStringBuilderBase& operator<<(FStringBuilderBase& Builder, TCHAR Char)
{
	return Builder.AppendChar(Char);
}

template <typename NumberType>
	requires(std::is_arithmetic_v<NumberType> && !std::is_same_v<NumberType, TCHAR>)
FStringBuilderBase& operator<<(FStringBuilderBase& Builder, NumberType Number)
{
	return Builder.Append(LexToString(Number));
}

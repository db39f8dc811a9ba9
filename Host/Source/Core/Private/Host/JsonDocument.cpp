#include "Host/JsonDocument.h"

#include "Containers/StringConv.h"
#include "Host/Files.h"
#include "Host/JsonContent.h"
#include "Host/JsonReader.h"

#include <algorithm>
#include <cmath>

namespace
{
	/** Doubles up to here hold every whole number. */
	constexpr double MaxExactInteger = 9007199254740992.0;
}

const TCHAR* Host::DescribeJsonKind(EJsonKind Kind)
{
	switch (Kind)
	{
	case EJsonKind::Boolean: return TEXT("a boolean");
	case EJsonKind::Number: return TEXT("a number");
	case EJsonKind::String: return TEXT("a string");
	case EJsonKind::Array: return TEXT("an array");
	case EJsonKind::Object: return TEXT("an object");
	default: return TEXT("null");
	}
}

namespace Host
{
	FJsonPlace FJsonContent::FindPlace(uint32 Offset) const
	{
		if (LineStarts.empty())
		{
			LineStarts.push_back(0);
			for (int32 Index = 0; Index < Source.Num(); ++Index)
			{
				if (Source[Index] == '\n')
				{
					LineStarts.push_back(uint32(Index) + 1);
				}
			}
		}
		const auto Next = std::ranges::upper_bound(LineStarts, Offset);
		FJsonPlace Place;
		Place.Line = int32(Next - LineStarts.begin());
		Place.Column = 1;
		// A byte order mark is no part of the first line.
		const bool bMark = Place.Line == 1 && FJsonReader::StartsWithMark(Source);
		for (uint32 Index = bMark ? FJsonReader::MarkLength : *(Next - 1); Index < Offset; ++Index)
		{
			Place.Column += (Source[int32(Index)] & 0xC0) != 0x80 ? 1 : 0;
		}
		return Place;
	}

	EJsonKind FJsonNode::GetKind() const
	{
		return IsValid() ? Document->Content->Values[Index].Kind : EJsonKind::Null;
	}

	bool FJsonNode::TryGetBool(bool& OutValue) const
	{
		if (!IsBool())
		{
			return false;
		}
		OutValue = Document->Content->Values[Index].bBoolean;
		return true;
	}

	bool FJsonNode::TryGetNumber(double& OutValue) const
	{
		if (!IsNumber())
		{
			return false;
		}
		const FJsonValue& Value = Document->Content->Values[Index];
		switch (Value.NumberKind)
		{
		case EJsonNumber::Signed: OutValue = double(Value.Signed); break;
		case EJsonNumber::Unsigned: OutValue = double(Value.Unsigned); break;
		case EJsonNumber::Floating: OutValue = Value.Floating; break;
		}
		return true;
	}

	bool FJsonNode::TryGetString(FString& OutValue) const
	{
		if (!IsString())
		{
			return false;
		}
		OutValue = FString(GetString());
		return true;
	}

	bool FJsonNode::TryGetInteger(int64& OutValue) const
	{
		if (!IsNumber())
		{
			return false;
		}
		const FJsonValue& Value = Document->Content->Values[Index];
		if (Value.NumberKind == EJsonNumber::Signed)
		{
			OutValue = Value.Signed;
			return true;
		}
		// An unsigned one is there only where a signed one would not do.
		if (Value.NumberKind == EJsonNumber::Unsigned || std::trunc(Value.Floating) != Value.Floating || std::abs(Value.Floating) > MaxExactInteger)
		{
			return false;
		}
		OutValue = int64(Value.Floating);
		return true;
	}

	bool FJsonNode::TryGetInteger(int32& OutValue) const
	{
		int64 Wide = 0;
		if (!TryGetInteger(Wide) || Wide < MIN_int32 || Wide > MAX_int32)
		{
			return false;
		}
		OutValue = int32(Wide);
		return true;
	}

	bool FJsonNode::TryGetUnsigned(uint64& OutValue) const
	{
		if (IsNumber() && Document->Content->Values[Index].NumberKind == EJsonNumber::Unsigned)
		{
			OutValue = Document->Content->Values[Index].Unsigned;
			return true;
		}
		int64 Signed = 0;
		if (!TryGetInteger(Signed) || Signed < 0)
		{
			return false;
		}
		OutValue = uint64(Signed);
		return true;
	}

	FStringView FJsonNode::GetString() const
	{
		if (!IsString())
		{
			return FStringView();
		}
		const FJsonText Text = Document->Content->Values[Index].Text;
		return FStringView(Document->Content->Texts.data() + Text.Start, int32(Text.Length));
	}

	FStringView FJsonNode::GetKey() const
	{
		if (!IsValid())
		{
			return FStringView();
		}
		const FJsonText Key = Document->Content->Values[Index].Key;
		return FStringView(Document->Content->Texts.data() + Key.Start, int32(Key.Length));
	}

	int32 FJsonNode::Num() const
	{
		return IsArray() || IsObject() ? int32(Document->Content->Values[Index].Children.Count) : 0;
	}

	FJsonNode FJsonNode::Find(FStringView Key) const
	{
		if (IsObject())
		{
			for (const FJsonNode Member : *this)
			{
				if (Member.GetKey().Equals(Key, ESearchCase::CaseSensitive))
				{
					return Member;
				}
			}
		}
		return FJsonNode();
	}

	FJsonNode FJsonNode::At(int32 Place) const
	{
		if (Place >= 0)
		{
			for (const FJsonNode Child : *this)
			{
				if (Place-- == 0)
				{
					return Child;
				}
			}
		}
		return FJsonNode();
	}

	int32 FJsonNode::GetLine() const
	{
		return IsValid() ? Document->Content->FindPlace(Document->Content->Values[Index].Offset).Line : 0;
	}

	int32 FJsonNode::GetColumn() const
	{
		return IsValid() ? Document->Content->FindPlace(Document->Content->Values[Index].Offset).Column : 0;
	}

	FString FJsonNode::Where() const
	{
		if (!IsValid())
		{
			return FString();
		}
		const FJsonPlace Place = Document->Content->FindPlace(Document->Content->Values[Index].Offset);
		return FString::Printf(TEXT("%s:%d:%d"), *Document->Content->Name, Place.Line, Place.Column);
	}

	FJsonNode::FIterator& FJsonNode::FIterator::operator++()
	{
		Index = Document->Content->Values[Index].NextSibling;
		return *this;
	}

	FJsonNode::FIterator FJsonNode::begin() const
	{
		return FIterator(Document, IsArray() || IsObject() ? Document->Content->Values[Index].Children.First : NoJsonNode);
	}

	FJsonNode::FIterator FJsonNode::end() const
	{
		return FIterator(Document, NoJsonNode);
	}

	namespace
	{
		bool ParseSource(FJsonContent& Content, const FJsonLimits& Limits)
		{
			FJsonReader Reader(Content, Limits);
			if (!Reader.Read())
			{
				Content.Values.clear();
				return false;
			}
			return true;
		}
	}

	FJsonDocument::FJsonDocument()
		: Content(std::make_unique<FJsonContent>())
	{
	}

	FJsonDocument::~FJsonDocument() = default;
	FJsonDocument::FJsonDocument(FJsonDocument&&) noexcept = default;
	FJsonDocument& FJsonDocument::operator=(FJsonDocument&&) noexcept = default;

	bool FJsonDocument::LoadFile(const FString& Filename, const FJsonLimits& Limits)
	{
		*Content = FJsonContent();
		Content->Name = Filename;
		FString Reason;
		if (!FFiles::Read(Filename, Limits.MaxBytes, Content->Source, Reason))
		{
			Content->Errors.Add(FString::Printf(TEXT("%s: %s"), *Filename, *Reason));
			return false;
		}
		return ParseSource(*Content, Limits);
	}

	bool FJsonDocument::Parse(const FString& Text, const FString& Name, const FJsonLimits& Limits)
	{
		const FTCHARToUTF8 Utf8(*Text, Text.Len());
		return Parse(Utf8.Get(), Utf8.Length(), Name, Limits);
	}

	bool FJsonDocument::Parse(const void* Bytes, int64 Size, const FString& Name, const FJsonLimits& Limits)
	{
		*Content = FJsonContent();
		Content->Name = Name;
		if (Size > Limits.MaxBytes || Size > MAX_int32)
		{
			Content->Errors.Add(FString::Printf(TEXT("%s: the text has %lld bytes, at most %lld are accepted"), *Name, Size, Limits.MaxBytes));
			return false;
		}
		Content->Source.Append(static_cast<const uint8*>(Bytes), int32(Size));
		return ParseSource(*Content, Limits);
	}

	FJsonNode FJsonDocument::GetRoot() const
	{
		return Content->Values.empty() ? FJsonNode() : FJsonNode(this, 0);
	}

	const TArray<FString>& FJsonDocument::GetErrors() const
	{
		return Content->Errors;
	}

	const FString& FJsonDocument::GetName() const
	{
		return Content->Name;
	}
}

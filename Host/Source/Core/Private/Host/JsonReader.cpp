// The library's own assertions and the engine's macros must not meet: it comes first.
#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include "Host/JsonReader.h"

#include "Containers/StringConv.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <string_view>

namespace
{
	/** UTF-16 that takes an escaped half of a pair as it comes: the library's own would halt the program. */
	struct FTextEncoding : public rapidjson::UTF16<char16_t>
	{
		template <typename OutputStreamType>
		static void Encode(OutputStreamType& Stream, unsigned CodePoint)
		{
			if (CodePoint <= 0xFFFF)
			{
				Stream.Put(char16_t(CodePoint));
				return;
			}
			Stream.Put(char16_t(0xD7C0 + (CodePoint >> 10)));
			Stream.Put(char16_t(0xDC00 + (CodePoint & 0x3FF)));
		}
	};

	/** Whether every half of a pair stands in one. */
	bool IsWellFormed(const char16_t* Text, SIZE_T Length)
	{
		for (SIZE_T Index = 0; Index < Length; ++Index)
		{
			if ((Text[Index] & 0xF800) != 0xD800)
			{
				continue;
			}
			const bool bPair = Text[Index] < 0xDC00 && Index + 1 < Length && (Text[Index + 1] & 0xFC00) == 0xDC00;
			if (!bPair)
			{
				return false;
			}
			++Index;
		}
		return true;
	}

	/** Reads digits that make up the whole text and fit the type. */
	template <typename IntegerType>
	bool IsWhole(const char* First, const char* Last, IntegerType& OutValue)
	{
		const std::from_chars_result Result = std::from_chars(First, Last, OutValue);
		return Result.ec == std::errc() && Result.ptr == Last;
	}

	/** Of a number that no double can hold: whether it is too large, rather than too close to zero. */
	bool IsHuge(std::string_view Number)
	{
		const SIZE_T ExponentMark = std::min(Number.find_first_of("eE"), Number.size());
		const std::string_view Mantissa = Number.substr(0, ExponentMark);
		const SIZE_T Point = std::min(Mantissa.find('.'), Mantissa.size());
		const SIZE_T FirstDigit = Mantissa.find_first_of("123456789");
		if (FirstDigit == std::string_view::npos)
		{
			return false;
		}
		std::string_view Exponent = Number.substr(std::min(ExponentMark + 1, Number.size()));
		if (Exponent.starts_with('+'))
		{
			Exponent.remove_prefix(1);
		}
		int64 Power = 0;
		if (std::from_chars(Exponent.data(), Exponent.data() + Exponent.size(), Power).ec == std::errc::result_out_of_range)
		{
			return !Exponent.starts_with('-');
		}
		return int64(Point) - int64(FirstDigit) + Power > 0;
	}
}

namespace Host
{
	/** What RapidJSON calls while it reads. Events come when their token has been taken, but those of brackets before that. */
	struct FJsonEvents
	{
		using Ch = char16_t;

		FJsonReader& Reader;
		const rapidjson::MemoryStream& Stream;

		bool Null()
		{
			return Reader.AddValue(EJsonKind::Null, Stream.Tell()) != nullptr;
		}

		bool Bool(bool bValue)
		{
			FJsonValue* const Value = Reader.AddValue(EJsonKind::Boolean, Stream.Tell());
			if (Value != nullptr)
			{
				Value->bBoolean = bValue;
			}
			return Value != nullptr;
		}

		bool Int(int) { return Reader.AddNumber(Stream.Tell()); }
		bool Uint(unsigned) { return Reader.AddNumber(Stream.Tell()); }
		bool Int64(int64_t) { return Reader.AddNumber(Stream.Tell()); }
		bool Uint64(uint64_t) { return Reader.AddNumber(Stream.Tell()); }
		bool Double(double) { return Reader.AddNumber(Stream.Tell()); }
		// Only when numbers are asked for as text.
		bool RawNumber(const Ch*, rapidjson::SizeType, bool) { return false; }

		bool String(const Ch* Text, rapidjson::SizeType Length, bool)
		{
			if (!Reader.CheckText(Text, Length))
			{
				return false;
			}
			FJsonValue* const Value = Reader.AddValue(EJsonKind::String, Stream.Tell());
			if (Value != nullptr)
			{
				Value->Text = Reader.AddText(Text, Length);
			}
			return Value != nullptr;
		}

		bool Key(const Ch* Text, rapidjson::SizeType Length, bool)
		{
			if (!Reader.CheckText(Text, Length))
			{
				return false;
			}
			Reader.SetKey(Text, Length, Stream.Tell());
			return true;
		}

		bool StartObject() { return Reader.Open(EJsonKind::Object, Stream.Tell() + 1); }
		bool StartArray() { return Reader.Open(EJsonKind::Array, Stream.Tell() + 1); }

		bool EndObject(rapidjson::SizeType)
		{
			Reader.Close(Stream.Tell() + 1);
			return true;
		}

		bool EndArray(rapidjson::SizeType)
		{
			Reader.Close(Stream.Tell() + 1);
			return true;
		}
	};

	FJsonReader::FJsonReader(FJsonContent& InContent, const FJsonLimits& InLimits)
		: Content(InContent)
		, Limits(InLimits)
	{
		// Nameless values point at this.
		Content.Texts.push_back(u'\0');
	}

	bool FJsonReader::StartsWithMark(const TArray<uint8>& Source)
	{
		return Source.Num() >= int32(MarkLength) && Source[0] == 0xEF && Source[1] == 0xBB && Source[2] == 0xBF;
	}

	bool FJsonReader::Read()
	{
		TextStart = StartsWithMark(Content.Source) ? MarkLength : 0;
		Text = reinterpret_cast<const char*>(Content.Source.GetData()) + TextStart;
		Size = SIZE_T(Content.Source.Num()) - TextStart;
		// Most texts have fewer values than this; room that stays unused costs nothing.
		Content.Values.reserve(std::min<SIZE_T>(Size / 8 + 1, SIZE_T(Limits.MaxNodes)));
		Content.Texts.reserve(Size / 2);

		constexpr unsigned Flags = rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag;
		rapidjson::MemoryStream Stream(Text, Size);
		FJsonEvents Events{*this, Stream};
		rapidjson::GenericReader<rapidjson::UTF8<>, FTextEncoding> Reader;
		const rapidjson::ParseResult Result = Reader.Parse<Flags>(Stream, Events);
		if (Result.IsError() && !bRefused)
		{
			ReportSyntaxError(Result.Code(), Result.Offset());
		}
		if (!Result.IsError() && Stream.Tell() < Size)
		{
			// A zero byte looks like the end to the parser.
			ReportSyntaxError(rapidjson::kParseErrorDocumentRootNotSingular, Stream.Tell());
			return false;
		}
		return !Result.IsError();
	}

	void FJsonReader::StepToToken()
	{
		for (; Offset < Size; ++Offset)
		{
			const char Byte = Text[Offset];
			if (Byte != ' ' && Byte != '\n' && Byte != '\t' && Byte != '\r' && Byte != ',' && Byte != ':')
			{
				return;
			}
		}
	}

	bool FJsonReader::CheckText(const char16_t* InText, SIZE_T Length)
	{
		if (IsWellFormed(InText, Length))
		{
			return true;
		}
		StepToToken();
		return Refuse(TEXT("expected a valid surrogate pair after \\u in the string"));
	}

	FJsonText FJsonReader::AddText(const char16_t* InText, SIZE_T Length)
	{
		const FJsonText Added{uint32(Content.Texts.size()), uint32(Length)};
		Content.Texts.append(InText, Length);
		Content.Texts.push_back(u'\0');
		return Added;
	}

	void FJsonReader::SetKey(const char16_t* InText, SIZE_T Length, SIZE_T EndOffset)
	{
		PendingKey = AddText(InText, Length);
		Offset = EndOffset;
	}

	FJsonValue* FJsonReader::AddValue(EJsonKind Kind, SIZE_T EndOffset)
	{
		StepToToken();
		if (Content.Values.size() >= SIZE_T(Limits.MaxNodes))
		{
			Refuse(*FString::Printf(TEXT("the text has more than %d values"), Limits.MaxNodes));
			return nullptr;
		}
		const uint32 Index = uint32(Content.Values.size());
		FJsonValue& Value = Content.Values.emplace_back();
		Value.Kind = Kind;
		Value.Offset = TextStart + uint32(Offset);
		Value.Key = PendingKey;
		PendingKey = FJsonText();
		if (!OpenValues.empty())
		{
			FOpen& Parent = OpenValues.back();
			FJsonChildren& Children = Content.Values[Parent.Index].Children;
			(Parent.LastChild == NoJsonNode ? Children.First : Content.Values[Parent.LastChild].NextSibling) = Index;
			Parent.LastChild = Index;
			++Children.Count;
		}
		ValueStart = Offset;
		Offset = EndOffset;
		return &Value;
	}

	bool FJsonReader::AddNumber(SIZE_T EndOffset)
	{
		FJsonValue* const Value = AddValue(EJsonKind::Number, EndOffset);
		if (Value == nullptr)
		{
			return false;
		}
		// The parser checks the form alone: its own conversion is not exact to the last bit.
		const char* const First = Text + ValueStart;
		const char* const Last = Text + EndOffset;
		if (IsWhole(First, Last, Value->Signed))
		{
			Value->NumberKind = EJsonNumber::Signed;
			return true;
		}
		if (IsWhole(First, Last, Value->Unsigned))
		{
			Value->NumberKind = EJsonNumber::Unsigned;
			return true;
		}
		Value->NumberKind = EJsonNumber::Floating;
		if (std::from_chars(First, Last, Value->Floating).ec != std::errc::result_out_of_range)
		{
			return true;
		}
		Value->Floating = 0.0;
		if (!IsHuge(std::string_view(First, Last)))
		{
			return true;
		}
		Offset = ValueStart;
		return Refuse(TEXT("the number is too large"));
	}

	bool FJsonReader::Open(EJsonKind Kind, SIZE_T EndOffset)
	{
		if (OpenValues.size() >= SIZE_T(Limits.MaxDepth))
		{
			StepToToken();
			return Refuse(*FString::Printf(TEXT("arrays and objects are nested more than %d deep"), Limits.MaxDepth));
		}
		FJsonValue* const Value = AddValue(Kind, EndOffset);
		if (Value == nullptr)
		{
			return false;
		}
		Value->Children = FJsonChildren();
		OpenValues.push_back(FOpen{uint32(Content.Values.size() - 1), NoJsonNode});
		return true;
	}

	void FJsonReader::Close(SIZE_T EndOffset)
	{
		Offset = EndOffset;
		const uint32 Index = OpenValues.back().Index;
		OpenValues.pop_back();
		if (Content.Values[Index].Kind == EJsonKind::Object)
		{
			DropDuplicates(Index);
		}
	}

	std::u16string_view FJsonReader::GetKey(uint32 Index) const
	{
		const FJsonText Key = Content.Values[Index].Key;
		return std::u16string_view(Content.Texts).substr(Key.Start, Key.Length);
	}

	void FJsonReader::DropDuplicates(uint32 ObjectIndex)
	{
		Members.clear();
		for (uint32 Index = Content.Values[ObjectIndex].Children.First; Index != NoJsonNode; Index = Content.Values[Index].NextSibling)
		{
			Members.push_back(FNamedMember{std::hash<std::u16string_view>()(GetKey(Index)), Index});
		}
		// By hash, then by place: members of one name stand together, the first of them first.
		std::ranges::sort(Members, [](const FNamedMember& A, const FNamedMember& B) { return A.Hash != B.Hash ? A.Hash < B.Hash : A.Index < B.Index; });

		std::vector<uint32> Dropped;
		for (SIZE_T Second = 1; Second < Members.size(); ++Second)
		{
			for (SIZE_T First = Second; First-- > 0 && Members[First].Hash == Members[Second].Hash;)
			{
				if (GetKey(Members[First].Index) == GetKey(Members[Second].Index))
				{
					Dropped.push_back(Members[Second].Index);
					break;
				}
			}
		}
		if (Dropped.empty())
		{
			return;
		}

		std::ranges::sort(Dropped);
		uint32* Link = &Content.Values[ObjectIndex].Children.First;
		while (*Link != NoJsonNode)
		{
			FJsonValue& Value = Content.Values[*Link];
			if (std::ranges::binary_search(Dropped, *Link))
			{
				const std::u16string Key(GetKey(*Link));
				Content.Errors.Add(FString::Printf(TEXT("%s: there is a member \"%s\" already, this one is left out"), *DescribePlace(Value.Offset), Key.c_str()));
				*Link = Value.NextSibling;
				--Content.Values[ObjectIndex].Children.Count;
			}
			else
			{
				Link = &Value.NextSibling;
			}
		}
	}

	FString FJsonReader::DescribePlace(SIZE_T SourceOffset) const
	{
		const FJsonPlace Place = Content.FindPlace(uint32(SourceOffset));
		return FString::Printf(TEXT("%s:%d:%d"), *Content.Name, Place.Line, Place.Column);
	}

	bool FJsonReader::Refuse(const TCHAR* Reason)
	{
		bRefused = true;
		Content.Errors.Add(FString::Printf(TEXT("%s: %s"), *DescribePlace(TextStart + Offset), Reason));
		return false;
	}

	FString FJsonReader::DescribeFound(SIZE_T At) const
	{
		if (At >= Size)
		{
			return TEXT("the end of the text");
		}
		const uint8 Byte = uint8(Text[At]);
		if (Byte < 0x20 || Byte == 0x7F)
		{
			return FString::Printf(TEXT("the byte 0x%02X"), uint32(Byte));
		}
		SIZE_T End = At + 1;
		while (End < Size && (uint8(Text[End]) & 0xC0) == 0x80)
		{
			++End;
		}
		return FString::Printf(TEXT("'%s'"), FUTF8ToTCHAR(Text + At, int32(End - At)).Get());
	}

	void FJsonReader::ReportSyntaxError(int32 Code, SIZE_T At)
	{
		Offset = std::min(At, Size);
		const TCHAR* Expected = nullptr;
		switch (Code)
		{
		case rapidjson::kParseErrorDocumentEmpty: Expected = TEXT("a value"); break;
		case rapidjson::kParseErrorDocumentRootNotSingular: Expected = TEXT("nothing more after the value"); break;
		case rapidjson::kParseErrorValueInvalid: Expected = TEXT("a value"); break;
		case rapidjson::kParseErrorObjectMissName: Expected = TEXT("a member name in quotes, or '}'"); break;
		case rapidjson::kParseErrorObjectMissColon: Expected = TEXT("':' after the member name"); break;
		case rapidjson::kParseErrorObjectMissCommaOrCurlyBracket: Expected = TEXT("',' or '}' after the member"); break;
		case rapidjson::kParseErrorArrayMissCommaOrSquareBracket: Expected = TEXT("',' or ']' after the element"); break;
		case rapidjson::kParseErrorStringUnicodeEscapeInvalidHex: Expected = TEXT("four hexadecimal digits after \\u"); break;
		case rapidjson::kParseErrorStringUnicodeSurrogateInvalid: Expected = TEXT("a valid surrogate pair"); break;
		case rapidjson::kParseErrorStringEscapeInvalid:
			if (Offset < Size && uint8(Text[Offset]) < 0x20)
			{
				Expected = TEXT("control characters only as escapes");
				break;
			}
			Expected = TEXT("one of the escapes \\\" \\\\ \\/ \\b \\f \\n \\r \\t \\u");
			break;
		case rapidjson::kParseErrorStringMissQuotationMark: Expected = TEXT("the closing quote of the string"); break;
		case rapidjson::kParseErrorStringInvalidEncoding: Expected = TEXT("valid UTF-8"); break;
		case rapidjson::kParseErrorNumberMissFraction: Expected = TEXT("a digit after the point"); break;
		case rapidjson::kParseErrorNumberMissExponent: Expected = TEXT("a digit in the exponent"); break;
		case rapidjson::kParseErrorNumberTooBig:
			Refuse(TEXT("the number is too large"));
			return;
		default:
			Refuse(UTF8_TO_TCHAR(rapidjson::GetParseError_En(rapidjson::ParseErrorCode(Code))));
			return;
		}
		Refuse(*FString::Printf(TEXT("expected %s, found %s"), Expected, *DescribeFound(Offset)));
	}
}

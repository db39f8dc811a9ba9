#pragma once

#include "Host/JsonTokens.h"
#include "Serialization/JsonTypes.h"
#include "Templates/SharedPointer.h"

/** Walks a JSON text from token to token; see FJsonSerializer for whole documents. */
template <class CharType = TCHAR>
class TJsonReader
{
public:
	TJsonReader(const TJsonReader&) = delete;
	TJsonReader& operator=(const TJsonReader&) = delete;

	/** Goes to the next token. False at the end, and with EJsonNotation::Error, and a message, where the text is wrong. */
	bool ReadNext(EJsonNotation& Notation)
	{
		bIdentifierRead = bStringRead = false;
		return Tokens.Next(Notation);
	}

	/** Each goes behind the end of the object, or array, whose start was read last. */
	bool SkipObject() { return ReadUntilMatching(EJsonNotation::ObjectEnd); }
	bool SkipArray() { return ReadUntilMatching(EJsonNotation::ArrayEnd); }

	/** Name of the member that the token belongs to; empty in arrays. */
	const FString& GetIdentifier() const
	{
		if (!bIdentifierRead)
		{
			bIdentifierRead = true;
			Assign(Identifier, Tokens.GetName());
		}
		return Identifier;
	}

	/** The content of a string; what is no UTF-8 reads as U+FFFD. */
	const FString& GetValueAsString() const
	{
		if (!bStringRead)
		{
			bStringRead = true;
			Assign(StringValue, Tokens.GetText());
		}
		return StringValue;
	}

	/** A number as it is written. */
	const FString& GetValueAsNumberString() const { return GetValueAsString(); }

	/** The nearest double to a number; infinity for one that is too large. */
	double GetValueAsNumber() const { return Host::JsonNumber(Tokens.GetText()); }

	bool GetValueAsBoolean() const { return Tokens.GetBoolean(); }

	/** Empty while nothing was wrong. */
	const FString& GetErrorMessage() const { return Tokens.GetError(); }

	/** Where the last token starts: counted from 1. */
	uint32 GetLineNumber() const { return uint32(Tokens.GetLine()); }
	uint32 GetCharacterNumber() const { return uint32(Tokens.GetColumn()); }

private:
	template <class FactoryCharType>
	friend class TJsonReaderFactory;

	/** Of a text that it keeps. */
	explicit TJsonReader(const FString& InText)
		: Text(Host::JsonBytes(InText))
		, Tokens(FUtf8StringView(Text.GetData(), Text.Num()))
	{
	}

	/** Of a text that outlives it. */
	explicit TJsonReader(FUtf8StringView InText)
		: Tokens(InText)
	{
	}

	static void Assign(FString& Out, FUtf8StringView View) { Host::JsonText(Out, View); }

	bool ReadUntilMatching(EJsonNotation EndNotation)
	{
		int32 Depth = 1;
		for (EJsonNotation Notation; ReadNext(Notation);)
		{
			const bool bStart = Notation == EJsonNotation::ObjectStart || Notation == EJsonNotation::ArrayStart;
			const bool bEnd = Notation == EJsonNotation::ObjectEnd || Notation == EJsonNotation::ArrayEnd;
			Depth += int32(bStart) - int32(bEnd);
			if (Depth == 0)
			{
				return Notation == EndNotation;
			}
		}
		return false;
	}

	TArray<UTF8CHAR> Text;
	Host::FJsonTokens Tokens;
	/** Made when they are asked for. */
	mutable FString Identifier;
	mutable FString StringValue;
	mutable bool bIdentifierRead = false;
	mutable bool bStringRead = false;
};

template <class CharType = TCHAR>
class TJsonReaderFactory
{
public:
	static TSharedRef<TJsonReader<CharType>> Create(const FString& JsonString)
	{
		return MakeShareable(new TJsonReader<CharType>(JsonString));
	}

	/** Of a text that the caller keeps as long as the reader. */
	static TSharedRef<TJsonReader<CharType>> CreateFromView(TStringView<CharType> JsonView)
	{
		if constexpr (std::is_same_v<CharType, UTF8CHAR>)
		{
			return MakeShareable(new TJsonReader<CharType>(JsonView));
		}
		else
		{
			return MakeShareable(new TJsonReader<CharType>(FString(JsonView)));
		}
	}
};


#include "Internationalization/TextStringHelper.h"

#include "Internationalization/Internationalization.h"

namespace
{
	const FStringView LocMacro = TEXTVIEW("LOCTEXT");
	const FStringView NsLocMacro = TEXTVIEW("NSLOCTEXT");
	const FStringView InvMacro = TEXTVIEW("INVTEXT");

	/** Walks over a buffer; once something does not fit, nothing more does. */
	class FBufferReader
	{
	public:
		explicit FBufferReader(const TCHAR* InAt) : At(InAt) {}

		const TCHAR* GetPosition() const { return bValid ? At : nullptr; }
		bool IsValid() const { return bValid; }

		void SkipWhitespace()
		{
			while (FChar::IsWhitespace(*At))
			{
				++At;
			}
		}

		/** Whether a macro of that name begins here; steps over the name. */
		bool TryMacro(FStringView Name)
		{
			for (int32 Index = 0; Index < Name.Len(); ++Index)
			{
				if (At[Index] != Name[Index])
				{
					return false;
				}
			}
			FBufferReader Ahead(At + Name.Len());
			Ahead.SkipWhitespace();
			if (*Ahead.At != u'(')
			{
				return false;
			}
			At = Ahead.At;
			return true;
		}

		void Expect(TCHAR Char)
		{
			SkipWhitespace();
			bValid &= *At == Char;
			At += bValid ? 1 : 0;
		}

		/** A string in quotes, possibly in TEXT(). */
		FString ReadQuoted()
		{
			SkipWhitespace();
			if (TryMacro(TEXTVIEW("TEXT")))
			{
				Expect(u'(');
				FString Inner = ReadQuoted();
				Expect(u')');
				return Inner;
			}
			Expect(u'"');
			const TCHAR* Start = At;
			while (bValid && *At != u'"')
			{
				At += *At == u'\\' && At[1] != 0 ? 2 : 1;
				bValid = *At != 0;
			}
			if (!bValid)
			{
				return FString();
			}
			const FString Escaped((int32)(At++ - Start), Start);
			return Escaped.ReplaceEscapedCharWithChar();
		}

	private:
		const TCHAR* At;
		bool bValid = true;
	};

	FText MakeLocalized(const FString& Source, const FString& Namespace, const FString& Key)
	{
		return FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(*Source, *Namespace, *Key);
	}

	FString Quote(const FString& Text)
	{
		FString Result = TEXT("\"");
		Result += Text.ReplaceCharWithEscapedChar();
		Result += TEXT("\"");
		return Result;
	}
}

bool FTextStringHelper::IsComplexText(const TCHAR* Buffer)
{
	FBufferReader Reader(Buffer);
	Reader.SkipWhitespace();
	return Reader.TryMacro(NsLocMacro) || Reader.TryMacro(LocMacro) || Reader.TryMacro(InvMacro);
}

const TCHAR* FTextStringHelper::ReadFromBuffer(const TCHAR* Buffer, FText& OutValue, const TCHAR* TextNamespace, const TCHAR*, bool bRequiresQuotes)
{
	FBufferReader Reader(Buffer);
	Reader.SkipWhitespace();
	FText Value;
	const bool bNsLoc = Reader.TryMacro(NsLocMacro);
	if (bNsLoc || Reader.TryMacro(LocMacro))
	{
		Reader.Expect(u'(');
		const FString Namespace = bNsLoc ? Reader.ReadQuoted() : FString(TextNamespace);
		if (bNsLoc)
		{
			Reader.Expect(u',');
		}
		const FString Key = Reader.ReadQuoted();
		Reader.Expect(u',');
		const FString Source = Reader.ReadQuoted();
		Reader.Expect(u')');
		Value = Reader.IsValid() ? MakeLocalized(Source, Namespace, Key) : FText();
	}
	else if (Reader.TryMacro(InvMacro))
	{
		Reader.Expect(u'(');
		Value = FText::AsCultureInvariant(Reader.ReadQuoted());
		Reader.Expect(u')');
	}
	else if (bRequiresQuotes || *Reader.GetPosition() == u'"')
	{
		Value = FText::FromString(Reader.ReadQuoted());
	}
	else
	{
		OutValue = FText::FromString(FString(Buffer));
		return Buffer + FCString::Strlen(Buffer);
	}
	if (Reader.IsValid())
	{
		OutValue = MoveTemp(Value);
	}
	return Reader.GetPosition();
}

bool FTextStringHelper::WriteToBuffer(FString& Buffer, const FText& Value, bool bRequiresQuotes)
{
	const FString& Text = Value.ToString();
	const TOptional<FString> Key = FTextInspector::GetKey(Value);
	if (Key.IsSet())
	{
		Buffer += TEXT("NSLOCTEXT(") + Quote(FTextInspector::GetNamespace(Value).GetValue()) + TEXT(", ") + Quote(Key.GetValue()) + TEXT(", ") + Quote(Text) + TEXT(")");
	}
	else if (Value.IsCultureInvariant())
	{
		Buffer += TEXT("INVTEXT(") + Quote(Text) + TEXT(")");
	}
	else
	{
		Buffer += bRequiresQuotes ? Quote(Text) : Text;
	}
	return true;
}

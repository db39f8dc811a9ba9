#include "Containers/UnrealString.h"

#include <algorithm>
#include <cstdio>

namespace
{
	using FArgument = Host::FPrintfArgument;
	using EKind = FArgument::EKind;

	/** One % of a format, taken apart. */
	struct FConversion
	{
		/** The flags, and later the whole conversion for the C library. */
		char Flags[8] = {};
		int32 NumFlags = 0;
		bool bLeft = false;
		int32 Width = 0;
		/** INDEX_NONE when not given. */
		int32 Precision = INDEX_NONE;
		/** 'h' marks 8-bit text. */
		char Modifier = 0;
		char Letter = 0;
	};

	class FPrintfWriter
	{
	public:
		FPrintfWriter(FString& InResult, const TCHAR* InFormat, const FArgument* InArguments, int32 InNumArguments)
			: Result(InResult)
			, Format(InFormat)
			, Next(InFormat)
			, Arguments(InArguments)
			, NumArguments(InNumArguments)
		{
		}

		void Write()
		{
			for (;;)
			{
				const TCHAR* Start = Next;
				while (*Next != 0 && *Next != u'%')
				{
					++Next;
				}
				Result.Append(Start, (int32)(Next - Start));
				if (*Next == 0)
				{
					return;
				}
				++Next;
				WriteConversion(ReadConversion());
			}
		}

	private:
		FConversion ReadConversion()
		{
			FConversion Conversion;
			ReadFlags(Conversion);
			Conversion.Width = ReadNumber(0);
			if (Conversion.Width < 0)
			{
				Conversion.bLeft = true;
				Conversion.Width = -Conversion.Width;
			}
			if (*Next == u'.')
			{
				++Next;
				Conversion.Precision = std::max(ReadNumber(0), (int32)INDEX_NONE);
			}
			while (*Next == u'h' || *Next == u'l' || *Next == u'z' || *Next == u'j' || *Next == u't')
			{
				Conversion.Modifier = (char)*Next++;
			}
			Conversion.Letter = *Next < 0x80 ? (char)*Next : 0;
			Require(Conversion.Letter != 0);
			++Next;
			return Conversion;
		}

		void ReadFlags(FConversion& Conversion)
		{
			while (*Next == u'-' || *Next == u'+' || *Next == u' ' || *Next == u'#' || *Next == u'0')
			{
				if (*Next == u'-')
				{
					Conversion.bLeft = true;
				}
				else if (Conversion.NumFlags < 4)
				{
					Conversion.Flags[Conversion.NumFlags++] = (char)*Next;
				}
				++Next;
			}
		}

		int32 ReadNumber(int32 Number)
		{
			if (*Next == u'*')
			{
				++Next;
				return (int32)Integer(TakeArgument());
			}
			constexpr int32 Longest = 1 << 20;
			while (*Next >= u'0' && *Next <= u'9')
			{
				Number = std::min(Number * 10 + (*Next++ - u'0'), Longest);
			}
			return Number;
		}

		const FArgument& TakeArgument()
		{
			Require(NumTaken < NumArguments);
			return Arguments[NumTaken++];
		}

		void Require(bool bCondition) const
		{
			checkf(bCondition, TEXT("The arguments do not fit the format \"%s\" (conversion %d)"), Format, NumTaken);
		}

		int64 Integer(const FArgument& Argument) const
		{
			Require(Argument.Kind == EKind::Signed || Argument.Kind == EKind::Unsigned || Argument.Kind == EKind::Char);
			return Argument.Kind == EKind::Signed ? Argument.Signed : (int64)Argument.Unsigned;
		}

		void WriteConversion(const FConversion& Conversion)
		{
			switch (Conversion.Letter)
			{
			case '%':
				Result.AppendChar(u'%');
				break;
			case 's':
			case 'S':
				WriteText(Conversion, TakeArgument());
				break;
			case 'c':
			{
				const TCHAR Char = (TCHAR)Integer(TakeArgument());
				WritePadded(Conversion, FStringView(&Char, 1));
				break;
			}
			case 'd':
			case 'i':
				WriteSigned(Conversion, TakeArgument());
				break;
			case 'u':
			case 'x':
			case 'X':
			case 'o':
				WriteUnsigned(Conversion, TakeArgument());
				break;
			case 'f':
			case 'F':
			case 'e':
			case 'E':
			case 'g':
			case 'G':
			case 'a':
			case 'A':
				WriteDouble(Conversion, TakeArgument());
				break;
			case 'p':
				WritePointer(Conversion, TakeArgument());
				break;
			default:
				Require(false);
			}
		}

		void WriteText(const FConversion& Conversion, const FArgument& Argument)
		{
			if (Argument.Kind == EKind::NarrowText)
			{
				// 8-bit text is asked for as such: a forgotten TEXT() shall not go unnoticed.
				Require(Conversion.Modifier == 'h' || Conversion.Letter == 'S');
				WriteCut(Conversion, FString(Argument.NarrowText != nullptr ? Argument.NarrowText : "(null)"));
				return;
			}
			Require(Argument.Kind == EKind::WideText && Conversion.Modifier != 'h' && Conversion.Letter == 's');
			WriteCut(Conversion, FStringView(Argument.WideText != nullptr ? Argument.WideText : TEXT("(null)")));
		}

		void WriteCut(const FConversion& Conversion, FStringView Text)
		{
			WritePadded(Conversion, Conversion.Precision != INDEX_NONE ? Text.Left(Conversion.Precision) : Text);
		}

		void WritePadded(const FConversion& Conversion, FStringView Text)
		{
			const int32 Missing = std::max(Conversion.Width - Text.Len(), 0);
			if (Missing > 0 && !Conversion.bLeft)
			{
				Result += FString::ChrN(Missing, u' ');
			}
			Result.Append(Text);
			if (Missing > 0 && Conversion.bLeft)
			{
				Result += FString::ChrN(Missing, u' ');
			}
		}

		void WriteSigned(const FConversion& Conversion, const FArgument& Argument)
		{
			int64 Value = Integer(Argument);
			if (Argument.Kind == EKind::Unsigned && Argument.Size == 4)
			{
				Value = (int32)Value;
			}
			if (Conversion.NumFlags == 0 && Conversion.Width == 0 && Conversion.Precision == INDEX_NONE)
			{
				Result.AppendInt(Value);
				return;
			}
			WriteNumber(Conversion, "ll", (long long)Value);
		}

		void WriteUnsigned(const FConversion& Conversion, const FArgument& Argument)
		{
			uint64 Value = (uint64)Integer(Argument);
			if (Argument.Size <= 4)
			{
				// What was promoted from a narrower signed number shows as many bits as an int has.
				Value = (uint32)Value;
			}
			WriteNumber(Conversion, "ll", (unsigned long long)Value);
		}

		void WriteDouble(const FConversion& Conversion, const FArgument& Argument)
		{
			Require(Argument.Kind == EKind::Double);
			WriteNumber(Conversion, "", Argument.Double);
		}

		void WritePointer(const FConversion& Conversion, const FArgument& Argument)
		{
			Require(Argument.Kind == EKind::Pointer || Argument.Kind == EKind::WideText || Argument.Kind == EKind::NarrowText);
			FConversion Hex = Conversion;
			Hex.Letter = 'x';
			Hex.Flags[Hex.NumFlags++] = '#';
			WriteNumber(Hex, "ll", (unsigned long long)(UPTRINT)Argument.Pointer);
		}

		template <typename NumberType>
		void WriteNumber(const FConversion& Conversion, const char* Length, NumberType Number)
		{
			char Spec[32];
			std::snprintf(Spec, sizeof(Spec), "%%%s%s*.*%s%c", Conversion.bLeft ? "-" : "", Conversion.Flags, Length, Conversion.Letter);
			char Short[128];
			const int32 Len = std::snprintf(Short, sizeof(Short), Spec, Conversion.Width, Conversion.Precision, Number);
			if (Len < (int32)sizeof(Short))
			{
				Result.Append(FString(FAnsiStringView(Short, Len)));
				return;
			}
			TArray<char> Long;
			Long.SetNumUninitialized(Len + 1);
			std::snprintf(Long.GetData(), (SIZE_T)Len + 1, Spec, Conversion.Width, Conversion.Precision, Number);
			Result.Append(FString(FAnsiStringView(Long.GetData(), Len)));
		}

		FString& Result;
		const TCHAR* Format;
		const TCHAR* Next;
		const FArgument* Arguments;
		int32 NumArguments;
		int32 NumTaken = 0;
	};
}

void FString::AppendPrintf(const TCHAR* Format, const Host::FPrintfArgument* Arguments, int32 NumArguments)
{
	FPrintfWriter(*this, Format, Arguments, NumArguments).Write();
}

#include "Host/WidgetLocator.h"

namespace Host
{
	namespace
	{
		/** Takes "#2" off the end; 0 when there is none. */
		int32 TakeNumber(FString& Text)
		{
			int32 Hash = INDEX_NONE;
			constexpr int32 MostDigits = 6;
			if (!Text.FindLastChar(TEXT('#'), Hash) || Hash == Text.Len() - 1 || Text.Len() - Hash > MostDigits)
			{
				return 0;
			}
			for (int32 Index = Hash + 1; Index < Text.Len(); ++Index)
			{
				if (!FChar::IsDigit(Text[Index]))
				{
					return 0;
				}
			}
			const int32 Number = FCString::Atoi(*Text.RightChop(Hash + 1));
			Text.LeftInline(Hash);
			return Number;
		}

		/** Where a part that begins with the prefix stands; a text may have slashes of its own, so the first one counts. */
		int32 FindPart(const FString& Text, const TCHAR* Prefix)
		{
			if (Text.StartsWith(Prefix))
			{
				return 0;
			}
			const int32 Slash = Text.Find(FString(TEXT("/")) + Prefix);
			return Slash == INDEX_NONE ? INDEX_NONE : Slash + 1;
		}
	}

	FWidgetLocator FWidgetLocator::Parse(const FString& Locator)
	{
		static const TCHAR* const TextPrefix = TEXT("text:");
		static const TCHAR* const ClassPrefix = TEXT("class:");

		FWidgetLocator Result;
		FString Rest = Locator;
		Result.Number = TakeNumber(Rest);
		FString Way;
		if (const int32 TextPart = FindPart(Rest, TextPrefix); TextPart != INDEX_NONE)
		{
			Result.Kind = EKind::Text;
			Result.Sought = Rest.RightChop(TextPart + FCString::Strlen(TextPrefix));
			Way = Rest.Left(TextPart);
		}
		else if (const int32 ClassPart = FindPart(Rest, ClassPrefix); ClassPart != INDEX_NONE)
		{
			Result.Kind = EKind::Class;
			Result.Sought = Rest.RightChop(ClassPart + FCString::Strlen(ClassPrefix));
			Way = Rest.Left(ClassPart);
		}
		else
		{
			int32 Slash = INDEX_NONE;
			Rest.FindLastChar(TEXT('/'), Slash);
			Result.Sought = Rest.RightChop(Slash + 1);
			Way = Rest.Left(Slash + 1);
		}
		Way.ParseIntoArray(Result.Outers, TEXT("/"));
		return Result;
	}
}

#include "Host/Reflection/DisplayName.h"

#include "Misc/Char.h"

namespace Host
{
	FString MakeDisplayName(const FString& Name, bool bIsBool)
	{
		const bool bPrefixed = bIsBool && Name.Len() > 1 && Name[0] == TEXT('b') && FChar::IsUpper(Name[1]);
		FString Result;
		for (int32 Index = bPrefixed ? 1 : 0; Index < Name.Len(); ++Index)
		{
			const TCHAR Character = Name[Index];
			const TCHAR Previous = Result.IsEmpty() ? TEXT(' ') : Result[Result.Len() - 1];
			const TCHAR Next = Index + 1 < Name.Len() ? Name[Index + 1] : TEXT('\0');
			if (Character == TEXT('_'))
			{
				if (Previous != TEXT(' '))
				{
					Result.AppendChar(TEXT(' '));
				}
				continue;
			}
			// A word starts at a capital behind a small letter, and at the last capital of a run; a number is a word.
			const bool bAfterSmall = FChar::IsUpper(Character) && (FChar::IsLower(Previous) || FChar::IsDigit(Previous));
			const bool bLastCapital = FChar::IsUpper(Character) && FChar::IsUpper(Previous) && FChar::IsLower(Next);
			const bool bNumber = FChar::IsDigit(Character) && FChar::IsLower(Previous);
			if (bAfterSmall || bLastCapital || bNumber)
			{
				Result.AppendChar(TEXT(' '));
			}
			Result.AppendChar(Previous == TEXT(' ') ? FChar::ToUpper(Character) : Character);
		}
		return Result;
	}

	const FString& GetMetaDataOrEmpty(const FString* Value)
	{
		static const FString Empty;
		return Value ? *Value : Empty;
	}

	bool IsTrueMetaData(const FString* Value)
	{
		return Value && (Value->IsEmpty() || Value->Equals(TEXT("true"), ESearchCase::IgnoreCase));
	}

	FText MakeDisplayNameText(FMetaDataMap& MetaData, const FString& Name, bool bIsBool)
	{
		const FString* DisplayName = MetaData.Find(TEXT("DisplayName"));
		return FText::FromString(DisplayName && !DisplayName->IsEmpty() ? *DisplayName : MakeDisplayName(Name, bIsBool));
	}

	FText MakeToolTipText(FMetaDataMap& MetaData, const FText& DisplayName, bool bShort)
	{
		const FString* Text = bShort ? MetaData.Find(TEXT("ShortToolTip")) : nullptr;
		Text = Text ? Text : MetaData.Find(TEXT("ToolTip"));
		return Text && !Text->IsEmpty() ? FText::FromString(*Text) : DisplayName;
	}
} // namespace Host

#include "UObject/Enum.h"

#include "Host/Reflection/DisplayName.h"
#include "UObject/UObjectGlobals.h"

UEnum::UEnum(const FObjectInitializer& ObjectInitializer)
	: UField(ObjectInitializer)
{
}

UEnum::UEnum(EStaticConstructor, EObjectFlags InFlags)
	: UField(EC_StaticConstructor, InFlags)
{
}

FName UEnum::MakeFullName(FName ShortName) const
{
	return CppForm == ECppForm::Regular ? ShortName : FName(*(GetName() + TEXT("::") + ShortName.ToString()));
}

void UEnum::SetEnums(const TArray<TPair<FName, int64>>& InNames, ECppForm InCppForm, EEnumFlags InFlags, bool bAddMaxKeyIfMissing)
{
	CppForm = InCppForm;
	EnumFlags = InFlags;
	Names.Reset();
	for (const TPair<FName, int64>& Pair : InNames)
	{
		Names.Emplace(MakeFullName(Pair.Key), Pair.Value);
	}
	if (bAddMaxKeyIfMissing && !ContainsExistingMax())
	{
		const FName MaxName = MakeFullName(FName(*(GenerateEnumPrefix() + TEXT("_MAX"))));
		const int64 MaxValue = Names.Num() > 0 ? GetMaxEnumValue() : -1;
		if (GetIndexByName(MaxName) == INDEX_NONE && MaxValue < TNumericLimits<int64>::Max())
		{
			Names.Emplace(MaxName, MaxValue + 1);
		}
	}
	EnumeratorMetaData.Empty();
	EnumeratorMetaData.SetNum(Names.Num());
}

void UEnum::SetCompiledMetaData(int32 NameIndex, Host::FMetaDataSpan Compiled)
{
	EnumeratorMetaData[NameIndex].SetCompiled(Compiled);
}

static FString GetShortName(const FString& FullName)
{
	int32 Colon = INDEX_NONE;
	return FullName.FindLastChar(TEXT(':'), Colon) ? FullName.RightChop(Colon + 1) : FullName;
}

FString UEnum::GenerateEnumPrefix() const
{
	if (Names.Num() > 0)
	{
		FString Prefix = GetShortName(Names[0].Key.ToString());
		for (const TPair<FName, int64>& Pair : Names)
		{
			const FString Name = GetShortName(Pair.Key.ToString());
			int32 Common = 0;
			while (Common < Prefix.Len() && Common < Name.Len() && Prefix[Common] == Name[Common])
			{
				++Common;
			}
			Prefix.LeftInline(Common);
		}
		int32 Underscore = INDEX_NONE;
		if (Prefix.FindLastChar(TEXT('_'), Underscore) && Underscore > 0)
		{
			return Prefix.Left(Underscore);
		}
	}
	return GetName();
}

bool UEnum::ContainsExistingMax() const
{
	if (Names.Num() == 0)
	{
		return false;
	}
	const FString Last = GetShortName(Names.Last().Key.ToString());
	return Last.Equals(TEXT("MAX"), ESearchCase::IgnoreCase) || Last.EndsWith(TEXT("_MAX"), ESearchCase::IgnoreCase);
}

FName UEnum::GetNameByIndex(int32 Index) const
{
	return Names.IsValidIndex(Index) ? Names[Index].Key : FName();
}

int32 UEnum::GetIndexByName(FName InName, EGetByNameFlags Flags) const
{
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		if (Names[Index].Key == InName)
		{
			return Index;
		}
	}
	return GetIndexByNameString(InName.ToString(), Flags);
}

int32 UEnum::GetIndexByNameString(const FString& SearchString, EGetByNameFlags Flags) const
{
	const ESearchCase::Type Case =
		EnumHasAnyFlags(Flags, EGetByNameFlags::CaseSensitive) ? ESearchCase::CaseSensitive : ESearchCase::IgnoreCase;
	const FString Sought = GetShortName(SearchString);
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		if (GetShortName(Names[Index].Key.ToString()).Equals(Sought, Case))
		{
			return Index;
		}
	}
	UE_CLOG(EnumHasAnyFlags(Flags, EGetByNameFlags::ErrorIfNotFound), LogUObjectGlobals, Error, TEXT("%s has no enumerator '%s'"),
		*GetName(), *SearchString);
	return INDEX_NONE;
}

int32 UEnum::GetIndexByValue(int64 InValue) const
{
	return Names.IndexOfByPredicate([InValue](const TPair<FName, int64>& Pair) { return Pair.Value == InValue; });
}

int64 UEnum::GetValueByIndex(int32 Index) const
{
	check(Names.IsValidIndex(Index));
	return Names[Index].Value;
}

FName UEnum::GetNameByValue(int64 InValue) const
{
	return GetNameByIndex(GetIndexByValue(InValue));
}

int64 UEnum::GetValueByName(FName InName, EGetByNameFlags Flags) const
{
	const int32 Index = GetIndexByName(InName, Flags);
	return Index == INDEX_NONE ? int64(INDEX_NONE) : Names[Index].Value;
}

int64 UEnum::GetValueByNameString(const FString& SearchString, EGetByNameFlags Flags) const
{
	const int32 Index = GetIndexByNameString(SearchString, Flags);
	return Index == INDEX_NONE ? int64(INDEX_NONE) : Names[Index].Value;
}

FString UEnum::GetNameStringByIndex(int32 InIndex) const
{
	return Names.IsValidIndex(InIndex) ? GetShortName(Names[InIndex].Key.ToString()) : FString();
}

FString UEnum::GetNameStringByValue(int64 InValue) const
{
	return GetNameStringByIndex(GetIndexByValue(InValue));
}

FText UEnum::GetDisplayNameTextByIndex(int32 InIndex) const
{
	if (!Names.IsValidIndex(InIndex))
	{
		return FText::GetEmpty();
	}
	return Host::MakeDisplayNameText(EnumeratorMetaData[InIndex], GetNameStringByIndex(InIndex), false);
}

FText UEnum::GetDisplayNameTextByValue(int64 InValue) const
{
	return GetDisplayNameTextByIndex(GetIndexByValue(InValue));
}

FText UEnum::GetToolTipTextByIndex(int32 InIndex) const
{
	if (!Names.IsValidIndex(InIndex))
	{
		return FText::GetEmpty();
	}
	return Host::MakeToolTipText(EnumeratorMetaData[InIndex], GetDisplayNameTextByIndex(InIndex), false);
}

FString UEnum::GetValueOrBitfieldAsString(int64 InValue) const
{
	const int32 Exact = GetIndexByValue(InValue);
	// The MAX enumerator of flags is the sum of some of them as often as not.
	const bool bExact = Exact != INDEX_NONE && !(ContainsExistingMax() && Exact == Names.Num() - 1);
	if (!HasAnyEnumFlags(EEnumFlags::Flags) || bExact)
	{
		return GetNameStringByIndex(Exact);
	}
	FString Result;
	for (const TPair<FName, int64>& Pair : Names)
	{
		const bool bSingleBit = Pair.Value > 0 && (Pair.Value & (Pair.Value - 1)) == 0;
		if (bSingleBit && (InValue & Pair.Value) != 0)
		{
			Result += (Result.IsEmpty() ? FString() : FString(TEXT(" | "))) + GetShortName(Pair.Key.ToString());
		}
	}
	return Result;
}

int64 UEnum::GetMaxEnumValue() const
{
	int64 Result = Names.Num() > 0 ? Names[0].Value : 0;
	for (const TPair<FName, int64>& Pair : Names)
	{
		Result = FMath::Max(Result, Pair.Value);
	}
	return Result;
}

bool UEnum::HasMetaData(const TCHAR* Key, int32 NameIndex) const
{
	return NameIndex == INDEX_NONE ? UField::HasMetaData(Key) : EnumeratorMetaData[NameIndex].Contains(Key);
}

FString UEnum::GetMetaData(const TCHAR* Key, int32 NameIndex) const
{
	return NameIndex == INDEX_NONE ? UField::GetMetaData(Key) : Host::GetMetaDataOrEmpty(EnumeratorMetaData[NameIndex].Find(Key));
}

void UEnum::SetMetaData(const TCHAR* Key, const TCHAR* Value, int32 NameIndex)
{
	if (NameIndex == INDEX_NONE)
	{
		UField::SetMetaData(Key, Value);
		return;
	}
	EnumeratorMetaData[NameIndex].Set(FName(Key), Value);
}

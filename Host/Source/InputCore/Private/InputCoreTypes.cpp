#include "InputCoreTypes.h"

#include "Containers/Map.h"

namespace
{
	enum class EKeyKind : uint8
	{
		None,
		Keyboard,
		Modifier,
		MouseButton,
		MouseAxis,
	};

	struct FKeyDetails
	{
		FKey Key;
		const TCHAR* DisplayName;
		EKeyKind Kind;
	};

	const TArray<FKeyDetails>& GetDetails()
	{
		static const TArray<FKeyDetails> Details = {
#define HOST_KEY(Name, DisplayName, Kind) FKeyDetails{ FKey(TEXT(#Name)), TEXT(DisplayName), EKeyKind::Kind },
HOST_FOR_EACH_KEY(HOST_KEY)
#undef HOST_KEY
		};
		return Details;
	}

	const FKeyDetails* FindDetails(FName KeyName)
	{
		static const TMap<FName, int32> Indices = []
		{
			TMap<FName, int32> Result;
			for (int32 Index = 0; Index < GetDetails().Num(); ++Index)
			{
				Result.Add(GetDetails()[Index].Key.GetFName(), Index);
			}
			return Result;
		}();
		const int32* Index = Indices.Find(KeyName);
		return Index ? &GetDetails()[*Index] : nullptr;
	}

	bool IsOfKind(FName KeyName, EKeyKind Kind)
	{
		const FKeyDetails* Details = FindDetails(KeyName);
		return Details && Details->Kind == Kind;
	}
}

#define HOST_KEY(Name, DisplayName, Kind) const FKey EKeys::Name(TEXT(#Name));
HOST_FOR_EACH_KEY(HOST_KEY)
#undef HOST_KEY
const FKey EKeys::Invalid(NAME_None);

bool FKey::IsValid() const
{
	return FindDetails(KeyName) != nullptr;
}

bool FKey::IsModifierKey() const
{
	return IsOfKind(KeyName, EKeyKind::Modifier);
}

bool FKey::IsMouseButton() const
{
	return IsOfKind(KeyName, EKeyKind::MouseButton);
}

bool FKey::IsAxis1D() const
{
	return IsOfKind(KeyName, EKeyKind::MouseAxis) && KeyName != EKeys::Mouse2D.GetFName();
}

FText FKey::GetDisplayName(bool) const
{
	const FKeyDetails* Details = FindDetails(KeyName);
	return Details ? FText::AsCultureInvariant(Details->DisplayName) : FText::FromName(KeyName);
}

void EKeys::GetAllKeys(TArray<FKey>& OutKeys)
{
	for (const FKeyDetails& Details : GetDetails())
	{
		OutKeys.Add(Details.Key);
	}
}

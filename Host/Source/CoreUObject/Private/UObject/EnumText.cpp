#include "EnumText.h"

#include "PropertyText.h"
#include "UObject/Enum.h"
#include "UObject/NumericProperty.h"

namespace Host
{
	namespace
	{
		bool ParseEnumerators(const UEnum& Enum, const FString& Text, int64& OutValue)
		{
			TArray<FString> Parts;
			Text.ParseIntoArray(Parts, TEXT("|"));
			OutValue = 0;
			for (const FString& Part : Parts)
			{
				const int32 Index = Enum.GetIndexByNameString(Part.TrimStartAndEnd());
				if (Index == INDEX_NONE)
				{
					return false;
				}
				OutValue |= Enum.GetValueByIndex(Index);
			}
			return Parts.Num() == 1 || (Parts.Num() > 1 && Enum.HasAnyEnumFlags(EEnumFlags::Flags));
		}
	}

	const TCHAR* ImportEnumText(const FProperty& Property, const FNumericProperty& Integer, const UEnum& Enum, const TCHAR* Buffer, void* Value, FOutputDevice* ErrorText)
	{
		FString Text;
		const TCHAR* Behind = ReadToken(Buffer, Text);
		int64 Enumerator = 0;
		if (ParseEnumerators(Enum, Text, Enumerator))
		{
			Integer.SetIntPropertyValue(Value, Enumerator);
			return Behind;
		}
		if (Integer.ImportText_Direct(*Text, Value, nullptr, PPF_None))
		{
			return Behind;
		}
		return RefuseText(Property, Text, ErrorText);
	}

	void ExportEnumText(const FNumericProperty& Integer, const UEnum& Enum, FString& ValueStr, const void* Value, int32 PortFlags)
	{
		const int64 Enumerator = Integer.GetSignedIntPropertyValue(Value);
		if (!Enum.IsValidEnumValue(Enumerator))
		{
			ValueStr += FString::Printf(TEXT("%lld"), static_cast<long long>(Enumerator));
		}
		else if (PortFlags & PPF_PropertyWindow)
		{
			ValueStr += Enum.GetDisplayNameTextByValue(Enumerator).ToString();
		}
		else
		{
			ValueStr += Enum.GetNameStringByValue(Enumerator);
		}
	}
}

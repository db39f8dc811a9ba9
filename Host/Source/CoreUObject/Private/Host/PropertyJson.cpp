#include "Host/PropertyJson.h"

#include "Host/AssetLoaders.h"
#include "Host/PropertyJsonReader.h"
#include "Math/Color.h"

namespace Host
{
	namespace
	{
		bool IsHexColor(FStringView Text)
		{
			if (Text.Len() != 7 && Text.Len() != 9 && Text.Len() != 4)
			{
				return false;
			}
			for (int32 Index = 1; Index < Text.Len(); ++Index)
			{
				if (!FChar::IsHexDigit(Text[Index]))
				{
					return false;
				}
			}
			return Text[0] == TEXT('#');
		}

		bool TryGetColor(const FJsonNode& Node, FColor& OutColor)
		{
			if (!Node.IsString() || !IsHexColor(Node.GetString()))
			{
				return false;
			}
			OutColor = FColor::FromHex(FString(Node.GetString()));
			return true;
		}

		bool ReadColor(const FJsonNode& Node, const UScriptStruct*, void* Value)
		{
			return TryGetColor(Node, *static_cast<FColor*>(Value));
		}

		bool ReadLinearColor(const FJsonNode& Node, const UScriptStruct*, void* Value)
		{
			FColor Color;
			if (!TryGetColor(Node, Color))
			{
				return false;
			}
			*static_cast<FLinearColor*>(Value) = FLinearColor(Color);
			return true;
		}

		bool ReadSoftPath(const FJsonNode& Node, const UScriptStruct*, void* Value)
		{
			FString Path;
			if (!Node.TryGetString(Path))
			{
				return false;
			}
			static_cast<FSoftObjectPath*>(Value)->SetPath(Path);
			return true;
		}

		TMap<FName, FPropertyJson::FStructReader>& GetStructReaders()
		{
			static TMap<FName, FPropertyJson::FStructReader> Readers = []
			{
				TMap<FName, FPropertyJson::FStructReader> Initial;
				Initial.Add(FName(TEXT("/Script/CoreUObject.Color")), &ReadColor);
				Initial.Add(FName(TEXT("/Script/CoreUObject.LinearColor")), &ReadLinearColor);
				Initial.Add(FName(TEXT("/Script/CoreUObject.SoftObjectPath")), &ReadSoftPath);
				Initial.Add(FName(TEXT("/Script/CoreUObject.SoftClassPath")), &ReadSoftPath);
				return Initial;
			}();
			return Readers;
		}
	}

	FPropertyJson::FStructReader FindStructReader(const UScriptStruct& Struct)
	{
		const FPropertyJson::FStructReader* Reader = GetStructReaders().Find(FName(Struct.GetPathName()));
		return Reader ? *Reader : nullptr;
	}

	int32 FPropertyJson::ReadObject(const FJsonNode& Node, UObject* Object)
	{
		return ReadObject(Node, Object, [](const FString& Message) { UE_LOG(LogAssets, Error, TEXT("%s"), *Message); });
	}

	int32 FPropertyJson::ReadObject(const FJsonNode& Node, UObject* Object, FReport Report)
	{
		return ReadStruct(Node, Object->GetClass(), Object, Object, Report);
	}

	int32 FPropertyJson::ReadStruct(const FJsonNode& Node, const UStruct* Struct, void* Value, UObject* Owner, FReport Report)
	{
		FPropertyJsonReader Reader(Owner, Report);
		Reader.ReadMembers(Node, Struct, Value);
		return Reader.GetNumMessages();
	}

	int32 FPropertyJson::ReadValue(const FJsonNode& Node, const FProperty* Property, void* Value, UObject* Owner, FReport Report)
	{
		FPropertyJsonReader Reader(Owner, Report);
		Reader.ReadProperty(Node, *Property, Value);
		return Reader.GetNumMessages();
	}

	int32 FPropertyJson::ReadElement(const FJsonNode& Node, const FProperty* Property, void* Value, UObject* Owner, FReport Report)
	{
		FPropertyJsonReader Reader(Owner, Report);
		Reader.ReadElement(Node, *Property, Value);
		return Reader.GetNumMessages();
	}

	void FPropertyJson::AddStructReader(const FString& StructPath, FStructReader Reader)
	{
		GetStructReaders().Add(FName(StructPath), Reader);
	}

	bool FPropertyJson::IsStored(const FProperty* Property)
	{
		return !Property->HasAnyPropertyFlags(CPF_Transient | CPF_SkipSerialization)
			&& !Property->IsA<FDelegateProperty>() && !Property->IsA<FMulticastDelegateProperty>();
	}
}

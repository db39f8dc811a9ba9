#include "Host/JsonWriter.h"
#include "Host/PropertyJson.h"
#include "Math/Color.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/UnrealType.h"

namespace Host
{
	namespace
	{
		void WriteElement(FJsonWriter& Writer, const FProperty& Property, const void* Value, const UObject* Owner);

		FString ToText(const FProperty& Property, const void* Value, const UObject* Owner)
		{
			FString Text;
			Property.ExportTextItem_Direct(Text, Value, nullptr, const_cast<UObject*>(Owner), PPF_None);
			return Text;
		}

		bool IsStruct(const UScriptStruct& Struct, const TCHAR* Path)
		{
			return Struct.GetPathName() == Path;
		}

		/** As "#RRGGBBAA" where that is the same colour. */
		bool WriteColor(FJsonWriter& Writer, const UScriptStruct& Struct, const void* Value)
		{
			if (IsStruct(Struct, TEXT("/Script/CoreUObject.Color")))
			{
				Writer.String(TEXT("#") + static_cast<const FColor*>(Value)->ToHex());
				return true;
			}
			if (!IsStruct(Struct, TEXT("/Script/CoreUObject.LinearColor")))
			{
				return false;
			}
			const FLinearColor& Linear = *static_cast<const FLinearColor*>(Value);
			const FColor Color = Linear.ToFColor(true);
			const bool bExact = FLinearColor(Color) == Linear;
			if (bExact)
			{
				Writer.String(TEXT("#") + Color.ToHex());
			}
			return bExact;
		}

		void WriteStructValue(FJsonWriter& Writer, const UScriptStruct& Struct, const void* Value, const UObject* Owner)
		{
			if (!WriteColor(Writer, Struct, Value))
			{
				FPropertyJson::WriteStruct(Writer, &Struct, Value, nullptr, Owner);
			}
		}

		/** The number of fewest digits that reads back as the float: 0.1, not 0.10000000149011612. */
		double ShortestDecimal(float Value)
		{
			double Number = Value;
			for (int32 Digits = 6; Digits <= 9; ++Digits)
			{
				Number = FCString::Atod(*FString::Printf(TEXT("%.*g"), Digits, static_cast<double>(Value)));
				if (static_cast<float>(Number) == Value)
				{
					break;
				}
			}
			return Number;
		}

		void WriteNumber(FJsonWriter& Writer, const FNumericProperty& Property, const void* Value)
		{
			if (const UEnum* Enum = Property.GetIntPropertyEnum())
			{
				Writer.String(Enum->GetNameStringByValue(Property.GetSignedIntPropertyValue(Value)));
			}
			else if (const FFloatProperty* Float = CastField<FFloatProperty>(&Property))
			{
				Writer.Number(ShortestDecimal(Float->GetPropertyValue(Value)));
			}
			else if (Property.IsInteger())
			{
				Writer.Integer(Property.GetSignedIntPropertyValue(Value));
			}
			else
			{
				Writer.Number(Property.GetFloatingPointPropertyValue(Value));
			}
		}

		void WriteReference(FJsonWriter& Writer, const UObject* Object, bool bOwned, const UObject* Owner)
		{
			if (!Object)
			{
				Writer.Null();
			}
			else if (bOwned && Object->IsIn(Owner) && Owner)
			{
				FPropertyJson::WriteObject(Writer, Object);
			}
			else
			{
				Writer.String(Object->GetPathName());
			}
		}

		void WriteContainer(FJsonWriter& Writer, const FProperty& Property, const void* Value, const UObject* Owner)
		{
			Writer.BeginArray();
			if (const FArrayProperty* ArrayProperty = CastField<FArrayProperty>(&Property))
			{
				const FScriptArrayHelper Array(ArrayProperty, Value);
				for (int32 Index = 0; Index < Array.Num(); ++Index)
				{
					WriteElement(Writer, *ArrayProperty->Inner, Array.GetRawPtr(Index), Owner);
				}
			}
			else if (const FSetProperty* SetProperty = CastField<FSetProperty>(&Property))
			{
				const FScriptSetHelper Set(SetProperty, Value);
				for (int32 Index = 0; Index < Set.GetMaxIndex(); ++Index)
				{
					if (Set.IsValidIndex(Index))
					{
						WriteElement(Writer, *SetProperty->ElementProp, Set.GetElementPtr(Index), Owner);
					}
				}
			}
			else if (const FMapProperty* MapProperty = CastField<FMapProperty>(&Property))
			{
				const FScriptMapHelper Map(MapProperty, Value);
				for (int32 Index = 0; Index < Map.GetMaxIndex(); ++Index)
				{
					if (Map.IsValidIndex(Index))
					{
						Writer.BeginArray();
						WriteElement(Writer, *MapProperty->KeyProp, Map.GetKeyPtr(Index), Owner);
						WriteElement(Writer, *MapProperty->ValueProp, Map.GetValuePtr(Index), Owner);
						Writer.EndArray();
					}
				}
			}
			Writer.EndArray();
		}

		void WriteElement(FJsonWriter& Writer, const FProperty& Property, const void* Value, const UObject* Owner)
		{
			const bool bOwned = Property.HasAnyPropertyFlags(CPF_InstancedReference);
			if (const FBoolProperty* Bool = CastField<FBoolProperty>(&Property))
			{
				Writer.Bool(Bool->GetPropertyValue(Value));
			}
			else if (const FEnumProperty* Enum = CastField<FEnumProperty>(&Property))
			{
				Writer.String(Enum->GetEnum()->GetNameStringByValue(Enum->GetUnderlyingProperty()->GetSignedIntPropertyValue(Value)));
			}
			else if (const FNumericProperty* Number = CastField<FNumericProperty>(&Property))
			{
				WriteNumber(Writer, *Number, Value);
			}
			else if (const FStructProperty* Struct = CastField<FStructProperty>(&Property))
			{
				WriteStructValue(Writer, *Struct->Struct, Value, Owner);
			}
			else if (Property.IsA<FArrayProperty>() || Property.IsA<FSetProperty>() || Property.IsA<FMapProperty>())
			{
				WriteContainer(Writer, Property, Value, Owner);
			}
			else if (Property.IsA<FSoftObjectProperty>())
			{
				Writer.String(static_cast<const FSoftObjectPtr*>(Value)->ToString());
			}
			else if (const FObjectPropertyBase* Object = CastField<FObjectPropertyBase>(&Property))
			{
				WriteReference(Writer, Object->GetObjectPropertyValue(Value), bOwned, Owner);
			}
			else if (Property.IsA<FInterfaceProperty>())
			{
				WriteReference(Writer, static_cast<const FScriptInterface*>(Value)->GetObject(), bOwned, Owner);
			}
			else if (Property.IsA<FStrProperty>())
			{
				Writer.String(FStrProperty::GetPropertyValue(Value));
			}
			else if (Property.IsA<FNameProperty>())
			{
				Writer.String(FNameProperty::GetPropertyValue(Value).ToString());
			}
			else
			{
				// Texts keep their namespace and key.
				Writer.String(ToText(Property, Value, Owner));
			}
		}

		bool IsDefault(const FProperty& Property, const void* Value, const void* Defaults)
		{
			for (int32 Index = 0; Index < Property.ArrayDim; ++Index)
			{
				if (!Property.Identical_InContainer(Value, Defaults, Index))
				{
					return false;
				}
			}
			return true;
		}
	}

	void FPropertyJson::WriteValue(FJsonWriter& Writer, const FProperty* Property, const void* Value, const UObject* Owner)
	{
		if (Property->ArrayDim == 1)
		{
			WriteElement(Writer, *Property, Value, Owner);
			return;
		}
		Writer.BeginArray();
		for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
		{
			WriteElement(Writer, *Property, static_cast<const uint8*>(Value) + Index * Property->ElementSize, Owner);
		}
		Writer.EndArray();
	}

	void FPropertyJson::WriteStruct(FJsonWriter& Writer, const UStruct* Struct, const void* Value, const void* Defaults, const UObject* Owner)
	{
		Writer.BeginObject();
		for (TFieldIterator<FProperty> It(Struct); It; ++It)
		{
			if (IsStored(*It) && !(Defaults && IsDefault(**It, Value, Defaults)))
			{
				Writer.Key(It->GetName());
				WriteValue(Writer, *It, It->ContainerPtrToValuePtr<void>(Value), Owner);
			}
		}
		Writer.EndObject();
	}

	void FPropertyJson::WriteObject(FJsonWriter& Writer, const UObject* Object)
	{
		Writer.BeginObject();
		Writer.Key(TEXT("Class"));
		Writer.String(Object->GetClass()->GetPathName());
		Writer.Key(TEXT("Properties"));
		WriteStruct(Writer, Object->GetClass(), Object, Object->GetArchetype(), Object);
		Writer.EndObject();
	}
}

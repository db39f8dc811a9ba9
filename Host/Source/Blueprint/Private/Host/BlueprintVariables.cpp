#include "Host/BlueprintVariables.h"

#include "Host/BlueprintReport.h"
#include "Host/PropertyJson.h"
#include "Host/Reflection/PropertyFactory.h"
#include "UObject/UnrealType.h"

namespace Host
{
	namespace
	{
		using FMaker = FProperty* (*)(FFieldVariant Owner, FName Name);

		struct FSimpleType
		{
			const TCHAR* Name;
			FMaker Make;
			FMaker MakeArray;
		};

		const FSimpleType SimpleTypes[] = {
			{ TEXT("bool"), &MakeProperty<bool>, &MakeProperty<TArray<bool>> },
			{ TEXT("int"), &MakeProperty<int32>, &MakeProperty<TArray<int32>> },
			{ TEXT("int64"), &MakeProperty<int64>, &MakeProperty<TArray<int64>> },
			{ TEXT("float"), &MakeProperty<float>, &MakeProperty<TArray<float>> },
			{ TEXT("double"), &MakeProperty<double>, &MakeProperty<TArray<double>> },
			{ TEXT("string"), &MakeProperty<FString>, &MakeProperty<TArray<FString>> },
			{ TEXT("name"), &MakeProperty<FName>, &MakeProperty<TArray<FName>> },
			{ TEXT("text"), &MakeProperty<FText>, &MakeProperty<TArray<FText>> },
			{ TEXT("object"), &MakeProperty<TObjectPtr<UObject>>, &MakeProperty<TArray<TObjectPtr<UObject>>> },
		};

		FProperty* MakeReferenceOrStruct(UClass& Class, FName Name, const FString& Path)
		{
			UObject* Type = StaticFindObject(UObject::StaticClass(), nullptr, *Path);
			if (UScriptStruct* Struct = Cast<UScriptStruct>(Type))
			{
				return new FStructProperty(&Class, Name, Struct);
			}
			if (UClass* ObjectClass = Cast<UClass>(Type))
			{
				return new FObjectProperty(&Class, Name, ObjectClass);
			}
			if (UEnum* Enum = Cast<UEnum>(Type))
			{
				return new FByteProperty(&Class, Name, Enum);
			}
			return nullptr;
		}

		FProperty* MakeVariable(UClass& Class, FName Name, const FString& Type)
		{
			const bool bArray = Type.StartsWith(TEXT("[")) && Type.EndsWith(TEXT("]"));
			const FString Element = bArray ? Type.Mid(1, Type.Len() - 2) : Type;
			for (const FSimpleType& Simple : SimpleTypes)
			{
				if (Element.Equals(Simple.Name))
				{
					return bArray ? Simple.MakeArray(&Class, Name) : Simple.Make(&Class, Name);
				}
			}
			return bArray ? nullptr : MakeReferenceOrStruct(Class, Name, Element);
		}
	}

	const FProperty* FindVariable(const UClass& Class, FName Name)
	{
		for (TFieldIterator<FProperty> It(&Class); It; ++It)
		{
			if (It->GetFName() == Name)
			{
				return *It;
			}
		}
		return nullptr;
	}

	void AddBlueprintVariables(UClass& Class, const FJsonNode& Variables)
	{
		// A structure chains its properties by the order of adding.
		for (const FJsonNode Variable : Variables)
		{
			const FName Name(Variable.GetKey());
			FString Type;
			if (!Variable.Find(TEXT("Type")).TryGetString(Type))
			{
				ReportBlueprintError(Variable, FString::Printf(TEXT("the variable '%s' needs a \"Type\"."), *Name.ToString()));
				continue;
			}
			if (FindVariable(Class, Name))
			{
				ReportBlueprintError(Variable, FString::Printf(TEXT("there is a property '%s' already."), *Name.ToString()));
				continue;
			}
			FProperty* Property = MakeVariable(Class, Name, Type);
			if (!Property)
			{
				ReportBlueprintError(Variable, FString::Printf(TEXT("'%s' is no type of a variable."), *Type));
				continue;
			}
			Property->SetPropertyFlags(CPF_Edit | CPF_BlueprintVisible);
			FString Category;
			if (Variable.Find(TEXT("Category")).TryGetString(Category))
			{
				Property->SetMetaData(TEXT("Category"), *Category);
			}
			Class.AddCppProperty(Property);
		}
	}

	void ReadVariableDefaults(const UClass& Class, const FJsonNode& Variables, UObject& Defaults)
	{
		for (const FJsonNode Variable : Variables)
		{
			const FJsonNode Default = Variable.Find(TEXT("Default"));
			const FProperty* Property = Default ? Class.FindPropertyByName(FName(Variable.GetKey())) : nullptr;
			if (Property)
			{
				FPropertyJson::ReadValue(Default, Property, Property->ContainerPtrToValuePtr<void>(&Defaults), &Defaults, [](const FString& Message) { ReportBlueprintError(Message); });
			}
		}
	}
}

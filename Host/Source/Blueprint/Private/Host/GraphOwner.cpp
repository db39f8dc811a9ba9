#include "Host/GraphOwner.h"

#include "Host/Reflection/PropertyFactory.h"
#include "UObject/UnrealType.h"

namespace Host
{
	namespace
	{
		const TCHAR* const KeptObjectsName = TEXT("GraphKeptObjects");

		const FArrayProperty* FindKeptObjects(const UObject& Object)
		{
			return CastField<FArrayProperty>(Object.GetClass()->FindPropertyByName(KeptObjectsName));
		}
	}

	void AddKeptObjectsVariable(UClass& Class)
	{
		if (Class.FindPropertyByName(KeptObjectsName))
		{
			return;
		}
		FProperty* Property = MakeProperty<TArray<TObjectPtr<UObject>>>(&Class, KeptObjectsName);
		Property->SetPropertyFlags(CPF_Transient | CPF_DuplicateTransient);
		Class.AddCppProperty(Property);
	}

	void KeepWithOwner(UObject& Owner, UObject& Kept)
	{
		for (UObject* Keeper = &Owner; Keeper; Keeper = Keeper->GetOuter())
		{
			if (const FArrayProperty* Property = FindKeptObjects(*Keeper))
			{
				TArray<TObjectPtr<UObject>>& Objects = *Property->ContainerPtrToValuePtr<TArray<TObjectPtr<UObject>>>(Keeper);
				Objects.Add(&Kept);
				return;
			}
		}
	}
}

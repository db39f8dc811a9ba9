#include "UObject/UObjectGlobals.h"

#include "Host/ObjectArray.h"
#include "UObject/Class.h"
#include "UObject/ObjectPath.h"
#include "UObject/Package.h"
#include "UObject/UObjectIterator.h"

DEFINE_LOG_CATEGORY(LogUObjectGlobals);

#if WITH_EDITOR
FCoreUObjectDelegates::FOnObjectPropertyChanged FCoreUObjectDelegates::OnObjectPropertyChanged;
#endif

FSimpleMulticastDelegate& FCoreUObjectDelegates::GetPreGarbageCollectDelegate()
{
	static FSimpleMulticastDelegate Delegate;
	return Delegate;
}

FSimpleMulticastDelegate& FCoreUObjectDelegates::GetPostGarbageCollect()
{
	static FSimpleMulticastDelegate Delegate;
	return Delegate;
}

UPackage* CreatePackage(const TCHAR* PackageName)
{
	const FName Name(PackageName);
	if (UPackage* Existing = static_cast<UPackage*>(StaticFindObjectFast(UPackage::StaticClass(), nullptr, Name)))
	{
		return Existing;
	}
	// Made directly: the packages of native code exist before the class of packages can make objects.
	UPackage* Package = ::new (FMemory::MallocZeroed(sizeof(UPackage))) UPackage(EC_StaticConstructor, RF_Public);
	Package->Register(UPackage::StaticClass(), nullptr, Name);
	return Package;
}

UPackage* FindPackage(UObject* InOuter, const TCHAR* PackageName)
{
	return static_cast<UPackage*>(StaticFindObject(UPackage::StaticClass(), InOuter, PackageName));
}

UPackage* GetTransientPackage()
{
	static UPackage* Transient = []
	{
		UPackage* Package = CreatePackage(TEXT("/Engine/Transient"));
		Package->SetFlags(RF_Transient);
		Package->AddToRoot();
		return Package;
	}();
	return Transient;
}

FName MakeUniqueObjectName(UObject* Outer, const UClass* Class, FName BaseName)
{
	// One counter a base name: the next number is nearly always free, whatever the outer.
	static TMap<FName, int32> NextNumbers;
	const FName Base = BaseName.IsNone() ? Class->GetFName() : BaseName;
	int32& NextNumber = NextNumbers.FindOrAdd(FName(Base, 0), NAME_EXTERNAL_TO_INTERNAL(0));
	FName Candidate;
	do
	{
		Candidate = FName(Base, NextNumber++);
	}
	while (Host::FObjectArray::Get().FindByName(Outer, Candidate));
	return Candidate;
}

UObject* StaticFindObjectFast(const UClass* Class, UObject* InOuter, FName Name, bool ExactClass)
{
	UObject* Object = Host::FObjectArray::Get().FindByName(InOuter, Name);
	if (!Object || !Class)
	{
		return Object;
	}
	const bool bMatches = ExactClass ? Object->GetClass() == Class : Object->IsA(Class);
	return bMatches ? Object : nullptr;
}

UObject* StaticFindObject(const UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass)
{
	Host::FObjectPathParts Parts(Name);
	UObject* Object = InOuter;
	while (Parts.HasMore())
	{
		// A name that was never made names nothing, and must not be made by asking.
		const FName Part(*Parts.Next(), FNAME_Find);
		if (Part.IsNone())
		{
			return nullptr;
		}
		const bool bLast = !Parts.HasMore();
		Object = StaticFindObjectFast(bLast ? Class : nullptr, Object, Part, bLast && ExactClass);
		if (!Object)
		{
			return nullptr;
		}
	}
	return Object != InOuter ? Object : nullptr;
}

UObject* StaticFindObjectChecked(const UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass)
{
	UObject* Object = StaticFindObject(Class, InOuter, Name, ExactClass);
	checkf(Object, TEXT("there is no %s '%s' in %s"), *GetNameSafe(Class), Name, *GetFullNameSafe(InOuter));
	return Object;
}

void ProcessNewlyLoadedUObjects(FName Package, bool)
{
	TArray<UClass*> WithoutDefaults;
	for (TObjectIterator<UClass> It; It; ++It)
	{
		const bool bWanted = Package.IsNone() || It->GetOutermost()->GetFName() == Package;
		if (bWanted && !It->ClassDefaultObject && It->IsNative())
		{
			WithoutDefaults.Add(*It);
		}
	}
	// Lower modules registered first: their defaults are there when a constructor above looks something up.
	for (UClass* Class : WithoutDefaults)
	{
		Class->GetDefaultObject();
	}
}

namespace Host
{
	void CheckIsChildOf(const UClass* Child, const UClass* Parent)
	{
		checkf(Child, TEXT("NewObject of a null class; it should derive from %s"), *Parent->GetName());
		checkf(Child->IsChildOf(Parent), TEXT("%s does not derive from %s"), *Child->GetName(), *Parent->GetName());
	}
}

void ForEachObjectWithOuter(const UObjectBase* Outer, TFunctionRef<void(UObject*)> Operation, bool bIncludeNestedObjects)
{
	Host::FObjectArray& Objects = Host::FObjectArray::Get();
	for (UObject* Inner = Objects.FirstInner(*Outer); Inner; Inner = Objects.NextInner(*Inner))
	{
		Operation(Inner);
		if (bIncludeNestedObjects)
		{
			ForEachObjectWithOuter(Inner, Operation, true);
		}
	}
}

void GetObjectsWithOuter(const UObjectBase* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects)
{
	ForEachObjectWithOuter(Outer, [&Results](UObject* Inner) { Results.Add(Inner); }, bIncludeNestedObjects);
}

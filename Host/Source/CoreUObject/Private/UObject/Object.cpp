#include "UObject/Object.h"

#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"

UObject::UObject() = default;

UObject::UObject(const FObjectInitializer&) {}

UObject::UObject(EStaticConstructor, EObjectFlags InFlags) : UObjectBaseUtility(InFlags) {}

void UObject::AddReferencedObjects(UObject*, FReferenceCollector&) {}

UObject* UObject::CreateDefaultSubobject(
	FName SubobjectFName, UClass* ReturnType, UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient)
{
	return FObjectInitializer::Get().CreateDefaultSubobject(
		this, SubobjectFName, ReturnType, ClassToCreateByDefault, bIsRequired, bIsTransient);
}

UObject* UObject::GetDefaultSubobjectByName(FName ToFind)
{
	UObject* Inner = StaticFindObjectFast(nullptr, this, ToFind);
	return Inner && Inner->IsDefaultSubobject() ? Inner : nullptr;
}

void UObject::BeginDestroy()
{
	SetFlags(RF_BeginDestroyed);
}

void UObject::FinishDestroy()
{
	SetFlags(RF_FinishDestroyed);
}

bool UObject::ConditionalBeginDestroy()
{
	if (HasAnyFlags(RF_BeginDestroyed))
	{
		return false;
	}
	BeginDestroy();
	checkf(HasAnyFlags(RF_BeginDestroyed), TEXT("%s: BeginDestroy did not call Super::BeginDestroy"), *GetFullName());
	return true;
}

bool UObject::ConditionalFinishDestroy()
{
	if (HasAnyFlags(RF_FinishDestroyed))
	{
		return false;
	}
	FinishDestroy();
	checkf(HasAnyFlags(RF_FinishDestroyed), TEXT("%s: FinishDestroy did not call Super::FinishDestroy"), *GetFullName());
	return true;
}

void UObject::ConditionalPostLoad()
{
	if (HasAnyFlags(RF_NeedPostLoad))
	{
		ClearFlags(RF_NeedPostLoad);
		PostLoad();
	}
}

UWorld* UObject::GetWorld() const
{
	const UObject* Outer = GetOuter();
	return Outer ? Outer->GetWorld() : nullptr;
}

bool UObject::IsAsset() const
{
	const UObject* Outer = GetOuter();
	return Outer && Outer->GetClass() == UPackage::StaticClass() && HasAnyFlags(RF_Public)
		&& !HasAnyFlags(RF_Transient | RF_ClassDefaultObject) && Outer != GetTransientPackage();
}

#if WITH_EDITOR
void UObject::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	FCoreUObjectDelegates::OnObjectPropertyChanged.Broadcast(this, PropertyChangedEvent);
}

void UObject::PostEditChangeChainProperty(FPropertyChangedChainEvent& PropertyChangedEvent)
{
	FPropertyChangedEvent Event(PropertyChangedEvent);
	PostEditChangeProperty(Event);
}

void UObject::PostEditChange()
{
	FPropertyChangedEvent Event(nullptr);
	PostEditChangeProperty(Event);
}

bool UObject::CanEditChange(const FProperty* InProperty) const
{
	return InProperty && !InProperty->HasAnyPropertyFlags(CPF_EditConst);
}
#endif

UFunction* UObject::FindFunction(FName InName) const
{
	return GetClass()->FindFunctionByName(InName);
}

UFunction* UObject::FindFunctionChecked(FName InName) const
{
	UFunction* Result = FindFunction(InName);
	checkf(Result, TEXT("%s has no function '%s'"), *GetFullName(), *InName.ToString());
	return Result;
}

void UObject::ProcessEvent(UFunction* Function, void* Parms)
{
	check(Function);
	Function->Invoke(this, Parms);
}

UObject* UObject::GetArchetype() const
{
	if (HasAnyFlags(RF_ClassDefaultObject))
	{
		UClass* Super = GetClass()->GetSuperClass();
		return Super ? Super->GetDefaultObject() : nullptr;
	}
	if (HasAnyFlags(RF_DefaultSubObject) && GetOuter())
	{
		UObject* OuterArchetype = GetOuter()->GetArchetype();
		UObject* Counterpart = OuterArchetype ? StaticFindObjectFast(nullptr, OuterArchetype, GetFName()) : nullptr;
		if (Counterpart && GetClass()->IsChildOf(Counterpart->GetClass()))
		{
			return Counterpart;
		}
	}
	return GetClass()->GetDefaultObject();
}

bool UObject::Rename(const TCHAR* NewName, UObject* NewOuter, ERenameFlags Flags)
{
	UObject* TargetOuter = NewOuter ? NewOuter : GetOuter();
	FName TargetName = NewName ? FName(NewName) : GetFName();
	UObject* Occupant = StaticFindObjectFast(nullptr, TargetOuter, TargetName);
	if (Occupant && Occupant != this)
	{
		if (NewName)
		{
			if (!(Flags & REN_Test))
			{
				UE_LOG(LogUObjectGlobals, Error, TEXT("%s cannot be renamed to '%s': %s has that name"),
					*GetFullName(), NewName, *Occupant->GetFullName());
			}
			return false;
		}
		TargetName = MakeUniqueObjectName(TargetOuter, GetClass(), TargetName);
	}
	if (Flags & REN_Test)
	{
		return true;
	}
	UObject* OldOuter = GetOuter();
	const FName OldName = GetFName();
	LowLevelRename(TargetName, TargetOuter);
	PostRename(OldOuter, OldName);
	return true;
}

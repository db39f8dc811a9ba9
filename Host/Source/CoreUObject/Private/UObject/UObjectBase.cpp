#include "UObject/UObjectBase.h"

#include "Host/ObjectArray.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

UObjectBase::UObjectBase()
{
	const FObjectInitializer* Construction = FObjectInitializer::Current;
	checkf(Construction && static_cast<UObjectBase*>(Construction->Obj) == this,
		TEXT("objects are made by NewObject and CreateDefaultSubobject only"));
	Construction->Claim(*this);
}

UObjectBase::UObjectBase(EObjectFlags InFlags)
	: ObjectFlags(InFlags), InternalIndex(INDEX_NONE), ClassPrivate(nullptr), OuterPrivate(nullptr)
{
}

UObjectBase::~UObjectBase()
{
	if (IsRegistered())
	{
		Host::FObjectArray::Get().Remove(*this);
	}
}

void UObjectBase::Register(UClass* InClass, UObject* InOuter, FName InName)
{
	check(!IsRegistered());
	Host::FObjectArray::Get().Add(*this, InClass, InOuter, InName, ObjectFlags);
}

void UObjectBase::LowLevelRename(FName NewName, UObject* NewOuter)
{
	Host::FObjectArray::Get().Move(*this, NewName, NewOuter);
}

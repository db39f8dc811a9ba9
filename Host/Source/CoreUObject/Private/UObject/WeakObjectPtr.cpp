#include "UObject/WeakObjectPtr.h"

#include "Host/ObjectArray.h"
#include "UObject/Object.h"

namespace
{
	Host::FObjectItem* FindItem(int32 Index, int32 SerialNumber)
	{
		return SerialNumber == 0 ? nullptr : Host::FObjectArray::Get().Find(Index, SerialNumber);
	}
}

FWeakObjectPtr& FWeakObjectPtr::operator=(const UObject* Object)
{
	if (Object && Object->IsRegistered())
	{
		ObjectIndex = static_cast<int32>(Object->GetUniqueID());
		ObjectSerialNumber = Host::FObjectArray::Get().SerialNumberOf(*Object);
	}
	else
	{
		Reset();
	}
	return *this;
}

UObject* FWeakObjectPtr::Get(bool bEvenIfGarbage) const
{
	const Host::FObjectItem* Item = FindItem(ObjectIndex, ObjectSerialNumber);
	if (!Item)
	{
		return nullptr;
	}
	const EInternalObjectFlags Dead = bEvenIfGarbage
		? EInternalObjectFlags::Unreachable
		: EInternalObjectFlags::Unreachable | EInternalObjectFlags::Garbage;
	return Item->HasAnyFlags(Dead) ? nullptr : static_cast<UObject*>(Item->Object);
}

UObject* FWeakObjectPtr::GetEvenIfUnreachable() const
{
	const Host::FObjectItem* Item = FindItem(ObjectIndex, ObjectSerialNumber);
	return Item ? static_cast<UObject*>(Item->Object) : nullptr;
}

bool FWeakObjectPtr::IsStale(bool bIncludingGarbage) const
{
	return !IsExplicitlyNull() && !IsValid(!bIncludingGarbage);
}

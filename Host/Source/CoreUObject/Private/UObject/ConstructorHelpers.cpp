#include "UObject/ConstructorHelpers.h"

#include "UObject/Class.h"

void ConstructorHelpers::CheckIfIsInConstructor(const TCHAR* ObjectToFind)
{
	checkf(IsInsideObjectConstructor(), TEXT("'%s' is looked up with ConstructorHelpers outside of a constructor"), ObjectToFind);
}

void ConstructorHelpers::FailedToFind(const TCHAR* ObjectToFind)
{
	const UClass* Class = FObjectInitializer::Get().GetClass();
	UE_LOG(LogUObjectGlobals, Error, TEXT("CDO Constructor (%s): Failed to find %s"), *Class->GetName(), ObjectToFind);
}

UObject* ConstructorHelpers::FindOrLoadObject(UClass* Class, const TCHAR* Path, uint32 LoadFlags)
{
	UObject* Object = StaticLoadObject(Class, nullptr, Path, nullptr, LoadFlags | LOAD_NoWarn);
	if (Object)
	{
		// The finder is a static, which no collection can see.
		Object->AddToRoot();
	}
	else if (!(LoadFlags & LOAD_Quiet))
	{
		FailedToFind(Path);
	}
	return Object;
}

UClass* ConstructorHelpers::FindOrLoadClass(UClass* BaseClass, const TCHAR* Path)
{
	FString ClassPath(Path);
	const bool bScript = ClassPath.StartsWith(TEXT("/Script/"));
	if (!bScript && !ClassPath.EndsWith(TEXT("_C"), ESearchCase::CaseSensitive) && !ClassPath.EndsWith(TEXT("_C'"), ESearchCase::CaseSensitive))
	{
		ClassPath.RemoveFromEnd(TEXT("'"));
		ClassPath += TEXT("_C");
		if (FString(Path).EndsWith(TEXT("'")))
		{
			ClassPath += TEXT("'");
		}
	}
	UClass* Class = StaticLoadClass(BaseClass, nullptr, *ClassPath, nullptr, LOAD_NoWarn);
	if (Class)
	{
		Class->AddToRoot();
	}
	else
	{
		FailedToFind(Path);
	}
	return Class;
}

#include "ObjectTestEvents.h"

TArray<FString> UObjectTestListener::Calls;

void UObjectTestListener::OnSimple()
{
	Calls.Add(GetName() + TEXT(".OnSimple"));
}

void UObjectTestListener::OnSecond()
{
	Calls.Add(GetName() + TEXT(".OnSecond"));
}

void UObjectTestListener::OnUnbindOther()
{
	Calls.Add(GetName() + TEXT(".OnUnbindOther"));
	Source->OnSimple.RemoveDynamic(Other.Get(), &UObjectTestListener::OnSimple);
}

void UObjectTestListener::OnBindOther()
{
	Calls.Add(GetName() + TEXT(".OnBindOther"));
	Source->OnSimple.AddUniqueDynamic(Other.Get(), &UObjectTestListener::OnSimple);
}

void UObjectTestListener::OnClearSource()
{
	Calls.Add(GetName() + TEXT(".OnClearSource"));
	Source->OnSimple.Clear();
}

void UObjectTestListener::OnNumber(int32 Number)
{
	Calls.Add(FString::Printf(TEXT("%s.OnNumber(%d)"), *GetName(), Number));
}

void UObjectTestListener::OnMixed(bool bFlag, const FString& Text, uint8 Small, UObject* Object)
{
	Calls.Add(FString::Printf(TEXT("%s.OnMixed(%d, %s, %d, %s)"), *GetName(), bFlag ? 1 : 0, *Text, static_cast<int32>(Small), *GetNameSafe(Object)));
}

int32 UObjectTestListener::Add(int32 A, int32 B)
{
	return A + B;
}

void UObjectTestListener::FillNumbers(TArray<int32>& OutNumbers)
{
	OutNumbers.Add(OutNumbers.Num());
}

void UObjectTestListener::NotReflected() {}

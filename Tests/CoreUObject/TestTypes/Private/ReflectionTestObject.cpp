#include "ReflectionTestObject.h"

void UReflectionTestObject::Describe(const FString& Prefix, FString& OutText, int32& InOutCount, EReflectionTestPlain Plain)
{
	OutText = FString::Printf(TEXT("%s%d/%d"), *Prefix, InOutCount, static_cast<int32>(Plain));
	++InOutCount;
}

FVector2D UReflectionTestObject::MakeVector(double X, double Y, FVector2D Offset, const FString&)
{
	return FVector2D(X, Y) + Offset;
}

FString UReflectionTestObject::Greet_Implementation(
	const FString& Name, FReflectionTestStruct Style, TSubclassOf<UObject> Kind) const
{
	return Style.Text + TEXT(" ") + Name + (Kind ? TEXT("!") : TEXT("?"));
}

FString UReflectionTestDerived::Greet_Implementation(
	const FString& Name, FReflectionTestStruct Style, TSubclassOf<UObject> Kind) const
{
	return TEXT("derived ") + Super::Greet_Implementation(Name, Style, Kind);
}

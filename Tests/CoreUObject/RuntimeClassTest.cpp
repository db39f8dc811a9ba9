#include "Host/Reflection/PropertyFactory.h"
#include "ReflectionTestObject.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "gtest/gtest.h"

namespace
{
	/** A class with two variables of its own, as blueprints make them. */
	UClass* MakeClassWithVariables()
	{
		UClass* Class = NewObject<UClass>(GetTransientPackage(), NAME_None, RF_Public | RF_Transient);
		Class->SetSuperStruct(UReflectionTestForward::StaticClass());
		Class->AddCppProperty(Host::MakeProperty<TArray<FString>>(Class, TEXT("Lines")));
		Class->AddCppProperty(Host::MakeProperty<TObjectPtr<UObject>>(Class, TEXT("Friend")));
		Class->Link();
		return Class;
	}
} // namespace

TEST(RuntimeClass, PropertiesLieBehindTheNativePart)
{
	UClass* Class = MakeClassWithVariables();
	const FProperty* Lines = FindFProperty<FProperty>(Class, TEXT("Lines"));
	const FProperty* Friend = FindFProperty<FProperty>(Class, TEXT("Friend"));

	EXPECT_GE(Lines->GetOffset_ForInternal(), UReflectionTestForward::StaticClass()->GetPropertiesSize());
	EXPECT_GE(Friend->GetOffset_ForInternal(), Lines->GetOffset_ForLink());
	EXPECT_GE(Class->GetPropertiesSize(), Friend->GetOffset_ForLink());
	EXPECT_NE(FindFProperty<FProperty>(Class, TEXT("Number")), nullptr) << "inherited ones are found too";
}

TEST(RuntimeClass, ObjectsHoldTheVariables)
{
	UClass* Class = MakeClassWithVariables();
	UReflectionTestForward* Object = NewObject<UReflectionTestForward>(GetTransientPackage(), Class);
	TArray<FString>& Lines = *FindFProperty<FProperty>(Class, TEXT("Lines"))->ContainerPtrToValuePtr<TArray<FString>>(Object);

	Lines.Add(TEXT("one"));

	EXPECT_EQ(Object->Number, 4);
	EXPECT_EQ(Lines.Num(), 1);
}

TEST(RuntimeClass, VariablesKeepTheirObjectsAlive)
{
	UClass* Class = MakeClassWithVariables();
	UReflectionTestForward* Object = NewObject<UReflectionTestForward>(GetTransientPackage(), Class);
	Object->AddToRoot();
	FindFProperty<FObjectProperty>(Class, TEXT("Friend"))
		->SetObjectPropertyValue_InContainer(Object, NewObject<UReflectionTestForward>());
	const TWeakObjectPtr<UObject> Friend =
		FindFProperty<FObjectProperty>(Class, TEXT("Friend"))->GetObjectPropertyValue_InContainer(Object);

	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Friend.IsValid());

	Object->RemoveFromRoot();
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Friend.IsValid());
}

TEST(RuntimeClass, IsCollectedWithItsLastObject)
{
	const TWeakObjectPtr<UClass> Class = MakeClassWithVariables();

	CollectGarbage(RF_NoFlags);

	EXPECT_FALSE(Class.IsValid());
}

#include "Misc/ConfigCacheIni.h"
#include "ObjectTestOwner.h"
#include "ObjectTestSettings.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"
#include "gtest/gtest.h"

namespace
{
	/** A class made at run time, as blueprints make them. */
	UClass* MakeClass(const TCHAR* Name, UClass* Super)
	{
		UClass* Class = NewObject<UClass>(CreatePackage(TEXT("/Test/Classes")), Name, RF_Public);
		Class->SetSuperStruct(Super);
		Class->Link();
		return Class;
	}
}

TEST(ClassDefaults, AreConfiguredBetweenTheConstructorAndPostInitProperties)
{
	const TCHAR* Section = TEXT("/Test/Classes.Configured_C");
	GConfig->SetInt(Section, TEXT("Count"), 64, TEXT("ObjectTest"));
	GConfig->SetString(Section, TEXT("Asset"), TEXT("/Game/FromConfig.FromConfig"), TEXT("ObjectTest"));
	UClass* Class = MakeClass(TEXT("Configured_C"), UObjectTestSettings::StaticClass());

	const UObjectTestSettings* Defaults = GetDefault<UObjectTestSettings>(Class);

	EXPECT_EQ(Defaults->CountInConstructor, 1);
	EXPECT_EQ(Defaults->CountAtInit, 64);
	EXPECT_EQ(Defaults->Asset.ToString(), FString(TEXT("/Game/FromConfig.FromConfig")));
	EXPECT_EQ(NewObject<UObjectTestSettings>(GetTransientPackage(), Class)->CountAtInit, 64);
	GConfig->EmptySection(Section, TEXT("ObjectTest"));
}

TEST(ClassDefaults, OfAClassMadeAtRunTimeBeginWithThoseOfItsBase)
{
	UClass* Base = MakeClass(TEXT("Base_C"), UObjectTestOwner::StaticClass());
	UObjectTestOwner* BaseDefaults = GetMutableDefault<UObjectTestOwner>(Base);
	BaseDefaults->Number = 20;
	BaseDefaults->Part->Amount = 21;

	UClass* Derived = MakeClass(TEXT("Derived_C"), Base);
	const UObjectTestOwner* Defaults = GetDefault<UObjectTestOwner>(Derived);

	EXPECT_EQ(Defaults->Number, 20);
	EXPECT_EQ(Defaults->Part->Amount, 21);
	EXPECT_NE(Defaults->Part, BaseDefaults->Part);
}

TEST(ClassDefaults, OfAClassMadeAtRunTimeReachItsObjectsAndTheirSubobjects)
{
	UClass* Class = MakeClass(TEXT("Instanced_C"), UObjectTestOwner::StaticClass());
	UObjectTestOwner* Defaults = GetMutableDefault<UObjectTestOwner>(Class);
	Defaults->Number = 30;
	Defaults->Scratch = 31;
	Defaults->Part->Amount = 32;
	Defaults->Part->Peer = Defaults->Optional;
	Defaults->Extras.Add(NewObject<UObjectTestPart>(Defaults, TEXT("Extra")));
	Defaults->Extras[0]->Amount = 33;

	UObjectTestOwner* Object = NewObject<UObjectTestOwner>(GetTransientPackage(), Class);

	EXPECT_EQ(Object->NumberAtInit, 30);
	EXPECT_EQ(Object->Scratch, 31);
	EXPECT_EQ(Object->Part->GetOuter(), Object);
	EXPECT_EQ(Object->Part->Amount, 32);
	EXPECT_EQ(Object->Part->Peer, Object->Optional);
	ASSERT_EQ(Object->Extras.Num(), 1);
	EXPECT_EQ(Object->Extras[0]->GetOuter(), Object);
	EXPECT_EQ(Object->Extras[0]->Amount, 33);
	EXPECT_EQ(Object->GetArchetype(), Defaults);
	EXPECT_EQ(Object->Part->GetArchetype(), Defaults->Part);
}

TEST(ClassDefaults, GoWithTheirClass)
{
	const TWeakObjectPtr<UClass> Class = MakeClass(TEXT("Short_C"), UObjectTestOwner::StaticClass());
	const TWeakObjectPtr<UObject> Defaults = Class->GetDefaultObject();
	CollectGarbage(RF_NoFlags);

	EXPECT_FALSE(Class.IsValid());
	EXPECT_FALSE(Defaults.IsValid());
}

TEST(ClassDefaults, StayAsLongAsAnObjectOfTheClass)
{
	UClass* Class = MakeClass(TEXT("Long_C"), UObjectTestOwner::StaticClass());
	UObject* Object = NewObject<UObjectTestOwner>(GetTransientPackage(), Class);
	const TWeakObjectPtr<UObject> Defaults = Class->GetDefaultObject();
	Object->AddToRoot();
	CollectGarbage(RF_NoFlags);

	EXPECT_TRUE(Defaults.IsValid());

	Object->RemoveFromRoot();
}

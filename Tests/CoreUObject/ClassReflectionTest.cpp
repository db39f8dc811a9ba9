#include "ReflectionTestObject.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "gtest/gtest.h"

namespace
{
	TArray<FString> NamesOf(const UStruct* Struct)
	{
		TArray<FString> Names;
		for (TFieldIterator<FProperty> It(Struct); It; ++It)
		{
			Names.Add(It->GetName());
		}
		return Names;
	}

	const FProperty* Find(const TCHAR* Name)
	{
		return FindFProperty<FProperty>(UReflectionTestObject::StaticClass(), Name);
	}
} // namespace

TEST(ClassReflection, ScriptNameHasNoPrefixAndStandsInTheModulesPackage)
{
	const UClass* Class = UReflectionTestObject::StaticClass();

	EXPECT_EQ(Class->GetPathName(), FString(TEXT("/Script/CoreUObjectTestTypes.ReflectionTestObject")));
	EXPECT_EQ(Class->GetOutermost()->GetName(), FString(TEXT("/Script/CoreUObjectTestTypes")));
	EXPECT_EQ(FindObject<UClass>(nullptr, TEXT("/Script/CoreUObjectTestTypes.ReflectionTestObject")), Class);
	EXPECT_EQ(StaticClass<UReflectionTestObject>(), Class);
	EXPECT_EQ(Class->GetClass(), UClass::StaticClass());
}

TEST(ClassReflection, DerivesAsTheCodeDoes)
{
	const UClass* Derived = UReflectionTestDerived::StaticClass();

	EXPECT_EQ(Derived->GetSuperClass(), UReflectionTestObject::StaticClass());
	EXPECT_TRUE(Derived->IsChildOf<UReflectionTestObject>());
	EXPECT_TRUE(Derived->IsChildOf(UObject::StaticClass()));
	EXPECT_FALSE(UReflectionTestObject::StaticClass()->IsChildOf(Derived));
	EXPECT_FALSE(Derived->IsChildOf(UReflectionTestForward::StaticClass()));
	EXPECT_FALSE(Derived->IsChildOf(nullptr));
}

TEST(ClassReflection, IntrinsicClassesDescribeThemselves)
{
	EXPECT_EQ(UClass::StaticClass()->GetClass(), UClass::StaticClass());
	EXPECT_EQ(UClass::StaticClass()->GetSuperClass(), UStruct::StaticClass());
	EXPECT_EQ(UFunction::StaticClass()->GetPathName(), FString(TEXT("/Script/CoreUObject.Function")));
	EXPECT_TRUE(UObject::StaticClass()->HasAnyClassFlags(CLASS_Native));
	EXPECT_EQ(UObject::StaticClass()->GetSuperClass(), nullptr);
}

TEST(ClassReflection, PropertiesComeInOrderOfDeclarationOwnAheadOfInherited)
{
	EXPECT_EQ(NamesOf(UReflectionTestForwardDerived::StaticClass()), (TArray<FString>{TEXT("Number")}));
	EXPECT_EQ(NamesOf(FReflectionTestBase::StaticStruct()), (TArray<FString>{TEXT("Count")}));
	const TArray<FString> Names = NamesOf(UReflectionTestObject::StaticClass());
	EXPECT_EQ(Names[0], FString(TEXT("Hidden")));
	EXPECT_EQ(Names[1], FString(TEXT("OnNested")));
	EXPECT_EQ(NamesOf(FReflectionTestStruct::StaticStruct()).Last(), FString(TEXT("Count")));
}

TEST(ClassReflection, PropertyReadsAndWritesTheMember)
{
	UReflectionTestObject* Object = NewObject<UReflectionTestObject>();
	const FIntProperty* Configured = FindFProperty<FIntProperty>(Object->GetClass(), TEXT("Configured"));

	Object->Configured = 12;
	EXPECT_EQ(Configured->GetPropertyValue_InContainer(Object), 12);
	Configured->SetPropertyValue_InContainer(Object, 34);
	EXPECT_EQ(Object->Configured, 34);
}

TEST(ClassReflection, ObjectPartIsFoundBesideAPlainBase)
{
	UReflectionTestObject* Object = NewObject<UReflectionTestObject>();

	EXPECT_EQ(Object->Plain, 11);
	EXPECT_EQ(*Find(TEXT("Configured"))->ContainerPtrToValuePtr<int32>(Object), Object->Configured);
}

TEST(ClassReflection, FindingAPropertyOfAnotherKindFindsNothing)
{
	const UClass* Class = UReflectionTestObject::StaticClass();

	EXPECT_NE(FindFProperty<FIntProperty>(Class, TEXT("Configured")), nullptr);
	EXPECT_NE(FindFProperty<FNumericProperty>(Class, TEXT("configured")), nullptr);
	EXPECT_EQ(FindFProperty<FStrProperty>(Class, TEXT("Configured")), nullptr);
	EXPECT_EQ(FindFProperty<FProperty>(Class, TEXT("NumRebuilds")), nullptr);
	EXPECT_EQ(FindFProperty<FProperty>(Class, TEXT("A name that nothing has")), nullptr);
}

TEST(ClassReflection, FlagsFollowTheSpecifiers)
{
	EXPECT_TRUE(
		Find(TEXT("Hidden"))
			->HasAllPropertyFlags(CPF_Edit | CPF_BlueprintVisible | CPF_BlueprintReadOnly | CPF_NativeAccessSpecifierPrivate));
	EXPECT_TRUE(Find(TEXT("OnNested"))->HasAllPropertyFlags(CPF_BlueprintAssignable));
	EXPECT_TRUE(Find(TEXT("Configured"))->HasAllPropertyFlags(CPF_Config));
	EXPECT_FALSE(Find(TEXT("Configured"))->HasAnyPropertyFlags(CPF_Edit));
	EXPECT_TRUE(Find(TEXT("Struct"))->HasAllPropertyFlags(CPF_ExposeOnSpawn));
	EXPECT_TRUE(Find(TEXT("Note"))->IsEditorOnlyProperty());
	EXPECT_TRUE(Find(TEXT("Forward"))->HasAllPropertyFlags(CPF_TObjectPtr));
	EXPECT_TRUE(UReflectionTestObject::StaticClass()->HasAllClassFlags(CLASS_Native | CLASS_Config));
	EXPECT_EQ(UReflectionTestObject::StaticClass()->ClassConfigName, FName(TEXT("ReflectionTest")));
	EXPECT_EQ(UReflectionTestDerived::StaticClass()->ClassConfigName, FName(TEXT("ReflectionTest")));
}

TEST(ClassReflection, ReferencesThatKeepObjectsAliveAreListed)
{
	TArray<FString> Names;
	for (const FProperty* Property = UReflectionTestObject::StaticClass()->RefLink; Property; Property = Property->NextRef)
	{
		Names.Add(Property->GetName());
	}
	EXPECT_EQ(Names, (TArray<FString>{TEXT("Forward"), TEXT("Class"), TEXT("AnyClass"), TEXT("Tree")}));
}

TEST(ClassReflection, ForwardDeclaredClassIsKnownToTheProperty)
{
	EXPECT_EQ(CastField<FObjectProperty>(Find(TEXT("Forward")))->PropertyClass, UReflectionTestForward::StaticClass());
	EXPECT_EQ(CastField<FClassProperty>(Find(TEXT("Class")))->MetaClass, UReflectionTestObject::StaticClass());
	EXPECT_EQ(CastField<FClassProperty>(Find(TEXT("AnyClass")))->MetaClass, UObject::StaticClass());
}

TEST(ClassReflection, CastFieldAnswersForBaseKinds)
{
	const FProperty* Configured = Find(TEXT("Configured"));

	EXPECT_EQ(CastField<FNumericProperty>(Configured), Configured);
	EXPECT_EQ(CastField<FProperty>(Configured), Configured);
	EXPECT_EQ(CastField<FBoolProperty>(Configured), nullptr);
	EXPECT_EQ(CastField<FProperty>(static_cast<FField*>(nullptr)), nullptr);
	EXPECT_TRUE(Configured->IsA<FIntProperty>());
	EXPECT_FALSE(Configured->IsA<FInt64Property>());
	EXPECT_EQ(Configured->GetClass()->GetName(), FString(TEXT("IntProperty")));
	EXPECT_EQ(Configured->GetOwnerClass(), UReflectionTestObject::StaticClass());
}

TEST(ClassReflection, ClassesWithoutAConstructorPassTheInitialiserOnWhereTheBaseTakesOne)
{
	EXPECT_EQ(NewObject<UReflectionTestForwardDerived>()->Number, 4);
	EXPECT_NE(NewObject<UReflectionTestDerived>(), nullptr);
}

TEST(ClassReflection, DefaultObjectIsNamedAfterTheClass)
{
	EXPECT_EQ(GetDefault<UReflectionTestObject>()->GetName(), FString(TEXT("Default__ReflectionTestObject")));
	EXPECT_EQ(GetMutableDefault<UReflectionTestObject>(), UReflectionTestObject::StaticClass()->GetDefaultObject());
	EXPECT_EQ(
		UReflectionTestObject::StaticClass()->GetDefaultObject<UReflectionTestObject>(), GetDefault<UReflectionTestObject>());
}

TEST(ClassReflection, PathOfAPropertyNamesItsOwners)
{
	EXPECT_EQ(
		Find(TEXT("Configured"))->GetPathName(), FString(TEXT("/Script/CoreUObjectTestTypes.ReflectionTestObject:Configured")));
	const FArrayProperty* Bases = FindFProperty<FArrayProperty>(FReflectionTestStruct::StaticStruct(), TEXT("Bases"));
	EXPECT_EQ(Bases->Inner->GetOwnerStruct(), FReflectionTestStruct::StaticStruct());
}

#include "Misc/StringOutputDevice.h"
#include "ReflectionTestStruct.h"
#include "UObject/BaseStructures.h"
#include "UObject/UnrealType.h"
#include "gtest/gtest.h"

namespace
{
	template<typename T = FProperty>
	const T* Find(const TCHAR* Name)
	{
		return FindFProperty<T>(FReflectionTestStruct::StaticStruct(), Name);
	}

	FString Export(const FReflectionTestStruct& Value, const FReflectionTestStruct* Defaults = nullptr)
	{
		FString Text;
		FReflectionTestStruct::StaticStruct()->ExportText(Text, &Value, Defaults, nullptr, PPF_None, nullptr);
		return Text;
	}

	bool Import(const TCHAR* Text, FReflectionTestStruct& Value, FString* OutError = nullptr)
	{
		FStringOutputDevice Error;
		const TCHAR* Behind =
			FReflectionTestStruct::StaticStruct()->ImportText(Text, &Value, nullptr, PPF_None, &Error, TEXT("Test"));
		if (OutError)
		{
			*OutError = Error;
		}
		return Behind && *Behind == 0;
	}
} // namespace

TEST(StructReflection, DescribesSizeNameAndBase)
{
	const UScriptStruct* Struct = FReflectionTestStruct::StaticStruct();

	EXPECT_EQ(Struct->GetPathName(), FString(TEXT("/Script/CoreUObjectTestTypes.ReflectionTestStruct")));
	EXPECT_EQ(Struct->GetStructCPPName(), FString(TEXT("FReflectionTestStruct")));
	EXPECT_EQ(Struct->GetStructureSize(), static_cast<int32>(sizeof(FReflectionTestStruct)));
	EXPECT_EQ(Struct->GetSuperStruct(), FReflectionTestBase::StaticStruct());
	EXPECT_EQ(StaticStruct<FReflectionTestStruct>(), Struct);
	EXPECT_EQ(TBaseStructure<FReflectionTestStruct>::Get(), Struct);
}

TEST(StructReflection, KindsOfPropertiesFollowTheTypes)
{
	EXPECT_NE(Find<FStrProperty>(TEXT("Text")), nullptr);
	EXPECT_NE(Find<FStructProperty>(TEXT("Vector")), nullptr);
	EXPECT_NE(Find<FByteProperty>(TEXT("Plain")), nullptr);
	EXPECT_NE(Find<FEnumProperty>(TEXT("Motion")), nullptr);
	EXPECT_NE(Find<FArrayProperty>(TEXT("Bases")), nullptr);
	EXPECT_NE(Find<FMapProperty>(TEXT("Counts")), nullptr);
	EXPECT_EQ(Find<FByteProperty>(TEXT("Plain"))->Enum, StaticEnum<EReflectionTestPlain>());
	EXPECT_EQ(Find<FByteProperty>(TEXT("Space"))->Enum, StaticEnum<EReflectionTestSpace::Type>());
	EXPECT_EQ(Find<FEnumProperty>(TEXT("Motion"))->GetEnum(), StaticEnum<EReflectionTestMotion>());
	EXPECT_EQ(Find<FStructProperty>(TEXT("Vector"))->Struct, TBaseStructure<FVector4>::Get());
	EXPECT_EQ(Find(TEXT("Grid"))->ArrayDim, 3);
	EXPECT_EQ(Find(TEXT("Grid"))->GetSize(), 12);
	EXPECT_EQ(Find(TEXT("NotReflected")), nullptr);
}

TEST(StructReflection, BitFieldsAreBoolsOfOneBit)
{
	FReflectionTestStruct Value;
	const FBoolProperty* First = Find<FBoolProperty>(TEXT("bFirst"));
	const FBoolProperty* Second = Find<FBoolProperty>(TEXT("bSecond"));

	EXPECT_FALSE(First->IsNativeBool());
	EXPECT_FALSE(First->GetPropertyValue_InContainer(&Value));
	EXPECT_TRUE(Second->GetPropertyValue_InContainer(&Value));
	First->SetPropertyValue_InContainer(&Value, true);
	Second->SetPropertyValue_InContainer(&Value, false);
	EXPECT_EQ(Value.bFirst, 1);
	EXPECT_EQ(Value.bSecond, 0);
}

TEST(StructReflection, CoreStructuresAreDescribedWithTheirMembers)
{
	const UScriptStruct* Vector4 = TBaseStructure<FVector4>::Get();
	FString Names;
	for (TFieldIterator<FProperty> It(Vector4); It; ++It)
	{
		EXPECT_TRUE(It->IsA<FDoubleProperty>());
		Names += It->GetName();
	}
	EXPECT_EQ(Names, FString(TEXT("XYZW")));
	EXPECT_EQ(Vector4->GetPathName(), FString(TEXT("/Script/CoreUObject.Vector4")));
	EXPECT_EQ(TBaseStructure<FVector2D>::Get()->GetStructureSize(), 16);
	EXPECT_EQ(TBaseStructure<FLinearColor>::Get()->GetName(), FString(TEXT("LinearColor")));
	EXPECT_EQ(TBaseStructure<FColor>::Get()->GetStructureSize(), 4);
	EXPECT_EQ(StaticStruct<FGuid>(), TBaseStructure<FGuid>::Get());
}

TEST(StructReflection, InitialisesWithTheMembersInitialisers)
{
	alignas(FReflectionTestStruct) uint8 Memory[sizeof(FReflectionTestStruct)];
	const UScriptStruct* Struct = FReflectionTestStruct::StaticStruct();

	Struct->InitializeStruct(Memory);
	const FReflectionTestStruct& Value = *reinterpret_cast<FReflectionTestStruct*>(Memory);
	EXPECT_EQ(Value.Text, FString(TEXT("start")));
	EXPECT_EQ(Value.Motion, EReflectionTestMotion::Fast);
	EXPECT_EQ(Value.Grid[2], 3.f);
	Struct->DestroyStruct(Memory);
}

TEST(StructReflection, CopiesAllMembersReflectedOrNot)
{
	FReflectionTestStruct From(TEXT("from"));
	From.NotReflected = 77;
	FReflectionTestStruct To;

	FReflectionTestStruct::StaticStruct()->CopyScriptStruct(&To, &From);

	EXPECT_EQ(To.Text, FString(TEXT("from")));
	EXPECT_EQ(To.NotReflected, 77);
}

TEST(StructReflection, ComparesPropertyByProperty)
{
	const UScriptStruct* Struct = FReflectionTestStruct::StaticStruct();
	FReflectionTestStruct A;
	FReflectionTestStruct B;

	B.NotReflected = 99;
	EXPECT_TRUE(Struct->CompareScriptStruct(&A, &B, PPF_None));
	B.Counts.Add(TEXT("One"), 1);
	EXPECT_FALSE(Struct->CompareScriptStruct(&A, &B, PPF_None));
	A.Counts.Add(TEXT("One"), 1);
	EXPECT_TRUE(Struct->CompareScriptStruct(&A, &B, PPF_None));
	A.Grid[1] = 5.f;
	EXPECT_FALSE(Struct->CompareScriptStruct(&A, &B, PPF_None));
}

TEST(StructReflection, ComparesByOperatorWhereTheStructureAsksForIt)
{
	FReflectionTestEqual A;
	FReflectionTestEqual B;
	B.Note = TEXT("other");

	EXPECT_TRUE(FReflectionTestEqual::StaticStruct()->CompareScriptStruct(&A, &B, PPF_None));
	B.Key = 1;
	EXPECT_FALSE(FReflectionTestEqual::StaticStruct()->CompareScriptStruct(&A, &B, PPF_None));
}

TEST(StructReflection, StructureThatHoldsItselfKnowsItsReferences)
{
	const UScriptStruct* Tree = FReflectionTestTree::StaticStruct();

	EXPECT_TRUE(FindFProperty<FProperty>(Tree, TEXT("Children"))->ContainsObjectReference());
	ASSERT_NE(Tree->RefLink, nullptr);
	EXPECT_EQ(CastFieldChecked<FArrayProperty>(FindFProperty<FProperty>(Tree, TEXT("Children")))->Inner->ElementSize,
		static_cast<int32>(sizeof(FReflectionTestTree)));
}

TEST(StructReflection, TextNamesMembersAndReadsBack)
{
	FReflectionTestStruct Value(TEXT("say \"hi\", (you)"));
	Value.bFirst = true;
	Value.Count = -2;
	Value.Bases.SetNum(2);
	Value.Counts.Add(TEXT("Two"), 2);
	Value.Path = FSoftObjectPath(TEXT("/Game/Dir/Asset.Asset"));
	Value.Space = EReflectionTestSpace::Left;

	FReflectionTestStruct Copy;
	ASSERT_TRUE(Import(*Export(Value), Copy)) << TCHAR_TO_UTF8(*Export(Value));

	EXPECT_TRUE(FReflectionTestStruct::StaticStruct()->CompareScriptStruct(&Value, &Copy, PPF_None))
		<< TCHAR_TO_UTF8(*Export(Copy));
	EXPECT_EQ(Copy.Path, Value.Path);
}

TEST(StructReflection, TextLeavesOutWhatEqualsTheDefaults)
{
	FReflectionTestStruct Value;
	const FReflectionTestStruct Defaults;
	Value.Count = 8;
	Value.Grid[1] = 9.f;

	EXPECT_EQ(Export(Value, &Defaults), FString(TEXT("(Grid[1]=9.0,Count=8)")));
	EXPECT_EQ(Export(Defaults, &Defaults), FString(TEXT("()")));
}

TEST(StructReflection, ReadingTextKeepsMembersThatAreNotNamed)
{
	FReflectionTestStruct Value(TEXT("kept"));

	ASSERT_TRUE(Import(TEXT("( Count = 4 , Vector=(Y=9) , Motion=SlowWalk, Grid[2]=7.5 )"), Value));

	EXPECT_EQ(Value.Text, FString(TEXT("kept")));
	EXPECT_EQ(Value.Count, 4);
	EXPECT_EQ(Value.Vector, FVector4(1.0, 9.0, 3.0, 4.0));
	EXPECT_EQ(Value.Motion, EReflectionTestMotion::SlowWalk);
	EXPECT_EQ(Value.Grid[2], 7.5f);
}

TEST(StructReflection, ReadingTextReportsUnknownMembersAndGoesOn)
{
	FReflectionTestStruct Value;
	FString Error;

	EXPECT_TRUE(Import(TEXT("(Nothing=(A=\")\",B=2),Count=4)"), Value, &Error));

	EXPECT_EQ(Value.Count, 4);
	EXPECT_TRUE(Error.Contains(TEXT("has no member 'Nothing'"))) << TCHAR_TO_UTF8(*Error);
}

TEST(StructReflection, TextOfAnotherFormIsRefused)
{
	for (const TCHAR* Text : {TEXT(""), TEXT("Count=4"), TEXT("(Count=4"), TEXT("(Count)"), TEXT("(Count=4;Text=\"a\")"),
			 TEXT("(=4)"), TEXT("(Text=\"open)"), TEXT("(Grid[9]=1"), TEXT("(Nothing=(")})
	{
		FReflectionTestStruct Value;
		FString Error;
		EXPECT_FALSE(Import(Text, Value, &Error)) << TCHAR_TO_UTF8(Text);
	}
}

#include "ReflectionTestStruct.h"
#include "UObject/UnrealType.h"
#include "gtest/gtest.h"

TEST(EnumReflection, KeepsItsPrefixAndQualifiesItsNames)
{
	const UEnum* Motion = StaticEnum<EReflectionTestMotion>();

	EXPECT_EQ(Motion->GetPathName(), FString(TEXT("/Script/CoreUObjectTestTypes.EReflectionTestMotion")));
	EXPECT_EQ(Motion->GetCppForm(), UEnum::ECppForm::EnumClass);
	EXPECT_EQ(Motion->GetNameByIndex(1), FName(TEXT("EReflectionTestMotion::SlowWalk")));
	EXPECT_EQ(Motion->GetNameStringByIndex(1), FString(TEXT("SlowWalk")));
	EXPECT_EQ(Motion->GetNameByIndex(99), FName());
}

TEST(EnumReflection, NamesAndValuesLeadToEachOther)
{
	const UEnum* Motion = StaticEnum<EReflectionTestMotion>();

	EXPECT_EQ(Motion->GetValueByNameString(TEXT("Fast")), 7);
	EXPECT_EQ(Motion->GetValueByNameString(TEXT("EReflectionTestMotion::fast")), 7);
	EXPECT_EQ(Motion->GetNameStringByValue(7), FString(TEXT("Fast")));
	EXPECT_EQ(Motion->GetIndexByValue(7), 2);
	EXPECT_EQ(Motion->GetIndexByValue(5), INDEX_NONE);
	EXPECT_EQ(Motion->GetValueByNameString(TEXT("Slower")), INDEX_NONE);
	EXPECT_EQ(Motion->GetIndexByNameString(TEXT("fast"), EGetByNameFlags::CaseSensitive), INDEX_NONE);
	EXPECT_TRUE(Motion->IsValidEnumValue(1));
	EXPECT_FALSE(Motion->IsValidEnumValue(2));
}

TEST(EnumReflection, GetsAMaximumOneAboveTheLargestValue)
{
	const UEnum* Motion = StaticEnum<EReflectionTestMotion>();

	ASSERT_EQ(Motion->NumEnums(), 4);
	EXPECT_EQ(Motion->GetNameStringByIndex(3), FString(TEXT("EReflectionTestMotion_MAX")));
	EXPECT_EQ(Motion->GetMaxEnumValue(), 8);
	EXPECT_TRUE(Motion->ContainsExistingMax());
}

TEST(EnumReflection, MaximumTakesTheCommonPrefixOfPlainEnumerators)
{
	const UEnum* Plain = StaticEnum<EReflectionTestPlain>();

	EXPECT_EQ(Plain->GetCppForm(), UEnum::ECppForm::Regular);
	EXPECT_EQ(Plain->GetNameByIndex(0), FName(TEXT("ERTP_One")));
	EXPECT_EQ(Plain->GetNameStringByIndex(2), FString(TEXT("ERTP_MAX")));
}

TEST(EnumReflection, EnumerationInANamespaceIsNamedAfterIt)
{
	const UEnum* Space = StaticEnum<EReflectionTestSpace::Type>();

	EXPECT_EQ(Space->GetName(), FString(TEXT("EReflectionTestSpace")));
	EXPECT_EQ(Space->CppType, FString(TEXT("EReflectionTestSpace::Type")));
	EXPECT_EQ(Space->GetNameByIndex(1), FName(TEXT("EReflectionTestSpace::Right")));
}

TEST(EnumReflection, DisplayNamesAreWrittenOutOrSplitIntoWords)
{
	const UEnum* Motion = StaticEnum<EReflectionTestMotion>();

	EXPECT_EQ(Motion->GetDisplayNameTextByIndex(0).ToString(), FString(TEXT("Still")));
	EXPECT_EQ(Motion->GetDisplayNameTextByIndex(1).ToString(), FString(TEXT("Slow")));
	EXPECT_EQ(Motion->GetDisplayNameTextByValue(7).ToString(), FString(TEXT("Fast")));
	EXPECT_TRUE(Motion->GetDisplayNameTextByValue(5).IsEmpty());
}

TEST(EnumReflection, EnumeratorsHaveMetadataOfTheirOwn)
{
	const UEnum* Motion = StaticEnum<EReflectionTestMotion>();

	EXPECT_TRUE(Motion->HasMetaData(TEXT("Hidden"), 2));
	EXPECT_FALSE(Motion->HasMetaData(TEXT("Hidden"), 1));
	EXPECT_EQ(Motion->GetToolTipTextByIndex(0).ToString(), FString(TEXT("Does not move at all.")));
	EXPECT_EQ(Motion->GetToolTipTextByIndex(2).ToString(), FString(TEXT("As \"fast\" as can be")));
	EXPECT_EQ(Motion->GetToolTipText().ToString(), FString(TEXT("How a thing moves.")));
	EXPECT_EQ(Motion->GetMetaData(TEXT("BlueprintType"), INDEX_NONE), FString(TEXT("true")));
}

TEST(EnumReflection, FlagsAreNamedBitByBit)
{
	const UEnum* Flags = StaticEnum<EReflectionTestFlags>();

	EXPECT_TRUE(Flags->HasAnyEnumFlags(EEnumFlags::Flags));
	EXPECT_EQ(Flags->GetValueOrBitfieldAsString(5), FString(TEXT("First | Third")));
	EXPECT_EQ(Flags->GetValueOrBitfieldAsString(0), FString(TEXT("None")));
	EXPECT_EQ(Flags->GetMetaData(TEXT("UseEnumValuesAsMaskValuesInEditor")), FString(TEXT("true")));
}

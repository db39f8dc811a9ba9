#include "Misc/TVariant.h"

#include "CoreMinimal.h"
#include "TestText.h"
#include "gtest/gtest.h"

TEST(VariantTest, HoldsOneOfItsTypes)
{
	TVariant<int32, FString> Variant;
	EXPECT_TRUE(Variant.IsType<int32>());
	EXPECT_EQ(0u, Variant.GetIndex());
	Variant.Set<FString>(TEXT("text"));
	EXPECT_EQ("text", ToUtf8(Variant.Get<FString>()));
	EXPECT_EQ(nullptr, Variant.TryGet<int32>());
	Variant.Emplace<int32>(5);
	EXPECT_EQ(5, *Variant.TryGet<int32>());
	EXPECT_EQ("x", ToUtf8((TVariant<int32, FString>(TInPlaceType<FString>(), TEXT("x")).Get<FString>())));
}

TEST(VariantTest, IsVisitedByItsType)
{
	const auto Describe = [](const auto& Value) -> FString
	{
		if constexpr (std::is_same_v<std::decay_t<decltype(Value)>, int32>)
		{
			return TEXT("number");
		}
		else
		{
			return TEXT("text");
		}
	};
	TVariant<int32, FString> Variant;
	EXPECT_EQ("number", ToUtf8(Visit(Describe, Variant)));
	Variant.Emplace<FString>();
	EXPECT_EQ("text", ToUtf8(Visit(Describe, Variant)));
}

TEST(VariantDeathTest, AskingForAnotherTypeHalts)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	TVariant<int32, FString> Variant;
	EXPECT_DEATH((void)Variant.Get<FString>(), "Assertion failed: IsType");
}

#include "Misc/Attribute.h"

#include "CoreMinimal.h"
#include "TestText.h"
#include "gtest/gtest.h"

namespace
{
	struct FSource : TSharedFromThis<FSource>
	{
		int32 Value = 1;
		int32 GetValue() const { return Value; }
		TAttribute<int32> Bound() { return TAttribute<int32>(this, &FSource::GetValue); }
	};
}

TEST(AttributeTest, IsUnsetAtFirst)
{
	const TAttribute<int32> Attribute;
	EXPECT_FALSE(Attribute.IsSet());
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_EQ(0, Attribute.Get());
	EXPECT_EQ(7, Attribute.Get(7));
}

TEST(AttributeTest, ConvertsFromAValue)
{
	TAttribute<FString> Attribute = FString(TEXT("a"));
	EXPECT_TRUE(Attribute.IsSet());
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_EQ("a", ToUtf8(Attribute.Get()));
	Attribute = TEXT("b");
	EXPECT_EQ("b", ToUtf8(Attribute.Get()));
	Attribute.Set(TEXT("c"));
	EXPECT_EQ("c", ToUtf8(Attribute.Get(TEXT("default"))));
}

TEST(AttributeTest, AsksItsGetterEachTime)
{
	int32 Count = 0;
	TAttribute<int32> Attribute = MakeAttributeLambda([&Count] { return ++Count; });
	EXPECT_TRUE(Attribute.IsSet());
	EXPECT_TRUE(Attribute.IsBound());
	EXPECT_EQ(1, Attribute.Get());
	EXPECT_EQ(2, Attribute.Get());
	Attribute.Set(10);
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_EQ(10, Attribute.Get());
	EXPECT_EQ(2, Count);
}

TEST(AttributeTest, KeepsTheLastValueOfAGoneObject)
{
	TSharedPtr<FSource> Source = MakeShared<FSource>();
	const TAttribute<int32> Attribute = Source->Bound();
	EXPECT_EQ(1, Attribute.Get());
	Source->Value = 5;
	EXPECT_EQ(5, Attribute.Get());
	Source.Reset();
	EXPECT_FALSE(Attribute.IsBound());
	EXPECT_EQ(5, Attribute.Get());
}

TEST(AttributeTest, BindsMethodsOfAllKindsOfObjects)
{
	FSource Raw;
	Raw.Value = 3;
	EXPECT_EQ(3, MakeAttributeRaw(&Raw, &FSource::GetValue).Get());
	const TSharedRef<FSource> Shared = MakeShared<FSource>();
	EXPECT_EQ(1, MakeAttributeSP(Shared, &FSource::GetValue).Get());
	TAttribute<int32> Attribute;
	Attribute.BindRaw(&Raw, &FSource::GetValue);
	EXPECT_EQ(3, Attribute.Get());
	Attribute.BindLambda([] { return 4; });
	EXPECT_EQ(4, Attribute.Get());
	Attribute.Reset();
	EXPECT_FALSE(Attribute.IsSet());
}

TEST(AttributeTest, IsIdenticalByValueOrBinding)
{
	EXPECT_TRUE(TAttribute<int32>(1).IdenticalTo(TAttribute<int32>(1)));
	EXPECT_FALSE(TAttribute<int32>(1).IdenticalTo(TAttribute<int32>(2)));
	EXPECT_FALSE(TAttribute<int32>(0).IdenticalTo(TAttribute<int32>()));
	const TAttribute<int32> Bound = MakeAttributeLambda([] { return 1; });
	EXPECT_TRUE(Bound.IdenticalTo(TAttribute<int32>(Bound)));
	EXPECT_FALSE(Bound.IdenticalTo(MakeAttributeLambda([] { return 1; })));
	EXPECT_FALSE(Bound.IdenticalTo(TAttribute<int32>(1)));
}

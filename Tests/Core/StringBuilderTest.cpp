#include "Misc/StringBuilder.h"

#include "TestText.h"
#include "UObject/NameTypes.h"
#include "gtest/gtest.h"

TEST(StringBuilderTest, CollectsTextAndNumbers)
{
	TStringBuilder<64> Builder;
	Builder << TEXT("a") << u'b' << FString(TEXT("c")) << 12;
	Builder.Appendf(TEXT("%s"), TEXT("!"));
	EXPECT_EQ("abc12!", ToUtf8(Builder.ToView()));
	EXPECT_EQ(6, Builder.Len());
	EXPECT_EQ(u'\0', Builder.ToString()[6]);
	Builder.RemoveSuffix(3);
	EXPECT_EQ("abc", ToUtf8(FString(Builder.ToView())));
}

TEST(StringBuilderTest, GrowsBeyondItsBuffer)
{
	TStringBuilder<4> Builder;
	FString Expected;
	for (int32 Round = 0; Round < 300; ++Round)
	{
		Builder << TEXT("xyz");
		Expected += TEXT("xyz");
	}
	EXPECT_TRUE(Expected.Equals(Builder.ToView()));
	Builder.Reset();
	EXPECT_EQ(0, Builder.Len());
}

#include "Containers/EnumAsByte.h"

#include "Misc/EnumClassFlags.h"
#include "gtest/gtest.h"

namespace
{
	enum EPlain
	{
		First,
		Second = 200
	};
}

enum class ETestFlags : uint8
{
	None = 0,
	A = 1,
	B = 2,
	C = 4
};
ENUM_CLASS_FLAGS(ETestFlags)

TEST(EnumAsByteTest, KeepsAPlainEnumerationInOneByte)
{
	static_assert(sizeof(TEnumAsByte<EPlain>) == 1);
	TEnumAsByte<EPlain> Value = Second;
	EXPECT_EQ(Second, Value.GetValue());
	EXPECT_TRUE(Value == Second);
	Value = First;
	EXPECT_FALSE(Value == Second);
	EXPECT_EQ(0, Value.GetIntValue());
}

TEST(EnumClassFlagsTest, ValuesCombineAsBits)
{
	ETestFlags Flags = ETestFlags::A | ETestFlags::B;
	EXPECT_TRUE(EnumHasAllFlags(Flags, ETestFlags::A | ETestFlags::B));
	EXPECT_FALSE(EnumHasAllFlags(Flags, ETestFlags::A | ETestFlags::C));
	EXPECT_TRUE(EnumHasAnyFlags(Flags, ETestFlags::A | ETestFlags::C));
	EnumRemoveFlags(Flags, ETestFlags::A);
	EXPECT_EQ(ETestFlags::B, Flags);
	EnumAddFlags(Flags, ETestFlags::C);
	EXPECT_EQ(ETestFlags::B | ETestFlags::C, Flags);
	EXPECT_TRUE(!ETestFlags::None);
	EXPECT_EQ(ETestFlags::C, Flags & ~ETestFlags::B);
}

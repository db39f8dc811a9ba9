#include "Containers/Map.h"

#include "CountedValue.h"
#include "ExpectedLog.h"
#include "TestText.h"
#include "gtest/gtest.h"

#include <map>
#include <optional>
#include <random>
#include <vector>

namespace
{
	template <typename MapType>
	std::string ShowKeys(const MapType& Map)
	{
		std::string Result;
		for (const auto& Pair : Map)
		{
			Result += (Result.empty() ? "" : " ") + std::to_string(Pair.Key);
		}
		return Result;
	}

	TMap<int32, int32> MakeMap(int32 Num)
	{
		TMap<int32, int32> Map;
		for (int32 Key = 0; Key < Num; ++Key)
		{
			Map.Add(Key, Key * 10);
		}
		return Map;
	}

	/** A key that meets all others in one bucket. */
	struct FSameHash
	{
		int32 Value;
		bool operator==(const FSameHash&) const = default;
		friend uint32 GetTypeHash(FSameHash) { return 1; }
	};

	/** What the words say about the order of a map, done in the simplest way: a list of slots and a stack of holes. */
	class FNaiveMap
	{
	public:
		void Add(int32 Key, int32 Value)
		{
			if (int32* Slot = Find(Key))
			{
				*Slot = Value;
				return;
			}
			if (Holes.empty())
			{
				Slots.emplace_back(std::pair(Key, Value));
			}
			else
			{
				Slots[Holes.back()] = std::pair(Key, Value);
				Holes.pop_back();
			}
		}

		bool Remove(int32 Key)
		{
			for (size_t Index = 0; Index < Slots.size(); ++Index)
			{
				if (Slots[Index] && Slots[Index]->first == Key)
				{
					Slots[Index].reset();
					Holes.push_back(Index);
					return true;
				}
			}
			return false;
		}

		void CompactStable()
		{
			std::erase(Slots, std::nullopt);
			Holes.clear();
		}

		void Compact()
		{
			for (size_t Index = 0; Index < Slots.size(); ++Index)
			{
				while (!Slots.empty() && !Slots.back())
				{
					Slots.pop_back();
				}
				if (Index < Slots.size() && !Slots[Index])
				{
					Slots[Index] = Slots.back();
					Slots.pop_back();
				}
			}
			Holes.clear();
		}

		void Clear()
		{
			Slots.clear();
			Holes.clear();
		}

		int32* Find(int32 Key)
		{
			for (auto& Slot : Slots)
			{
				if (Slot && Slot->first == Key)
				{
					return &Slot->second;
				}
			}
			return nullptr;
		}

		std::vector<std::pair<int32, int32>> List() const
		{
			std::vector<std::pair<int32, int32>> Result;
			for (const auto& Slot : Slots)
			{
				if (Slot)
				{
					Result.push_back(*Slot);
				}
			}
			return Result;
		}

	private:
		std::vector<std::optional<std::pair<int32, int32>>> Slots;
		std::vector<size_t> Holes;
	};

	std::vector<std::pair<int32, int32>> List(const TMap<int32, int32>& Map)
	{
		std::vector<std::pair<int32, int32>> Result;
		for (const TPair<int32, int32>& Pair : Map)
		{
			Result.emplace_back(Pair.Key, Pair.Value);
		}
		return Result;
	}
}

TEST(MapTest, WithoutRemovalsTheOrderIsThatOfInsertion)
{
	TMap<int32, int32> Map;
	for (const int32 Key : { 30, 10, 20, 5 })
	{
		Map.Add(Key, 0);
	}
	EXPECT_EQ("30 10 20 5", ShowKeys(Map));
}

TEST(MapTest, AnEqualKeyKeepsItsPlaceAndGetsTheNewValueAndKey)
{
	TMap<FString, int32> Map;
	Map.Add(TEXT("first"), 1);
	Map.Add(TEXT("second"), 2);
	Map.Add(TEXT("FIRST"), 3);
	EXPECT_EQ(2, Map.Num());
	auto It = Map.CreateConstIterator();
	EXPECT_EQ("FIRST", ToUtf8(It.Key()));
	EXPECT_EQ(3, It.Value());
}

TEST(MapTest, TheHoleMadeLastIsFilledFirst)
{
	TMap<int32, int32> Map = MakeMap(5);
	Map.Remove(1);
	Map.Remove(3);
	Map.Add(100, 0);
	EXPECT_EQ("0 2 100 4", ShowKeys(Map));
	Map.Add(101, 0);
	EXPECT_EQ("0 101 2 100 4", ShowKeys(Map));
	Map.Add(102, 0);
	EXPECT_EQ("0 101 2 100 4 102", ShowKeys(Map));
}

TEST(MapTest, EmptyAndResetStartAfresh)
{
	TMap<int32, int32> Map = MakeMap(4);
	Map.Remove(2);
	Map.Reset();
	EXPECT_TRUE(Map.IsEmpty());
	Map.Add(7, 0);
	Map.Add(8, 0);
	EXPECT_EQ("7 8", ShowKeys(Map));
	Map.Remove(7);
	Map.Empty();
	Map.Add(9, 0);
	Map.Add(1, 0);
	EXPECT_EQ("9 1", ShowKeys(Map));
}

TEST(MapTest, CopiesKeepHolesAndTheirOrder)
{
	TMap<int32, int32> Map = MakeMap(4);
	Map.Remove(0);
	Map.Remove(2);
	TMap<int32, int32> Copy = Map;
	Copy.Add(100, 0);
	Copy.Add(101, 0);
	EXPECT_EQ("101 1 100 3", ShowKeys(Copy));
	EXPECT_EQ("1 3", ShowKeys(Map));
}

TEST(MapTest, CompactFillsHolesFromTheEndAndCompactStableKeepsTheOrder)
{
	TMap<int32, int32> Map = MakeMap(5);
	Map.Remove(0);
	TMap<int32, int32> Other = Map;
	Map.Compact();
	EXPECT_EQ("4 1 2 3", ShowKeys(Map));
	Other.CompactStable();
	EXPECT_EQ("1 2 3 4", ShowKeys(Other));
	EXPECT_EQ(30, Map.FindRef(3));
	EXPECT_EQ(30, Other.FindRef(3));
}

TEST(MapTest, ShrinkTrimsTheEndOnly)
{
	TMap<int32, int32> Map = MakeMap(4);
	Map.Remove(0);
	Map.Remove(3);
	Map.Shrink();
	EXPECT_EQ(3, Map.GetMaxIndex());
	Map.Add(9, 0);
	EXPECT_EQ("9 1 2", ShowKeys(Map));
}

TEST(MapTest, ItBehavesAsTheNaiveMapUnderRandomWork)
{
	std::mt19937 Random(99);
	for (int32 Round = 0; Round < 20; ++Round)
	{
		TMap<int32, int32> Map;
		FNaiveMap Naive;
		const uint32 NumKeys = 3 + Random() % 60;
		for (int32 Step = 0; Step < 500; ++Step)
		{
			const int32 Key = (int32)(Random() % NumKeys);
			const int32 Value = (int32)(Random() % 1000);
			switch (Random() % 32)
			{
			case 0:
				Map.CompactStable();
				Naive.CompactStable();
				break;
			case 1:
				Map.Compact();
				Naive.Compact();
				break;
			case 2:
			{
				TMap<int32, int32> Copy = Map;
				Map = MoveTemp(Copy);
				break;
			}
			case 3:
				if (Random() % 8 == 0)
				{
					Map.Reset();
					Naive.Clear();
				}
				break;
			case 4:
				for (auto It = Map.CreateIterator(); It; ++It)
				{
					if (It.Value() % 5 == 0)
					{
						Naive.Remove(It.Key());
						It.RemoveCurrent();
					}
				}
				break;
			default:
				if (Random() % 2 == 0)
				{
					Map.Add(Key, Value);
					Naive.Add(Key, Value);
				}
				else
				{
					EXPECT_EQ(Naive.Remove(Key) ? 1 : 0, Map.Remove(Key));
				}
			}
			const int32* Expected = Naive.Find(Key);
			const int32* Found = Map.Find(Key);
			ASSERT_EQ(Expected != nullptr, Found != nullptr);
			ASSERT_EQ(Expected != nullptr ? *Expected : 0, Map.FindRef(Key));
			ASSERT_EQ(Naive.List(), List(Map));
		}
	}
}

TEST(MapTest, FindIsNullAndFindRefADefaultForAnUnknownKey)
{
	const TMap<FString, int32> Map{ { TEXT("a"), 1 } };
	EXPECT_EQ(nullptr, Map.Find(TEXT("b")));
	EXPECT_EQ(0, Map.FindRef(TEXT("b")));
	EXPECT_EQ(7, Map.FindRef(TEXT("b"), 7));
	EXPECT_EQ(1, Map.FindRef(TEXT("A")));
	EXPECT_TRUE(Map.Contains(TEXT("A")));
	EXPECT_EQ(1, Map[TEXT("a")]);
}

TEST(MapTest, FindOrAddAddsADefaultValue)
{
	TMap<FName, int32> Map;
	EXPECT_EQ(0, Map.FindOrAdd(TEXT("Count")));
	++Map.FindOrAdd(TEXT("COUNT"));
	EXPECT_EQ(1, Map.FindOrAdd(TEXT("Count"), 50));
	EXPECT_EQ(1, Map.Num());
}

TEST(MapTest, RemoveAndCopyValueLeavesItsOutputForAnUnknownKey)
{
	TMap<int32, FString> Map{ { 1, TEXT("one") } };
	FString Value = TEXT("before");
	EXPECT_FALSE(Map.RemoveAndCopyValue(2, Value));
	EXPECT_EQ("before", ToUtf8(Value));
	EXPECT_TRUE(Map.RemoveAndCopyValue(1, Value));
	EXPECT_EQ("one", ToUtf8(Value));
	EXPECT_TRUE(Map.IsEmpty());
}

TEST(MapTest, KeyAndValueListsComeInTheOrderOfIteration)
{
	TMap<int32, int32> Map = MakeMap(3);
	Map.Remove(0);
	Map.Add(9, 90);
	TArray<int32> Keys;
	TArray<int32> Values;
	EXPECT_EQ(3, Map.GetKeys(Keys));
	Map.GenerateValueArray(Values);
	EXPECT_EQ((TArray<int32>{ 9, 1, 2 }), Keys);
	EXPECT_EQ((TArray<int32>{ 90, 10, 20 }), Values);
	Map.GenerateKeyArray(Keys);
	EXPECT_EQ((TArray<int32>{ 9, 1, 2 }), Keys);
	EXPECT_EQ(2, *Map.FindKey(20));
	EXPECT_EQ(nullptr, Map.FindKey(55));
}

TEST(MapTest, SortsByKeyAndByValue)
{
	TMap<int32, int32> Map{ { 2, 1 }, { 3, 0 }, { 1, 2 } };
	Map.Remove(3);
	Map.Add(4, 9);
	Map.KeySort(TLess<>());
	EXPECT_EQ("1 2 4", ShowKeys(Map));
	Map.ValueSort(TGreater<>());
	EXPECT_EQ("4 1 2", ShowKeys(Map));
	EXPECT_EQ(9, Map.FindRef(4));
}

TEST(MapTest, AppendReplacesEqualKeys)
{
	TMap<int32, int32> Map{ { 1, 1 }, { 2, 2 } };
	Map.Append(TMap<int32, int32>{ { 2, 20 }, { 3, 30 } });
	EXPECT_EQ("1 2 3", ShowKeys(Map));
	EXPECT_EQ(20, Map[2]);
}

TEST(MapTest, StructuredBindingsNameKeyAndValue)
{
	TMap<int32, int32> Map{ { 1, 10 } };
	for (auto& [Key, Value] : Map)
	{
		Value += Key;
	}
	EXPECT_EQ(11, Map[1]);
}

TEST(MapTest, TheFirstEntryIsWhereAnIteratorBegins)
{
	TMap<int32, int32> Map;
	EXPECT_FALSE(Map.CreateIterator());
	Map.Add(5, 6);
	auto It = Map.CreateIterator();
	ASSERT_TRUE(It);
	EXPECT_EQ(5, It.Key());
	EXPECT_EQ(6, It->Value);
}

TEST(MapTest, LooksUpByAViewOfTheKey)
{
	const TMap<FString, int32> Map{ { TEXT("Key"), 1 } };
	const FStringView View = TEXTVIEW("key and more").Left(3);
	ASSERT_NE(nullptr, Map.FindByHash(GetTypeHash(View), View));
	EXPECT_EQ(1, *Map.FindByHash(GetTypeHash(View), View));
}

TEST(MapTest, KeysWithEqualHashesAreToldApart)
{
	TMap<FSameHash, int32> Map;
	for (int32 Index = 0; Index < 50; ++Index)
	{
		Map.Add({ Index }, Index);
	}
	Map.Remove({ 10 });
	EXPECT_EQ(nullptr, Map.Find({ 10 }));
	EXPECT_EQ(49, Map[{ 49 }]);
}

TEST(MapTest, EveryPairIsDestroyedOnceAndMovedValuesAreNotCopied)
{
	FCountedValue::ResetCounts();
	{
		TMap<int32, FCountedValue> Map;
		for (int32 Key = 0; Key < 100; ++Key)
		{
			Map.Add(Key, FCountedValue(Key));
		}
		EXPECT_EQ(0, FCountedValue::NumCopies);
		for (int32 Key = 0; Key < 50; ++Key)
		{
			Map.Remove(Key);
		}
		EXPECT_EQ(50, FCountedValue::NumAlive);
	}
	EXPECT_EQ(0, FCountedValue::NumAlive);
}

TEST(MapTest, ValuesNeedNotBeCopyable)
{
	TMap<int32, TUniquePtr<int32>> Map;
	Map.Add(1, MakeUnique<int32>(5));
	Map.Emplace(2, new int32(6));
	EXPECT_EQ(5, *Map[1]);
	TUniquePtr<int32> Taken = Map.FindAndRemoveChecked(2);
	EXPECT_EQ(6, *Taken);
}

TEST(MapTest, ChangingAMapInsideARangedForIsReported)
{
	TMap<int32, int32> Map = MakeMap(3);
	const Host::FExpectedLog Expected(TEXT("Container has changed during ranged-for iteration!"));
	for (const auto& Pair : Map)
	{
		if (Pair.Key == 1)
		{
			Map.Remove(0);
		}
	}
}

TEST(MapTest, AnIteratorSkipsWhatWasRemovedAhead)
{
	TMap<int32, int32> Map = MakeMap(4);
	std::string Seen;
	for (auto It = Map.CreateIterator(); It; ++It)
	{
		Map.Remove(It.Key() + 1);
		Seen += std::to_string(It.Key());
	}
	EXPECT_EQ("02", Seen);
}

TEST(MapTest, AReservedMapDoesNotAllocateAgain)
{
	TMap<int32, int32> Map;
	Map.Reserve(100);
	const SIZE_T Allocated = Map.GetAllocatedSize();
	for (int32 Key = 0; Key < 100; ++Key)
	{
		Map.Add(Key, Key);
	}
	EXPECT_EQ(Allocated, Map.GetAllocatedSize());
	Map.Reset();
	EXPECT_EQ(Allocated, Map.GetAllocatedSize());
}

TEST(MapDeathTest, AnUnknownKeyHaltsWhereItMustBeKnown)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	TMap<int32, int32> Map;
	EXPECT_DEATH(Map[1] = 2, "Assertion failed");
	EXPECT_DEATH(Map.FindChecked(1), "Assertion failed");
}

TEST(MapDeathTest, TheBeginOfAnEmptyMapIsNoEntry)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	TMap<int32, int32> Map;
	EXPECT_DEATH((void)Map.CreateIterator().Key(), "Assertion failed");
	EXPECT_DEATH((void)(*Map.begin()).Key, "Assertion failed");
}

TEST(MultiMapTest, AKeyMayHaveSeveralValues)
{
	TMultiMap<FName, int32> Map;
	Map.Add(TEXT("a"), 1);
	Map.Add(TEXT("b"), 2);
	Map.Add(TEXT("A"), 3);
	TArray<int32> Values;
	Map.MultiFind(TEXT("a"), Values);
	EXPECT_EQ((TArray<int32>{ 1, 3 }), Values);
	EXPECT_EQ(2, Map.Num(TEXT("a")));
	Map.AddUnique(TEXT("b"), 2);
	EXPECT_EQ(3, Map.Num());
	TArray<FName> Keys;
	EXPECT_EQ(2, Map.GetKeys(Keys));
	EXPECT_EQ(1, Map.Remove(TEXT("a"), 1));
	EXPECT_EQ(1, Map.Remove(TEXT("a")));
	EXPECT_EQ(1, Map.Num());
}

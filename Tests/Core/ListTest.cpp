#include "Containers/List.h"

#include "CoreMinimal.h"
#include "gtest/gtest.h"

namespace
{
	TArray<int32> Values(const TDoubleLinkedList<int32>& List)
	{
		TArray<int32> Result;
		for (const TDoubleLinkedList<int32>::TDoubleLinkedListNode* Node = List.GetHead(); Node; Node = Node->GetNextNode())
		{
			Result.Add(Node->GetValue());
		}
		return Result;
	}

	TArray<int32> ValuesBackwards(const TDoubleLinkedList<int32>& List)
	{
		TArray<int32> Result;
		for (const TDoubleLinkedList<int32>::TDoubleLinkedListNode* Node = List.GetTail(); Node; Node = Node->GetPrevNode())
		{
			Result.Add(Node->GetValue());
		}
		return Result;
	}
}

TEST(List, KeepsElementsInTheOrderOfBothEnds)
{
	TDoubleLinkedList<int32> List;
	EXPECT_TRUE(List.IsEmpty());
	EXPECT_EQ(List.GetHead(), nullptr);
	List.AddTail(2);
	List.AddTail(3);
	List.AddHead(1);
	EXPECT_EQ(List.Num(), 3);
	EXPECT_EQ(Values(List), TArray<int32>({ 1, 2, 3 }));
	EXPECT_EQ(ValuesBackwards(List), TArray<int32>({ 3, 2, 1 }));
}

TEST(List, FindsTheFirstEqualElement)
{
	TDoubleLinkedList<int32> List;
	List.AddTail(1);
	List.AddTail(2);
	List.AddTail(1);
	EXPECT_EQ(List.FindNode(1), List.GetHead());
	EXPECT_TRUE(List.Contains(2));
	EXPECT_EQ(List.FindNode(7), nullptr);
}

TEST(List, RemovesAtBothEndsAndInTheMiddle)
{
	TDoubleLinkedList<int32> List;
	for (int32 Value = 1; Value <= 5; ++Value)
	{
		List.AddTail(Value);
	}
	TDoubleLinkedList<int32>::TDoubleLinkedListNode* Kept = List.FindNode(4);
	List.RemoveNode(3);
	List.RemoveNode(List.GetHead());
	List.RemoveNode(List.GetTail());
	List.RemoveNode(99);
	EXPECT_EQ(Values(List), TArray<int32>({ 2, 4 }));
	EXPECT_EQ(ValuesBackwards(List), TArray<int32>({ 4, 2 }));
	EXPECT_EQ(List.FindNode(4), Kept);
	List.Empty();
	EXPECT_EQ(List.Num(), 0);
	List.AddHead(8);
	EXPECT_EQ(ValuesBackwards(List), TArray<int32>({ 8 }));
}

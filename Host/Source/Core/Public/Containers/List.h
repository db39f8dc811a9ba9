#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"

/** A sequence of elements that each stand in a node of their own: a node stays where it is as long as its element is in the list. */
template <typename InElementType>
class TDoubleLinkedList
{
public:
	using ElementType = InElementType;

	class TDoubleLinkedListNode
	{
	public:
		explicit TDoubleLinkedListNode(const ElementType& InValue) : Value(InValue) {}

		const ElementType& GetValue() const { return Value; }
		ElementType& GetValue() { return Value; }
		/** Null for the last one. */
		TDoubleLinkedListNode* GetNextNode() { return NextNode; }
		const TDoubleLinkedListNode* GetNextNode() const { return NextNode; }
		/** Null for the first one. */
		TDoubleLinkedListNode* GetPrevNode() { return PrevNode; }
		const TDoubleLinkedListNode* GetPrevNode() const { return PrevNode; }

	private:
		friend class TDoubleLinkedList;

		ElementType Value;
		TDoubleLinkedListNode* NextNode = nullptr;
		TDoubleLinkedListNode* PrevNode = nullptr;
	};

	TDoubleLinkedList() = default;
	TDoubleLinkedList(const TDoubleLinkedList&) = delete;
	TDoubleLinkedList& operator=(const TDoubleLinkedList&) = delete;
	virtual ~TDoubleLinkedList() { Empty(); }

	/** Puts an element in front of the others. */
	bool AddHead(const ElementType& InElement)
	{
		TDoubleLinkedListNode* Node = new TDoubleLinkedListNode(InElement);
		Node->NextNode = HeadNode;
		(HeadNode ? HeadNode->PrevNode : TailNode) = Node;
		HeadNode = Node;
		++ListSize;
		return true;
	}

	/** Puts an element behind the others. */
	bool AddTail(const ElementType& InElement)
	{
		TDoubleLinkedListNode* Node = new TDoubleLinkedListNode(InElement);
		Node->PrevNode = TailNode;
		(TailNode ? TailNode->NextNode : HeadNode) = Node;
		TailNode = Node;
		++ListSize;
		return true;
	}

	/** Removes the first element that equals this one, if there is one. */
	void RemoveNode(const ElementType& InElement)
	{
		RemoveNode(FindNode(InElement));
	}

	/** Removes a node of this list; nothing happens with null. */
	void RemoveNode(TDoubleLinkedListNode* NodeToRemove)
	{
		if (!NodeToRemove)
		{
			return;
		}
		(NodeToRemove->PrevNode ? NodeToRemove->PrevNode->NextNode : HeadNode) = NodeToRemove->NextNode;
		(NodeToRemove->NextNode ? NodeToRemove->NextNode->PrevNode : TailNode) = NodeToRemove->PrevNode;
		delete NodeToRemove;
		--ListSize;
	}

	void Empty()
	{
		while (HeadNode)
		{
			RemoveNode(HeadNode);
		}
		check(ListSize == 0);
	}

	/** Null while the list is empty. */
	TDoubleLinkedListNode* GetHead() const { return HeadNode; }
	TDoubleLinkedListNode* GetTail() const { return TailNode; }

	/** The first node whose element equals this one; null when there is none. */
	TDoubleLinkedListNode* FindNode(const ElementType& InElement) const
	{
		TDoubleLinkedListNode* Node = HeadNode;
		while (Node && !(Node->GetValue() == InElement))
		{
			Node = Node->GetNextNode();
		}
		return Node;
	}

	bool Contains(const ElementType& InElement) const { return FindNode(InElement) != nullptr; }
	int32 Num() const { return ListSize; }
	bool IsEmpty() const { return ListSize == 0; }

private:
	TDoubleLinkedListNode* HeadNode = nullptr;
	TDoubleLinkedListNode* TailNode = nullptr;
	int32 ListSize = 0;
};

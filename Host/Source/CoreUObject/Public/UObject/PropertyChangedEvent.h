#pragma once

#include "Containers/ArrayView.h"
#include "Containers/List.h"
#include "Containers/Map.h"
#include "UObject/Property.h"

/** What happened to an edited property. */
namespace EPropertyChangeType
{
	typedef uint32 Type;

	const Type Unspecified = 1 << 0;
	/** An array grew. */
	const Type ArrayAdd = 1 << 1;
	/** An array shrank. */
	const Type ArrayRemove = 1 << 2;
	const Type ArrayClear = 1 << 3;
	const Type ValueSet = 1 << 4;
	const Type Duplicate = 1 << 5;
	/** In the course of a drag; a ValueSet follows. */
	const Type Interactive = 1 << 6;
	const Type Redirected = 1 << 7;
	const Type ArrayMove = 1 << 8;
	const Type ToggleEditable = 1 << 9;
	const Type ResetToDefault = 1 << 12;
}

/** Tells an object which of its properties was edited. */
struct FPropertyChangedEvent
{
	explicit FPropertyChangedEvent(FProperty* InProperty, EPropertyChangeType::Type InChangeType = EPropertyChangeType::Unspecified)
		: Property(InProperty), MemberProperty(InProperty), ChangeType(InChangeType)
	{
	}

	/** The object's own member that contains the edited property. */
	void SetActiveMemberProperty(FProperty* InActiveMemberProperty) { MemberProperty = InActiveMemberProperty; }

	/** Name of the edited property; NAME_None when it is unknown. */
	FName GetPropertyName() const { return Property ? Property->GetFName() : NAME_None; }
	/** Name of the object's own member that contains it; NAME_None when it is unknown. */
	FName GetMemberPropertyName() const { return MemberProperty ? MemberProperty->GetFName() : NAME_None; }

	/**
	 * Tells for each object of the edit at which indices of its arrays it took place, by the arrays' names. The maps must live as
	 * long as the event.
	 */
	void SetArrayIndexPerObject(TArrayView<const TMap<FString, int32>> InArrayIndices) { ArrayIndicesPerObject = InArrayIndices; }

	/** Index of the edited element, or of what contains it, in the array of that name; INDEX_NONE when it is in none. */
	int32 GetArrayIndex(const FString& InName) const
	{
		const int32* Index = ArrayIndicesPerObject.IsValidIndex(ObjectIteratorIndex) ? ArrayIndicesPerObject[ObjectIteratorIndex].Find(InName) : nullptr;
		return Index ? *Index : INDEX_NONE;
	}

	/** The innermost property that changed; null for a bulk change. */
	FProperty* Property;
	/** The object's own member that contains it; the same property unless it lies in a structure or container. */
	FProperty* MemberProperty;
	EPropertyChangeType::Type ChangeType;
	/** Which of the objects of the edit is being told; INDEX_NONE when that was not set. */
	int32 ObjectIteratorIndex = INDEX_NONE;

private:
	TArrayView<const TMap<FString, int32>> ArrayIndicesPerObject;
};

/** The way from an object's own member to an edited property, outermost first. */
class FEditPropertyChain : public TDoubleLinkedList<FProperty*>
{
public:
	/** The innermost property that changed; null until it is set. */
	TDoubleLinkedListNode* GetActiveNode() const { return ActivePropertyNode; }
	/** The object's own member; null until it is set. */
	TDoubleLinkedListNode* GetActiveMemberNode() const { return ActiveMemberPropertyNode; }
	/** False when the property is not part of the chain. */
	bool SetActivePropertyNode(FProperty* NewActiveNode)
	{
		return Activate(ActivePropertyNode, NewActiveNode);
	}
	bool SetActiveMemberPropertyNode(FProperty* NewActiveMemberNode)
	{
		return Activate(ActiveMemberPropertyNode, NewActiveMemberNode);
	}

private:
	bool Activate(TDoubleLinkedListNode*& Active, FProperty* Property) const
	{
		TDoubleLinkedListNode* Node = FindNode(Property);
		Active = Node ? Node : Active;
		return Node != nullptr;
	}

	TDoubleLinkedListNode* ActivePropertyNode = nullptr;
	TDoubleLinkedListNode* ActiveMemberPropertyNode = nullptr;
};

/** As FPropertyChangedEvent, with the whole way to the property. */
struct FPropertyChangedChainEvent : public FPropertyChangedEvent
{
	FPropertyChangedChainEvent(FEditPropertyChain& InPropertyChain, const FPropertyChangedEvent& SrcChangeEvent)
		: FPropertyChangedEvent(SrcChangeEvent), PropertyChain(InPropertyChain)
	{
	}

	FEditPropertyChain& PropertyChain;
};

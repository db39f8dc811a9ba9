#pragma once

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

	/** The innermost property that changed; null for a bulk change. */
	FProperty* Property;
	/** The object's own member that contains it; the same property unless it lies in a structure or container. */
	FProperty* MemberProperty;
	EPropertyChangeType::Type ChangeType;
};

/** The way from an object's own member to an edited property, outermost first. */
class FEditPropertyChain
{
public:
	void AddTail(FProperty* Property) { Properties.Add(Property); }
	void AddHead(FProperty* Property) { Properties.Insert(Property, 0); }
	int32 Num() const { return Properties.Num(); }
	FProperty* GetPropertyAt(int32 Index) const { return Properties[Index]; }

	/** The innermost property that changed. */
	FProperty* GetActiveNode() const { return ActivePropertyNode; }
	/** The object's own member. */
	FProperty* GetActiveMemberNode() const { return ActiveMemberPropertyNode; }
	/** False when the property is not part of the chain. */
	bool SetActivePropertyNode(FProperty* NewActiveNode)
	{
		const bool bFound = Properties.Contains(NewActiveNode);
		ActivePropertyNode = bFound ? NewActiveNode : ActivePropertyNode;
		return bFound;
	}
	bool SetActiveMemberPropertyNode(FProperty* NewActiveMemberNode)
	{
		const bool bFound = Properties.Contains(NewActiveMemberNode);
		ActiveMemberPropertyNode = bFound ? NewActiveMemberNode : ActiveMemberPropertyNode;
		return bFound;
	}

private:
	TArray<FProperty*> Properties;
	FProperty* ActivePropertyNode = nullptr;
	FProperty* ActiveMemberPropertyNode = nullptr;
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

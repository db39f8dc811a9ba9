#pragma once

#include "UObject/Field.h"
#include "UObject/Object.h"

class FProperty;

namespace Host
{
	struct FTypeBuilder;
}

/** An object that describes a part of a type: base of structures, functions and enumerations. */
class COREUOBJECT_API UField : public UObject
{
	HOST_INTRINSIC_CLASS(UField, UObject)

	/** Next field of the same structure. */
	UField* Next = nullptr;

	UField(const FObjectInitializer& ObjectInitializer);
	UField(EStaticConstructor, EObjectFlags InFlags);

	/** The structure that the field stands in; null at file scope. */
	UStruct* GetOwnerStruct() const;
	/** The class that the field stands in, which is the field itself for a class. */
	UClass* GetOwnerClass() const;

	/** The value of a metadata key; empty when the field has no such key. Keys compare without case. */
	const FString& GetMetaData(const TCHAR* Key) const;
	const FString& GetMetaData(const FName& Key) const;
	/** As GetMetaData; null when the field has no such key. */
	const FString* FindMetaData(const TCHAR* Key) const;
	const FString* FindMetaData(const FName& Key) const;
	bool HasMetaData(const TCHAR* Key) const;
	bool HasMetaData(const FName& Key) const;
	void SetMetaData(const TCHAR* Key, const TCHAR* Value);
	void SetMetaData(const FName& Key, const TCHAR* Value);
	void RemoveMetaData(const FName& Key);
	/** True when the key stands alone or its value is "true". */
	bool GetBoolMetaData(const FName& Key) const;
	int32 GetIntMetaData(const FName& Key) const;

	/** The name that a user reads: metadata DisplayName, otherwise the name split into words. */
	FText GetDisplayNameText() const;
	/** Metadata ToolTip, which is the comment above the declaration unless written out; otherwise the display name. */
	FText GetToolTipText(bool bShortTooltip = false) const;

	/** Metadata that the generated code registered and what was set since. */
	Host::FMetaDataMap& GetMetaDataMap() const { return MetaData; }

private:
	mutable Host::FMetaDataMap MetaData;
};

/** Describes a type with properties: a class, a structure, or the parameters of a function. */
class COREUOBJECT_API UStruct : public UField
{
	HOST_INTRINSIC_CLASS(UStruct, UField)

	/** First function (in classes) of the structure, linked by UField::Next. */
	UField* Children = nullptr;
	/** First own property in order of declaration, linked by FField::Next. */
	FField* ChildProperties = nullptr;
	/** Size in bytes, inherited part included, without padding at the end. */
	int32 PropertiesSize = 0;
	/** Alignment in bytes. */
	int32 MinAlignment = 1;
	/** All properties, own before inherited, linked by FProperty::PropertyLinkNext. */
	FProperty* PropertyLink = nullptr;
	/** Those of them that keep objects alive, linked by FProperty::NextRef. */
	FProperty* RefLink = nullptr;
	/** Those of them that a destructor must visit in memory that no compiled class owns, linked by FProperty::DestructorLinkNext. */
	FProperty* DestructorLink = nullptr;

	UStruct(const FObjectInitializer& ObjectInitializer);
	UStruct(EStaticConstructor, EObjectFlags InFlags);
	virtual ~UStruct() override;

	UStruct* GetSuperStruct() const { return SuperStruct; }
	/** Makes the structure derive from another; before Link(). */
	virtual void SetSuperStruct(UStruct* NewSuperStruct);
	/** The next structure outwards whose members this one sees. */
	UStruct* GetInheritanceSuper() const { return SuperStruct; }

	/** Size in bytes that an array of the structure steps by. */
	int32 GetStructureSize() const { return Align(PropertiesSize, MinAlignment); }
	int32 GetPropertiesSize() const { return PropertiesSize; }
	int32 GetMinAlignment() const { return MinAlignment; }
	void SetPropertiesSize(int32 NewSize) { PropertiesSize = NewSize; }

	/** True when the structure is the other one or derives from it. */
	bool IsChildOf(const UStruct* SomeBase) const
	{
		return SomeBase && SomeBase->Depth <= Depth && Chain[SomeBase->Depth] == SomeBase;
	}

	template<typename T>
	bool IsChildOf() const
	{
		return IsChildOf(T::StaticClass());
	}

	/** Own or inherited property; null when there is none of that name. */
	FProperty* FindPropertyByName(FName InName) const;

	/** Prefix of the C++ name: U, A or F. */
	virtual const TCHAR* GetPrefixCPP() const { return TEXT("F"); }

	/** Adds a property behind those that are there. The structure owns it from now on; Link() places it. */
	void AddCppProperty(FProperty* Property);

	/**
	 * Chains own and inherited properties, and places those whose offset is not set yet behind PropertiesSize in order of
	 * declaration. Called again after properties were added.
	 */
	virtual void Link();
	/** As Link(); the engine's name. */
	void StaticLink(bool bRelinkExistingProperties = false);

	/** Makes ArrayDim valid values in raw memory. */
	virtual void InitializeStruct(void* Dest, int32 ArrayDim = 1) const;
	/** Ends the life of ArrayDim values. */
	virtual void DestroyStruct(void* Dest, int32 ArrayDim = 1) const;

	/** Keeps the base and the functions. */
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

private:
	friend struct ::Host::FTypeBuilder;

	/** How far Link() has come. */
	enum class ELinkState : uint8
	{
		Unlinked,
		Linking,
		Linked,
	};

	void RebuildChain();
	void PlaceProperties();
	void ChainProperties();

	UStruct* SuperStruct = nullptr;
	int32 Depth = 0;
	ELinkState LinkState = ELinkState::Unlinked;
	/** The structure and all that it derives from, the outermost first: makes IsChildOf one comparison. */
	TArray<UStruct*> Chain;
};

#pragma once

#include "UObject/Class.h"
#include "UObject/Field.h"

class FOutputDevice;
class FReferenceCollector;

/** Describes a member of a structure, a parameter of a function, or the element of a container. */
class COREUOBJECT_API FProperty : public FField
{
	DECLARE_FIELD(FProperty, FField, CASTCLASS_FProperty)

	/** Number of elements of a C array member, otherwise 1. */
	int32 ArrayDim = 1;
	/** Size of one element in bytes. */
	int32 ElementSize = 0;
	EPropertyFlags PropertyFlags = CPF_None;
	/** See UStruct::PropertyLink and its neighbours. */
	FProperty* PropertyLinkNext = nullptr;
	FProperty* NextRef = nullptr;
	FProperty* DestructorLinkNext = nullptr;

	/** A property whose place is not known yet; UStruct::Link() gives it one. */
	static constexpr int32 UnsetOffset = -1;

	FProperty(FFieldVariant InOwner, FName InName, FFieldClass* InClass) : FField(InOwner, InName, InClass) {}

	/** Size of all elements in bytes. */
	int32 GetSize() const { return ArrayDim * ElementSize; }
	virtual int32 GetMinAlignment() const { return 1; }
	/** Offset in bytes from the start of the container. */
	int32 GetOffset_ForInternal() const { return Offset; }
	int32 GetOffset_ForUFunction() const { return Offset; }
	/** Offset of the first byte behind the property. */
	int32 GetOffset_ForLink() const { return Offset + GetSize(); }
	void SetOffset_Internal(int32 NewOffset) { Offset = NewOffset; }

	EPropertyFlags GetPropertyFlags() const { return PropertyFlags; }
	void SetPropertyFlags(EPropertyFlags NewFlags) { PropertyFlags |= NewFlags; }
	void ClearPropertyFlags(EPropertyFlags OldFlags) { PropertyFlags &= ~OldFlags; }
	bool HasAnyPropertyFlags(uint64 FlagsToCheck) const { return (PropertyFlags & FlagsToCheck) != 0; }
	bool HasAllPropertyFlags(uint64 FlagsToCheck) const { return (PropertyFlags & FlagsToCheck) == FlagsToCheck; }

	/** Address of the value in a container (an object, a structure, the parameters of a function). Null stays null. */
	template<typename TValue>
	TValue* ContainerPtrToValuePtr(void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return ContainerPtr ? reinterpret_cast<TValue*>(static_cast<uint8*>(ContainerPtr) + Offset + ElementSize * ArrayIndex) : nullptr;
	}
	template<typename TValue>
	const TValue* ContainerPtrToValuePtr(const void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return ContainerPtrToValuePtr<TValue>(const_cast<void*>(ContainerPtr), ArrayIndex);
	}
	template<typename TValue>
	TValue* ContainerPtrToValuePtr(UObject* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return ContainerPtrToValuePtr<TValue>(static_cast<void*>(ContainerPtr), ArrayIndex);
	}
	template<typename TValue>
	const TValue* ContainerPtrToValuePtr(const UObject* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return ContainerPtrToValuePtr<TValue>(static_cast<const void*>(ContainerPtr), ArrayIndex);
	}

	/** Equality of one element of each; null stands for the default value. */
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const = 0;
	bool Identical_InContainer(const void* A, const void* B, int32 ArrayIndex = 0, uint32 PortFlags = 0) const;

	/** Copies one element. */
	void CopySingleValue(void* Dest, const void* Src) const
	{
		if (Dest != Src)
		{
			CopyValuesInternal(Dest, Src, 1);
		}
	}
	/** Copies all elements. */
	void CopyCompleteValue(void* Dest, const void* Src) const
	{
		if (Dest != Src)
		{
			CopyValuesInternal(Dest, Src, ArrayDim);
		}
	}
	void CopyCompleteValue_InContainer(void* DestContainer, const void* SrcContainer) const;

	/** Makes default values of all elements in raw memory. */
	void InitializeValue(void* Dest) const { InitializeValueInternal(Dest); }
	void InitializeValue_InContainer(void* Dest) const { InitializeValueInternal(ContainerPtrToValuePtr<void>(Dest)); }
	/** Ends the life of all elements. */
	void DestroyValue(void* Dest) const { DestroyValueInternal(Dest); }
	void DestroyValue_InContainer(void* Dest) const { DestroyValueInternal(ContainerPtrToValuePtr<void>(Dest)); }
	/** Sets all elements back to the default of their type. */
	void ClearValue(void* Data) const;
	void ClearValue_InContainer(void* Data) const { ClearValue(ContainerPtrToValuePtr<void>(Data)); }

	/** Copies the value out of, or into, a container. */
	void GetValue_InContainer(const void* Container, void* OutValue) const;
	void SetValue_InContainer(void* Container, const void* Value) const;

	/** Hash of one element; asserts that the type has one (CPF_HasGetValueTypeHash). */
	uint32 GetValueTypeHash(const void* Src) const;

	/**
	 * Reads one element from text. Returns the first character behind it, null when the text does not read as such a value,
	 * which then keeps what it was. ErrorText gets a line that says why.
	 */
	const TCHAR* ImportText_Direct(const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText = nullptr) const
	{
		return Buffer ? ImportText_Internal(Buffer, PropertyPtr, OwnerObject, PortFlags, ErrorText) : nullptr;
	}
	const TCHAR* ImportText_InContainer(const TCHAR* Buffer, void* Container, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText = nullptr) const
	{
		return ImportText_Direct(Buffer, ContainerPtrToValuePtr<void>(Container), OwnerObject, PortFlags, ErrorText);
	}

	/** Appends one element as text. DefaultValue may be null; structures leave out what equals it. */
	void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const
	{
		ExportText_Internal(ValueStr, PropertyValue, DefaultValue, Parent, PortFlags, ExportRootScope);
	}
	void ExportTextItem_InContainer(FString& ValueStr, const void* Container, const void* DefaultContainer, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const;

	/** The type as C++ writes it, for messages; ExtendedTypeText gets the template arguments when given, otherwise they are appended. */
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const = 0;

	/** True when values of the other property can be copied to this one. */
	virtual bool SameType(const FProperty* Other) const;

	/** True when the value holds references that keep objects alive. */
	virtual bool ContainsObjectReference() const { return false; }
	/** Shows all strong references in one element to the collector. */
	virtual void AddReferencedObjects(void* Value, FReferenceCollector& Collector) const;

	/** Alignment, size and flags that follow from inner properties; called by UStruct::Link(). */
	virtual void LinkInternal() {}

	bool IsEditorOnlyProperty() const { return HasAnyPropertyFlags(CPF_EditorOnly); }

protected:
	virtual void CopyValuesInternal(void* Dest, const void* Src, int32 Count) const = 0;
	/** All ArrayDim elements. */
	virtual void InitializeValueInternal(void* Dest) const = 0;
	virtual void DestroyValueInternal(void* Dest) const = 0;
	virtual uint32 GetValueTypeHashInternal(const void* Src) const;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* Owner, int32 PortFlags, FOutputDevice* ErrorText) const = 0;
	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const = 0;

private:
	int32 Offset = UnsetOffset;
};

/** Property of a type whose values C++ makes, copies and compares. */
template<typename InTCppType, typename TPropertyBase>
class TProperty : public TPropertyBase
{
public:
	typedef InTCppType TCppType;

	template<typename... TFurther>
	TProperty(FFieldVariant InOwner, FName InName, FFieldClass* InClass, TFurther... Further) : TPropertyBase(InOwner, InName, InClass, Further...)
	{
		this->ElementSize = sizeof(TCppType);
		if constexpr (std::is_trivially_destructible_v<TCppType>)
		{
			this->PropertyFlags |= CPF_NoDestructor;
		}
		if constexpr (std::is_trivially_copyable_v<TCppType>)
		{
			this->PropertyFlags |= CPF_IsPlainOldData;
		}
	}

	virtual int32 GetMinAlignment() const override { return alignof(TCppType); }

	/** The value at an address. */
	static const TCppType& GetPropertyValue(const void* A) { return *static_cast<const TCppType*>(A); }
	static TCppType* GetPropertyValuePtr(void* A) { return static_cast<TCppType*>(A); }
	static const TCppType* GetPropertyValuePtr(const void* A) { return static_cast<const TCppType*>(A); }
	static void SetPropertyValue(void* A, const TCppType& Value) { *static_cast<TCppType*>(A) = Value; }

	/** The value in a container. */
	const TCppType& GetPropertyValue_InContainer(const void* A, int32 ArrayIndex = 0) const
	{
		return *this->template ContainerPtrToValuePtr<TCppType>(A, ArrayIndex);
	}
	TCppType* GetPropertyValuePtr_InContainer(void* A, int32 ArrayIndex = 0) const
	{
		return this->template ContainerPtrToValuePtr<TCppType>(A, ArrayIndex);
	}
	void SetPropertyValue_InContainer(void* A, const TCppType& Value, int32 ArrayIndex = 0) const
	{
		*this->template ContainerPtrToValuePtr<TCppType>(A, ArrayIndex) = Value;
	}

protected:
	virtual void CopyValuesInternal(void* Dest, const void* Src, int32 Count) const override
	{
		for (int32 Index = 0; Index < Count; ++Index)
		{
			static_cast<TCppType*>(Dest)[Index] = static_cast<const TCppType*>(Src)[Index];
		}
	}

	virtual void InitializeValueInternal(void* Dest) const override
	{
		for (int32 Index = 0; Index < this->ArrayDim; ++Index)
		{
			::new (static_cast<void*>(static_cast<TCppType*>(Dest) + Index)) TCppType();
		}
	}

	virtual void DestroyValueInternal(void* Dest) const override
	{
		for (int32 Index = 0; Index < this->ArrayDim; ++Index)
		{
			static_cast<TCppType*>(Dest)[Index].~TCppType();
		}
	}
};

/** As TProperty, for types with operator== and a hash. */
template<typename InTCppType, typename TPropertyBase>
class TProperty_WithEqualityAndHash : public TProperty<InTCppType, TPropertyBase>
{
public:
	TProperty_WithEqualityAndHash(FFieldVariant InOwner, FName InName, FFieldClass* InClass)
		: TProperty<InTCppType, TPropertyBase>(InOwner, InName, InClass)
	{
		this->PropertyFlags |= CPF_HasGetValueTypeHash;
	}

	virtual bool Identical(const void* A, const void* B, uint32) const override
	{
		const InTCppType Default{};
		return (A ? *static_cast<const InTCppType*>(A) : Default) == (B ? *static_cast<const InTCppType*>(B) : Default);
	}

protected:
	virtual uint32 GetValueTypeHashInternal(const void* Src) const override
	{
		return GetTypeHash(*static_cast<const InTCppType*>(Src));
	}
};

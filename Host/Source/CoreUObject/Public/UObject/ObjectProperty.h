#pragma once

#include "UObject/Property.h"
#include "UObject/ScriptInterface.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/WeakObjectPtr.h"

/** Base of the properties that refer to objects, however strongly. */
class COREUOBJECT_API FObjectPropertyBase : public FProperty
{
	DECLARE_FIELD(FObjectPropertyBase, FProperty, CASTCLASS_FObjectPropertyBase)

	/** What the object must be; for class references UClass, see FClassProperty::MetaClass. */
	UClass* PropertyClass = nullptr;

	FObjectPropertyBase(FFieldVariant InOwner, FName InName, FFieldClass* InClass, UClass* InPropertyClass)
		: FProperty(InOwner, InName, InClass), PropertyClass(InPropertyClass)
	{
	}

	void SetPropertyClass(UClass* NewPropertyClass) { PropertyClass = NewPropertyClass; }

	/** The object that the value refers to; null when it refers to none, or to one that is not loaded or gone. */
	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const = 0;
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const = 0;
	UObject* GetObjectPropertyValue_InContainer(const void* ContainerAddress, int32 ArrayIndex = 0) const
	{
		return GetObjectPropertyValue(ContainerPtrToValuePtr<void>(ContainerAddress, ArrayIndex));
	}
	void SetObjectPropertyValue_InContainer(void* ContainerAddress, UObject* Value, int32 ArrayIndex = 0) const
	{
		SetObjectPropertyValue(ContainerPtrToValuePtr<void>(ContainerAddress, ArrayIndex), Value);
	}

	/** True when the value may refer to the object. */
	virtual bool CanHold(const UObject* Object) const;

	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual bool SameType(const FProperty* Other) const override;

	/** Reads the path or quoted form of an object reference; loads the object when it has to. Null and a line in ErrorText on failure. */
	static bool ParseObjectPropertyValue(const FProperty* Property, UObject* OwnerObject, UClass* RequiredMetaClass, uint32 PortFlags,
		const TCHAR*& Buffer, UObject*& OutResolvedValue, FOutputDevice* ErrorText);

protected:
	virtual uint32 GetValueTypeHashInternal(const void* Src) const override;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* Owner, int32 PortFlags, FOutputDevice* ErrorText) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const override;
};

/** Fills in the value operations of a kind of reference. */
template<typename InTCppType>
class TObjectPropertyBase : public TProperty<InTCppType, FObjectPropertyBase>
{
public:
	TObjectPropertyBase(FFieldVariant InOwner, FName InName, FFieldClass* InClass, UClass* InPropertyClass)
		: TProperty<InTCppType, FObjectPropertyBase>(InOwner, InName, InClass, InPropertyClass)
	{
		this->PropertyFlags |= CPF_HasGetValueTypeHash;
	}
};

/** A strong reference: TObjectPtr or a raw pointer. Keeps the object alive. */
class COREUOBJECT_API FObjectProperty : public TObjectPropertyBase<UObject*>
{
	DECLARE_FIELD(FObjectProperty, FObjectPropertyBase, CASTCLASS_FObjectProperty)

	FObjectProperty(FFieldVariant InOwner, FName InName, UClass* InPropertyClass);

	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override;
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool ContainsObjectReference() const override { return true; }
	virtual void AddReferencedObjects(void* Value, FReferenceCollector& Collector) const override;

protected:
	FObjectProperty(FFieldVariant InOwner, FName InName, FFieldClass* InClass, UClass* InPropertyClass);
};

/** A class: TSubclassOf or UClass*. */
class COREUOBJECT_API FClassProperty : public FObjectProperty
{
	DECLARE_FIELD(FClassProperty, FObjectProperty, CASTCLASS_FClassProperty)

	/** What the class must derive from. */
	UClass* MetaClass = nullptr;

	FClassProperty(FFieldVariant InOwner, FName InName, UClass* InMetaClass);

	virtual bool CanHold(const UObject* Object) const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool SameType(const FProperty* Other) const override;
};

/** TWeakObjectPtr. */
class COREUOBJECT_API FWeakObjectProperty : public TObjectPropertyBase<FWeakObjectPtr>
{
	DECLARE_FIELD(FWeakObjectProperty, FObjectPropertyBase, CASTCLASS_FWeakObjectProperty)

	FWeakObjectProperty(FFieldVariant InOwner, FName InName, UClass* InPropertyClass);

	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override;
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
};

/** TSoftObjectPtr: a path, and the object once it is loaded. */
class COREUOBJECT_API FSoftObjectProperty : public TObjectPropertyBase<FSoftObjectPtr>
{
	DECLARE_FIELD(FSoftObjectProperty, FObjectPropertyBase, CASTCLASS_FSoftObjectProperty)

	FSoftObjectProperty(FFieldVariant InOwner, FName InName, UClass* InPropertyClass);

	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override;
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override;
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;

protected:
	FSoftObjectProperty(FFieldVariant InOwner, FName InName, FFieldClass* InClass, UClass* InPropertyClass);
	virtual uint32 GetValueTypeHashInternal(const void* Src) const override;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* Owner, int32 PortFlags, FOutputDevice* ErrorText) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const override;
};

/** TSoftClassPtr. */
class COREUOBJECT_API FSoftClassProperty : public FSoftObjectProperty
{
	DECLARE_FIELD(FSoftClassProperty, FSoftObjectProperty, CASTCLASS_FSoftClassProperty)

	/** What the class must derive from. */
	UClass* MetaClass = nullptr;

	FSoftClassProperty(FFieldVariant InOwner, FName InName, UClass* InMetaClass);

	virtual bool CanHold(const UObject* Object) const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool SameType(const FProperty* Other) const override;
};

/** TScriptInterface: an object and its interface. Keeps the object alive. */
class COREUOBJECT_API FInterfaceProperty : public TProperty<FScriptInterface, FProperty>
{
	DECLARE_FIELD(FInterfaceProperty, FProperty, CASTCLASS_FInterfaceProperty)

	/** The U-class of the interface. */
	UClass* InterfaceClass = nullptr;

	FInterfaceProperty(FFieldVariant InOwner, FName InName, UClass* InInterfaceClass);

	/** Makes the value refer to the object, which must implement the interface; null clears it. False when it does not. */
	bool SetInterfaceObject(void* Value, UObject* Object) const;

	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool SameType(const FProperty* Other) const override;
	virtual bool ContainsObjectReference() const override { return true; }
	virtual void AddReferencedObjects(void* Value, FReferenceCollector& Collector) const override;

protected:
	virtual uint32 GetValueTypeHashInternal(const void* Src) const override;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* Owner, int32 PortFlags, FOutputDevice* ErrorText) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const override;
};

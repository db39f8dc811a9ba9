#pragma once

#include "Host/Reflection/ContainerOps.h"
#include "UObject/Property.h"

/** What arrays, sets and maps have in common. */
class COREUOBJECT_API FContainerPropertyBase : public FProperty
{
	DECLARE_FIELD(FContainerPropertyBase, FProperty, CASTCLASS_FProperty)

	FContainerPropertyBase(FFieldVariant InOwner, FName InName, FFieldClass* InClass, const Host::FContainerOps* InOps);

	virtual int32 GetMinAlignment() const override { return ContainerOps->Alignment; }

protected:
	virtual void CopyValuesInternal(void* Dest, const void* Src, int32 Count) const override;
	virtual void InitializeValueInternal(void* Dest) const override;
	virtual void DestroyValueInternal(void* Dest) const override;

private:
	const Host::FContainerOps* ContainerOps;
};

/** A TArray. */
class COREUOBJECT_API FArrayProperty : public FContainerPropertyBase
{
	DECLARE_FIELD(FArrayProperty, FContainerPropertyBase, CASTCLASS_FArrayProperty)

	/** Describes one element; owned. Named as the array is. */
	FProperty* Inner = nullptr;

	/** Takes Inner over. */
	FArrayProperty(FFieldVariant InOwner, FName InName, const Host::FArrayOps* InOps);
	virtual ~FArrayProperty() override;

	void SetInner(FProperty* InInner) { Inner = InInner; }
	const Host::FArrayOps& GetOps() const { return *Ops; }

	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool SameType(const FProperty* Other) const override;
	virtual bool ContainsObjectReference() const override { return Inner->ContainsObjectReference(); }
	virtual void AddReferencedObjects(void* Value, FReferenceCollector& Collector) const override;
	virtual void LinkInternal() override;

protected:
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* Owner, int32 PortFlags, FOutputDevice* ErrorText) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const override;

private:
	const Host::FArrayOps* Ops;
};

/** A TSet. */
class COREUOBJECT_API FSetProperty : public FContainerPropertyBase
{
	DECLARE_FIELD(FSetProperty, FContainerPropertyBase, CASTCLASS_FSetProperty)

	/** Describes one element; owned. */
	FProperty* ElementProp = nullptr;

	FSetProperty(FFieldVariant InOwner, FName InName, const Host::FSparseOps* InOps);
	virtual ~FSetProperty() override;

	void SetElementProperty(FProperty* InElement) { ElementProp = InElement; }
	FProperty* GetElementProperty() const { return ElementProp; }
	const Host::FSparseOps& GetOps() const { return *Ops; }

	/** Equal when both have the same elements, in whatever order. */
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool SameType(const FProperty* Other) const override;
	virtual bool ContainsObjectReference() const override { return ElementProp->ContainsObjectReference(); }
	virtual void AddReferencedObjects(void* Value, FReferenceCollector& Collector) const override;
	virtual void LinkInternal() override;

protected:
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* Owner, int32 PortFlags, FOutputDevice* ErrorText) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const override;

private:
	const Host::FSparseOps* Ops;
};

/** A TMap. */
class COREUOBJECT_API FMapProperty : public FContainerPropertyBase
{
	DECLARE_FIELD(FMapProperty, FContainerPropertyBase, CASTCLASS_FMapProperty)

	/** Describe key and value; owned. Both at offset 0 of what FScriptMapHelper yields for them. */
	FProperty* KeyProp = nullptr;
	FProperty* ValueProp = nullptr;

	FMapProperty(FFieldVariant InOwner, FName InName, const Host::FSparseOps* InOps);
	virtual ~FMapProperty() override;

	void SetInner(FProperty* InKey, FProperty* InValue)
	{
		KeyProp = InKey;
		ValueProp = InValue;
	}
	FProperty* GetKeyProperty() const { return KeyProp; }
	FProperty* GetValueProperty() const { return ValueProp; }
	const Host::FSparseOps& GetOps() const { return *Ops; }

	/** Equal when both have the same pairs, in whatever order. */
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool SameType(const FProperty* Other) const override;
	virtual bool ContainsObjectReference() const override { return KeyProp->ContainsObjectReference() || ValueProp->ContainsObjectReference(); }
	virtual void AddReferencedObjects(void* Value, FReferenceCollector& Collector) const override;
	virtual void LinkInternal() override;

protected:
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* Owner, int32 PortFlags, FOutputDevice* ErrorText) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const override;

private:
	const Host::FSparseOps* Ops;
};

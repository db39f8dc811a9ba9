#pragma once

#include "UObject/Property.h"

/** A structure. */
class COREUOBJECT_API FStructProperty : public FProperty
{
	DECLARE_FIELD(FStructProperty, FProperty, CASTCLASS_FStructProperty)

	UScriptStruct* Struct;

	FStructProperty(FFieldVariant InOwner, FName InName, UScriptStruct* InStruct);

	virtual int32 GetMinAlignment() const override { return Struct->GetMinAlignment(); }
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool SameType(const FProperty* Other) const override;
	virtual bool ContainsObjectReference() const override;
	virtual void AddReferencedObjects(void* Value, FReferenceCollector& Collector) const override;
	virtual void LinkInternal() override;

protected:
	virtual void CopyValuesInternal(void* Dest, const void* Src, int32 Count) const override;
	virtual void InitializeValueInternal(void* Dest) const override;
	virtual void DestroyValueInternal(void* Dest) const override;
	virtual uint32 GetValueTypeHashInternal(const void* Src) const override;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* Owner, int32 PortFlags, FOutputDevice* ErrorText) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const override;

private:
	/** Size and flags follow from the structure. */
	void TakeLayout();
};

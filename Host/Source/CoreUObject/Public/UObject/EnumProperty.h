#pragma once

#include "UObject/NumericProperty.h"

/** An enum class, stored as its underlying integer. */
class COREUOBJECT_API FEnumProperty : public FProperty
{
	DECLARE_FIELD(FEnumProperty, FProperty, CASTCLASS_FEnumProperty)

	FEnumProperty(FFieldVariant InOwner, FName InName, UEnum* InEnum);
	virtual ~FEnumProperty() override;

	UEnum* GetEnum() const { return Enum; }
	/** Reads and writes the integer. */
	FNumericProperty* GetUnderlyingProperty() const { return UnderlyingProp; }
	/** Takes the property over. */
	void AddCppProperty(FNumericProperty* InUnderlying);

	virtual int32 GetMinAlignment() const override { return UnderlyingProp->GetMinAlignment(); }
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool SameType(const FProperty* Other) const override;

protected:
	virtual void CopyValuesInternal(void* Dest, const void* Src, int32 Count) const override;
	virtual void InitializeValueInternal(void* Dest) const override;
	virtual void DestroyValueInternal(void* Dest) const override;
	virtual uint32 GetValueTypeHashInternal(const void* Src) const override;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* Owner, int32 PortFlags, FOutputDevice* ErrorText) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const override;

private:
	FNumericProperty* UnderlyingProp = nullptr;
	UEnum* Enum = nullptr;
};

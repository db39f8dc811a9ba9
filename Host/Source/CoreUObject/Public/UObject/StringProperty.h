#pragma once

#include "UObject/Property.h"

/** An FString. */
class COREUOBJECT_API FStrProperty : public TProperty<FString, FProperty>
{
	DECLARE_FIELD(FStrProperty, FProperty, CASTCLASS_FStrProperty)

	FStrProperty(FFieldVariant InOwner, FName InName);

	/** Strings compare with case here: "A" and "a" are different values. */
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;

protected:
	virtual uint32 GetValueTypeHashInternal(const void* Src) const override;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* Owner, int32 PortFlags, FOutputDevice* ErrorText) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const override;
};

/** An FName. */
class COREUOBJECT_API FNameProperty : public TProperty_WithEqualityAndHash<FName, FProperty>
{
	DECLARE_FIELD(FNameProperty, FProperty, CASTCLASS_FNameProperty)

	FNameProperty(FFieldVariant InOwner, FName InName) : TProperty_WithEqualityAndHash<FName, FProperty>(InOwner, InName, StaticClass()) {}

	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;

protected:
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* Owner, int32 PortFlags, FOutputDevice* ErrorText) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const override;
};

/** An FText. */
class COREUOBJECT_API FTextProperty : public TProperty<FText, FProperty>
{
	DECLARE_FIELD(FTextProperty, FProperty, CASTCLASS_FTextProperty)

	FTextProperty(FFieldVariant InOwner, FName InName) : TProperty<FText, FProperty>(InOwner, InName, StaticClass()) {}

	/** Texts are equal when namespace, key and source are, or, for texts without a key, when what they show is. */
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;

protected:
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* Owner, int32 PortFlags, FOutputDevice* ErrorText) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const override;
};

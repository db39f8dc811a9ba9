#pragma once

#include "UObject/Property.h"
#include "UObject/ScriptDelegates.h"

/** A dynamic single-cast delegate. */
class COREUOBJECT_API FDelegateProperty : public TProperty<FScriptDelegate, FProperty>
{
	DECLARE_FIELD(FDelegateProperty, FProperty, CASTCLASS_FDelegateProperty)

	/** Parameters and result of the functions that can be bound. */
	UFunction* SignatureFunction;

	FDelegateProperty(FFieldVariant InOwner, FName InName, UFunction* InSignature);

	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool SameType(const FProperty* Other) const override;

protected:
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* Owner, int32 PortFlags, FOutputDevice* ErrorText) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const override;
};

/** Base of the multicast delegate properties. */
class COREUOBJECT_API FMulticastDelegateProperty : public FProperty
{
	DECLARE_FIELD(FMulticastDelegateProperty, FProperty, CASTCLASS_FMulticastDelegateProperty)

	/** Parameters of the functions that can be bound. */
	UFunction* SignatureFunction;

	FMulticastDelegateProperty(FFieldVariant InOwner, FName InName, FFieldClass* InClass, UFunction* InSignature)
		: FProperty(InOwner, InName, InClass), SignatureFunction(InSignature)
	{
	}

	/** The delegate at the property's address. */
	virtual const FMulticastScriptDelegate* GetMulticastDelegate(const void* PropertyValue) const = 0;
	virtual void SetMulticastDelegate(void* PropertyValue, FMulticastScriptDelegate ScriptDelegate) const = 0;
	/** Adds, removes and clears bindings; PropertyValue is the delegate's address, found in Parent when it is null. */
	virtual void AddDelegate(FScriptDelegate ScriptDelegate, UObject* Parent = nullptr, void* PropertyValue = nullptr) const = 0;
	virtual void RemoveDelegate(const FScriptDelegate& ScriptDelegate, UObject* Parent = nullptr, void* PropertyValue = nullptr) const = 0;
	virtual void ClearDelegate(UObject* Parent = nullptr, void* PropertyValue = nullptr) const = 0;

	virtual bool SameType(const FProperty* Other) const override;
};

/** A dynamic multicast delegate. */
class COREUOBJECT_API FMulticastInlineDelegateProperty : public TProperty<FMulticastScriptDelegate, FMulticastDelegateProperty>
{
	DECLARE_FIELD(FMulticastInlineDelegateProperty, FMulticastDelegateProperty, CASTCLASS_FMulticastInlineDelegateProperty)

	FMulticastInlineDelegateProperty(FFieldVariant InOwner, FName InName, UFunction* InSignature);

	virtual const FMulticastScriptDelegate* GetMulticastDelegate(const void* PropertyValue) const override;
	virtual void SetMulticastDelegate(void* PropertyValue, FMulticastScriptDelegate ScriptDelegate) const override;
	virtual void AddDelegate(FScriptDelegate ScriptDelegate, UObject* Parent = nullptr, void* PropertyValue = nullptr) const override;
	virtual void RemoveDelegate(const FScriptDelegate& ScriptDelegate, UObject* Parent = nullptr, void* PropertyValue = nullptr) const override;
	virtual void ClearDelegate(UObject* Parent = nullptr, void* PropertyValue = nullptr) const override;

	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;

protected:
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* Owner, int32 PortFlags, FOutputDevice* ErrorText) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const override;

private:
	FMulticastScriptDelegate* Resolve(UObject* Parent, void* PropertyValue) const;
};

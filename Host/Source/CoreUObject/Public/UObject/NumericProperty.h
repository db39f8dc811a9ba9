#pragma once

#include "UObject/Property.h"

/** Base of the properties that hold numbers. */
class COREUOBJECT_API FNumericProperty : public FProperty
{
	DECLARE_FIELD(FNumericProperty, FProperty, CASTCLASS_FNumericProperty)

	using FProperty::FProperty;

	virtual bool IsInteger() const = 0;
	bool IsFloatingPoint() const { return !IsInteger(); }
	/** The enumeration of a byte that holds one. */
	virtual UEnum* GetIntPropertyEnum() const { return nullptr; }
	bool IsEnum() const { return GetIntPropertyEnum() != nullptr; }

	/** The value as another type, converted as C++ does; integers saturate when set from one out of range. */
	virtual void SetIntPropertyValue(void* Data, int64 Value) const = 0;
	virtual void SetFloatingPointPropertyValue(void* Data, double Value) const = 0;
	virtual int64 GetSignedIntPropertyValue(const void* Data) const = 0;
	virtual uint64 GetUnsignedIntPropertyValue(const void* Data) const = 0;
	virtual double GetFloatingPointPropertyValue(const void* Data) const = 0;
	/** The value as text; the enumerator's name where there is an enumeration. */
	FString GetNumericPropertyValueToString(const void* Data) const;
	/** Smallest and largest value of the type. */
	virtual double GetMinValue() const = 0;
	virtual double GetMaxValue() const = 0;
};

/** Operations of one number type. */
template<typename InTCppType>
class TProperty_Numeric : public TProperty_WithEqualityAndHash<InTCppType, FNumericProperty>
{
	using Base = TProperty_WithEqualityAndHash<InTCppType, FNumericProperty>;

public:
	TProperty_Numeric(FFieldVariant InOwner, FName InName, FFieldClass* InClass) : Base(InOwner, InName, InClass)
	{
		this->PropertyFlags |= CPF_ZeroConstructor;
	}

	virtual bool IsInteger() const override { return std::is_integral_v<InTCppType>; }
	virtual void SetIntPropertyValue(void* Data, int64 Value) const override;
	virtual void SetFloatingPointPropertyValue(void* Data, double Value) const override;
	virtual int64 GetSignedIntPropertyValue(const void* Data) const override;
	virtual uint64 GetUnsignedIntPropertyValue(const void* Data) const override;
	virtual double GetFloatingPointPropertyValue(const void* Data) const override;
	virtual double GetMinValue() const override;
	virtual double GetMaxValue() const override;

protected:
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* Owner, int32 PortFlags, FOutputDevice* ErrorText) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const override;
};

/** Declares the property of one number type. */
#define HOST_NUMERIC_PROPERTY(TClass, TValue, CastFlag) \
	class COREUOBJECT_API TClass : public TProperty_Numeric<TValue> \
	{ \
		DECLARE_FIELD(TClass, FNumericProperty, CastFlag) \
		TClass(FFieldVariant InOwner, FName InName) : TProperty_Numeric<TValue>(InOwner, InName, StaticClass()) {} \
		virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override; \
	}

HOST_NUMERIC_PROPERTY(FInt8Property, int8, CASTCLASS_FInt8Property);
HOST_NUMERIC_PROPERTY(FInt16Property, int16, CASTCLASS_FInt16Property);
HOST_NUMERIC_PROPERTY(FIntProperty, int32, CASTCLASS_FIntProperty);
HOST_NUMERIC_PROPERTY(FInt64Property, int64, CASTCLASS_FInt64Property);
HOST_NUMERIC_PROPERTY(FUInt16Property, uint16, CASTCLASS_FUInt16Property);
HOST_NUMERIC_PROPERTY(FUInt32Property, uint32, CASTCLASS_FUInt32Property);
HOST_NUMERIC_PROPERTY(FUInt64Property, uint64, CASTCLASS_FUInt64Property);
HOST_NUMERIC_PROPERTY(FFloatProperty, float, CASTCLASS_FFloatProperty);
HOST_NUMERIC_PROPERTY(FDoubleProperty, double, CASTCLASS_FDoubleProperty);
#undef HOST_NUMERIC_PROPERTY

/** A uint8, or a plain enumeration in TEnumAsByte. */
class COREUOBJECT_API FByteProperty : public TProperty_Numeric<uint8>
{
	DECLARE_FIELD(FByteProperty, FNumericProperty, CASTCLASS_FByteProperty)

	/** Null for a number. */
	UEnum* Enum = nullptr;

	FByteProperty(FFieldVariant InOwner, FName InName, UEnum* InEnum = nullptr)
		: TProperty_Numeric<uint8>(InOwner, InName, StaticClass()), Enum(InEnum)
	{
	}

	virtual UEnum* GetIntPropertyEnum() const override { return Enum; }
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool SameType(const FProperty* Other) const override;

protected:
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* Owner, int32 PortFlags, FOutputDevice* ErrorText) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const override;
};

/** A bool, or one bit of an integer member. */
class COREUOBJECT_API FBoolProperty : public FProperty
{
	DECLARE_FIELD(FBoolProperty, FProperty, CASTCLASS_FBoolProperty)

	typedef bool TCppType;

	FBoolProperty(FFieldVariant InOwner, FName InName);

	/** Makes the property stand for the bits of Mask in the byte at its offset. */
	void SetBoolBit(uint8 Mask);
	bool IsNativeBool() const { return FieldMask == 0xff; }
	uint8 GetFieldMask() const { return FieldMask; }

	bool GetPropertyValue(const void* A) const;
	void SetPropertyValue(void* A, bool Value) const;
	bool GetPropertyValue_InContainer(const void* A, int32 ArrayIndex = 0) const { return GetPropertyValue(ContainerPtrToValuePtr<void>(A, ArrayIndex)); }
	void SetPropertyValue_InContainer(void* A, bool Value, int32 ArrayIndex = 0) const { SetPropertyValue(ContainerPtrToValuePtr<void>(A, ArrayIndex), Value); }

	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;

protected:
	virtual void CopyValuesInternal(void* Dest, const void* Src, int32 Count) const override;
	virtual void InitializeValueInternal(void* Dest) const override;
	virtual void DestroyValueInternal(void* Dest) const override;
	virtual uint32 GetValueTypeHashInternal(const void* Src) const override;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Value, UObject* Owner, int32 PortFlags, FOutputDevice* ErrorText) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* Value, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const override;

private:
	uint8 FieldMask = 0xff;
};

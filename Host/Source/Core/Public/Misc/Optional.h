#pragma once

#include "Misc/AssertionMacros.h"
#include "Misc/CoreMiscDefines.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

/** The type of NullOpt. */
struct FNullOpt
{
	explicit constexpr FNullOpt(int) {}
};

/** An optional without a value. */
inline constexpr FNullOpt NullOpt{ 0 };

/** A value that may be missing. */
template <typename OptionalType>
struct TOptional
{
	using ElementType = OptionalType;

	constexpr TOptional() {}
	constexpr TOptional(FNullOpt) {}
	TOptional(const OptionalType& InValue) { Emplace(InValue); }
	TOptional(OptionalType&& InValue) { Emplace(static_cast<OptionalType&&>(InValue)); }

	template <typename... ArgTypes>
	explicit TOptional(EInPlace, ArgTypes&&... Args)
	{
		Emplace(static_cast<ArgTypes&&>(Args)...);
	}

	TOptional(const TOptional& Other)
	{
		if (Other.bIsSet)
		{
			Emplace(*Other.Address());
		}
	}

	TOptional(TOptional&& Other)
	{
		if (Other.bIsSet)
		{
			Emplace(static_cast<OptionalType&&>(*Other.Address()));
		}
	}

	~TOptional() { Reset(); }

	TOptional& operator=(const TOptional& Other)
	{
		if (this != &Other)
		{
			Reset();
			if (Other.bIsSet)
			{
				Emplace(*Other.Address());
			}
		}
		return *this;
	}

	TOptional& operator=(TOptional&& Other)
	{
		if (this != &Other)
		{
			Reset();
			if (Other.bIsSet)
			{
				Emplace(static_cast<OptionalType&&>(*Other.Address()));
			}
		}
		return *this;
	}

	TOptional& operator=(const OptionalType& InValue)
	{
		if (Address() != &InValue)
		{
			Emplace(InValue);
		}
		return *this;
	}

	TOptional& operator=(OptionalType&& InValue)
	{
		if (Address() != &InValue)
		{
			Emplace(static_cast<OptionalType&&>(InValue));
		}
		return *this;
	}

	TOptional& operator=(FNullOpt)
	{
		Reset();
		return *this;
	}

	/** Makes the value in place. */
	template <typename... ArgTypes>
	OptionalType& Emplace(ArgTypes&&... Args)
	{
		Reset();
		OptionalType* Value = ::new (static_cast<void*>(Storage)) OptionalType(static_cast<ArgTypes&&>(Args)...);
		bIsSet = true;
		return *Value;
	}

	void Reset()
	{
		if (bIsSet)
		{
			bIsSet = false;
			Address()->~OptionalType();
		}
	}

	bool IsSet() const { return bIsSet; }
	explicit operator bool() const { return bIsSet; }

	/** The value, which must be there. */
	OptionalType& GetValue()
	{
		check(IsSet());
		return *Address();
	}

	const OptionalType& GetValue() const { return const_cast<TOptional*>(this)->GetValue(); }
	OptionalType& operator*() { return GetValue(); }
	const OptionalType& operator*() const { return GetValue(); }
	OptionalType* operator->() { return &GetValue(); }
	const OptionalType* operator->() const { return &GetValue(); }

	/** The value, or the given one. The result refers to the argument: do not keep it longer than that lives. */
	const OptionalType& Get(const OptionalType& DefaultValue) const { return bIsSet ? *Address() : DefaultValue; }
	OptionalType* GetPtrOrNull() { return bIsSet ? Address() : nullptr; }
	const OptionalType* GetPtrOrNull() const { return bIsSet ? Address() : nullptr; }

	friend bool operator==(const TOptional& A, const TOptional& B) { return A.bIsSet == B.bIsSet && (!A.bIsSet || *A.Address() == *B.Address()); }
	friend bool operator==(const TOptional& A, const OptionalType& B) { return A.bIsSet && *A.Address() == B; }
	friend uint32 GetTypeHash(const TOptional& Optional) { return Optional.bIsSet ? GetTypeHashHelper(*Optional.Address()) : 0; }

private:
	OptionalType* Address() { return reinterpret_cast<OptionalType*>(Storage); }
	const OptionalType* Address() const { return reinterpret_cast<const OptionalType*>(Storage); }

	alignas(OptionalType) uint8 Storage[sizeof(OptionalType)];
	bool bIsSet = false;
};

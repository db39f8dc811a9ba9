#pragma once

#include "UObject/ObjectPtr.h"
#include "UObject/WeakObjectPtr.h"

#include <type_traits>

/** FWeakObjectPtr that knows the type of its object. */
template<typename T = UObject>
struct TWeakObjectPtr
{
	using ElementType = T;

	TWeakObjectPtr() = default;
	TWeakObjectPtr(TYPE_OF_NULLPTR) {}
	TWeakObjectPtr(const TWeakObjectPtr&) = default;
	TWeakObjectPtr& operator=(const TWeakObjectPtr&) = default;

	template<typename U>
		requires(std::is_convertible_v<U*, T*>)
	TWeakObjectPtr(U* Object) : Weak(reinterpret_cast<const UObject*>(Object))
	{
	}

	template<typename U>
		requires(std::is_convertible_v<U*, T*>)
	TWeakObjectPtr(const TObjectPtr<U>& Object) : TWeakObjectPtr(Object.Get())
	{
	}

	template<typename U>
		requires(!std::is_same_v<U, T> && std::is_convertible_v<U*, T*>)
	TWeakObjectPtr(const TWeakObjectPtr<U>& Other) : Weak(Other.ToWeakObjectPtr())
	{
	}

	template<typename U>
		requires(std::is_convertible_v<U*, T*>)
	TWeakObjectPtr& operator=(U* Object)
	{
		Weak = reinterpret_cast<const UObject*>(Object);
		return *this;
	}

	template<typename U>
		requires(std::is_convertible_v<U*, T*>)
	TWeakObjectPtr& operator=(const TObjectPtr<U>& Object)
	{
		return *this = Object.Get();
	}

	void Reset() { Weak.Reset(); }
	T* Get(bool bEvenIfGarbage = false) const { return reinterpret_cast<T*>(Weak.Get(bEvenIfGarbage)); }
	T* GetEvenIfUnreachable() const { return reinterpret_cast<T*>(Weak.GetEvenIfUnreachable()); }
	bool IsValid(bool bEvenIfGarbage = false) const { return Weak.IsValid(bEvenIfGarbage); }
	bool IsStale(bool bIncludingGarbage = true) const { return Weak.IsStale(bIncludingGarbage); }
	bool IsExplicitlyNull() const { return Weak.IsExplicitlyNull(); }
	bool HasSameIndexAndSerialNumber(const TWeakObjectPtr& Other) const { return Weak.HasSameIndexAndSerialNumber(Other.Weak); }

	T* operator->() const { return Get(); }
	T& operator*() const { return *Get(); }
	explicit operator bool() const { return IsValid(); }
	bool operator!() const { return !IsValid(); }

	/** The same reference without the type. */
	const FWeakObjectPtr& ToWeakObjectPtr() const { return Weak; }
	operator FWeakObjectPtr() const { return Weak; }

	friend uint32 GetTypeHash(const TWeakObjectPtr& Pointer) { return GetTypeHash(Pointer.Weak); }

private:
	FWeakObjectPtr Weak;
};

template<typename T, typename U>
bool operator==(const TWeakObjectPtr<T>& A, const TWeakObjectPtr<U>& B)
{
	return A.ToWeakObjectPtr() == B.ToWeakObjectPtr();
}

template<typename T, typename U>
bool operator==(const TWeakObjectPtr<T>& A, U* B)
{
	return static_cast<const void*>(A.Get()) == static_cast<const void*>(B);
}

template<typename T, typename U>
bool operator==(const TWeakObjectPtr<T>& A, const TObjectPtr<U>& B)
{
	return A == B.Get();
}

template<typename T>
bool operator==(const TWeakObjectPtr<T>& A, TYPE_OF_NULLPTR)
{
	return !A.IsValid();
}

template<typename T>
TWeakObjectPtr<T> MakeWeakObjectPtr(T* Object)
{
	return TWeakObjectPtr<T>(Object);
}

template<typename T>
TWeakObjectPtr<T> MakeWeakObjectPtr(const TObjectPtr<T>& Object)
{
	return TWeakObjectPtr<T>(Object);
}

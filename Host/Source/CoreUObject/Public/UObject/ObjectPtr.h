#pragma once

#include "CoreMinimal.h"

#include <type_traits>

class UObject;

/**
 * Pointer to an object for reflected members and the elements of reflected containers. It keeps its object alive when the
 * member is reflected, exactly as a raw pointer does.
 */
template<typename T>
struct TObjectPtr
{
public:
	using ElementType = T;

	TObjectPtr() = default;
	TObjectPtr(TYPE_OF_NULLPTR) {}
	TObjectPtr(const TObjectPtr&) = default;
	TObjectPtr& operator=(const TObjectPtr&) = default;

	template<typename U>
		requires(std::is_convertible_v<U*, T*>)
	TObjectPtr(U* Object) : ObjectPtr(ToObject(Object))
	{
	}

	template<typename U>
		requires(!std::is_same_v<U, T> && std::is_convertible_v<U*, T*>)
	TObjectPtr(const TObjectPtr<U>& Other) : TObjectPtr(Other.Get())
	{
	}

	TObjectPtr& operator=(TYPE_OF_NULLPTR)
	{
		ObjectPtr = nullptr;
		return *this;
	}

	template<typename U>
		requires(std::is_convertible_v<U*, T*>)
	TObjectPtr& operator=(U* Object)
	{
		ObjectPtr = ToObject(Object);
		return *this;
	}

	template<typename U>
		requires(!std::is_same_v<U, T> && std::is_convertible_v<U*, T*>)
	TObjectPtr& operator=(const TObjectPtr<U>& Other)
	{
		return *this = Other.Get();
	}

	T* Get() const { return reinterpret_cast<T*>(ObjectPtr); }
	T* operator->() const { return Get(); }
	T& operator*() const { return *Get(); }
	operator T*() const { return Get(); }
	explicit operator bool() const { return ObjectPtr != nullptr; }
	bool operator!() const { return ObjectPtr == nullptr; }

	friend uint32 GetTypeHash(const TObjectPtr& Pointer) { return PointerHash(Pointer.ObjectPtr); }

private:
	// Every object's UObject part stands at its start, so a forward declared T will do.
	static UObject* ToObject(const T* Object) { return reinterpret_cast<UObject*>(const_cast<std::remove_const_t<T>*>(Object)); }

	UObject* ObjectPtr = nullptr;
};

template<typename T, typename U>
bool operator==(const TObjectPtr<T>& A, const TObjectPtr<U>& B)
{
	return static_cast<const void*>(A.Get()) == static_cast<const void*>(B.Get());
}

template<typename T, typename U>
bool operator==(const TObjectPtr<T>& A, U* B)
{
	return A.Get() == B;
}

template<typename T>
bool operator==(const TObjectPtr<T>& A, TYPE_OF_NULLPTR)
{
	return !A;
}

/** The raw pointer behind any object pointer; used where a template takes both kinds. */
template<typename T>
T* ToRawPtr(const TObjectPtr<T>& Pointer)
{
	return Pointer.Get();
}

template<typename T>
T* ToRawPtr(T* Pointer)
{
	return Pointer;
}

/** A container of object pointers seen as a container of raw ones; both have the same layout. */
template<typename T, typename TAllocator>
const TArray<T*, TAllocator>& ToRawPtrArray(const TArray<TObjectPtr<T>, TAllocator>& Array)
{
	return reinterpret_cast<const TArray<T*, TAllocator>&>(Array);
}

template<typename T, typename TAllocator>
TArray<T*, TAllocator>& ToRawPtrTArrayUnsafe(TArray<TObjectPtr<T>, TAllocator>& Array)
{
	return reinterpret_cast<TArray<T*, TAllocator>&>(Array);
}

template<typename T, typename TAllocator>
const TArray<T*, TAllocator>& ObjectPtrDecay(const TArray<TObjectPtr<T>, TAllocator>& Array)
{
	return reinterpret_cast<const TArray<T*, TAllocator>&>(Array);
}

template<typename T>
T* ObjectPtrDecay(const TObjectPtr<T>& Pointer)
{
	return Pointer.Get();
}

template<typename T>
TObjectPtr<T> ObjectPtrWrap(T* Object)
{
	return TObjectPtr<T>(Object);
}

/** A container of raw pointers seen as a container of object pointers. */
template<typename T, typename TAllocator>
TArray<TObjectPtr<T>, TAllocator>& ObjectPtrWrap(TArray<T*, TAllocator>& Array)
{
	return reinterpret_cast<TArray<TObjectPtr<T>, TAllocator>&>(Array);
}

static_assert(sizeof(TObjectPtr<UObject>) == sizeof(UObject*), "Reflection treats both pointers alike");

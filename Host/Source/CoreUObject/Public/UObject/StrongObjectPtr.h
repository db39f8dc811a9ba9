#pragma once

#include "UObject/ObjectPtr.h"

#include <type_traits>

namespace Host
{
	/** Keeps an object alive until as many releases as there were additions. */
	COREUOBJECT_API void AddStrongReference(UObject* Object);
	COREUOBJECT_API void ReleaseStrongReference(UObject* Object);
}

/** Keeps its object alive, from anywhere: for holders that are neither reflected nor FGCObjects. */
template<typename T>
class TStrongObjectPtr
{
public:
	using ElementType = T;

	TStrongObjectPtr() = default;
	TStrongObjectPtr(TYPE_OF_NULLPTR) {}
	explicit TStrongObjectPtr(T* InObject) { Reset(InObject); }
	TStrongObjectPtr(const TStrongObjectPtr& Other) { Reset(Other.Get()); }
	TStrongObjectPtr(TStrongObjectPtr&& Other) : Object(Other.Object) { Other.Object = nullptr; }

	template<typename U>
		requires(std::is_convertible_v<U*, T*>)
	TStrongObjectPtr(const TStrongObjectPtr<U>& Other)
	{
		Reset(Other.Get());
	}

	~TStrongObjectPtr() { Reset(); }

	TStrongObjectPtr& operator=(const TStrongObjectPtr& Other)
	{
		Reset(Other.Get());
		return *this;
	}

	TStrongObjectPtr& operator=(TStrongObjectPtr&& Other)
	{
		if (this != &Other)
		{
			Reset();
			Object = Other.Object;
			Other.Object = nullptr;
		}
		return *this;
	}

	T* Get() const { return Object; }
	T* operator->() const
	{
		check(Object);
		return Object;
	}
	T& operator*() const
	{
		check(Object);
		return *Object;
	}
	bool IsValid() const { return Object != nullptr; }
	explicit operator bool() const { return IsValid(); }

	void Reset(T* NewObject = nullptr)
	{
		if (NewObject)
		{
			Host::AddStrongReference(const_cast<std::remove_const_t<T>*>(NewObject));
		}
		if (Object)
		{
			Host::ReleaseStrongReference(const_cast<std::remove_const_t<T>*>(Object));
		}
		Object = NewObject;
	}

	friend uint32 GetTypeHash(const TStrongObjectPtr& Pointer) { return PointerHash(Pointer.Object); }
	friend bool operator==(const TStrongObjectPtr& A, const TStrongObjectPtr& B) { return A.Object == B.Object; }
	friend bool operator==(const TStrongObjectPtr& A, const T* B) { return A.Object == B; }
	friend bool operator==(const TStrongObjectPtr& A, TYPE_OF_NULLPTR) { return A.Object == nullptr; }

private:
	T* Object = nullptr;
};

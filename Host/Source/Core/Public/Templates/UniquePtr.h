#pragma once

#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

template <typename T>
struct TDefaultDelete
{
	TDefaultDelete() = default;
	template <typename OtherType>
		requires(std::is_convertible_v<OtherType*, T*>)
	TDefaultDelete(const TDefaultDelete<OtherType>&)
	{
	}

	void operator()(T* Object) const
	{
		static_assert(sizeof(T) > 0, "Only a complete type can be deleted");
		delete Object;
	}
};

template <typename T>
struct TDefaultDelete<T[]>
{
	void operator()(T* Objects) const
	{
		delete[] Objects;
	}
};

/** The only owner of an object; deletes it at its own end. */
template <typename T, typename Deleter = TDefaultDelete<T>>
class TUniquePtr
{
	template <typename, typename>
	friend class TUniquePtr;

public:
	using ElementType = std::remove_extent_t<T>;

	TUniquePtr(TYPE_OF_NULLPTR = nullptr) {}
	explicit TUniquePtr(ElementType* InPtr) : Ptr(InPtr) {}
	TUniquePtr(ElementType* InPtr, Deleter&& InDeleter) : Ptr(InPtr), DeleteObject(static_cast<Deleter&&>(InDeleter)) {}
	TUniquePtr(TUniquePtr&& Other) : Ptr(Other.Release()), DeleteObject(static_cast<Deleter&&>(Other.DeleteObject)) {}
	TUniquePtr(const TUniquePtr&) = delete;

	template <typename OtherType, typename OtherDeleter>
		requires(std::is_convertible_v<OtherType*, T*> && !std::is_array_v<T>)
	TUniquePtr(TUniquePtr<OtherType, OtherDeleter>&& Other)
		: Ptr(Other.Release())
		, DeleteObject(static_cast<OtherDeleter&&>(Other.DeleteObject))
	{
	}

	~TUniquePtr() { Reset(); }

	TUniquePtr& operator=(TUniquePtr&& Other)
	{
		if (this != &Other)
		{
			Reset(Other.Release());
			DeleteObject = static_cast<Deleter&&>(Other.DeleteObject);
		}
		return *this;
	}

	template <typename OtherType, typename OtherDeleter>
		requires(std::is_convertible_v<OtherType*, T*> && !std::is_array_v<T>)
	TUniquePtr& operator=(TUniquePtr<OtherType, OtherDeleter>&& Other)
	{
		return *this = TUniquePtr(static_cast<TUniquePtr<OtherType, OtherDeleter>&&>(Other));
	}

	TUniquePtr& operator=(const TUniquePtr&) = delete;

	bool IsValid() const { return Ptr != nullptr; }
	explicit operator bool() const { return Ptr != nullptr; }
	ElementType* Get() const { return Ptr; }
	ElementType* operator->() const { return Ptr; }
	ElementType& operator*() const { return *Ptr; }
	ElementType& operator[](SIZE_T Index) const requires(std::is_array_v<T>) { return Ptr[Index]; }
	Deleter& GetDeleter() { return DeleteObject; }

	/** Gives the object up without deleting it. */
	ElementType* Release()
	{
		ElementType* Released = Ptr;
		Ptr = nullptr;
		return Released;
	}

	/** Deletes the object and takes another. */
	void Reset(ElementType* InPtr = nullptr)
	{
		ElementType* Old = Ptr;
		Ptr = InPtr;
		if (Old != nullptr)
		{
			DeleteObject(Old);
		}
	}

	template <typename OtherType, typename OtherDeleter>
	friend bool operator==(const TUniquePtr& A, const TUniquePtr<OtherType, OtherDeleter>& B) { return A.Get() == B.Get(); }
	friend bool operator==(const TUniquePtr& A, TYPE_OF_NULLPTR) { return A.Ptr == nullptr; }
	friend uint32 GetTypeHash(const TUniquePtr& Ptr) { return PointerHash(Ptr.Ptr); }

private:
	ElementType* Ptr = nullptr;
	[[no_unique_address]] Deleter DeleteObject;
};

template <typename T, typename... ArgTypes>
	requires(!std::is_array_v<T>)
[[nodiscard]] TUniquePtr<T> MakeUnique(ArgTypes&&... Args)
{
	return TUniquePtr<T>(new T(static_cast<ArgTypes&&>(Args)...));
}

template <typename T>
	requires(std::is_unbounded_array_v<T>)
[[nodiscard]] TUniquePtr<T> MakeUnique(SIZE_T Size)
{
	return TUniquePtr<T>(new std::remove_extent_t<T>[Size]());
}

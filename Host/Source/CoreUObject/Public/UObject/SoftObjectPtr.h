#pragma once

#include "Templates/Casts.h"
#include "Templates/SubclassOf.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/WeakObjectPtr.h"

/** A path with the object that it led to last. Does not keep the object alive. */
struct COREUOBJECT_API FSoftObjectPtr
{
	FSoftObjectPtr() = default;
	FSoftObjectPtr(TYPE_OF_NULLPTR) {}
	explicit FSoftObjectPtr(const FSoftObjectPath& InPath) : Path(InPath) {}
	explicit FSoftObjectPtr(const UObject* Object) : Cached(Object), Path(Object) {}

	/** The object if it is loaded; null otherwise. */
	UObject* Get() const;
	/** The object, loaded when needed; null when that fails. */
	UObject* LoadSynchronous() const;

	const FSoftObjectPath& ToSoftObjectPath() const { return Path; }
	const FSoftObjectPath& GetUniqueID() const { return Path; }
	FString ToString() const { return Path.ToString(); }

	/** True when the path is empty. */
	bool IsNull() const { return Path.IsNull(); }
	/** True when the object is loaded. */
	bool IsValid() const { return Get() != nullptr; }
	/** True when there is a path, but no loaded object. */
	bool IsPending() const { return !IsNull() && !Get(); }
	/** True when the object that it led to is gone. */
	bool IsStale() const { return Cached.IsStale(); }

	void Reset() { *this = FSoftObjectPtr(); }
	/** Forgets the object, keeps the path. */
	void ResetWeakPtr() { Cached.Reset(); }

	FSoftObjectPtr& operator=(const FSoftObjectPath& InPath)
	{
		Path = InPath;
		Cached.Reset();
		return *this;
	}
	FSoftObjectPtr& operator=(const UObject* Object)
	{
		Path = FSoftObjectPath(Object);
		Cached = Object;
		return *this;
	}
	FSoftObjectPtr& operator=(TYPE_OF_NULLPTR)
	{
		Reset();
		return *this;
	}

	bool operator==(const FSoftObjectPtr& Other) const { return Path == Other.Path; }
	friend uint32 GetTypeHash(const FSoftObjectPtr& Pointer) { return GetTypeHash(Pointer.Path); }

private:
	mutable FWeakObjectPtr Cached;
	FSoftObjectPath Path;
};

/** A path to an object of type T. Reads as null while the object is not loaded, or when it is no T. */
template<typename T = UObject>
struct TSoftObjectPtr
{
	using ElementType = T;

	TSoftObjectPtr() = default;
	TSoftObjectPtr(TYPE_OF_NULLPTR) {}
	explicit TSoftObjectPtr(const FSoftObjectPath& Path) : Pointer(Path) {}
	explicit TSoftObjectPtr(const FSoftObjectPtr& InPointer) : Pointer(InPointer) {}

	template<typename U>
		requires(std::is_convertible_v<U*, T*>)
	TSoftObjectPtr(U* Object) : Pointer(reinterpret_cast<const UObject*>(Object))
	{
	}

	template<typename U>
		requires(std::is_convertible_v<U*, T*>)
	TSoftObjectPtr(const TObjectPtr<U>& Object) : TSoftObjectPtr(Object.Get())
	{
	}

	template<typename U>
		requires(std::is_convertible_v<U*, T*>)
	TSoftObjectPtr(const TSoftObjectPtr<U>& Other) : Pointer(Other.ToSoftObjectPtr())
	{
	}

	TSoftObjectPtr& operator=(const FSoftObjectPath& Path)
	{
		Pointer = Path;
		return *this;
	}

	template<typename U>
		requires(std::is_convertible_v<U*, T*>)
	TSoftObjectPtr& operator=(U* Object)
	{
		Pointer = reinterpret_cast<const UObject*>(Object);
		return *this;
	}

	template<typename U>
		requires(std::is_convertible_v<U*, T*>)
	TSoftObjectPtr& operator=(const TObjectPtr<U>& Object)
	{
		return *this = Object.Get();
	}

	TSoftObjectPtr& operator=(TYPE_OF_NULLPTR)
	{
		Pointer.Reset();
		return *this;
	}

	/** The object if it is loaded and a T. */
	T* Get() const { return Cast<T>(Pointer.Get()); }
	/** The object, loaded when needed (blocks); null for an empty path, a failed load and an object that is no T. */
	T* LoadSynchronous() const { return Cast<T>(Pointer.LoadSynchronous()); }

	bool IsNull() const { return Pointer.IsNull(); }
	bool IsValid() const { return Get() != nullptr; }
	bool IsPending() const { return Pointer.IsPending(); }
	bool IsStale() const { return Pointer.IsStale(); }
	void Reset() { Pointer.Reset(); }

	const FSoftObjectPath& ToSoftObjectPath() const { return Pointer.ToSoftObjectPath(); }
	const FSoftObjectPath& GetUniqueID() const { return Pointer.GetUniqueID(); }
	const FSoftObjectPtr& ToSoftObjectPtr() const { return Pointer; }
	FString ToString() const { return Pointer.ToString(); }
	FString GetLongPackageName() const { return ToSoftObjectPath().GetLongPackageName(); }
	FString GetAssetName() const { return ToSoftObjectPath().GetAssetName(); }

	T* operator->() const { return Get(); }
	T& operator*() const { return *Get(); }
	explicit operator bool() const { return IsValid(); }
	bool operator!() const { return !IsValid(); }

	template<typename U>
	bool operator==(const TSoftObjectPtr<U>& Other) const
	{
		return Pointer == Other.ToSoftObjectPtr();
	}
	bool operator==(TYPE_OF_NULLPTR) const { return !IsValid(); }

	friend uint32 GetTypeHash(const TSoftObjectPtr& Value) { return GetTypeHash(Value.Pointer); }

private:
	FSoftObjectPtr Pointer;
};

/** A path to a class derived from T. */
template<typename T = UObject>
class TSoftClassPtr
{
public:
	using ElementType = T;

	TSoftClassPtr() = default;
	TSoftClassPtr(TYPE_OF_NULLPTR) {}
	TSoftClassPtr(const UClass* Class) : Pointer(Class) {}
	TSoftClassPtr(const TSubclassOf<T>& Class) : Pointer(static_cast<const UObject*>(*Class)) {}
	explicit TSoftClassPtr(const FSoftObjectPath& Path) : Pointer(Path) {}

	template<typename U>
		requires(std::is_convertible_v<U*, T*>)
	TSoftClassPtr(const TSoftClassPtr<U>& Other) : Pointer(Other.ToSoftObjectPtr())
	{
	}

	TSoftClassPtr& operator=(const UClass* Class)
	{
		Pointer = static_cast<const UObject*>(Class);
		return *this;
	}
	TSoftClassPtr& operator=(const FSoftObjectPath& Path)
	{
		Pointer = Path;
		return *this;
	}
	TSoftClassPtr& operator=(TYPE_OF_NULLPTR)
	{
		Pointer.Reset();
		return *this;
	}

	/** The class if it is loaded and derives from T. */
	UClass* Get() const { return Accept(Pointer.Get()); }
	/** The class, loaded when needed (blocks). */
	UClass* LoadSynchronous() const { return Accept(Pointer.LoadSynchronous()); }

	bool IsNull() const { return Pointer.IsNull(); }
	bool IsValid() const { return Get() != nullptr; }
	bool IsPending() const { return Pointer.IsPending(); }
	bool IsStale() const { return Pointer.IsStale(); }
	void Reset() { Pointer.Reset(); }

	const FSoftObjectPath& ToSoftObjectPath() const { return Pointer.ToSoftObjectPath(); }
	const FSoftObjectPath& GetUniqueID() const { return Pointer.GetUniqueID(); }
	const FSoftObjectPtr& ToSoftObjectPtr() const { return Pointer; }
	FString ToString() const { return Pointer.ToString(); }
	FString GetLongPackageName() const { return ToSoftObjectPath().GetLongPackageName(); }
	FString GetAssetName() const { return ToSoftObjectPath().GetAssetName(); }

	UClass* operator->() const { return Get(); }
	UClass* operator*() const { return Get(); }
	explicit operator bool() const { return IsValid(); }
	bool operator!() const { return !IsValid(); }

	template<typename U>
	bool operator==(const TSoftClassPtr<U>& Other) const
	{
		return Pointer == Other.ToSoftObjectPtr();
	}

	friend uint32 GetTypeHash(const TSoftClassPtr& Value) { return GetTypeHash(Value.Pointer); }

private:
	static UClass* Accept(UObject* Object)
	{
		UClass* Class = Cast<UClass>(Object);
		return Class && Class->IsChildOf(T::StaticClass()) ? Class : nullptr;
	}

	FSoftObjectPtr Pointer;
};

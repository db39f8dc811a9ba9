#pragma once

#include "Misc/AssertionMacros.h"
#include "Templates/SharedPointerFwd.h"
#include "Templates/SharedPointerInternals.h"
#include "Templates/TypeHash.h"

/*
 * Pointers that keep an object alive as long as one of them is left: TSharedRef (never null) and TSharedPtr (may be
 * null); TWeakPtr watches without keeping alive. Not for UObjects, whose life the garbage collector rules.
 */

namespace SharedPointerInternals
{
	/** Lets an object that is a TSharedFromThis know its pointer. */
	template <ESPMode Mode, typename ObjectType, typename BaseType>
	void TellObject(const TSharedReferencer<Mode>& Referencer, ObjectType* Object, const TSharedFromThis<BaseType, Mode>* Base)
	{
		if (Base != nullptr)
		{
			Base->AcceptReference(Referencer, const_cast<std::remove_const_t<ObjectType>*>(Object));
		}
	}

	template <ESPMode Mode, typename ObjectType>
	void TellObject(const TSharedReferencer<Mode>&, ObjectType*, const volatile void*)
	{
	}

	struct FAlreadyCounted
	{
	};
}

/** Points to an object and keeps it alive; never null. */
template <class ObjectType, ESPMode Mode>
class TSharedRef
{
	template <class, ESPMode>
	friend class TSharedRef;
	template <class, ESPMode>
	friend class TSharedPtr;
	template <class, ESPMode>
	friend class TWeakPtr;

public:
	using ElementType = ObjectType;
	using FReferencer = SharedPointerInternals::TSharedReferencer<Mode>;

	/** Takes ownership of an object made with new; null is a failed check. */
	template <typename OtherType>
		requires(std::is_convertible_v<OtherType*, ObjectType*>)
	explicit TSharedRef(OtherType* InObject)
		: TSharedRef(InObject, SharedPointerInternals::TDefaultDeleter<OtherType>())
	{
	}

	template <typename OtherType, typename DeleterType>
		requires(std::is_convertible_v<OtherType*, ObjectType*>)
	TSharedRef(OtherType* InObject, DeleterType&& Deleter)
		: Object(InObject)
		, Referencer(new SharedPointerInternals::TOutsideController<OtherType, std::decay_t<DeleterType>, Mode>(InObject, std::decay_t<DeleterType>(static_cast<DeleterType&&>(Deleter))))
	{
		check(InObject != nullptr);
		SharedPointerInternals::TellObject<Mode>(Referencer, InObject, InObject);
	}

	/** From MakeShareable. */
	template <typename OtherType, typename DeleterType>
		requires(std::is_convertible_v<OtherType*, ObjectType*>)
	TSharedRef(SharedPointerInternals::TRawPointerProxy<OtherType, DeleterType>&& Proxy)
		: TSharedRef(Proxy.Object, static_cast<DeleterType&&>(Proxy.Deleter))
	{
	}

	TSharedRef(const TSharedRef& Other) = default;

	/** Leaves the other reference valid: a reference is never null. */
	TSharedRef(TSharedRef&& Other)
		: Object(Other.Object)
		, Referencer(Other.Referencer)
	{
	}

	template <typename OtherType>
		requires(std::is_convertible_v<OtherType*, ObjectType*>)
	TSharedRef(const TSharedRef<OtherType, Mode>& Other)
		: Object(Other.Object)
		, Referencer(Other.Referencer)
	{
	}

	/** Shares the life of another reference, but points to an object of its own choice (a part of it, or itself cast). */
	template <typename OtherType>
	TSharedRef(const TSharedRef<OtherType, Mode>& Other, ObjectType* InObject)
		: Object(InObject)
		, Referencer(Other.Referencer)
	{
		check(InObject != nullptr);
	}

	TSharedRef& operator=(const TSharedRef& Other)
	{
		Referencer = Other.Referencer;
		Object = Other.Object;
		return *this;
	}

	TSharedRef& operator=(TSharedRef&& Other)
	{
		Swap(Object, Other.Object);
		Swap(Referencer, Other.Referencer);
		return *this;
	}

	std::add_lvalue_reference_t<ObjectType> Get() const { return *Object; }
	std::add_lvalue_reference_t<ObjectType> operator*() const { return *Object; }
	ObjectType* operator->() const { return Object; }
	TWeakPtr<ObjectType, Mode> ToWeakPtr() const { return TWeakPtr<ObjectType, Mode>(*this); }
	TSharedPtr<ObjectType, Mode> ToSharedPtr() const { return TSharedPtr<ObjectType, Mode>(*this); }
	int32 GetSharedReferenceCount() const { return Referencer.Get()->GetSharedCount(); }
	bool IsUnique() const { return GetSharedReferenceCount() == 1; }

	template <typename OtherType>
	friend bool operator==(const TSharedRef& A, const TSharedRef<OtherType, Mode>& B) { return &A.Get() == &B.Get(); }
	friend uint32 GetTypeHash(const TSharedRef& Ref) { return PointerHash(Ref.Object); }

private:
	TSharedRef(SharedPointerInternals::FAlreadyCounted, ObjectType* InObject, FReferencer&& InReferencer)
		: Object(InObject)
		, Referencer(static_cast<FReferencer&&>(InReferencer))
	{
	}

	template <typename NewType, ESPMode NewMode, typename... ArgTypes>
	friend TSharedRef<NewType, NewMode> MakeShared(ArgTypes&&... Args);

	ObjectType* Object;
	FReferencer Referencer;
};

/** Points to an object and keeps it alive; may be null. */
template <class ObjectType, ESPMode Mode>
class TSharedPtr
{
	template <class, ESPMode>
	friend class TSharedPtr;
	template <class, ESPMode>
	friend class TWeakPtr;

public:
	using ElementType = ObjectType;
	using FReferencer = SharedPointerInternals::TSharedReferencer<Mode>;

	TSharedPtr(TYPE_OF_NULLPTR = nullptr) {}

	/** Takes ownership of an object made with new; null gives a null pointer. */
	template <typename OtherType>
		requires(std::is_convertible_v<OtherType*, ObjectType*>)
	explicit TSharedPtr(OtherType* InObject)
		: TSharedPtr(InObject, SharedPointerInternals::TDefaultDeleter<OtherType>())
	{
	}

	template <typename OtherType, typename DeleterType>
		requires(std::is_convertible_v<OtherType*, ObjectType*>)
	TSharedPtr(OtherType* InObject, DeleterType&& Deleter)
	{
		if (InObject != nullptr)
		{
			*this = TSharedRef<ObjectType, Mode>(InObject, static_cast<DeleterType&&>(Deleter));
		}
	}

	/** From MakeShareable. */
	template <typename OtherType, typename DeleterType>
		requires(std::is_convertible_v<OtherType*, ObjectType*>)
	TSharedPtr(SharedPointerInternals::TRawPointerProxy<OtherType, DeleterType>&& Proxy)
		: TSharedPtr(Proxy.Object, static_cast<DeleterType&&>(Proxy.Deleter))
	{
	}

	TSharedPtr(const TSharedPtr& Other) = default;

	TSharedPtr(TSharedPtr&& Other)
		: Object(Other.Object)
		, Referencer(static_cast<FReferencer&&>(Other.Referencer))
	{
		Other.Object = nullptr;
	}

	template <typename OtherType>
		requires(std::is_convertible_v<OtherType*, ObjectType*>)
	TSharedPtr(const TSharedPtr<OtherType, Mode>& Other)
		: Object(Other.Object)
		, Referencer(Other.Referencer)
	{
	}

	template <typename OtherType>
		requires(std::is_convertible_v<OtherType*, ObjectType*>)
	TSharedPtr(TSharedPtr<OtherType, Mode>&& Other)
		: Object(Other.Object)
		, Referencer(static_cast<FReferencer&&>(Other.Referencer))
	{
		Other.Object = nullptr;
	}

	template <typename OtherType>
		requires(std::is_convertible_v<OtherType*, ObjectType*>)
	TSharedPtr(const TSharedRef<OtherType, Mode>& Other)
		: Object(Other.Object)
		, Referencer(Other.Referencer)
	{
	}

	/** Shares the life of another pointer, but points to an object of its own choice. */
	template <typename OtherType>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& Other, ObjectType* InObject)
		: Object(InObject)
		, Referencer(Other.Referencer)
	{
	}

	TSharedPtr& operator=(TSharedPtr Other)
	{
		Swap(Object, Other.Object);
		Swap(Referencer, Other.Referencer);
		return *this;
	}

	ObjectType* Get() const { return Object; }
	bool IsValid() const { return Object != nullptr; }
	explicit operator bool() const { return Object != nullptr; }

	std::add_lvalue_reference_t<ObjectType> operator*() const
	{
		check(IsValid());
		return *Object;
	}

	ObjectType* operator->() const
	{
		check(IsValid());
		return Object;
	}

	/** The same as a reference; a failed check when this is null. */
	TSharedRef<ObjectType, Mode> ToSharedRef() const&
	{
		check(IsValid());
		return TSharedRef<ObjectType, Mode>(SharedPointerInternals::FAlreadyCounted(), Object, FReferencer(Referencer));
	}

	TSharedRef<ObjectType, Mode> ToSharedRef() &&
	{
		check(IsValid());
		ObjectType* Moved = Object;
		Object = nullptr;
		return TSharedRef<ObjectType, Mode>(SharedPointerInternals::FAlreadyCounted(), Moved, static_cast<FReferencer&&>(Referencer));
	}

	TWeakPtr<ObjectType, Mode> ToWeakPtr() const { return TWeakPtr<ObjectType, Mode>(*this); }
	void Reset() { *this = TSharedPtr(); }
	int32 GetSharedReferenceCount() const { return Referencer.Get() != nullptr ? Referencer.Get()->GetSharedCount() : 0; }
	bool IsUnique() const { return GetSharedReferenceCount() == 1; }

	template <typename OtherType>
	friend bool operator==(const TSharedPtr& A, const TSharedPtr<OtherType, Mode>& B) { return A.Get() == B.Get(); }
	template <typename OtherType>
	friend bool operator==(const TSharedPtr& A, const TSharedRef<OtherType, Mode>& B) { return A.Get() == &B.Get(); }
	friend bool operator==(const TSharedPtr& A, TYPE_OF_NULLPTR) { return A.Object == nullptr; }
	friend uint32 GetTypeHash(const TSharedPtr& Ptr) { return PointerHash(Ptr.Object); }

private:
	TSharedPtr(SharedPointerInternals::FAlreadyCounted, ObjectType* InObject, FReferencer&& InReferencer)
		: Object(InObject)
		, Referencer(static_cast<FReferencer&&>(InReferencer))
	{
	}

	ObjectType* Object = nullptr;
	FReferencer Referencer;
};

/** Watches an object without keeping it alive. */
template <class ObjectType, ESPMode Mode>
class TWeakPtr
{
	template <class, ESPMode>
	friend class TWeakPtr;
	template <class, ESPMode>
	friend class TSharedFromThis;

public:
	using ElementType = ObjectType;
	using FReferencer = SharedPointerInternals::TWeakReferencer<Mode>;

	TWeakPtr(TYPE_OF_NULLPTR = nullptr) {}

	template <typename OtherType>
		requires(std::is_convertible_v<OtherType*, ObjectType*>)
	TWeakPtr(const TSharedRef<OtherType, Mode>& Other)
		: Object(Other.Object)
		, Referencer(Other.Referencer.Get())
	{
	}

	template <typename OtherType>
		requires(std::is_convertible_v<OtherType*, ObjectType*>)
	TWeakPtr(const TSharedPtr<OtherType, Mode>& Other)
		: Object(Other.Object)
		, Referencer(Other.Referencer.Get())
	{
	}

	template <typename OtherType>
		requires(std::is_convertible_v<OtherType*, ObjectType*>)
	TWeakPtr(const TWeakPtr<OtherType, Mode>& Other)
		: Object(Other.Object)
		, Referencer(Other.Referencer)
	{
	}

	/** The object, kept alive by the result; null when it is gone. */
	TSharedPtr<ObjectType, Mode> Pin() const
	{
		SharedPointerInternals::TSharedReferencer<Mode> Locked = Referencer.Lock();
		ObjectType* Alive = Locked.Get() != nullptr ? Object : nullptr;
		return TSharedPtr<ObjectType, Mode>(SharedPointerInternals::FAlreadyCounted(), Alive, static_cast<SharedPointerInternals::TSharedReferencer<Mode>&&>(Locked));
	}

	bool IsValid() const { return Object != nullptr && Referencer.IsAlive(); }
	void Reset() { *this = TWeakPtr(); }
	/** Whether this watches that object, which may be gone. */
	bool HasSameObject(const void* InOther) const { return Pin().Get() == InOther; }

	template <typename OtherType>
	friend bool operator==(const TWeakPtr& A, const TWeakPtr<OtherType, Mode>& B) { return A.Pin().Get() == B.Pin().Get(); }
	template <typename OtherType>
	friend bool operator==(const TWeakPtr& A, const TSharedPtr<OtherType, Mode>& B) { return A.Pin().Get() == B.Get(); }
	template <typename OtherType>
	friend bool operator==(const TWeakPtr& A, const TSharedRef<OtherType, Mode>& B) { return A.Pin().Get() == &B.Get(); }
	friend bool operator==(const TWeakPtr& A, TYPE_OF_NULLPTR) { return !A.IsValid(); }
	friend uint32 GetTypeHash(const TWeakPtr& Ptr) { return PointerHash(Ptr.Object); }

private:
	TWeakPtr(ObjectType* InObject, SharedPointerInternals::TReferenceController<Mode>* Controller)
		: Object(InObject)
		, Referencer(Controller)
	{
	}

	ObjectType* Object = nullptr;
	FReferencer Referencer;
};

/** Base of classes whose objects hand out shared pointers to themselves, once the first one has been made from outside. */
template <class ObjectType, ESPMode Mode>
class TSharedFromThis
{
public:
	/** A failed check before the first shared pointer exists, as in a constructor, and after the last one is gone. */
	TSharedRef<ObjectType, Mode> AsShared()
	{
		return SharedBy(WeakThis).ToSharedRef();
	}

	TSharedRef<const ObjectType, Mode> AsShared() const
	{
		return TSharedRef<const ObjectType, Mode>(SharedBy(WeakThis).ToSharedRef());
	}

	TWeakPtr<ObjectType, Mode> AsWeak() { return WeakThis; }
	TWeakPtr<const ObjectType, Mode> AsWeak() const { return WeakThis; }
	/** Whether a shared pointer to this object exists. */
	bool DoesSharedInstanceExist() const { return WeakThis.IsValid(); }

	/** Called by the first shared pointer. */
	template <typename OtherType>
	void AcceptReference(const SharedPointerInternals::TSharedReferencer<Mode>& Referencer, OtherType* Object) const
	{
		if (!WeakThis.IsValid())
		{
			WeakThis = TWeakPtr<ObjectType, Mode>(static_cast<ObjectType*>(Object), Referencer.Get());
		}
	}

protected:
	TSharedFromThis() = default;
	/** A copy is another object, with pointers of its own. */
	TSharedFromThis(const TSharedFromThis&) {}
	TSharedFromThis& operator=(const TSharedFromThis&) { return *this; }
	~TSharedFromThis() = default;

	/** The object as a reference of its own type. */
	template <class OtherType>
	static TSharedRef<OtherType, Mode> SharedThis(OtherType* This)
	{
		return TSharedRef<OtherType, Mode>(This->AsShared(), This);
	}

	template <class OtherType>
	static TSharedRef<const OtherType, Mode> SharedThis(const OtherType* This)
	{
		return TSharedRef<const OtherType, Mode>(This->AsShared(), This);
	}

private:
	static TSharedPtr<ObjectType, Mode> SharedBy(const TWeakPtr<ObjectType, Mode>& Weak)
	{
		TSharedPtr<ObjectType, Mode> Shared = Weak.Pin();
		check(Shared.IsValid());
		return Shared;
	}

	mutable TWeakPtr<ObjectType, Mode> WeakThis;
};

/** Makes an object and a reference to it with one allocation. */
template <typename NewType, ESPMode Mode = ESPMode::ThreadSafe, typename... ArgTypes>
[[nodiscard]] TSharedRef<NewType, Mode> MakeShared(ArgTypes&&... Args)
{
	auto* Controller = new SharedPointerInternals::TInsideController<NewType, Mode>(static_cast<ArgTypes&&>(Args)...);
	NewType* Object = Controller->GetObject();
	SharedPointerInternals::TSharedReferencer<Mode> Referencer(Controller);
	SharedPointerInternals::TellObject<Mode>(Referencer, Object, Object);
	return TSharedRef<NewType, Mode>(SharedPointerInternals::FAlreadyCounted(), Object, static_cast<SharedPointerInternals::TSharedReferencer<Mode>&&>(Referencer));
}

/** Hands an object made with new to a shared pointer or reference. */
template <class ObjectType>
[[nodiscard]] SharedPointerInternals::TRawPointerProxy<ObjectType, SharedPointerInternals::TDefaultDeleter<ObjectType>> MakeShareable(ObjectType* Object)
{
	return { Object, {} };
}

template <class ObjectType, class DeleterType>
[[nodiscard]] SharedPointerInternals::TRawPointerProxy<ObjectType, std::decay_t<DeleterType>> MakeShareable(ObjectType* Object, DeleterType&& Deleter)
{
	return { Object, static_cast<DeleterType&&>(Deleter) };
}

template <class ToType, class FromType, ESPMode Mode>
[[nodiscard]] TSharedRef<ToType, Mode> StaticCastSharedRef(const TSharedRef<FromType, Mode>& Ref)
{
	return TSharedRef<ToType, Mode>(Ref, static_cast<ToType*>(&Ref.Get()));
}

template <class ToType, class FromType, ESPMode Mode>
[[nodiscard]] TSharedPtr<ToType, Mode> StaticCastSharedPtr(const TSharedPtr<FromType, Mode>& Ptr)
{
	return TSharedPtr<ToType, Mode>(Ptr, static_cast<ToType*>(Ptr.Get()));
}

template <class ToType, class FromType, ESPMode Mode>
[[nodiscard]] TWeakPtr<ToType, Mode> StaticCastWeakPtr(const TWeakPtr<FromType, Mode>& Ptr)
{
	return StaticCastSharedPtr<ToType>(Ptr.Pin());
}

template <class ToType, class FromType, ESPMode Mode>
[[nodiscard]] TSharedRef<ToType, Mode> ConstCastSharedRef(const TSharedRef<FromType, Mode>& Ref)
{
	return TSharedRef<ToType, Mode>(Ref, const_cast<ToType*>(&Ref.Get()));
}

template <class ToType, class FromType, ESPMode Mode>
[[nodiscard]] TSharedPtr<ToType, Mode> ConstCastSharedPtr(const TSharedPtr<FromType, Mode>& Ptr)
{
	return TSharedPtr<ToType, Mode>(Ptr, const_cast<ToType*>(Ptr.Get()));
}

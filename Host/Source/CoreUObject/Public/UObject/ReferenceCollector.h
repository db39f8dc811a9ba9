#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"
#include "UObject/WeakObjectPtr.h"

class UStruct;

/** Takes references to objects that reflection cannot see. A reference to an object declared dead is set to null. */
class COREUOBJECT_API FReferenceCollector
{
public:
	virtual ~FReferenceCollector() = default;

	template<typename T>
	void AddReferencedObject(T*& Object, const UObject* ReferencingObject = nullptr)
	{
		(void)ReferencingObject;
		static_assert(sizeof(T) > 0, "The type must be complete");
		HandleObjectReference(reinterpret_cast<UObject*&>(const_cast<std::remove_const_t<T>*&>(Object)));
	}

	template<typename T>
	void AddReferencedObject(TObjectPtr<T>& Object, const UObject* ReferencingObject = nullptr)
	{
		(void)ReferencingObject;
		HandleObjectReference(reinterpret_cast<UObject*&>(Object));
	}

	template<typename T>
	void AddReferencedObject(TWeakObjectPtr<T>&, const UObject* = nullptr) = delete;

	template<typename T, typename TAllocator>
	void AddReferencedObjects(TArray<T, TAllocator>& Objects, const UObject* ReferencingObject = nullptr)
	{
		for (T& Object : Objects)
		{
			AddReferencedObject(Object, ReferencingObject);
		}
	}

	/** Elements declared dead stay in a set, whose hashes must not change; it is the owner's to take them out. */
	template<typename T>
	void AddReferencedObjects(TSet<T>& Objects, const UObject* ReferencingObject = nullptr)
	{
		(void)ReferencingObject;
		for (const T& Object : Objects)
		{
			AddKey(Object);
		}
	}

	/** Keys declared dead stay in a map; see the set. */
	template<typename TKey, typename TValue>
	void AddReferencedObjects(TMap<TKey, TValue>& Map, const UObject* ReferencingObject = nullptr)
	{
		(void)ReferencingObject;
		for (auto& Pair : Map)
		{
			AddKey(Pair.Key);
			if constexpr (CObjectPointer<TValue>)
			{
				AddReferencedObject(Pair.Value);
			}
		}
	}

	/** The references in the reflected members of a structure or object. */
	void AddPropertyReferences(const UStruct* Struct, void* Instance, const UObject* ReferencingObject = nullptr);

protected:
	virtual void HandleObjectReference(UObject*& Object) = 0;

private:
	template<typename T>
	struct TIsObjectPointer : std::bool_constant<std::is_pointer_v<T> && std::is_base_of_v<UObjectBase, std::remove_pointer_t<T>>>
	{
	};

	template<typename T>
	struct TIsObjectPointer<TObjectPtr<T>> : std::true_type
	{
	};

	template<typename T>
	static constexpr bool CObjectPointer = TIsObjectPointer<T>::value;

	template<typename T>
	void AddKey(const T& Key)
	{
		if constexpr (CObjectPointer<T>)
		{
			UObject* Object = const_cast<UObject*>(static_cast<const UObject*>(ToRawPtr(Key)));
			HandleObjectReference(Object);
		}
	}
};

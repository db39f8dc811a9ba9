#pragma once

#include "Templates/Casts.h"
#include "UObject/Class.h"
#include "UObject/ObjectPtr.h"

/** A class that is T or derives from it. Holding any other class, it reads as null. */
template<typename T>
class TSubclassOf
{
public:
	using ElementType = T;

	TSubclassOf() = default;
	TSubclassOf(TYPE_OF_NULLPTR) {}
	TSubclassOf(UClass* From) : Class(From) {}
	TSubclassOf(const UClass* From) : Class(const_cast<UClass*>(From)) {}
	TSubclassOf(const TObjectPtr<UClass>& From) : Class(From.Get()) {}

	/** From an object that should be a class, such as the result of a load. */
	template<typename U>
		requires(std::is_same_v<U, UObject>)
	explicit TSubclassOf(U* From) : Class(Cast<UClass>(From))
	{
	}

	template<typename U>
		requires(std::is_convertible_v<U*, T*>)
	TSubclassOf(const TSubclassOf<U>& Other) : Class(*Other)
	{
	}

	TSubclassOf& operator=(UClass* From)
	{
		Class = From;
		return *this;
	}

	template<typename U>
		requires(std::is_convertible_v<U*, T*>)
	TSubclassOf& operator=(const TSubclassOf<U>& Other)
	{
		Class = *Other;
		return *this;
	}

	/** The class; null when it is not derived from T. */
	UClass* operator*() const { return Class && Class->IsChildOf(T::StaticClass()) ? Class : nullptr; }
	UClass* Get() const { return **this; }
	UClass* operator->() const { return **this; }
	operator UClass*() const { return **this; }

	/** Default object of the class as a T; null for a null class. */
	T* GetDefaultObject() const
	{
		UClass* Valid = **this;
		return Valid ? static_cast<T*>(Valid->GetDefaultObject()) : nullptr;
	}

	friend uint32 GetTypeHash(const TSubclassOf& Value) { return PointerHash(Value.Class); }
	friend bool operator==(const TSubclassOf& A, const TSubclassOf& B) { return *A == *B; }
	friend bool operator==(const TSubclassOf& A, const UClass* B) { return *A == B; }
	friend bool operator==(const TSubclassOf& A, TYPE_OF_NULLPTR) { return *A == nullptr; }

private:
	UClass* Class = nullptr;
};

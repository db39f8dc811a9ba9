#pragma once

#include "Templates/Casts.h"
#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"

/** An object and the address of its I half; the latter is null when a script implements the interface. */
class FScriptInterface
{
public:
	FScriptInterface() = default;
	explicit FScriptInterface(UObject* InObject, void* InInterface = nullptr) : ObjectPointer(InObject), InterfacePointer(InInterface) {}

	UObject* GetObject() const { return ObjectPointer; }
	UObject*& GetObjectRef() { return ObjectPointer; }
	void* GetInterface() const { return ObjectPointer ? InterfacePointer : nullptr; }
	void SetObject(UObject* InObject)
	{
		ObjectPointer = InObject;
		if (!InObject)
		{
			InterfacePointer = nullptr;
		}
	}
	void SetInterface(void* InInterface) { InterfacePointer = InInterface; }

	explicit operator bool() const { return GetInterface() != nullptr; }
	bool operator==(const FScriptInterface& Other) const
	{
		return GetInterface() == Other.GetInterface() && ObjectPointer == Other.ObjectPointer;
	}
	friend uint32 GetTypeHash(const FScriptInterface& Value) { return PointerHash(Value.GetInterface()); }

private:
	UObject* ObjectPointer = nullptr;
	void* InterfacePointer = nullptr;
};

/** An object that implements the interface T (its I half). Keeps the object alive when it is reflected. */
template<typename T>
class TScriptInterface : public FScriptInterface
{
public:
	using InterfaceType = T;

	TScriptInterface() = default;
	TScriptInterface(TYPE_OF_NULLPTR) {}

	/** From an implementer, native or script. An object that does not implement the interface natively has a null GetInterface(). */
	template<typename U>
		requires(std::is_convertible_v<U*, const UObjectBase*> || std::is_convertible_v<U*, const T*>)
	TScriptInterface(U* Source)
	{
		*this = Source;
	}

	template<typename U>
	TScriptInterface(const TObjectPtr<U>& Source)
	{
		*this = Source.Get();
	}

	TScriptInterface& operator=(TYPE_OF_NULLPTR)
	{
		SetObject(nullptr);
		return *this;
	}

	template<typename U>
		requires(std::is_convertible_v<U*, const UObjectBase*> || std::is_convertible_v<U*, const T*>)
	TScriptInterface& operator=(U* Source)
	{
		UObject* Object = Cast<UObject>(Source);
		SetObject(Object);
		SetInterface(Cast<T>(Object));
		return *this;
	}

	template<typename U>
	TScriptInterface& operator=(const TObjectPtr<U>& Source)
	{
		return *this = Source.Get();
	}

	T* GetInterface() const { return static_cast<T*>(FScriptInterface::GetInterface()); }
	void SetInterface(T* InInterface) { FScriptInterface::SetInterface(InInterface); }

	T* operator->() const { return GetInterface(); }
	T& operator*() const { return *GetInterface(); }
	explicit operator bool() const { return GetInterface() != nullptr; }
	bool operator==(const TScriptInterface& Other) const { return FScriptInterface::operator==(Other); }
	friend uint32 GetTypeHash(const TScriptInterface& Value) { return PointerHash(Value.GetInterface()); }
};

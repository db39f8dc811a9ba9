#pragma once

#include "Templates/SubclassOf.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

/** Lookup of assets in constructors; customarily held in a static, so that it runs once. */
struct COREUOBJECT_API ConstructorHelpers
{
	/** Finds, loading it when needed, the object of a path. */
	template<class T>
	struct FObjectFinder
	{
		/** Null when the object was not found, after an error in the log. */
		TObjectPtr<T> Object;

		explicit FObjectFinder(const TCHAR* ObjectToFind, uint32 InLoadFlags = LOAD_None)
		{
			CheckIfIsInConstructor(ObjectToFind);
			Object = static_cast<T*>(FindOrLoadObject(T::StaticClass(), ObjectToFind, InLoadFlags));
		}

		bool Succeeded() const { return Object != nullptr; }
	};

	/** As FObjectFinder, without an error when there is no such object. */
	template<class T>
	struct FObjectFinderOptional
	{
		explicit FObjectFinderOptional(const TCHAR* InObjectToFind, uint32 InLoadFlags = LOAD_None)
			: ObjectToFind(InObjectToFind), LoadFlags(InLoadFlags)
		{
		}

		/** Looks at the first call. */
		T* Get()
		{
			if (!bLooked)
			{
				bLooked = true;
				CheckIfIsInConstructor(ObjectToFind);
				Object = static_cast<T*>(FindOrLoadObject(T::StaticClass(), ObjectToFind, LoadFlags | LOAD_Quiet));
			}
			return Object.Get();
		}

		bool Succeeded() { return Get() != nullptr; }

	private:
		TObjectPtr<T> Object;
		const TCHAR* ObjectToFind;
		uint32 LoadFlags;
		bool bLooked = false;
	};

	/** Finds the class that a blueprint asset stands for; "_C" is appended to the path when it is missing. */
	template<class T>
	struct FClassFinder
	{
		/** Null when the class was not found or does not derive from T, after an error in the log. */
		TSubclassOf<T> Class;

		explicit FClassFinder(const TCHAR* ClassToFind)
		{
			CheckIfIsInConstructor(ClassToFind);
			Class = FindOrLoadClass(T::StaticClass(), ClassToFind);
		}

		bool Succeeded() const { return *Class != nullptr; }
	};

private:
	/** Ends the process outside of constructors. */
	static void CheckIfIsInConstructor(const TCHAR* ObjectToFind);
	static UObject* FindOrLoadObject(UClass* Class, const TCHAR* Path, uint32 LoadFlags);
	static UClass* FindOrLoadClass(UClass* BaseClass, const TCHAR* Path);
	static void FailedToFind(const TCHAR* ObjectToFind);
};

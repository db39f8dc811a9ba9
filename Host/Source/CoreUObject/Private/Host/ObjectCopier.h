#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "UObject/ObjectMacros.h"

class FProperty;
class UClass;
class UObject;

namespace Host
{
	/** Copies the values of the properties that both objects have, but for those with one of the skipped flags. */
	void CopyProperties(UObject* Dest, UObject* Source, EPropertyFlags Skipped);

	/** Copies the values of the configured properties. */
	void CopyConfigProperties(UObject* Dest, UObject* Source);

	/** Which objects inside the copied one are copied with it. */
	enum class EObjectsCopied
	{
		/** Those that their owner made itself or refers to by a property marked Instanced. */
		Owned,
		/** All that its properties reach. */
		Reached,
	};

	/**
	 * Copies an object with what is inside it. References that lead to something inside the source lead to its counterpart
	 * inside the copy afterwards; all others lead where they led.
	 */
	class FObjectCopier
	{
	public:
		FObjectCopier(UObject* InSourceRoot, UObject* InDestRoot, EObjectsCopied InWhich);

		/** Copies the values of one object to its counterpart, which exists already. */
		void Pair(UObject* Source, UObject* Dest, EPropertyFlags Skipped);

		/** Copies what the paired objects lead to and mends the references. */
		void Finish();

		/** The copies, owners before what they led to. */
		const TArray<UObject*>& GetCopies() const { return Copies; }

	private:
		struct FStrongVisitor;
		struct FWeakVisitor;

		/** The copy of an object inside the source; made now if it is to be copied. Null when it stays where it is. */
		UObject* FindOrMakeCounterpart(UObject* Source, bool bOwned);
		UObject* FindCounterpart(UObject* Source) const;
		UObject* MakeCounterpart(UObject* Source);

		UObject* SourceRoot;
		UObject* DestRoot;
		EObjectsCopied Which;
		EPropertyFlags SkippedInCopies = CPF_None;
		TMap<UObject*, UObject*> Counterparts;
		TArray<UObject*> Copies;
	};
}

#include "Host/ObjectCopier.h"

#include "Host/ReferenceVisitor.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace Host
{
	namespace
	{
		/** What a copy takes over from its source. */
		constexpr EObjectFlags CopiedFlags =
			RF_Public | RF_Standalone | RF_Transactional | RF_Transient | RF_DefaultSubObject;

		const UStruct* CommonBase(const UObject* A, const UObject* B)
		{
			const UStruct* Base = B->GetClass();
			while (!A->GetClass()->IsChildOf(Base))
			{
				Base = Base->GetSuperStruct();
			}
			return Base;
		}

		template<typename TCondition>
		void CopyPropertiesIf(UObject* Dest, UObject* Source, TCondition Condition)
		{
			for (const FProperty* Property = CommonBase(Dest, Source)->PropertyLink; Property; Property = Property->PropertyLinkNext)
			{
				if (Condition(*Property))
				{
					Property->CopyCompleteValue_InContainer(Dest, Source);
				}
			}
		}
	}

	void CopyProperties(UObject* Dest, UObject* Source, EPropertyFlags Skipped)
	{
		CopyPropertiesIf(Dest, Source, [Skipped](const FProperty& Property) { return !Property.HasAnyPropertyFlags(Skipped); });
	}

	void CopyConfigProperties(UObject* Dest, UObject* Source)
	{
		CopyPropertiesIf(Dest, Source, [](const FProperty& Property) { return Property.HasAnyPropertyFlags(CPF_Config); });
	}

	/** Leads strong references to the copies, making them as they are met. */
	struct FObjectCopier::FStrongVisitor : FReferenceVisitor
	{
		explicit FStrongVisitor(FObjectCopier& InCopier) : Copier(InCopier) {}

		virtual UObject* VisitStrong(UObject* Object, bool bOwned) override
		{
			UObject* Counterpart = Copier.FindOrMakeCounterpart(Object, bOwned);
			return Counterpart ? Counterpart : Object;
		}
		virtual UObject* VisitWeak(UObject* Object) override { return Object; }

		FObjectCopier& Copier;
	};

	/** Leads weak references to the copies, once it is known what was copied. */
	struct FObjectCopier::FWeakVisitor : FReferenceVisitor
	{
		explicit FWeakVisitor(FObjectCopier& InCopier) : Copier(InCopier) {}

		virtual UObject* VisitStrong(UObject* Object, bool) override { return Object; }
		virtual UObject* VisitWeak(UObject* Object) override
		{
			UObject* Counterpart = Copier.FindCounterpart(Object);
			return Counterpart ? Counterpart : Object;
		}

		FObjectCopier& Copier;
	};

	FObjectCopier::FObjectCopier(UObject* InSourceRoot, UObject* InDestRoot, EObjectsCopied InWhich)
		: SourceRoot(InSourceRoot), DestRoot(InDestRoot), Which(InWhich)
	{
		if (Which == EObjectsCopied::Reached)
		{
			SkippedInCopies = CPF_Transient | CPF_DuplicateTransient;
		}
	}

	void FObjectCopier::Pair(UObject* Source, UObject* Dest, EPropertyFlags Skipped)
	{
		Counterparts.Add(Source, Dest);
		Copies.Add(Dest);
		CopyProperties(Dest, Source, Skipped | SkippedInCopies);
	}

	void FObjectCopier::Finish()
	{
		FStrongVisitor Strong(*this);
		// Grows as references lead to more.
		for (int32 Index = 0; Index < Copies.Num(); ++Index)
		{
			UObject* Copy = Copies[Index];
			VisitReferences(Copy->GetClass(), Copy, Strong);
		}
		FWeakVisitor Weak(*this);
		for (UObject* Copy : Copies)
		{
			VisitReferences(Copy->GetClass(), Copy, Weak);
		}
	}

	UObject* FObjectCopier::FindCounterpart(UObject* Source) const
	{
		UObject* const* Found = Counterparts.Find(Source);
		return Found ? *Found : nullptr;
	}

	UObject* FObjectCopier::FindOrMakeCounterpart(UObject* Source, bool bOwned)
	{
		if (UObject* Found = FindCounterpart(Source))
		{
			return Found;
		}
		if (!Source->IsIn(SourceRoot))
		{
			return nullptr;
		}
		const bool bCopied = Which == EObjectsCopied::Reached || bOwned || Source->IsDefaultSubobject();
		return bCopied ? MakeCounterpart(Source) : nullptr;
	}

	UObject* FObjectCopier::MakeCounterpart(UObject* Source)
	{
		UObject* SourceOuter = Source->GetOuter();
		UObject* Outer = FindCounterpart(SourceOuter);
		if (!Outer)
		{
			Outer = SourceOuter == SourceRoot ? DestRoot : MakeCounterpart(SourceOuter);
		}
		// The constructor of the outer's copy may have made it.
		UObject* Dest = StaticFindObjectFast(nullptr, Outer, Source->GetFName());
		if (!Dest || Dest->GetClass() != Source->GetClass())
		{
			FStaticConstructObjectParameters Params(Source->GetClass());
			Params.Outer = Outer;
			Params.Name = Dest ? MakeUniqueObjectName(Outer, Source->GetClass(), Source->GetFName()) : Source->GetFName();
			Params.SetFlags = Source->GetMaskedFlags(CopiedFlags) | Outer->GetMaskedFlags(RF_ArchetypeObject);
			Dest = StaticConstructObject_Internal(Params);
		}
		Pair(Source, Dest, CPF_None);
		return Dest;
	}
}

UObject* StaticDuplicateObject(UObject const* SourceObject, UObject* DestOuter, FName DestName)
{
	check(SourceObject);
	checkf(!SourceObject->HasAnyFlags(RF_ClassDefaultObject), TEXT("%s is a class default object: make an object with it as the template instead"),
		*SourceObject->GetFullName());
	UObject* Source = const_cast<UObject*>(SourceObject);
	FName Name = DestName;
	if (Name.IsNone())
	{
		const bool bTaken = StaticFindObjectFast(nullptr, DestOuter, Source->GetFName()) != nullptr;
		Name = bTaken ? MakeUniqueObjectName(DestOuter, Source->GetClass()) : Source->GetFName();
	}
	FStaticConstructObjectParameters Params(Source->GetClass());
	Params.Outer = DestOuter;
	Params.Name = Name;
	Params.SetFlags = Source->GetMaskedFlags(RF_Public | RF_Standalone | RF_Transactional | RF_Transient | RF_ArchetypeObject);
	UObject* Dest = StaticConstructObject_Internal(Params);

	Host::FObjectCopier Copier(Source, Dest, Host::EObjectsCopied::Reached);
	Copier.Pair(Source, Dest, CPF_None);
	Copier.Finish();
	for (UObject* Copy : Copier.GetCopies())
	{
		Copy->PostDuplicate(false);
	}
	for (UObject* Copy : Copier.GetCopies())
	{
		Copy->PostLoad();
	}
	return Dest;
}

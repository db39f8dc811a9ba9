#pragma once

#include "UObject/Property.h"

/** What a field iterator visits. */
enum class EFieldIterationFlags : uint8
{
	None = 0,
	/** The base structures too, after the structure itself. */
	IncludeSuper = 1,
	Default = IncludeSuper,
};
ENUM_CLASS_FLAGS(EFieldIterationFlags)

/** Older name of the flags. */
namespace EFieldIteratorFlags
{
	enum SuperClassFlags
	{
		ExcludeSuper = 0,
		IncludeSuper = 1,
	};
}

namespace Host
{
	/** How an iterator finds the fields of a kind: functions are objects, properties are not. */
	template<typename T, bool bIsObject = std::is_base_of_v<UField, T>>
	struct TFieldChain
	{
		using FBase = FField;
		static FField* GetFirst(const UStruct* Struct) { return Struct->ChildProperties; }
		static bool Matches(const FField* Field) { return Field->IsA<T>(); }
	};

	template<typename T>
	struct TFieldChain<T, true>
	{
		using FBase = UField;
		static UField* GetFirst(const UStruct* Struct) { return Struct->Children; }
		static bool Matches(const UField* Field) { return Field->IsA(T::StaticClass()); }
	};
}

/** Visits the properties or functions of a structure in order of declaration, own before inherited. */
template<typename T>
class TFieldIterator
{
	using FChain = Host::TFieldChain<T>;

public:
	TFieldIterator(const UStruct* InStruct, EFieldIterationFlags InFlags = EFieldIterationFlags::Default)
		: Struct(InStruct), Field(InStruct ? FChain::GetFirst(InStruct) : nullptr),
		  bIncludeSuper(EnumHasAnyFlags(InFlags, EFieldIterationFlags::IncludeSuper))
	{
		Settle();
	}

	TFieldIterator(const UStruct* InStruct, EFieldIteratorFlags::SuperClassFlags InFlags)
		: TFieldIterator(InStruct, InFlags == EFieldIteratorFlags::IncludeSuper ? EFieldIterationFlags::IncludeSuper : EFieldIterationFlags::None)
	{
	}

	explicit operator bool() const { return Field != nullptr; }
	bool operator!=(const TFieldIterator& Other) const { return Field != Other.Field; }
	bool operator==(const TFieldIterator& Other) const { return Field == Other.Field; }

	TFieldIterator& operator++()
	{
		Field = Field->Next;
		Settle();
		return *this;
	}

	T* operator*() const { return static_cast<T*>(Field); }
	T* operator->() const { return static_cast<T*>(Field); }
	/** The structure whose field is visited. */
	const UStruct* GetStruct() const { return Struct; }

private:
	void Settle()
	{
		while (Struct)
		{
			while (Field && !FChain::Matches(Field))
			{
				Field = Field->Next;
			}
			if (Field || !bIncludeSuper)
			{
				return;
			}
			Struct = Struct->GetInheritanceSuper();
			Field = Struct ? FChain::GetFirst(Struct) : nullptr;
		}
	}

	const UStruct* Struct;
	typename FChain::FBase* Field;
	bool bIncludeSuper;
};

/** Range of all fields of a kind, for range-based loops. */
template<typename T>
class TFieldRange
{
public:
	TFieldRange(const UStruct* InStruct, EFieldIterationFlags InFlags = EFieldIterationFlags::Default) : Begin(InStruct, InFlags) {}

	TFieldIterator<T> begin() const { return Begin; }
	TFieldIterator<T> end() const { return TFieldIterator<T>(nullptr); }

private:
	TFieldIterator<T> Begin;
};

/** Own or inherited property of that name; null when there is none, or it is of another kind. */
template<typename T = FProperty>
T* FindFProperty(const UStruct* Owner, FName FieldName)
{
	return Owner ? CastField<T>(Owner->FindPropertyByName(FieldName)) : nullptr;
}

template<typename T = FProperty>
T* FindFProperty(const UStruct* Owner, const TCHAR* FieldName)
{
	return FindFProperty<T>(Owner, FName(FieldName, FNAME_Find));
}

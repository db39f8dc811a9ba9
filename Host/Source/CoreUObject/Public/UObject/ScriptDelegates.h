#pragma once

#include "CoreMinimal.h"
#include "UObject/ScriptDelegateFwd.h"
#include "UObject/WeakObjectPtr.h"

class UFunction;
class UObject;

namespace Host
{
	/** The function that a binding leads to; null when the object is gone or has no such function. */
	COREUOBJECT_API UFunction* FindBoundFunction(const UObject* Object, FName FunctionName);
	COREUOBJECT_API void CallBoundFunction(UObject* Object, UFunction* Function, void* Parms);
	COREUOBJECT_API FString DescribeBinding(const UObject* Object, FName FunctionName);
	/** Reports, without stopping, that a binding was added a second time. */
	COREUOBJECT_API void ReportDuplicateBinding(const FString& Binding);
	/** Reports, without stopping, that what was to be bound is no reflected function of a living object. */
	COREUOBJECT_API void ReportUnboundFunction(FName FunctionName);
	/** "Fn" of "&Class::Fn". */
	COREUOBJECT_API FName FunctionNameFromText(const TCHAR* Text);
}

/** An object, weakly held, and the name of one of its reflected functions. */
template<typename TWeakPtr>
class TScriptDelegate
{
public:
	/** Binds a function by name; one that is no reflected function of the object leaves the delegate unbound. */
	void BindUFunction(UObject* InObject, const FName& InFunctionName)
	{
		BoundObject = InObject;
		BoundFunction = InFunctionName;
	}

	/** True while the object lives and has the function. */
	bool IsBound() const { return Host::FindBoundFunction(BoundObject.Get(), BoundFunction) != nullptr; }
	bool IsBoundToObject(const void* InObject) const
	{
		return InObject && static_cast<const void*>(BoundObject.Get()) == InObject;
	}
	/** True when the object is gone for good: the binding can be dropped. */
	bool IsCompactable() const { return BoundFunction.IsNone() || !BoundObject.Get(true); }

	void Unbind() { *this = TScriptDelegate(); }
	void Clear() { Unbind(); }

	UObject* GetUObject() const { return BoundObject.Get(); }
	FName GetFunctionName() const { return BoundFunction; }
	/** "Object.Function", "<Unbound>" when nothing is bound. */
	FString ToString() const { return Host::DescribeBinding(BoundObject.Get(), BoundFunction); }

	/** Calls the function with parameters as it lays them out; asserts that the delegate is bound. */
	void ProcessDelegate(void* Parameters) const
	{
		UFunction* Function = Host::FindBoundFunction(BoundObject.Get(), BoundFunction);
		checkf(Function, TEXT("dynamic delegate %s is called while it is not bound"), *ToString());
		Host::CallBoundFunction(BoundObject.Get(), Function, Parameters);
	}

	/** As ProcessDelegate; false when the delegate is not bound. */
	bool ProcessDelegateIfBound(void* Parameters) const
	{
		UFunction* Function = Host::FindBoundFunction(BoundObject.Get(), BoundFunction);
		if (Function)
		{
			Host::CallBoundFunction(BoundObject.Get(), Function, Parameters);
		}
		return Function != nullptr;
	}

	bool operator==(const TScriptDelegate& Other) const
	{
		return BoundFunction == Other.BoundFunction && BoundObject == Other.BoundObject;
	}

	friend uint32 GetTypeHash(const TScriptDelegate& Delegate)
	{
		return HashCombine(GetTypeHash(Delegate.BoundObject), GetTypeHash(Delegate.BoundFunction));
	}

protected:
	TWeakPtr BoundObject;
	FName BoundFunction;
};

/** A list of bindings, called in order. */
template<typename TWeakPtr>
class TMulticastScriptDelegate
{
public:
	using FBinding = TScriptDelegate<TWeakPtr>;

	/** True when at least one living binding is in the list. */
	bool IsBound() const
	{
		for (const FBinding& Binding : InvocationList)
		{
			if (Binding.IsBound())
			{
				return true;
			}
		}
		return false;
	}

	bool Contains(const FBinding& InDelegate) const { return InvocationList.Contains(InDelegate); }
	bool Contains(const UObject* InObject, FName InFunctionName) const { return Find(InObject, InFunctionName) != INDEX_NONE; }

	/** Appends a binding. One that is there already is reported as a mistake, and appended all the same. */
	void Add(const FBinding& InDelegate)
	{
		DropDead();
		if (InvocationList.Contains(InDelegate))
		{
			Host::ReportDuplicateBinding(InDelegate.ToString());
		}
		InvocationList.Add(InDelegate);
	}

	/** Appends a binding unless it is there. */
	void AddUnique(const FBinding& InDelegate)
	{
		DropDead();
		InvocationList.AddUnique(InDelegate);
	}

	/** Removes one such binding, if there is any; the last one takes its place. */
	void Remove(const FBinding& InDelegate) { RemoveAtPlace(InvocationList.Find(InDelegate)); }
	void Remove(const UObject* InObject, FName InFunctionName) { RemoveAtPlace(Find(InObject, InFunctionName)); }

	/** Removes all bindings of the object; the others keep their order. */
	void RemoveAll(const UObject* InObject)
	{
		InvocationList.RemoveAll([InObject](const FBinding& Binding)
		{
			return Binding.IsBoundToObject(InObject) || Binding.IsCompactable();
		});
	}

	void Clear() { InvocationList.Empty(); }

	/** The objects of the living bindings, in order; an object bound twice is there twice. */
	TArray<UObject*> GetAllObjects() const
	{
		TArray<UObject*> Objects;
		for (const FBinding& Binding : InvocationList)
		{
			if (UObject* Object = Binding.GetUObject())
			{
				Objects.Add(Object);
			}
		}
		return Objects;
	}

	FString ToString() const
	{
		if (!IsBound())
		{
			return TEXT("<Unbound>");
		}
		FString Result = TEXT("[");
		for (const FBinding& Binding : InvocationList)
		{
			Result += (Result.Len() > 1 ? TEXT(", ") : TEXT("")) + Binding.ToString();
		}
		return Result + TEXT("]");
	}

	/** Calls the bindings that were there at the start, in order; those whose object is gone are skipped and dropped. */
	void ProcessMulticastDelegate(void* Parameters) const
	{
		if (InvocationList.Num() == 0)
		{
			return;
		}
		// A callee may bind and unbind, or end the life of the list's owner.
		const TArray<FBinding, TInlineAllocator<4>> Copy(InvocationList);
		bool bAnyDead = false;
		for (const FBinding& Binding : Copy)
		{
			bAnyDead |= !Binding.ProcessDelegateIfBound(Parameters) && Binding.IsCompactable();
		}
		if (bAnyDead)
		{
			DropDead();
		}
	}

	/** Calls Operation with each binding in order, dead ones included. */
	template<typename TOperation>
	void ForEachBinding(TOperation Operation) const
	{
		for (const FBinding& Binding : InvocationList)
		{
			Operation(Binding);
		}
	}

	/** Appends a binding as it is, for those who copy a list. */
	void AddUnchecked(const FBinding& InDelegate) { InvocationList.Add(InDelegate); }

	/** Equal when both call the same bindings in the same order. */
	bool operator==(const TMulticastScriptDelegate& Other) const { return InvocationList == Other.InvocationList; }

protected:
	bool HasBindings() const { return InvocationList.Num() > 0; }

private:
	int32 Find(const UObject* InObject, FName InFunctionName) const
	{
		return InvocationList.IndexOfByPredicate([&](const FBinding& Binding)
		{
			return Binding.GetFunctionName() == InFunctionName && Binding.IsBoundToObject(InObject);
		});
	}

	void RemoveAtPlace(int32 Index)
	{
		if (Index != INDEX_NONE)
		{
			InvocationList.RemoveAtSwap(Index);
		}
		DropDead();
	}

	void DropDead() const
	{
		InvocationList.RemoveAll([](const FBinding& Binding) { return Binding.IsCompactable(); });
	}

	/** Dead bindings leave it even where the delegate is only read. */
	mutable TArray<FBinding> InvocationList;
};

#pragma once

#include "Containers/Array.h"
#include "Delegates/DelegateBase.h"

namespace Host
{
	/**
	 * The bindings of a multicast delegate. They outlive the delegate when that is destroyed by one of its own handlers, and
	 * what is taken out during a broadcast leaves a hole until the outermost one ends.
	 */
	template <typename... ParamTypes>
	class TInvocationList : private FNoncopyable
	{
	public:
		using FInstance = TDelegateInstance<void(ParamTypes...)>;

		~TInvocationList()
		{
			Clear();
		}

		void Add(FInstance* Instance)
		{
			if (Instances.Num() >= CompactionThreshold && NumBroadcasts == 0)
			{
				RemoveExpired();
				CompactionThreshold = Instances.Num() * 2 > MinThreshold ? Instances.Num() * 2 : MinThreshold;
			}
			Instances.Add(Instance);
		}

		/** Takes out the bindings for which the predicate holds; returns how many. */
		template <typename PredicateType>
		int32 Remove(const PredicateType& Predicate)
		{
			TArray<FInstance*, TInlineAllocator<8>> Removed;
			const auto Take = [&](FInstance* Instance)
			{
				const bool bTaken = Instance != nullptr && Predicate(*Instance);
				if (bTaken)
				{
					Removed.Add(Instance);
				}
				return bTaken;
			};
			if (NumBroadcasts > 0)
			{
				for (FInstance*& Instance : Instances)
				{
					Instance = Take(Instance) ? nullptr : Instance;
				}
				bHoles |= Removed.Num() > 0;
			}
			else
			{
				Instances.RemoveAll([&Take](FInstance* Instance) { return Instance == nullptr || Take(Instance); });
			}
			// The end of what a handler holds may lead back to this list, which must be in order by now.
			for (FInstance* Instance : Removed)
			{
				Instance->Release();
			}
			return Removed.Num();
		}

		void Clear()
		{
			Remove([](const FInstance&) { return true; });
		}

		/** Lets the list go: at once, or after the broadcast that it is in. */
		void Release()
		{
			if (NumBroadcasts > 0)
			{
				bReleased = true;
				Clear();
			}
			else
			{
				delete this;
			}
		}

		void Broadcast(ParamTypes&... Params)
		{
			++NumBroadcasts;
			for (int32 Index = Instances.Num() - 1; Index >= 0; --Index)
			{
				FInstance* Instance = Instances.GetData()[Index];
				bHoles |= Instance == nullptr || !Instance->ExecuteIfSafe(nullptr, Params...);
			}
			if (--NumBroadcasts == 0 && (bHoles || bReleased))
			{
				Finish();
			}
		}

		TArray<FInstance*> Instances;

	private:
		static constexpr int32 MinThreshold = 4;

		void Finish()
		{
			if (bReleased)
			{
				delete this;
				return;
			}
			bHoles = false;
			RemoveExpired();
		}

		void RemoveExpired()
		{
			Remove([](const FInstance& Instance) { return !Instance.IsSafeToExecute(); });
		}

		int32 NumBroadcasts = 0;
		int32 CompactionThreshold = MinThreshold;
		bool bHoles = false;
		bool bReleased = false;
	};
}

/**
 * Calls that are made together, the last one added first. A method added twice is called twice. Handlers may add and
 * remove bindings and destroy the delegate: what is added during a broadcast is not called in it, what is removed no more.
 */
template <typename... ParamTypes>
class TMulticastDelegate<void(ParamTypes...)>
{
	using FList = Host::TInvocationList<ParamTypes...>;

public:
	using FDelegate = TDelegate<void(ParamTypes...)>;

	TMulticastDelegate() = default;
	TMulticastDelegate(const TMulticastDelegate& Other) { CopyFrom(Other); }
	TMulticastDelegate(TMulticastDelegate&& Other) : List(Other.List) { Other.List = nullptr; }
	~TMulticastDelegate() { ReleaseList(); }

	TMulticastDelegate& operator=(const TMulticastDelegate& Other)
	{
		if (this != &Other)
		{
			Clear();
			CopyFrom(Other);
		}
		return *this;
	}

	TMulticastDelegate& operator=(TMulticastDelegate&& Other)
	{
		if (this != &Other)
		{
			ReleaseList();
			List = Other.List;
			Other.List = nullptr;
		}
		return *this;
	}

	/** Adds a binding; an unbound delegate adds nothing and gives an invalid handle. */
	FDelegateHandle Add(FDelegate&& NewDelegate)
	{
		auto* Instance = NewDelegate.Instance;
		if (Instance == nullptr)
		{
			return FDelegateHandle();
		}
		NewDelegate.Instance = nullptr;
		if (List == nullptr)
		{
			List = new FList;
		}
		const FDelegateHandle Handle = Instance->GetHandle();
		List->Add(Instance);
		return Handle;
	}

	FDelegateHandle Add(const FDelegate& NewDelegate) { return Add(FDelegate(NewDelegate)); }

	template <typename... VarTypes>
	FDelegateHandle AddStatic(typename FDelegate::template TFunctionPtr<VarTypes...> Function, VarTypes&&... Vars) { return Add(FDelegate::CreateStatic(Function, static_cast<VarTypes&&>(Vars)...)); }
	template <typename FunctorType, typename... VarTypes>
	FDelegateHandle AddLambda(FunctorType&& Functor, VarTypes&&... Vars) { return Add(FDelegate::CreateLambda(static_cast<FunctorType&&>(Functor), static_cast<VarTypes&&>(Vars)...)); }
	template <typename UserClass, typename FunctorType, typename... VarTypes>
	FDelegateHandle AddWeakLambda(const UserClass* Object, FunctorType&& Functor, VarTypes&&... Vars) { return Add(FDelegate::CreateWeakLambda(Object, static_cast<FunctorType&&>(Functor), static_cast<VarTypes&&>(Vars)...)); }
	template <typename UserClass, typename... VarTypes>
	FDelegateHandle AddUObject(UserClass* Object, typename FDelegate::template TMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars) { return Add(FDelegate::CreateUObject(Object, Method, static_cast<VarTypes&&>(Vars)...)); }
	template <typename UserClass, typename... VarTypes>
	FDelegateHandle AddUObject(const UserClass* Object, typename FDelegate::template TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars) { return Add(FDelegate::CreateUObject(Object, Method, static_cast<VarTypes&&>(Vars)...)); }
	template <typename UserClass, typename NameType>
	FDelegateHandle AddUFunction(UserClass* Object, const NameType& FunctionName) { return Add(FDelegate::CreateUFunction(Object, FunctionName)); }
	template <typename UserClass, typename... VarTypes>
	FDelegateHandle AddRaw(UserClass* Object, typename FDelegate::template TMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars) { return Add(FDelegate::CreateRaw(Object, Method, static_cast<VarTypes&&>(Vars)...)); }
	template <typename UserClass, typename... VarTypes>
	FDelegateHandle AddRaw(const UserClass* Object, typename FDelegate::template TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars) { return Add(FDelegate::CreateRaw(Object, Method, static_cast<VarTypes&&>(Vars)...)); }
	template <typename UserClass, ESPMode Mode, typename... VarTypes>
	FDelegateHandle AddSP(const TSharedRef<UserClass, Mode>& Object, typename FDelegate::template TMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars) { return Add(FDelegate::CreateSP(Object, Method, static_cast<VarTypes&&>(Vars)...)); }
	template <typename UserClass, ESPMode Mode, typename... VarTypes>
	FDelegateHandle AddSP(const TSharedRef<UserClass, Mode>& Object, typename FDelegate::template TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars) { return Add(FDelegate::CreateSP(Object, Method, static_cast<VarTypes&&>(Vars)...)); }
	template <typename UserClass, typename... VarTypes>
	FDelegateHandle AddSP(UserClass* Object, typename FDelegate::template TMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars) { return Add(FDelegate::CreateSP(Object, Method, static_cast<VarTypes&&>(Vars)...)); }
	template <typename UserClass, typename... VarTypes>
	FDelegateHandle AddSP(const UserClass* Object, typename FDelegate::template TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars) { return Add(FDelegate::CreateSP(Object, Method, static_cast<VarTypes&&>(Vars)...)); }
	template <typename ObjectType, typename FunctorType, typename... VarTypes>
	FDelegateHandle AddSPLambda(ObjectType&& Object, FunctorType&& Functor, VarTypes&&... Vars) { return Add(FDelegate::CreateSPLambda(static_cast<ObjectType&&>(Object), static_cast<FunctorType&&>(Functor), static_cast<VarTypes&&>(Vars)...)); }

	/** Removes the binding of that handle; false when there is none. */
	bool Remove(FDelegateHandle Handle)
	{
		return Handle.IsValid() && List != nullptr && List->Remove([Handle](const auto& Instance) { return Instance.GetHandle() == Handle; }) > 0;
	}

	/** Removes every binding that belongs to the object; returns their number. */
	int32 RemoveAll(const void* Object)
	{
		return Object != nullptr && List != nullptr ? List->Remove([Object](const auto& Instance) { return Instance.GetBoundObject() == Object; }) : 0;
	}

	void Clear()
	{
		if (List != nullptr)
		{
			List->Clear();
		}
	}

	/** Whether at least one binding is there whose object lives. */
	bool IsBound() const
	{
		return NumInstances() > 0 && List->Instances.ContainsByPredicate([](const auto* Instance) { return Instance != nullptr && Instance->IsSafeToExecute(); });
	}

	/** Whether a binding belongs to that object. */
	bool IsBoundToObject(const void* Object) const
	{
		return Object != nullptr && NumInstances() > 0 && List->Instances.ContainsByPredicate([Object](const auto* Instance) { return Instance != nullptr && Instance->GetBoundObject() == Object; });
	}

	/** Calls all bindings whose objects live; those of gone objects are dropped. */
	void Broadcast(ParamTypes... Params) const
	{
		if (List != nullptr)
		{
			List->Broadcast(Params...);
		}
	}

private:
	int32 NumInstances() const { return List != nullptr ? List->Instances.Num() : 0; }

	void CopyFrom(const TMulticastDelegate& Other)
	{
		for (int32 Index = 0; Index < Other.NumInstances(); ++Index)
		{
			if (const auto* Instance = Other.List->Instances[Index])
			{
				FDelegate Copy;
				Copy.Instance = Instance->Clone();
				Add(MoveTemp(Copy));
			}
		}
	}

	void ReleaseList()
	{
		if (FList* Old = List)
		{
			List = nullptr;
			Old->Release();
		}
	}

	/** Null until something is added: most delegates of most objects are never bound. */
	FList* List = nullptr;
};

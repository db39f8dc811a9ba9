#pragma once

#include "Delegates/IDelegateInstance.h"
#include "Misc/AssertionMacros.h"
#include "Templates/Invoke.h"
#include "Templates/SharedPointer.h"
#include "Templates/Tuple.h"

struct FWeakObjectPtr;

namespace Host
{
	/**
	 * What a delegate calls. A delegate belongs to one thread at a time; so do the calls that are counted here, so that an
	 * instance which is let go during its own call lives until the call returns.
	 */
	template <typename FuncType>
	class TDelegateInstance;

	template <typename Ret, typename... ParamTypes>
	class TDelegateInstance<Ret(ParamTypes...)> : private FNoncopyable
	{
	public:
		/** Where a result is put; a placeholder where there is none. */
		using FResult = std::conditional_t<std::is_void_v<Ret>, uint8, std::remove_cvref_t<Ret>>;

		/** Keeps an instance for the duration of a call. */
		class FCall : private FNoncopyable
		{
		public:
			explicit FCall(TDelegateInstance* InInstance)
				: Instance(InInstance)
			{
				++Instance->NumCalls;
			}

			~FCall()
			{
				if (--Instance->NumCalls == 0 && Instance->bReleased)
				{
					delete Instance;
				}
			}

		private:
			TDelegateInstance* Instance;
		};

		explicit TDelegateInstance(FDelegateHandle InHandle) : Handle(InHandle) {}

		/** Calls; the target must be alive. */
		virtual Ret Execute(ParamTypes... Params) = 0;
		/** Calls if the target is alive, and says whether it was. The result is assigned to OutResult, or dropped when that is null. */
		virtual bool ExecuteIfSafe(FResult* OutResult, ParamTypes... Params) = 0;
		/** False once the object that the call needs is gone. */
		virtual bool IsSafeToExecute() const = 0;
		/** The object that the binding belongs to; null for functions and plain lambdas. */
		virtual const void* GetBoundObject() const = 0;
		/** A copy with a state of its own and the same handle. */
		virtual TDelegateInstance* Clone() const = 0;

		FDelegateHandle GetHandle() const { return Handle; }

		/** Lets the instance go: at once, or after the call that it is in. */
		void Release()
		{
			if (NumCalls > 0)
			{
				bReleased = true;
			}
			else
			{
				delete this;
			}
		}

	protected:
		virtual ~TDelegateInstance() = default;

	private:
		int32 NumCalls = 0;
		bool bReleased = false;
		FDelegateHandle Handle;
	};

	/** Nobody has to stay alive for the call. */
	struct FNoGuard
	{
		bool Pin() const { return true; }
		const void* GetObject() const { return nullptr; }
	};

	/** Whoever bound the object promises that it stays alive. */
	struct FRawGuard
	{
		const void* Object;

		bool Pin() const { return true; }
		const void* GetObject() const { return Object; }
	};

	/** The call needs a reflected object, which is held weakly. */
	template <typename UserClass>
	struct TObjectGuard
	{
		// The weak pointer is of a higher floor, and complete where a delegate is bound.
		typename TLate<FWeakObjectPtr, UserClass>::FType Weak;

		bool Pin() const { return Weak.IsValid(); }
		const void* GetObject() const { return Weak.Get(true); }
	};

	/** The call needs a shared object, which is held weakly and kept alive for the call. */
	template <typename UserClass, ESPMode Mode>
	struct TSharedGuard
	{
		TWeakPtr<UserClass, Mode> Weak;
		const void* Object;

		TSharedPtr<UserClass, Mode> Pin() const { return Weak.Pin(); }
		const void* GetObject() const { return Weak.IsValid() ? Object : nullptr; }
	};

	/** A method together with the object to call it on. */
	template <typename UserClass, typename MethodType>
	struct TBoundMethod
	{
		UserClass* Object;
		MethodType Method;

		template <typename... ArgTypes>
		FORCEINLINE decltype(auto) operator()(ArgTypes&&... Args) const
		{
			return (Object->*Method)(static_cast<ArgTypes&&>(Args)...);
		}
	};

	/** Calls a callable with the delegate's parameters and behind them the payload, while the guard holds. */
	template <typename FuncType, typename GuardType, typename CallableType, typename... VarTypes>
	class TGuardedInstance;

	template <typename Ret, typename... ParamTypes, typename GuardType, typename CallableType, typename... VarTypes>
	class TGuardedInstance<Ret(ParamTypes...), GuardType, CallableType, VarTypes...> final : public TDelegateInstance<Ret(ParamTypes...)>
	{
		using FBase = TDelegateInstance<Ret(ParamTypes...)>;

	public:
		template <typename InCallableType, typename... InVarTypes>
		TGuardedInstance(FDelegateHandle Handle, const GuardType& InGuard, InCallableType&& InCallable, InVarTypes&&... InVars)
			: FBase(Handle)
			, Guard(InGuard)
			, Callable(static_cast<InCallableType&&>(InCallable))
			, Payload(static_cast<InVarTypes&&>(InVars)...)
		{
		}

		virtual Ret Execute(ParamTypes... Params) override
		{
			const auto Pinned = Guard.Pin();
			check(Pinned);
			const typename FBase::FCall Call(this);
			return Run(std::index_sequence_for<VarTypes...>(), Params...);
		}

		virtual bool ExecuteIfSafe(typename FBase::FResult* OutResult, ParamTypes... Params) override
		{
			const auto Pinned = Guard.Pin();
			if (!Pinned)
			{
				return false;
			}
			const typename FBase::FCall Call(this);
			if constexpr (!std::is_void_v<Ret>)
			{
				if (OutResult != nullptr)
				{
					*OutResult = Run(std::index_sequence_for<VarTypes...>(), Params...);
					return true;
				}
			}
			(void)Run(std::index_sequence_for<VarTypes...>(), Params...);
			return true;
		}

		virtual bool IsSafeToExecute() const override { return (bool)Guard.Pin(); }
		virtual const void* GetBoundObject() const override { return Guard.GetObject(); }

		virtual FBase* Clone() const override
		{
			if constexpr (std::is_copy_constructible_v<CallableType> && (std::is_copy_constructible_v<VarTypes> && ...))
			{
				return Payload.ApplyAfter([this](const auto&... Vars) -> FBase* { return new TGuardedInstance(this->GetHandle(), Guard, Callable, Vars...); });
			}
			else
			{
				checkf(false, TEXT("A delegate whose lambda cannot be copied can only be moved"));
				return nullptr;
			}
		}

	private:
		template <std::size_t... Indices>
		FORCEINLINE Ret Run(std::index_sequence<Indices...>, ParamTypes&... Params)
		{
			if constexpr (std::is_void_v<Ret>)
			{
				::Invoke(Callable, static_cast<ParamTypes&&>(Params)..., Payload.template Get<(uint32)Indices>()...);
			}
			else
			{
				return ::Invoke(Callable, static_cast<ParamTypes&&>(Params)..., Payload.template Get<(uint32)Indices>()...);
			}
		}

		GuardType Guard;
		CallableType Callable;
		[[no_unique_address]] TTuple<VarTypes...> Payload;
	};
}

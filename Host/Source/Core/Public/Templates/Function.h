#pragma once

#include "HAL/UnrealMemory.h"
#include "Misc/AssertionMacros.h"
#include "Templates/Invoke.h"
#include "Templates/UnrealTemplate.h"

template <typename FuncType>
class TFunction;
template <typename FuncType>
class TUniqueFunction;
template <typename FuncType>
class TFunctionRef;

namespace Host
{
	/** Whether a callable can be called with the arguments for the result, and is none of the wrappers itself. */
	template <typename FunctorType, typename WrapperType, typename Ret, typename... ParamTypes>
	concept CCallableFor = !std::is_same_v<std::decay_t<FunctorType>, WrapperType> && std::is_invocable_r_v<Ret, std::decay_t<FunctorType>&, ParamTypes...>;

	template <typename T>
	inline constexpr bool bIsFunctionWrapper = false;
	template <typename FuncType>
	inline constexpr bool bIsFunctionWrapper<TFunction<FuncType>> = true;
	template <typename FuncType>
	inline constexpr bool bIsFunctionWrapper<TUniqueFunction<FuncType>> = true;

	/** Calls a functor and throws its result away where none is wanted. */
	template <typename Ret, typename FunctorType, typename... ParamTypes>
	FORCEINLINE Ret CallFunctor(FunctorType& Functor, ParamTypes&... Params)
	{
		if constexpr (std::is_void_v<Ret>)
		{
			::Invoke(Functor, static_cast<ParamTypes&&>(Params)...);
		}
		else
		{
			return ::Invoke(Functor, static_cast<ParamTypes&&>(Params)...);
		}
	}

	/** What a stored functor can do besides being called. */
	struct FFunctorOps
	{
		void (*Destroy)(void* Functor);
		/** Moves the functor to raw memory and ends the old one. */
		void (*Relocate)(void* To, void* From);
		/** Null for functors that cannot be copied. */
		void (*Copy)(void* To, const void* From);
		SIZE_T Size;
		uint32 Alignment;
		bool bInline;
	};

	/** A functor of any type, small ones inside, others on the heap. */
	class FFunctorStorage
	{
	public:
		static constexpr SIZE_T InlineSize = 32;

		template <typename FunctorType>
		static constexpr bool bFitsInline = sizeof(FunctorType) <= InlineSize && alignof(FunctorType) <= alignof(void*);

		FFunctorStorage() = default;
		FFunctorStorage(const FFunctorStorage& Other) { CopyFrom(Other); }
		FFunctorStorage(FFunctorStorage&& Other) { MoveFrom(Other); }
		~FFunctorStorage() { Reset(); }

		bool IsSet() const { return Ops != nullptr; }
		void* Get() { return Ops->bInline ? static_cast<void*>(Bytes) : Heap; }

		template <typename FunctorType, bool bCopyable, typename ArgType>
		void Emplace(ArgType&& Arg)
		{
			Ops = &OpsOf<FunctorType, bCopyable>;
			::new (Allocate()) FunctorType(static_cast<ArgType&&>(Arg));
		}

		void CopyFrom(const FFunctorStorage& Other)
		{
			Ops = Other.Ops;
			if (Ops != nullptr)
			{
				Ops->Copy(Allocate(), const_cast<FFunctorStorage&>(Other).Get());
			}
		}

		void MoveFrom(FFunctorStorage& Other)
		{
			Ops = Other.Ops;
			if (Ops != nullptr)
			{
				if (Ops->bInline)
				{
					Ops->Relocate(Bytes, Other.Bytes);
				}
				else
				{
					Heap = Other.Heap;
				}
				Other.Ops = nullptr;
			}
		}

		void Reset()
		{
			if (const FFunctorOps* Old = Ops)
			{
				void* Functor = Get();
				Ops = nullptr;
				Old->Destroy(Functor);
				if (!Old->bInline)
				{
					FMemory::Free(Functor);
				}
			}
		}

	private:
		template <typename FunctorType>
		static void DestroyFunctor(void* Functor)
		{
			static_cast<FunctorType*>(Functor)->~FunctorType();
		}

		template <typename FunctorType>
		static void RelocateFunctor(void* To, void* From)
		{
			if constexpr (bFitsInline<FunctorType>)
			{
				FunctorType* Old = static_cast<FunctorType*>(From);
				::new (To) FunctorType(static_cast<FunctorType&&>(*Old));
				Old->~FunctorType();
			}
		}

		template <typename FunctorType>
		static void CopyFunctor(void* To, const void* From)
		{
			::new (To) FunctorType(*static_cast<const FunctorType*>(From));
		}

		template <typename FunctorType, bool bCopyable>
		static constexpr auto CopierOf()
		{
			if constexpr (bCopyable)
			{
				return &CopyFunctor<FunctorType>;
			}
			else
			{
				return nullptr;
			}
		}

		template <typename FunctorType, bool bCopyable>
		static constexpr FFunctorOps OpsOf = { &DestroyFunctor<FunctorType>, &RelocateFunctor<FunctorType>, CopierOf<FunctorType, bCopyable>(), sizeof(FunctorType), alignof(FunctorType), bFitsInline<FunctorType> };

		void* Allocate()
		{
			if (Ops->bInline)
			{
				return Bytes;
			}
			Heap = FMemory::Malloc(Ops->Size, Ops->Alignment);
			return Heap;
		}

		const FFunctorOps* Ops = nullptr;
		union
		{
			alignas(void*) uint8 Bytes[InlineSize];
			void* Heap;
		};
	};

	/** Common to the owning function wrappers. */
	template <bool bCopyable, typename Ret, typename... ParamTypes>
	class TFunctionBase
	{
	public:
		/** Calls the function, which must be set. */
		FORCEINLINE Ret operator()(ParamTypes... Params) const
		{
			CheckCallable();
			return Call(Storage.Get(), Params...);
		}

		/** Fails a check when no function is set. */
		FORCEINLINE void CheckCallable() const { check(IsSet()); }
		bool IsSet() const { return Storage.IsSet(); }
		explicit operator bool() const { return Storage.IsSet(); }
		void Reset() { Storage.Reset(); }
		friend bool operator==(const TFunctionBase& Function, TYPE_OF_NULLPTR) { return !Function.IsSet(); }

	protected:
		TFunctionBase() = default;
		TFunctionBase(const TFunctionBase&) = default;
		TFunctionBase(TFunctionBase&&) = default;
		~TFunctionBase() = default;

		template <typename FunctorType>
		void Bind(FunctorType&& Functor)
		{
			using FFunctor = std::decay_t<FunctorType>;
			// An unset function or null address makes an unset wrapper.
			if constexpr (std::is_pointer_v<std::remove_reference_t<FunctorType>> || std::is_member_pointer_v<FFunctor>)
			{
				if (Functor == nullptr)
				{
					return;
				}
			}
			else if constexpr (bIsFunctionWrapper<FFunctor>)
			{
				if (!Functor.IsSet())
				{
					return;
				}
			}
			Storage.Emplace<FFunctor, bCopyable>(static_cast<FunctorType&&>(Functor));
			Call = [](void* Stored, ParamTypes&... Params) -> Ret { return CallFunctor<Ret, FFunctor, ParamTypes...>(*static_cast<FFunctor*>(Stored), Params...); };
		}

		void TakeFrom(TFunctionBase& Other)
		{
			Storage.Reset();
			Storage.MoveFrom(Other.Storage);
			Call = Other.Call;
		}

	private:
		Ret (*Call)(void* Functor, ParamTypes&... Params) = nullptr;
		// Calling changes no wrapper, whatever it does to the functor.
		mutable FFunctorStorage Storage;
	};
}

/** A copyable function of any kind: a lambda, a functor, a function or member address. */
template <typename Ret, typename... ParamTypes>
class TFunction<Ret(ParamTypes...)> : public Host::TFunctionBase<true, Ret, ParamTypes...>
{
public:
	TFunction(TYPE_OF_NULLPTR = nullptr) {}
	TFunction(const TFunction&) = default;
	TFunction(TFunction&&) = default;
	~TFunction() = default;

	template <typename FunctorType>
		requires(Host::CCallableFor<FunctorType, TFunction, Ret, ParamTypes...> && std::is_copy_constructible_v<std::decay_t<FunctorType>>)
	TFunction(FunctorType&& Functor)
	{
		this->Bind(static_cast<FunctorType&&>(Functor));
	}

	TFunction& operator=(TFunction Other)
	{
		this->TakeFrom(Other);
		return *this;
	}
};

/** A function of any kind that need not be copyable; it is moved only. */
template <typename Ret, typename... ParamTypes>
class TUniqueFunction<Ret(ParamTypes...)> : public Host::TFunctionBase<false, Ret, ParamTypes...>
{
public:
	TUniqueFunction(TYPE_OF_NULLPTR = nullptr) {}
	TUniqueFunction(const TUniqueFunction&) = delete;
	TUniqueFunction(TUniqueFunction&&) = default;
	~TUniqueFunction() = default;

	template <typename FunctorType>
		requires(Host::CCallableFor<FunctorType, TUniqueFunction, Ret, ParamTypes...>)
	TUniqueFunction(FunctorType&& Functor)
	{
		this->Bind(static_cast<FunctorType&&>(Functor));
	}

	TUniqueFunction& operator=(const TUniqueFunction&) = delete;

	TUniqueFunction& operator=(TUniqueFunction&& Other)
	{
		if (this != &Other)
		{
			this->TakeFrom(Other);
		}
		return *this;
	}
};

/** Refers to a callable for the duration of a call; never keep one. */
template <typename Ret, typename... ParamTypes>
class TFunctionRef<Ret(ParamTypes...)>
{
public:
	template <typename FunctorType>
		requires(!std::is_same_v<std::decay_t<FunctorType>, TFunctionRef> && std::is_invocable_r_v<Ret, FunctorType&, ParamTypes...>)
	TFunctionRef(FunctorType&& Functor)
	{
		using FFunctor = std::remove_reference_t<FunctorType>;
		if constexpr (std::is_function_v<FFunctor>)
		{
			Target = reinterpret_cast<void*>(&Functor);
			Call = [](void* Stored, ParamTypes&... Params) -> Ret { return Host::CallFunctor<Ret, FFunctor, ParamTypes...>(*reinterpret_cast<FFunctor*>(Stored), Params...); };
		}
		else
		{
			Target = const_cast<void*>(static_cast<const void*>(&Functor));
			Call = [](void* Stored, ParamTypes&... Params) -> Ret { return Host::CallFunctor<Ret, FFunctor, ParamTypes...>(*static_cast<FFunctor*>(Stored), Params...); };
		}
	}

	FORCEINLINE Ret operator()(ParamTypes... Params) const
	{
		return Call(Target, Params...);
	}

private:
	Ret (*Call)(void* Functor, ParamTypes&... Params);
	void* Target;
};

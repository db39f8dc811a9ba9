#pragma once

#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <tuple>

/** Selects the tuple constructor that takes the elements. */
struct FTupleElementsTag
{
};

namespace Host
{
	template <typename T, uint32 Index>
	struct TTupleElement
	{
		TTupleElement() : Value() {}

		template <typename ArgType>
		TTupleElement(FTupleElementsTag, ArgType&& Arg)
			: Value(static_cast<ArgType&&>(Arg))
		{
		}

		T Value;
	};

	template <typename IndexSequence, typename... Types>
	struct TTupleBase;

	template <std::size_t... Indices, typename... Types>
	struct TTupleBase<std::index_sequence<Indices...>, Types...> : TTupleElement<Types, (uint32)Indices>...
	{
		TTupleBase() = default;

		template <typename... ArgTypes>
		explicit TTupleBase(FTupleElementsTag Tag, ArgTypes&&... Args)
			: TTupleElement<Types, (uint32)Indices>(Tag, static_cast<ArgTypes&&>(Args))...
		{
		}
	};

	template <uint32 Index, typename T>
	T& TupleElement(TTupleElement<T, Index>& Element)
	{
		return Element.Value;
	}

	template <uint32 Index, typename T>
	const T& TupleElement(const TTupleElement<T, Index>& Element)
	{
		return Element.Value;
	}
}

/** Values of several types side by side. With two of them it is a pair, whose members are Key and Value. */
template <typename... Types>
struct TTuple : Host::TTupleBase<std::index_sequence_for<Types...>, Types...>
{
	using Super = Host::TTupleBase<std::index_sequence_for<Types...>, Types...>;

	TTuple() = default;

	template <typename... ArgTypes>
		requires(sizeof...(ArgTypes) == sizeof...(Types) && sizeof...(Types) > 0 && (std::is_constructible_v<Types, ArgTypes &&> && ...))
	explicit(sizeof...(ArgTypes) == 1) TTuple(ArgTypes&&... Args)
		: Super(FTupleElementsTag(), static_cast<ArgTypes&&>(Args)...)
	{
	}

	template <uint32 Index>
	auto& Get() { return Host::TupleElement<Index>(*this); }
	template <uint32 Index>
	const auto& Get() const { return Host::TupleElement<Index>(*this); }

	/** Calls a function with the elements behind the given arguments. */
	template <typename FuncType, typename... ArgTypes>
	decltype(auto) ApplyAfter(FuncType&& Func, ArgTypes&&... Args) const
	{
		return Apply(std::index_sequence_for<Types...>(), [&](const auto&... Elements) -> decltype(auto) { return Func(static_cast<ArgTypes&&>(Args)..., Elements...); });
	}

	/** Calls a function with the elements before the given arguments. */
	template <typename FuncType, typename... ArgTypes>
	decltype(auto) ApplyBefore(FuncType&& Func, ArgTypes&&... Args) const
	{
		return Apply(std::index_sequence_for<Types...>(), [&](const auto&... Elements) -> decltype(auto) { return Func(Elements..., static_cast<ArgTypes&&>(Args)...); });
	}

	friend bool operator==(const TTuple& A, const TTuple& B)
	{
		return A.AllEqual(B, std::index_sequence_for<Types...>());
	}

	friend uint32 GetTypeHash(const TTuple& Tuple)
	{
		uint32 Hash = 0;
		Tuple.ApplyBefore([&Hash](const auto&... Elements) { ((Hash = HashCombineFast(Hash, GetTypeHashHelper(Elements))), ...); });
		return Hash;
	}

private:
	template <std::size_t... Indices, typename FuncType>
	decltype(auto) Apply(std::index_sequence<Indices...>, FuncType&& Func) const
	{
		return Func(Get<(uint32)Indices>()...);
	}

	template <std::size_t... Indices>
	bool AllEqual(const TTuple& Other, std::index_sequence<Indices...>) const
	{
		return ((Get<(uint32)Indices>() == Other.template Get<(uint32)Indices>()) && ...);
	}
};

template <typename InKeyType, typename InValueType>
struct TTuple<InKeyType, InValueType>
{
	using KeyType = InKeyType;
	using ValueType = InValueType;

	KeyType Key;
	ValueType Value;

	TTuple()
		: Key()
		, Value()
	{
	}

	template <typename KeyArgType, typename ValueArgType>
		requires(std::is_constructible_v<KeyType, KeyArgType &&> && std::is_constructible_v<ValueType, ValueArgType &&>)
	TTuple(KeyArgType&& InKey, ValueArgType&& InValue)
		: Key(static_cast<KeyArgType&&>(InKey))
		, Value(static_cast<ValueArgType&&>(InValue))
	{
	}

	template <typename OtherKeyType, typename OtherValueType>
		requires(std::is_constructible_v<KeyType, const OtherKeyType&> && std::is_constructible_v<ValueType, const OtherValueType&> && !(std::is_same_v<OtherKeyType, KeyType> && std::is_same_v<OtherValueType, ValueType>))
	TTuple(const TTuple<OtherKeyType, OtherValueType>& Other)
		: Key(Other.Key)
		, Value(Other.Value)
	{
	}

	template <uint32 Index>
	auto& Get()
	{
		if constexpr (Index == 0)
		{
			return Key;
		}
		else
		{
			return Value;
		}
	}

	template <uint32 Index>
	const auto& Get() const
	{
		return const_cast<TTuple*>(this)->template Get<Index>();
	}

	template <typename FuncType, typename... ArgTypes>
	decltype(auto) ApplyAfter(FuncType&& Func, ArgTypes&&... Args) const { return Func(static_cast<ArgTypes&&>(Args)..., Key, Value); }
	template <typename FuncType, typename... ArgTypes>
	decltype(auto) ApplyBefore(FuncType&& Func, ArgTypes&&... Args) const { return Func(Key, Value, static_cast<ArgTypes&&>(Args)...); }

	friend bool operator==(const TTuple& A, const TTuple& B) { return A.Key == B.Key && A.Value == B.Value; }
	friend uint32 GetTypeHash(const TTuple& Pair) { return HashCombineFast(GetTypeHashHelper(Pair.Key), GetTypeHashHelper(Pair.Value)); }
};

template <typename KeyType, typename ValueType>
using TPair = TTuple<KeyType, ValueType>;

template <typename... Types>
TTuple<std::decay_t<Types>...> MakeTuple(Types&&... Args)
{
	return TTuple<std::decay_t<Types>...>(static_cast<Types&&>(Args)...);
}

// A pair is taken apart by its members, every other tuple through these.
template <typename... Types>
	requires(sizeof...(Types) != 2)
struct std::tuple_size<TTuple<Types...>> : std::integral_constant<std::size_t, sizeof...(Types)>
{
};

template <std::size_t Index, typename... Types>
	requires(sizeof...(Types) != 2)
struct std::tuple_element<Index, TTuple<Types...>>
{
	using type = std::tuple_element_t<Index, std::tuple<Types...>>;
};

template <std::size_t Index, typename... Types>
decltype(auto) get(TTuple<Types...>& Tuple)
{
	return Tuple.template Get<(uint32)Index>();
}

template <std::size_t Index, typename... Types>
decltype(auto) get(const TTuple<Types...>& Tuple)
{
	return Tuple.template Get<(uint32)Index>();
}

template <std::size_t Index, typename... Types>
decltype(auto) get(TTuple<Types...>&& Tuple)
{
	return MoveTempIfPossible(Tuple.template Get<(uint32)Index>());
}

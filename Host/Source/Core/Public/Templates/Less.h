#pragma once

#include "Templates/UnrealTemplate.h"

/** A < B as an object. */
template <typename T = void>
struct TLess
{
	constexpr bool operator()(const T& A, const T& B) const
	{
		return A < B;
	}
};

template <>
struct TLess<void>
{
	template <typename A, typename B>
	constexpr bool operator()(const A& Left, const B& Right) const
	{
		return Left < Right;
	}
};

/** B < A as an object. */
template <typename T = void>
struct TGreater
{
	constexpr bool operator()(const T& A, const T& B) const
	{
		return B < A;
	}
};

template <>
struct TGreater<void>
{
	template <typename A, typename B>
	constexpr bool operator()(const A& Left, const B& Right) const
	{
		return Right < Left;
	}
};

/** Hands a sort predicate the pointed-to objects where the elements are raw pointers. */
template <typename T, typename PredicateType>
struct TDereferenceWrapper
{
	const PredicateType& Predicate;

	explicit TDereferenceWrapper(const PredicateType& InPredicate)
		: Predicate(InPredicate)
	{
	}

	bool operator()(const T& A, const T& B) const
	{
		if constexpr (std::is_pointer_v<T>)
		{
			return Predicate(*A, *B);
		}
		else
		{
			return Predicate(A, B);
		}
	}
};

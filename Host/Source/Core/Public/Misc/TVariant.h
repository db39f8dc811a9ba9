#pragma once

#include "Misc/AssertionMacros.h"
#include "Templates/UnrealTemplate.h"

#include <variant>

/** Stands for nothing as the first type of a variant. */
struct FEmptyVariantState
{
	bool operator==(const FEmptyVariantState&) const = default;
};

/** Names the type to construct in a variant. */
template <typename T>
struct TInPlaceType
{
};

/** A value of one of several types; of the first one at the start. */
template <typename... Types>
class TVariant
{
public:
	TVariant() = default;

	template <typename T, typename... ArgTypes>
	explicit TVariant(TInPlaceType<T>, ArgTypes&&... Args)
		: Value(std::in_place_type<T>, static_cast<ArgTypes&&>(Args)...)
	{
	}

	template <typename T>
	bool IsType() const { return std::holds_alternative<T>(Value); }

	/** The value; asserts that it is of the type. */
	template <typename T>
	T& Get()
	{
		check(IsType<T>());
		return *std::get_if<T>(&Value);
	}
	template <typename T>
	const T& Get() const { return const_cast<TVariant*>(this)->template Get<T>(); }

	/** The address of the value if it is of the type, else null. */
	template <typename T>
	T* TryGet() { return std::get_if<T>(&Value); }
	template <typename T>
	const T* TryGet() const { return std::get_if<T>(&Value); }

	template <typename T>
	void Set(T&& NewValue) { Value.template emplace<std::decay_t<T>>(static_cast<T&&>(NewValue)); }

	template <typename T, typename... ArgTypes>
	void Emplace(ArgTypes&&... Args) { Value.template emplace<T>(static_cast<ArgTypes&&>(Args)...); }

	SIZE_T GetIndex() const { return Value.index(); }

	bool operator==(const TVariant& Other) const = default;

private:
	std::variant<Types...> Value;

	template <typename VisitorType, typename... VisitedTypes>
	friend decltype(auto) Visit(VisitorType&& Visitor, const TVariant<VisitedTypes...>& Variant);
};

/** Calls with the value, whatever its type. */
template <typename VisitorType, typename... Types>
decltype(auto) Visit(VisitorType&& Visitor, const TVariant<Types...>& Variant)
{
	return std::visit(static_cast<VisitorType&&>(Visitor), Variant.Value);
}

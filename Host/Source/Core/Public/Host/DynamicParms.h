#pragma once

#include "CoreTypes.h"

#include <array>
#include <new>
#include <tuple>
#include <type_traits>
#include <utility>

namespace Host
{
	/** How a parameter of that type lies in a function's parameters: by value, without const. */
	template<typename T>
	using TParm = std::remove_cv_t<std::remove_reference_t<T>>;

	/** Offsets of members of these types in a structure that has them in this order. */
	template<typename... TParms>
	struct TParmsLayout
	{
		static constexpr SIZE_T Num = sizeof...(TParms);

		static constexpr SIZE_T GreatestAlignment()
		{
			SIZE_T Greatest = 1;
			((Greatest = alignof(TParms) > Greatest ? alignof(TParms) : Greatest), ...);
			return Greatest;
		}

		static constexpr SIZE_T Alignment = GreatestAlignment();

		static constexpr std::array<SIZE_T, Num + 1> MakeOffsets()
		{
			constexpr std::array<SIZE_T, Num + 1> Sizes = { sizeof(TParms)..., 0 };
			constexpr std::array<SIZE_T, Num + 1> Alignments = { alignof(TParms)..., Alignment };
			std::array<SIZE_T, Num + 1> Offsets{};
			SIZE_T End = 0;
			for (SIZE_T Index = 0; Index <= Num; ++Index)
			{
				Offsets[Index] = (End + Alignments[Index] - 1) / Alignments[Index] * Alignments[Index];
				End = Offsets[Index] + Sizes[Index];
			}
			return Offsets;
		}

		/** The last one is the size of the structure. */
		static constexpr std::array<SIZE_T, Num + 1> Offsets = MakeOffsets();
	};

	/** The parameters of a reflected function, result last, as the function's description lays them out. */
	template<typename... TParms>
	class TDynamicParms
	{
		using FLayout = TParmsLayout<TParm<TParms>...>;
		using FIndices = std::index_sequence_for<TParms...>;

	public:
		template<typename... TValues>
		explicit TDynamicParms(const TValues&... Values)
		{
			Construct(FIndices(), Values...);
		}
		TDynamicParms(const TDynamicParms&) = delete;
		TDynamicParms& operator=(const TDynamicParms&) = delete;
		~TDynamicParms() { Destroy(FIndices()); }

		void* GetData() { return Data; }

		template<SIZE_T Index>
		auto& Get()
		{
			using FValue = TParm<std::tuple_element_t<Index, std::tuple<TParms...>>>;
			return *std::launder(reinterpret_cast<FValue*>(Data + FLayout::Offsets[Index]));
		}

		/** Hands the values of non-const reference parameters back to the caller. */
		template<typename... TValues>
		void CopyOut(TValues&... Values)
		{
			CopyOutEach(std::index_sequence_for<TValues...>(), Values...);
		}

	private:
		template<SIZE_T... Indices, typename... TValues>
		void Construct(std::index_sequence<Indices...>, const TValues&... Values)
		{
			(::new (static_cast<void*>(Data + FLayout::Offsets[Indices])) TParm<TParms>(Values), ...);
		}

		template<SIZE_T... Indices>
		void Destroy(std::index_sequence<Indices...>)
		{
			(DestroyOne(Get<Indices>()), ...);
		}

		template<typename T>
		static void DestroyOne(T& Value)
		{
			Value.~T();
		}

		template<SIZE_T... Indices, typename... TValues>
		void CopyOutEach(std::index_sequence<Indices...>, TValues&... Values)
		{
			(CopyOutOne<std::tuple_element_t<Indices, std::tuple<TParms...>>>(Values, Get<Indices>()), ...);
		}

		template<typename TParameter, typename TValue, typename TStored>
		static void CopyOutOne(TValue& Value, TStored& Stored)
		{
			if constexpr (std::is_lvalue_reference_v<TParameter> && !std::is_const_v<std::remove_reference_t<TParameter>>)
			{
				Value = static_cast<TStored&&>(Stored);
			}
		}

		alignas(FLayout::Alignment) uint8 Data[FLayout::Offsets[FLayout::Num] > 0 ? FLayout::Offsets[FLayout::Num] : 1];
	};
}

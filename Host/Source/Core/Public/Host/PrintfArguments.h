#pragma once

#include "CoreTypes.h"

#include <type_traits>

namespace Host
{
	/** One argument of a printf-like function, with its kind, so that a wrong one is noticed instead of read as something else. */
	struct FPrintfArgument
	{
		enum class EKind : uint8
		{
			Signed,
			Unsigned,
			Double,
			Char,
			WideText,
			NarrowText,
			Pointer
		};

		EKind Kind;
		/** Bytes of an integer as the caller had it. */
		uint8 Size;

		union
		{
			int64 Signed;
			uint64 Unsigned;
			double Double;
			const TCHAR* WideText;
			const ANSICHAR* NarrowText;
			const void* Pointer;
		};
	};

	template <typename>
	inline constexpr bool bNeverTrue = false;

	template <typename T>
	FPrintfArgument MakePrintfArgument(const T& Value)
	{
		using FDecayed = std::decay_t<T>;
		FPrintfArgument Result;
		Result.Size = sizeof(FDecayed);
		if constexpr (std::is_enum_v<FDecayed>)
		{
			return MakePrintfArgument((std::underlying_type_t<FDecayed>)Value);
		}
		else if constexpr (std::is_same_v<FDecayed, TCHAR>)
		{
			Result.Kind = FPrintfArgument::EKind::Char;
			Result.Unsigned = Value;
		}
		else if constexpr (std::is_floating_point_v<FDecayed>)
		{
			Result.Kind = FPrintfArgument::EKind::Double;
			Result.Double = (double)Value;
		}
		else if constexpr (std::is_integral_v<FDecayed> && std::is_signed_v<FDecayed>)
		{
			Result.Kind = FPrintfArgument::EKind::Signed;
			Result.Signed = Value;
		}
		else if constexpr (std::is_integral_v<FDecayed>)
		{
			Result.Kind = FPrintfArgument::EKind::Unsigned;
			Result.Unsigned = Value;
		}
		else if constexpr (std::is_convertible_v<const T&, const TCHAR*> && !std::is_null_pointer_v<FDecayed>)
		{
			Result.Kind = FPrintfArgument::EKind::WideText;
			Result.WideText = Value;
		}
		else if constexpr (std::is_convertible_v<const T&, const ANSICHAR*> && !std::is_null_pointer_v<FDecayed>)
		{
			Result.Kind = FPrintfArgument::EKind::NarrowText;
			Result.NarrowText = Value;
		}
		else if constexpr (std::is_pointer_v<FDecayed> || std::is_null_pointer_v<FDecayed>)
		{
			Result.Kind = FPrintfArgument::EKind::Pointer;
			Result.Pointer = (const void*)Value;
		}
		else
		{
			static_assert(bNeverTrue<T>, "Only numbers, characters, terminated texts and addresses can be formatted: pass *String for a string");
		}
		return Result;
	}

	/** The arguments of one call, in order. */
	template <typename... ArgTypes>
	struct TPrintfArguments
	{
		FPrintfArgument Items[sizeof...(ArgTypes) + 1];

		explicit TPrintfArguments(const ArgTypes&... Args)
			: Items{ MakePrintfArgument(Args)..., FPrintfArgument() }
		{
		}
	};
}

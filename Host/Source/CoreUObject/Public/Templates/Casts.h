#pragma once

#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"

#include <type_traits>

/** Ends the process with a message that names the object, its class and the class asked for. */
[[noreturn]] COREUOBJECT_API void CastLogError(const UObject* From, const UClass* To);
[[noreturn]] COREUOBJECT_API void CastLogNullError(const UClass* To);

namespace Host
{
	/** The I half of an interface: it names its U half. */
	template<typename T>
	concept CInterfaceHalf = requires { typename T::UClassType; } && !std::is_base_of_v<UObjectBase, T>;

	template<typename T>
	UClass* CastTarget()
	{
		if constexpr (CInterfaceHalf<T>)
		{
			return T::UClassType::StaticClass();
		}
		else
		{
			return T::StaticClass();
		}
	}

	/** The object behind an object or an I half. */
	template<typename T>
	UObject* CastSource(const T* Src)
	{
		if constexpr (CInterfaceHalf<T>)
		{
			return Src->_getUObject();
		}
		else
		{
			return const_cast<T*>(Src);
		}
	}

	template<typename TTo, typename TFrom>
	TTo* CastOrNull(const TFrom* Src)
	{
		if (!Src)
		{
			return nullptr;
		}
		UObject* Object = CastSource(Src);
		if constexpr (CInterfaceHalf<TTo>)
		{
			return Object ? static_cast<TTo*>(Object->GetInterfaceAddress(TTo::UClassType::StaticClass())) : nullptr;
		}
		else if constexpr (std::is_base_of_v<TTo, TFrom>)
		{
			return const_cast<TFrom*>(Src);
		}
		else
		{
			return Object && Object->IsA(TTo::StaticClass()) ? static_cast<TTo*>(Object) : nullptr;
		}
	}

	/** Constness of the source. */
	template<typename TTo, typename TFrom>
	using TCastResult = std::conditional_t<std::is_const_v<TFrom>, const TTo, TTo>;
}

/**
 * The object as a TTo: null when it is null or no TTo. TTo may be the I half of an interface, which objects implement in
 * native code; the source may be one too.
 */
template<typename TTo, typename TFrom>
Host::TCastResult<TTo, TFrom>* Cast(TFrom* Src)
{
	using FTo = std::remove_const_t<TTo>;
	using FFrom = std::remove_const_t<TFrom>;
	return Host::CastOrNull<FTo, FFrom>(Src);
}

template<typename TTo, typename TFrom>
Host::TCastResult<TTo, TFrom>* Cast(const TObjectPtr<TFrom>& Src)
{
	return Cast<TTo>(Src.Get());
}

/** Whether a null source is an error to CastChecked. */
namespace ECastCheckedType
{
	enum Type
	{
		NullAllowed,
		NullChecked,
	};
}

/** As Cast; ends the process when the object is no TTo. */
template<typename TTo, typename TFrom>
Host::TCastResult<TTo, TFrom>* CastChecked(TFrom* Src, ECastCheckedType::Type CheckType = ECastCheckedType::NullChecked)
{
	if (!Src)
	{
		if (CheckType == ECastCheckedType::NullChecked)
		{
			CastLogNullError(Host::CastTarget<std::remove_const_t<TTo>>());
		}
		return nullptr;
	}
	Host::TCastResult<TTo, TFrom>* Result = Cast<TTo>(Src);
	if (!Result)
	{
		CastLogError(Host::CastSource<std::remove_const_t<TFrom>>(Src), Host::CastTarget<std::remove_const_t<TTo>>());
	}
	return Result;
}

template<typename TTo, typename TFrom>
Host::TCastResult<TTo, TFrom>* CastChecked(const TObjectPtr<TFrom>& Src, ECastCheckedType::Type CheckType = ECastCheckedType::NullChecked)
{
	return CastChecked<TTo>(Src.Get(), CheckType);
}

/** The object as a TTo only when its class is TTo itself. */
template<typename TTo, typename TFrom>
Host::TCastResult<TTo, TFrom>* ExactCast(TFrom* Src)
{
	return Src && Src->GetClass() == TTo::StaticClass() ? static_cast<Host::TCastResult<TTo, TFrom>*>(Src) : nullptr;
}

template<typename TTo, typename TFrom>
Host::TCastResult<TTo, TFrom>* ExactCast(const TObjectPtr<TFrom>& Src)
{
	return ExactCast<TTo>(Src.Get());
}

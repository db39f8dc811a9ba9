#pragma once

#include "Host/DynamicParms.h"

class UFunction;

namespace Host
{
	/** Calls a reflected function of an object, whichever of native code or a script answers. */
	template <typename ObjectType, typename Ret, typename... ParamTypes>
	struct TReflectedCall
	{
		ObjectType* Object;
		UFunction* Function;

		Ret operator()(ParamTypes... Params) const
		{
			if constexpr (std::is_void_v<Ret>)
			{
				TDynamicParms<ParamTypes...> Parms(Params...);
				Object->ProcessEvent(Function, Parms.GetData());
				Parms.CopyOut(Params...);
			}
			else
			{
				TDynamicParms<ParamTypes..., Ret> Parms(Params..., TParm<Ret>{});
				Object->ProcessEvent(Function, Parms.GetData());
				Parms.CopyOut(Params...);
				return static_cast<TParm<Ret>&&>(Parms.template Get<sizeof...(ParamTypes)>());
			}
		}
	};
}

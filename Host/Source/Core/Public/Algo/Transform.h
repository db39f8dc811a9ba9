#pragma once

#include "Templates/Invoke.h"

namespace Algo
{
	/** Adds the transform of every element to a container. */
	template <typename InputType, typename OutputType, typename TransformType>
	void Transform(const InputType& Input, OutputType& Output, TransformType Trans)
	{
		for (const auto& Element : Input)
		{
			Output.Add(::Invoke(Trans, Element));
		}
	}

	/** Adds the transform of every element for which the predicate holds. */
	template <typename InputType, typename OutputType, typename PredicateType, typename TransformType>
	void TransformIf(const InputType& Input, OutputType& Output, PredicateType Predicate, TransformType Trans)
	{
		for (const auto& Element : Input)
		{
			if (::Invoke(Predicate, Element))
			{
				Output.Add(::Invoke(Trans, Element));
			}
		}
	}
}

#pragma once

#include "Model.h"

namespace HeaderTool
{
	/** Metadata entries in the order in which they are written. */
	using FMetadata = std::vector<std::pair<std::string, std::string>>;

	FMetadata MakeClassMetadata(const FClass& Class);
	FMetadata MakePropertyMetadata(const FProperty& Property);
	FMetadata MakeFunctionMetadata(const FFunction& Function);
	FMetadata MakeParameterMetadata(const FParameter& Parameter);
	FMetadata MakeDelegateMetadata(const FDelegate& Delegate);
	FMetadata MakeEnumMetadata(const FEnum& Enum);
	FMetadata MakeEnumeratorMetadata(const FEnumerator& Enumerator);
} // namespace HeaderTool

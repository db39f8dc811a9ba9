#pragma once

#include "Model.h"

namespace HeaderTool
{
	/** Flags as the generated code writes them: names joined by " | ". */
	std::string GetClassFlags(const FClass& Class);
	std::string GetPropertyFlags(const FProperty& Property);
	std::string GetParameterFlags(const FParameter& Parameter);
	std::string GetResultFlags(const FType& Result);
	std::string GetFunctionFlags(const FFunction& Function);
	std::string GetDelegateFlags(const FDelegate& Delegate);

	/** True when a graph can read the property. */
	bool IsBlueprintVisible(const FProperty& Property);
	/** True when a graph can call the function or implement it. */
	bool IsBlueprintFunction(const FFunction& Function);
	/** True when the function is drawn without execution pins. */
	bool IsPure(const FFunction& Function);
	bool HasOutputs(const FFunction& Function);
} // namespace HeaderTool

#include "Model.h"

#include <algorithm>
#include <cctype>

namespace HeaderTool
{
	bool FClass::HasMethod(const std::string& Method) const
	{
		return std::find(MethodNames.begin(), MethodNames.end(), Method) != MethodNames.end();
	}

	const FBase* FClass::GetReflectedBase() const
	{
		const auto Found =
			std::find_if(Bases.begin(), Bases.end(), [](const FBase& Base) { return Base.bReflected && !Base.bInterface; });
		return Found == Bases.end() ? nullptr : &*Found;
	}

	static bool HasPrefix(const std::string& Name, std::string_view Prefixes)
	{
		return Name.size() > 1 && Prefixes.find(Name[0]) != std::string_view::npos &&
			   std::isupper(static_cast<unsigned char>(Name[1]));
	}

	std::string GetReflectedClass(const std::string& ClassName)
	{
		return HasPrefix(ClassName, "I") ? "U" + ClassName.substr(1) : ClassName;
	}

	std::string GetScriptName(const std::string& CppName)
	{
		return HasPrefix(CppName, "UAFI") ? CppName.substr(1) : CppName;
	}
} // namespace HeaderTool

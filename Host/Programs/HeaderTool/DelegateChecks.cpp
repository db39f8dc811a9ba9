#include "CheckHelpers.h"

#include <cctype>

namespace HeaderTool
{
	void CheckDelegate(const FCheckContext& Context, const FDelegate& Delegate)
	{
		CheckSpecifiers(Context, EMacro::Delegate, Delegate.Specifiers);
		const bool bPrefixed =
			Delegate.Name.size() > 1 && Delegate.Name[0] == 'F' && std::isupper(static_cast<unsigned char>(Delegate.Name[1]));
		if (!bPrefixed)
		{
			Context.Error(Delegate.Location, "the delegate " + Delegate.Name + " must be named with the prefix F");
		}
		if (Delegate.Access != EAccess::Public)
		{
			Context.Error(Delegate.Location,
				"the delegate " + Delegate.Name + " must be declared in a public section: who binds to it names its type");
		}
		if (!Delegate.bTypesKnown)
		{
			Context.Error(Delegate.Location, "the parameter types of the delegate " + Delegate.Name +
												 " cannot be told: write type and name of each parameter as macro arguments");
			return;
		}
		std::set<std::string> Names;
		for (const FParameter& Parameter : Delegate.Parameters)
		{
			if (Parameter.Name.empty() || !Names.insert(Parameter.Name).second)
			{
				Context.Error(Delegate.Location, "the delegate " + Delegate.Name + " has a parameter without a name of its own");
			}
			CheckParameterType(Context, Parameter);
		}
		if (Delegate.Result.Kind == ETypeKind::Unsupported)
		{
			Context.Error(Delegate.Location, "the result of the delegate " + Delegate.Name + ": " + Delegate.Result.Complaint);
		}
	}
} // namespace HeaderTool

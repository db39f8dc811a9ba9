#include "Host/BlueprintMembers.h"

#include "Host/BlueprintReport.h"

namespace Host
{
	void ReportUnknownMembers(const FJsonNode& Node, TConstArrayView<const TCHAR*> Known, const TCHAR* What)
	{
		for (const FJsonNode Member : Node)
		{
			const FString Key(Member.GetKey());
			if (!Known.ContainsByPredicate([&Key](const TCHAR* Name) { return Key.Equals(Name); }))
			{
				ReportBlueprintError(Member, FString::Printf(TEXT("%s has no member \"%s\"."), What, *Key));
			}
		}
	}
}

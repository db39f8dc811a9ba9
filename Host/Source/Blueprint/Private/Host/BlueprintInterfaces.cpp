#include "Host/BlueprintInterfaces.h"

#include "Host/BlueprintReport.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

namespace Host
{
	void AddBlueprintInterfaces(UClass& Class, const FJsonNode& Interfaces)
	{
		for (const FJsonNode Node : Interfaces)
		{
			FString Path;
			UClass* Interface = Node.TryGetString(Path) ? FindObject<UClass>(nullptr, *Path) : nullptr;
			if (!Interface || !Interface->HasAnyClassFlags(CLASS_Interface))
			{
				ReportBlueprintError(Node, FString::Printf(TEXT("there is no interface '%s'."), *Path));
			}
			else if (Interface->HasMetaData(TEXT("CannotImplementInterfaceInBlueprint")))
			{
				ReportBlueprintError(Node, FString::Printf(TEXT("'%s' is an interface for native classes only."), *Path));
			}
			else if (!Class.ImplementsInterface(Interface))
			{
				Class.Interfaces.Add(FImplementedInterface(Interface, 0, true));
			}
		}
	}
}

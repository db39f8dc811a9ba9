#include "Host/BlueprintReport.h"

#include "Host/WidgetBlueprint.h"

DEFINE_LOG_CATEGORY(LogBlueprint);

namespace Host
{
	void ReportBlueprintError(const FJsonNode& Place, const FString& Text)
	{
		ReportBlueprintError(FString::Printf(TEXT("%s: %s"), *Place.Where(), *Text));
	}

	void ReportBlueprintError(const FString& Line)
	{
		UE_LOG(LogBlueprint, Error, TEXT("%s"), *Line);
	}
}

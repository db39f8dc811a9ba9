#include "Kismet/BlueprintAsyncActionBase.h"

void UBlueprintAsyncActionBase::Activate()
{
}

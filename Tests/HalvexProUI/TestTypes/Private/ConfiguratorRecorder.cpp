#include "ConfiguratorRecorder.h"

#include "UserWidget/Configurator/HxConfiguratorListElement.h"

FString UConfiguratorRecorder::Take()
{
	const FString Told = Story;
	Story.Reset();
	return Told;
}

void UConfiguratorRecorder::ReceivedIndex(int32 NewIndexVariant)
{
	Story += FString::Printf(TEXT("index %d; "), NewIndexVariant);
}

void UConfiguratorRecorder::ReceivedElement(UHxConfiguratorListElement* ConfiguratorListElement)
{
	Story += TEXT("clicked ") + ConfiguratorListElement->ItemData.KeyName.ToString() + TEXT("; ");
}

#include "Configurator/HalvexLevelVariantSetsActor.h"

#include "Configurator/HalvexConfiguratorDataAsset.h"
#include "Configurator/HalvexVariantHandler.h"

void AHalvexLevelVariantSetsActor::SetCatalogue(UHalvexConfiguratorDataAsset* Catalogue)
{
	if (!VariantHandler && Catalogue)
	{
		VariantHandler = NewObject<UHalvexVariantHandler>(this);
	}
	if (VariantHandler)
	{
		VariantHandler->SetVariantConfigurator(Catalogue);
	}
}

void AHalvexLevelVariantSetsActor::BeginPlay()
{
	Super::BeginPlay();
	if (!VariantHandler)
	{
		SetCatalogue(StartCatalogue);
	}
}

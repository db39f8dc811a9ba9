#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "Visual.generated.h"

/** Base of the objects that stand for something in Slate. */
UCLASS(DefaultToInstanced, MinimalAPI)
class UVisual : public UObject
{
	GENERATED_BODY()

public:
	/**
	 * Drops what the object holds of Slate. An override calls Super's first.
	 * @param bReleaseChildren drops what the children hold too
	 */
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) { (void)bReleaseChildren; }

	UMG_API virtual void BeginDestroy() override
	{
		Super::BeginDestroy();
		ReleaseSlateResources(true);
	}
};

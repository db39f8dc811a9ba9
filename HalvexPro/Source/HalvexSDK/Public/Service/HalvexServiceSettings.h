#pragma once

#include "CoreMinimal.h"
#include "Engine/DeveloperSettings.h"
#include "UObject/Class.h"
#include "HalvexServiceSettings.generated.h"

/** Where the service is, and what is accepted of it. */
UCLASS(Config = Halvex, DefaultConfig, meta = (DisplayName = "Halvex Service"))
class HALVEXSDK_API UHalvexServiceSettings : public UDeveloperSettings
{
	GENERATED_BODY()

public:
	UHalvexServiceSettings();

	/** Address that the paths of the service start from, of http or https: https://example.org/quayside. Without one there is no service. */
	UPROPERTY(EditAnywhere, Config, Category = "Service")
	FString ServiceAddress;

	/** Seconds that a request may take as a whole. */
	UPROPERTY(EditAnywhere, Config, Category = "Service", meta = (ClampMin = "0.1"))
	float RequestTimeout = 15.0f;

	/** Bytes of the largest answer that is accepted. */
	UPROPERTY(EditAnywhere, Config, Category = "Service", meta = (ClampMin = "1"))
	int32 MaxReplyBytes = 256 * 1024;
};

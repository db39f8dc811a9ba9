#pragma once

#include "CoreMinimal.h"
#include "Service/HalvexServiceConnection.h"

/** The service at the address of the settings, over HTTP. */
class FHalvexHttpServiceConnection final : public IHalvexServiceConnection
{
public:
	virtual TSharedRef<IHalvexServiceExchange> Send(const FHalvexServiceRequest& Request, FCallback Callback) override;
	virtual FString GetServiceName() const override;
	virtual FString ResolveAddress(const FString& Address) const override;
};

#pragma once

#include "CoreMinimal.h"
#include "Interfaces/IHttpRequest.h"
#include "Modules/ModuleInterface.h"

/**
 * Makes HTTP requests. Section [HTTP] of the engine's configuration: HttpTotalTimeout, HttpConnectionTimeout and
 * HttpActivityTimeout in seconds, HttpMaxConnectionsPerServer. Requests beyond that number wait for their turn.
 */
class FHttpModule : public IModuleInterface
{
public:
	HTTP_API static FHttpModule& Get();

	/** A new request, to be set up and processed. */
	HTTP_API virtual TSharedRef<IHttpRequest, ESPMode::ThreadSafe> CreateRequest();

	/** Seconds for a whole request; 0 for any time. */
	float GetHttpTotalTimeout() const { return HttpTotalTimeout; }
	/** Seconds until the server must have accepted the connection. */
	float GetHttpConnectionTimeout() const { return HttpConnectionTimeout; }
	/** Seconds without a byte; 0 for any time. */
	float GetHttpActivityTimeout() const { return HttpActivityTimeout; }
	int32 GetHttpMaxConnectionsPerServer() const { return HttpMaxConnectionsPerServer; }

	virtual void StartupModule() override;
	virtual void ShutdownModule() override;

private:
	float HttpTotalTimeout = 0.0f;
	float HttpConnectionTimeout = 30.0f;
	float HttpActivityTimeout = 30.0f;
	int32 HttpMaxConnectionsPerServer = 16;
	FDelegateHandle ExitHandle;
};

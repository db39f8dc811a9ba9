#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintAsyncActionBase.h"
#include "HalvexImageAction.generated.h"

/**
 * Work on pictures that ends later. It is kept alive while it runs, whether or not somebody refers to it, and given up when
 * all who listened to its events are gone.
 */
UCLASS(Abstract)
class HALVEXSDK_API UHalvexImageAction : public UBlueprintAsyncActionBase
{
	GENERATED_BODY()

public:
	/** Gives the work up. Its events tell so; nothing happens when it has ended or was not begun. */
	UFUNCTION(BlueprintCallable, Category = "HalvexImage")
	virtual void Cancel();

	/** Whether it was begun and has not ended. */
	UFUNCTION(BlueprintPure, Category = "HalvexImage")
	bool IsRunning() const { return bRunning; }

	/** Gives the work up when those who listened when it began are gone. */
	void CancelIfAbandoned();

protected:
	/** Whether anyone who is alive would hear of the end. */
	virtual bool HasListeners() const;

	/** Marks the begin, and the end. */
	void BeginRun();
	void EndRun();

private:
	bool bRunning = false;
	bool bHadListeners = false;
};

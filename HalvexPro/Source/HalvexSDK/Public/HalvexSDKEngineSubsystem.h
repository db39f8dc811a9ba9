#pragma once

#include "CoreMinimal.h"
#include "Subsystems/EngineSubsystem.h"
#include "HalvexSDKEngineSubsystem.generated.h"

class IHalvexServiceConnection;
class UHalvexProjectRequestManager;
class UHalvexUser;

/** The service side of the whole program: what the user has been given of it. */
UCLASS()
class HALVEXSDK_API UHalvexSDKEngineSubsystem : public UEngineSubsystem
{
	GENERATED_BODY()

public:
	/** The subsystem; null when there is no engine. */
	static UHalvexSDKEngineSubsystem* Get();

	virtual void Initialize(FSubsystemCollectionBase& Collection) override;
	virtual void Deinitialize() override;

	/** Keeps the project that the user looks at. */
	UFUNCTION(BlueprintCallable, Category = "HalvexSDK")
	UHalvexProjectRequestManager* GetUserRequestManager() const { return RequestManager; }

	/** The user of this program, signed in or not; may be null. */
	UFUNCTION(BlueprintPure, Category = "HalvexSDK")
	UHalvexUser* GetHalvexUser() const { return HalvexUser; }

	/** Puts another user in the place, such as one of a derived class. Do so before widgets exist: they stay bound to the one they found. */
	void SetHalvexUser(UHalvexUser* InHalvexUser);

	/** The way to the service. */
	const TSharedRef<IHalvexServiceConnection>& GetServiceConnection() const { return ServiceConnection; }

	/** Goes to another service from now on; null stands for the one of the settings. The user's session, which is of the service before, ends. */
	void SetServiceConnection(const TSharedPtr<IHalvexServiceConnection>& InServiceConnection);

private:
	UPROPERTY()
	TObjectPtr<UHalvexProjectRequestManager> RequestManager;

	UPROPERTY()
	TObjectPtr<UHalvexUser> HalvexUser;

	TSharedRef<IHalvexServiceConnection> ServiceConnection = MakeDefaultConnection();

	static TSharedRef<IHalvexServiceConnection> MakeDefaultConnection();
};

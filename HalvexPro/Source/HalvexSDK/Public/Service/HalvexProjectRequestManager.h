#pragma once

#include "CoreMinimal.h"
#include "Project/ProjectData.h"
#include "Service/ProjectRequestModels.h"
#include "UObject/Object.h"
#include "HalvexProjectRequestManager.generated.h"

class UProjectWrapper;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnManagerDataUpdated, EUpdateRequestDataType, DataType, EUpdateRequestType, UpdateRequestType);

/**
 * Keeps the project that the user looks at, and tells what changes in it. It fetches nothing itself: who reads a project from a
 * folder or an address hands it over.
 */
UCLASS(BlueprintType)
class HALVEXSDK_API UHalvexProjectRequestManager : public UObject
{
	GENERATED_BODY()

public:
	/** Raised when anything of EUpdateRequestDataType has changed, after the change. */
	UPROPERTY(BlueprintAssignable, Category = "ProjectRequestManager")
	FOnManagerDataUpdated OnManagerDataUpdated;

	virtual void PostInitProperties() override;

	UFUNCTION(BlueprintCallable, Category = "ProjectRequestManager")
	TEnumAsByte<EProjectManagerState> GetStateProcess() const { return State; }

	/** The project; never null, and without units and groups while none is there. Another object with each project. */
	UFUNCTION(BlueprintCallable, Category = "ProjectRequestManager")
	UProjectWrapper* GetProjectWrapper() const { return ProjectWrapper; }

	/** To be called when the fetching begins. The project from before stays until another takes its place. */
	UFUNCTION(BlueprintCallable, Category = "ProjectRequestManager")
	void NotifyLoading();

	/** To be called when the project that was asked for cannot be had; that from before stays. */
	UFUNCTION(BlueprintCallable, Category = "ProjectRequestManager")
	void NotifyFailed();

	/** Takes a project over, in place of the one before; targets are forgotten. */
	UFUNCTION(BlueprintCallable, Category = "ProjectRequestManager")
	void ReceiveProject(FProjectData Project);

	/** Lets go of the project; the state is that of the beginning. */
	UFUNCTION(BlueprintCallable, Category = "ProjectRequestManager")
	void ClearProject();

private:
	void SetState(EProjectManagerState NewState);
	/** Puts a project, or an empty one, in the place of the one before, and then tells of all that has come and gone. */
	void Exchange(UProjectWrapper& NewWrapper, bool bIsThere);
	void ReceivedProjectUpdate(EUpdateRequestDataType DataType, EUpdateRequestType UpdateRequestType);

	UPROPERTY()
	TObjectPtr<UProjectWrapper> ProjectWrapper;

	TEnumAsByte<EProjectManagerState> State = EPMS_Idle;
	bool bHasProject = false;
};

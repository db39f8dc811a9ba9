#pragma once

#include "CoreMinimal.h"
#include "Project/ProjectData.h"
#include "Service/ProjectRequestModels.h"
#include "UObject/Object.h"
#include "ProjectWrapper.generated.h"

class UUnitGroupWrapper;

DECLARE_MULTICAST_DELEGATE_TwoParams(FOnProjectUpdated, EUpdateRequestDataType, EUpdateRequestType);

/** A project with its groups of units, and what the user is busy with in it. */
UCLASS(BlueprintType)
class HALVEXSDK_API UProjectWrapper : public UObject
{
	GENERATED_BODY()

public:
	/** Raised when a target has changed; for the request manager, which others listen to. */
	FOnProjectUpdated OnUpdated;

	/** Takes the project over and divides its units into groups; to be called once. */
	void Initialize(FProjectData InProject);

	const FProjectData& GetProject() const { return Project; }

	/** Whether there is anything that units can be configured with. */
	UFUNCTION(BlueprintCallable, Category = "ProjectWrapper")
	bool HasCatalogue() const { return !Project.Catalogue.Categories.IsEmpty(); }

	UFUNCTION(BlueprintCallable, Category = "ProjectWrapper")
	const FConfiguratorCatalogue& GetCatalogue() const { return Project.Catalogue; }

	/** In the order of the project; last, if there are such units, a group without a key of those that belong to none of them. */
	UFUNCTION(BlueprintCallable, Category = "ProjectWrapper")
	TArray<UUnitGroupWrapper*> GetUnitGroups() const { return ObjectPtrDecay(UnitGroups); }

	/** Null when there is no such group. */
	UFUNCTION(BlueprintCallable, Category = "ProjectWrapper")
	UUnitGroupWrapper* FindUnitGroup(FName GroupId) const;

	/** Whether the user is busy with a group of units. */
	UFUNCTION(BlueprintCallable, Category = "ProjectWrapper")
	bool HasUnitGroupTarget() const { return UnitGroupTarget != nullptr; }

	/** The group that the user is busy with; null when there is none. */
	UFUNCTION(BlueprintCallable, Category = "ProjectWrapper")
	UUnitGroupWrapper* GetUnitGroupTarget() const { return UnitGroupTarget; }

	/** Makes a group the target. @return false, with nothing changed, when there is no such group */
	UFUNCTION(BlueprintCallable, Category = "ProjectWrapper")
	bool SetUnitGroupTarget(FName GroupId);

	UFUNCTION(BlueprintCallable, Category = "ProjectWrapper")
	void ClearUnitGroupTarget();

	/** Whether the group that is the target has a unit that the configurator is about. */
	UFUNCTION(BlueprintCallable, Category = "ProjectWrapper")
	bool HasConfiguratorTarget() const;

	/** Makes a unit the target of the configurator, and its group the target. @return false, with nothing changed, when there is no such unit */
	UFUNCTION(BlueprintCallable, Category = "ProjectWrapper")
	bool SetConfiguratorTarget(FName UnitId);

	/** Whether the target of the configurator has rooms to show, and there is anything to choose. */
	UFUNCTION(BlueprintCallable, Category = "ProjectWrapper")
	bool CanConfigureTarget() const;

	/** Opens the configurator for its target; it closes when that is there no longer. @return false, with nothing changed, when the target cannot be configured */
	UFUNCTION(BlueprintCallable, Category = "ProjectWrapper")
	bool OpenConfigurator();

	UFUNCTION(BlueprintCallable, Category = "ProjectWrapper")
	void CloseConfigurator();

	UFUNCTION(BlueprintCallable, Category = "ProjectWrapper")
	bool IsConfiguratorOpen() const { return bConfiguratorOpen; }

	/** The interior of the configurator's target; null when it has none. */
	const FProjectInterior* FindTargetInterior() const;

	/** For the configurator of a group: its target has changed. */
	void ReceivedConfiguratorTarget(const UUnitGroupWrapper& UnitGroup, bool bWasThere);

	/** What has become of a thing that was or is there. */
	static EUpdateRequestType GetUpdateType(bool bWasThere, bool bIsThere);

private:
	void ExchangeUnitGroupTarget(UUnitGroupWrapper* UnitGroup);
	void AnnounceConfiguratorTarget(bool bWasThere);

	UPROPERTY()
	FProjectData Project;

	UPROPERTY()
	TArray<TObjectPtr<UUnitGroupWrapper>> UnitGroups;

	UPROPERTY()
	TObjectPtr<UUnitGroupWrapper> UnitGroupTarget;

	bool bConfiguratorOpen = false;
};

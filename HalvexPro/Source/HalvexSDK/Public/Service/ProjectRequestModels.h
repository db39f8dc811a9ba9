#pragma once

#include "CoreMinimal.h"
#include "ProjectRequestModels.generated.h"

/** How far the request for a project has come. Screens rely on the numbers. */
UENUM(BlueprintType)
enum EProjectManagerState : int
{
	/** No project was asked for. */
	EPMS_Idle = 0 UMETA(DisplayName = "Idle"),
	/** A project is under way. */
	EPMS_Loading = 1 UMETA(DisplayName = "Loading"),
	/** The project is there. */
	EPMS_Loaded = 2 UMETA(DisplayName = "Loaded"),
	/** The project that was asked for cannot be had. */
	EPMS_Failed = 3 UMETA(DisplayName = "Failed")
};

/** What an update is about. Screens rely on the numbers. */
UENUM(BlueprintType)
enum class EUpdateRequestDataType : uint8
{
	/** How far the request has come. */
	State = 0,
	Project = 1,
	/** The catalogue of the configurator. */
	Catalogue = 2,
	/** The group of units that the user is busy with. */
	UnitGroupTarget = 3,
	/** The unit that the configurator is about. */
	ConfiguratorTarget = 4,
	/** Whether that unit is being configured: the configurator is open. */
	OpenConfigurator = 5
};

/** What has become of it. */
UENUM(BlueprintType)
enum class EUpdateRequestType : uint8
{
	/** It is there, and was not before. */
	Added,
	/** It is another than before. */
	Changed,
	/** It is there no longer. */
	Removed
};

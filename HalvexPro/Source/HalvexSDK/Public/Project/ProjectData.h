#pragma once

#include "CoreMinimal.h"
#include "Project/ConfiguratorCatalogue.h"
#include "Project/ProjectInterior.h"
#include "Records/UnitData.h"
#include "Records/UnitVolumeShape.h"
#include "ProjectData.generated.h"

/** A unit of a project and the space it takes; a unit without a volume is in lists only. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FProjectUnit
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectUnit")
	FUnitData Data;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectUnit")
	FUnitVolumeShape Volume;
};

/** What units belong to together: most often a building. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FProjectGroup
{
	GENERATED_BODY()

	/** Key of the group, unique among the groups of its project. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectGroup")
	FName GroupId;

	/** What people call it. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectGroup")
	FString Name;

	/** Key of the image that shows it; none when there is none. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectGroup")
	FName Image;
};

/** A picture of a project. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FProjectImage
{
	GENERATED_BODY()

	/** Key of the image, unique among the images of its project. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectImage")
	FName ImageId;

	/** Where it is: an address, or a path from the folder of the project file that does not leave that folder. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectImage")
	FString Address;

	/** What it shows, for those who cannot see it. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectImage")
	FString Title;
};

/** A place in the scene that shows a widget. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FProjectSpot
{
	GENERATED_BODY()

	/** Key of the spot, unique among the spots of its project. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectSpot")
	FName SpotId;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectSpot")
	FString Title;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectSpot")
	FString Description;

	/** Key of its image; none when there is none. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectSpot")
	FName Image;

	/** In centimetres. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectSpot")
	FVector Location = FVector::ZeroVector;
};

/** A building project as the service delivers it. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FProjectData
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Project")
	FName ProjectId;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Project")
	FString Name;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Project")
	FString Description;

	/** The folder that the project was read from, or the address of that folder, with "/" at its end; its pictures lie there. */
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Project")
	FString Source;

	/** Currency of the units that name none of their own. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Project")
	FName Currency;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Project")
	TArray<FProjectGroup> Groups;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Project")
	TArray<FProjectImage> Images;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Project")
	TArray<FProjectSpot> Spots;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Project")
	TArray<FProjectUnit> Units;

	/** The rooms of its kinds of units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Project")
	TArray<FProjectInterior> Interiors;

	/** What its units can be configured with. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Project")
	FConfiguratorCatalogue Catalogue;
};

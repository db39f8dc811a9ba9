#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "DeveloperSettings.generated.h"

/**
 * Base of settings that a project chooses once. Values live in the class default object and come from the class's
 * configuration file. A settings screen finds the classes by themselves and files them as container, category, section.
 */
UCLASS(Abstract)
class DEVELOPERSETTINGS_API UDeveloperSettings : public UObject
{
	GENERATED_BODY()

public:
	UDeveloperSettings(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** "Project" for settings that belong to the project. */
	virtual FName GetContainerName() const;

	/** The category set in the constructor, else "Engine". */
	virtual FName GetCategoryName() const;

	/** The section set in the constructor, else the name of the class. */
	virtual FName GetSectionName() const;

#if WITH_EDITOR
	/** Title of the section: the display name of the class. */
	virtual FText GetSectionText() const;

	/** Tooltip of the section: the comment of the class. */
	virtual FText GetSectionDescription() const;
#endif

protected:
	/** Category to use instead of the default; set it in the constructor. */
	FName CategoryName;

	/** Section to use instead of the default; set it in the constructor. */
	FName SectionName;
};

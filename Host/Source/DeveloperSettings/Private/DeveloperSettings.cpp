#include "Engine/DeveloperSettings.h"

#include "UObject/Class.h"

UDeveloperSettings::UDeveloperSettings(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

FName UDeveloperSettings::GetContainerName() const
{
	return TEXT("Project");
}

FName UDeveloperSettings::GetCategoryName() const
{
	return CategoryName.IsNone() ? FName(TEXT("Engine")) : CategoryName;
}

FName UDeveloperSettings::GetSectionName() const
{
	return SectionName.IsNone() ? GetClass()->GetFName() : SectionName;
}

#if WITH_EDITOR
FText UDeveloperSettings::GetSectionText() const
{
	return GetClass()->GetDisplayNameText();
}

FText UDeveloperSettings::GetSectionDescription() const
{
	return GetClass()->GetToolTipText();
}
#endif

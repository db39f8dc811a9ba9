#pragma once

#include "CoreMinimal.h"
#include "Filters/UnitFilterSet.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "UnitFilterSetLibrary.generated.h"

/**
 * The user's own sets of filters, one file each in Saved/Filters, and sets that come and go as files. Names are the same whatever
 * their case. What fails is one line in the log.
 */
UCLASS()
class HALVEXPRO_API UUnitFilterSetLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** The names of all kept sets in alphabetical order. */
	UFUNCTION(BlueprintCallable, Category = "UnitFilterSets")
	static TArray<FString> ListFilterSets();

	UFUNCTION(BlueprintCallable, Category = "UnitFilterSets")
	static bool HasFilterSet(const FString& Name);

	/** Keeps a set in place of one of the same name. False when it has no name or could not be written. */
	UFUNCTION(BlueprintCallable, Category = "UnitFilterSets")
	static bool SaveFilterSet(const FUnitFilterSet& Set);

	/** Reads a kept set. False when there is none of that name. */
	UFUNCTION(BlueprintCallable, Category = "UnitFilterSets")
	static bool LoadFilterSet(const FString& Name, FUnitFilterSet& OutSet);

	/** Forgets a kept set. False when there is none of that name. */
	UFUNCTION(BlueprintCallable, Category = "UnitFilterSets")
	static bool DeleteFilterSet(const FString& Name);

	/** Gives a kept set another name. False when there is none, or one of the new name already. */
	UFUNCTION(BlueprintCallable, Category = "UnitFilterSets")
	static bool RenameFilterSet(const FString& Name, const FString& NewName);

	/** Writes a set to a file that others can be given. A path without an extension gets ".json". */
	UFUNCTION(BlueprintCallable, Category = "UnitFilterSets")
	static bool ExportFilterSet(const FUnitFilterSet& Set, const FString& Filename);

	/** Reads a set from a file. One without a name gets that of the file. Nothing is kept. */
	UFUNCTION(BlueprintCallable, Category = "UnitFilterSets")
	static bool ImportFilterSet(const FString& Filename, FUnitFilterSet& OutSet);

	/** Where files for others are suggested: a path in the user's folder, with a name that any file system takes. */
	UFUNCTION(BlueprintCallable, Category = "UnitFilterSets")
	static FString SuggestFilename(const FString& Name, const FString& FileExtension);
};

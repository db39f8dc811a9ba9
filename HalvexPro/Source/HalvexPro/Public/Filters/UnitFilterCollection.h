#pragma once

#include "CoreMinimal.h"
#include "Filters/UnitFilter.h"
#include "UObject/Object.h"
#include "UnitFilterCollection.generated.h"

/** Raised when the units that the collection lets pass may be others than before. */
DECLARE_MULTICAST_DELEGATE(FOnUnitFilterCollectionChange);

/**
 * Filters that belong together: a unit passes when it passes all of them. A filter manager evaluates the collections that are
 * registered with it. While a collection is being initialised, it stops nothing and its changes cause no evaluation.
 */
UCLASS(BlueprintType)
class HALVEXPRO_API UUnitFilterCollection : public UObject
{
	GENERATED_BODY()

public:
	/**
	 * Makes a collection.
	 * @param InFilters the filters to begin with; null ones stop nothing
	 * @param bStartOnInitialization whether the collection waits for FinishInitialization before it filters
	 */
	UFUNCTION(BlueprintCallable, Category = "UnitFilterCollection")
	static UUnitFilterCollection* CreateUnitFilterCollection(TArray<UUnitFilter*> InFilters, bool bStartOnInitialization);

	/** Takes the filters in place of those held so far. Registered managers evaluate at once, also when the filters are the same. */
	UFUNCTION(BlueprintCallable, Category = "UnitFilterCollection")
	void ReplaceFilters(TArray<UUnitFilter*> InFilters);

	/** In their order, null ones included. */
	UFUNCTION(BlueprintCallable, Category = "UnitFilterCollection")
	TArray<UUnitFilter*> GetFilters() const { return ObjectPtrDecay(Filters); }

	UFUNCTION(BlueprintCallable, Category = "UnitFilterCollection")
	bool IsOnInitialization() const { return bOnInitialization; }

	/** Lets the collection filter from now on; nothing happens when it does already. */
	UFUNCTION(BlueprintCallable, Category = "UnitFilterCollection")
	void FinishInitialization();

	/** For filter managers. */
	FOnUnitFilterCollectionChange OnChange;

private:
	UPROPERTY()
	TArray<TObjectPtr<UUnitFilter>> Filters;

	bool bOnInitialization = false;
};

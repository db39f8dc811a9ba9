#pragma once

#include "CoreMinimal.h"
#include "HalvexConfigProduct.generated.h"

/** A product that a unit can be configured with. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FHalvexConfigProduct
{
	GENERATED_BODY()

	/** Key of the product, unique in its catalogue. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexConfigProduct")
	FName ProductKey;

	/** What people call the product. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexConfigProduct")
	FString Name;

	/** Who makes it; empty when that is not told. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexConfigProduct")
	FString Maker;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexConfigProduct")
	FString Description;

	/** Key of the project's image that shows it; none when there is none. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexConfigProduct")
	FName Image;

	/** Currency of the price by its ISO 4217 code: "EUR". */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexConfigProduct")
	FName Currency;

	/** What it costs beyond the unit's price, in whole units of the currency; 0 for what is included. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexConfigProduct", meta = (ClampMin = "0"))
	double Price = 0.0;
};

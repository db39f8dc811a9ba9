#pragma once

#include "CoreMinimal.h"
#include "Blueprint/IUserObjectListEntry.h"
#include "Blueprint/UserWidget.h"
#include "BenchmarkListEntry.generated.h"

class UTextBlock;

/** A unit of a project, as a list shows it. */
UCLASS()
class HALVEXPROUIBENCHMARKTYPES_API UBenchmarkListItem : public UObject
{
	GENERATED_BODY()

public:
	FText Name;
	FText Price;
};

/** An entry with two texts. */
UCLASS()
class HALVEXPROUIBENCHMARKTYPES_API UBenchmarkListEntry : public UUserWidget, public IUserObjectListEntry
{
	GENERATED_BODY()

public:
	static int32 NumMade;

protected:
	virtual void NativeOnInitialized() override;
	virtual void NativeOnListItemObjectSet(UObject* ListItemObject) override;

private:
	UPROPERTY()
	TObjectPtr<UTextBlock> NameText;

	UPROPERTY()
	TObjectPtr<UTextBlock> PriceText;
};

/** A screen of nothing but a list. */
UCLASS()
class HALVEXPROUIBENCHMARKTYPES_API UBenchmarkListScreen : public UUserWidget
{
	GENERATED_BODY()
};

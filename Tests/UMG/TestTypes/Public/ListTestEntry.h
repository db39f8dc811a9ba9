#pragma once

#include "CoreMinimal.h"
#include "Blueprint/IUserObjectListEntry.h"
#include "Blueprint/UserWidget.h"
#include "ListTestEntry.generated.h"

/** An item of a list, by number. */
UCLASS()
class UMGTESTTYPES_API UListTestItem : public UObject
{
	GENERATED_BODY()

public:
	int32 Number = 0;
};

/** An entry, 40 units high, that writes down what it is told. */
UCLASS()
class UMGTESTTYPES_API UListTestEntry : public UUserWidget, public IUserObjectListEntry
{
	GENERATED_BODY()

public:
	/** What all entries were told, each with the number of its item. */
	static TArray<FString> Events;
	static int32 NumConstructed;
	static int32 NumDestructed;

	/** The number of the item that it was given last. */
	int32 Shown = -1;

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;
	virtual void NativeConstruct() override;
	virtual void NativeDestruct() override;
	virtual void NativeOnListItemObjectSet(UObject* ListItemObject) override;
	virtual void NativeOnItemSelectionChanged(bool bIsSelected) override;
	virtual void NativeOnItemExpansionChanged(bool bIsExpanded) override;
	virtual void NativeOnEntryReleased() override;

private:
	void Note(const TCHAR* What);
};

/** An entry that knows nothing of items. */
UCLASS()
class UMGTESTTYPES_API UListTestNoEntry : public UUserWidget
{
	GENERATED_BODY()
};

/** Is told what graphs are told. */
UCLASS()
class UMGTESTTYPES_API UListTestListener : public UObject
{
	GENERATED_BODY()

public:
	TArray<FString> Events;

	/** What is in the items of a tree: the first two are in item 0, the third is in the second. */
	UPROPERTY()
	TArray<TObjectPtr<UListTestItem>> Children;

	void GetChildren(UObject* Item, TArray<UObject*>& OutChildren) const;

	UFUNCTION()
	void OnClicked(UObject* Item);
	UFUNCTION()
	void OnSelection(UObject* Item, bool bIsSelected);
};

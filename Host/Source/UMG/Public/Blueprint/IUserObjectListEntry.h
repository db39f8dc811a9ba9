#pragma once

#include "CoreMinimal.h"
#include "Blueprint/IUserListEntry.h"
#include "Templates/Casts.h"
#include "IUserObjectListEntry.generated.h"

/** What user widgets implement that lists of objects use. */
UINTERFACE(MinimalAPI, Blueprintable)
class UUserObjectListEntry : public UUserListEntry
{
	GENERATED_BODY()
};

/** An entry of a list whose items are objects. */
class UMG_API IUserObjectListEntry : public IUserListEntry
{
	GENERATED_BODY()

public:
	/** The item that this shows; null while it shows none, or one of another class. */
	template <typename ItemObjectT = UObject>
	ItemObjectT* GetListItem() const
	{
		return Cast<ItemObjectT>(GetListItemObjectInternal());
	}

	/** For lists: gives an entry its item, whether it implements the interface natively or by a graph. */
	static void SetListItemObject(UUserWidget& ListEntryWidget, UObject* ListItemObject);

protected:
	/** The entry shows that item from now on. The base version raises the event of the graph. */
	virtual void NativeOnListItemObjectSet(UObject* ListItemObject);

	/** The entry shows that item from now on. */
	UFUNCTION(BlueprintImplementableEvent, Category = "UserObjectListEntry")
	void OnListItemObjectSet(UObject* ListItemObject);

private:
	UObject* GetListItemObjectInternal() const;
};

/** What graphs ask an entry of a list of objects for. */
UCLASS(MinimalAPI)
class UUserObjectListEntryLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** The item that the entry shows. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "UserObjectListEntry", meta = (DefaultToSelf = "UserObjectListEntry"))
	static UMG_API UObject* GetListItemObject(TScriptInterface<IUserObjectListEntry> UserObjectListEntry);
};

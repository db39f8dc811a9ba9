#pragma once

#include "CoreMinimal.h"
#include "Components/PanelSlot.h"
#include "Components/Widget.h"
#include "PanelWidget.generated.h"

/** Base of widgets that hold other widgets. */
UCLASS(Abstract, MinimalAPI)
class UPanelWidget : public UWidget
{
	GENERATED_BODY()

public:
	UMG_API UPanelWidget(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UMG_API int32 GetChildrenCount() const;

	/** The child at the index; null out of range. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UMG_API UWidget* GetChildAt(int32 Index) const;

	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UMG_API TArray<UWidget*> GetAllChildren() const;

	/** Index of the child; -1 when it is none. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UMG_API int32 GetChildIndex(const UWidget* Content) const;

	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UMG_API bool HasChild(UWidget* Content) const;

	/** Removes the child at the index; false out of range. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UMG_API bool RemoveChildAt(int32 Index);

	/** Adds a child at the end, taking it out of the panel it was in. Null when the panel takes no more. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UMG_API UPanelSlot* AddChild(UWidget* Content);

	/** As AddChild, at an index. The children behind it are built anew. */
	UMG_API UPanelSlot* InsertChildAt(int32 Index, UWidget* Content);

	/** Removes the child; false when it is none. */
	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UMG_API bool RemoveChild(UWidget* Content);

	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UMG_API bool HasAnyChildren() const;

	UFUNCTION(BlueprintCallable, Category = "Widget|Panel")
	UMG_API virtual void ClearChildren();

	UMG_API const TArray<UPanelSlot*>& GetSlots() const { return ObjectPtrDecay(Slots); }

	UMG_API bool CanHaveMultipleChildren() const { return bCanHaveMultipleChildren; }

	UMG_API bool CanAddMoreChildren() const { return CanHaveMultipleChildren() || GetChildrenCount() == 0; }

	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;
	UMG_API virtual void SetDesignerFlags(EWidgetDesignFlags NewFlags) override;

protected:
	/** The class of the panel's slots. */
	UMG_API virtual UClass* GetSlotClass() const { return UPanelSlot::StaticClass(); }

	/** Called after a slot was added: builds it into the live Slate side. */
	UMG_API virtual void OnSlotAdded(UPanelSlot* InSlot) { (void)InSlot; }

	/** Called after a slot was removed: takes it out of the live Slate side. */
	UMG_API virtual void OnSlotRemoved(UPanelSlot* InSlot) { (void)InSlot; }

	/** The slots, in the order of the children. */
	UPROPERTY(Instanced)
	TArray<TObjectPtr<UPanelSlot>> Slots;

	/** Whether the panel takes more than one child. */
	bool bCanHaveMultipleChildren = true;

private:
	/** Takes apart a slot that is no longer among the slots. */
	void ReleaseSlot(UPanelSlot& RemovedSlot);
};

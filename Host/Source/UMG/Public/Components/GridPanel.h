#pragma once

#include "CoreMinimal.h"
#include "Components/PanelWidget.h"
#include "GridPanel.generated.h"

class SGridPanel;
class UGridSlot;

/** Lays its children out in rows and columns that are as large as their largest child, or share the rest of the room. */
UCLASS(MinimalAPI)
class UGridPanel : public UPanelWidget
{
	GENERATED_BODY()

public:
	/** Shares of the rest of the room that the columns get; a column without one, or with 0, is as wide as its content. */
	UPROPERTY(EditAnywhere, Category = "Fill Rules")
	TArray<float> ColumnFill;

	/** Shares of the rest of the room that the rows get; a row without one, or with 0, is as high as its content. */
	UPROPERTY(EditAnywhere, Category = "Fill Rules")
	TArray<float> RowFill;

	UMG_API UGridPanel(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Adds a child in a cell. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API UGridSlot* AddChildToGrid(UWidget* Content, int32 InRow = 0, int32 InColumn = 0);

	UFUNCTION(BlueprintCallable, Category = "Fill Rules")
	UMG_API void SetColumnFill(int32 ColumnIndex, float Coefficient);

	UFUNCTION(BlueprintCallable, Category = "Fill Rules")
	UMG_API void SetRowFill(int32 RowIndex, float Coefficient);

	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;
	UMG_API virtual void SynchronizeProperties() override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual UClass* GetSlotClass() const override;
	UMG_API virtual void OnSlotAdded(UPanelSlot* InSlot) override;
	UMG_API virtual void OnSlotRemoved(UPanelSlot* InSlot) override;
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;

	TSharedPtr<SGridPanel> MyGridPanel;
};

#pragma once

#include "CoreMinimal.h"
#include "Components/PanelSlot.h"
#include "Components/SlateWrapperTypes.h"
#include "Layout/Margin.h"
#include "Types/SlateEnums.h"
#include "Widgets/Layout/SGridPanel.h"
#include "GridSlot.generated.h"

/** Place of a child in a grid. */
UCLASS(MinimalAPI)
class UGridSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UMG_API UGridSlot(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	FMargin GetPadding() const { return Padding; }

	/** Sets the room around the content, in Slate units. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Grid Slot")
	UMG_API void SetPadding(FMargin InPadding);

	EHorizontalAlignment GetHorizontalAlignment() const { return HorizontalAlignment; }

	UFUNCTION(BlueprintCallable, Category = "Layout|Grid Slot")
	UMG_API void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	EVerticalAlignment GetVerticalAlignment() const { return VerticalAlignment; }

	UFUNCTION(BlueprintCallable, Category = "Layout|Grid Slot")
	UMG_API void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);

	UFUNCTION(BlueprintCallable, Category = "Layout|Grid Slot")
	UMG_API void SetRow(int32 InRow);

	UFUNCTION(BlueprintCallable, Category = "Layout|Grid Slot")
	UMG_API void SetRowSpan(int32 InRowSpan);

	UFUNCTION(BlueprintCallable, Category = "Layout|Grid Slot")
	UMG_API void SetColumn(int32 InColumn);

	UFUNCTION(BlueprintCallable, Category = "Layout|Grid Slot")
	UMG_API void SetColumnSpan(int32 InColumnSpan);

	UFUNCTION(BlueprintCallable, Category = "Layout|Grid Slot")
	UMG_API void SetLayer(int32 InLayer);

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

	/** Adds the content to the Slate panel. */
	UMG_API void BuildSlot(TSharedRef<SGridPanel> Panel);

private:
	/** Row of the upper left cell. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Grid Slot", meta = (UIMin = "0", AllowPrivateAccess = "true"))
	int32 Row = 0;

	/** Number of rows. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Grid Slot", meta = (UIMin = "0", AllowPrivateAccess = "true"))
	int32 RowSpan = 1;

	/** Column of the upper left cell. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Grid Slot", meta = (UIMin = "0", AllowPrivateAccess = "true"))
	int32 Column = 0;

	/** Number of columns. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Grid Slot", meta = (UIMin = "0", AllowPrivateAccess = "true"))
	int32 ColumnSpan = 1;

	/** Children of a higher layer are drawn above those of a lower one. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Grid Slot", meta = (UIMin = "0", AllowPrivateAccess = "true"))
	int32 Layer = 0;

	/** Room around the content, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Grid Slot", meta = (AllowPrivateAccess = "true"))
	FMargin Padding;

	/** Where the content lies from left to right in the room that it gets. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Grid Slot", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EHorizontalAlignment> HorizontalAlignment = HAlign_Fill;

	/** Where the content lies from top to bottom in the room that it gets. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Grid Slot", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EVerticalAlignment> VerticalAlignment = VAlign_Fill;

	SGridPanel::FSlot* Slot = nullptr;
};

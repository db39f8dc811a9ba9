#pragma once

#include "CoreMinimal.h"
#include "Components/PanelSlot.h"
#include "Widgets/Layout/SConstraintCanvas.h"
#include "CanvasPanelSlot.generated.h"

/** Place of a child on a canvas, without its order. */
USTRUCT(BlueprintType)
struct UMG_API FAnchorData
{
	GENERATED_BODY()

	/** Distances from the anchors, or position and size where the anchors meet, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "AnchorData")
	FMargin Offsets = FMargin(0.0f, 0.0f, 100.0f, 30.0f);

	/** Where on the canvas the child is held, as shares of its size. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "AnchorData")
	FAnchors Anchors = FAnchors(0.0f, 0.0f);

	/** Point of the child that lies at its position, as shares of its size. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "AnchorData")
	FVector2D Alignment = FVector2D(0.0, 0.0);
};

/** Place of a child on a canvas. */
UCLASS(MinimalAPI)
class UCanvasPanelSlot : public UPanelSlot
{
	GENERATED_BODY()

public:
	UMG_API UCanvasPanelSlot(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	const FAnchorData& GetLayout() const { return LayoutData; }

	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	UMG_API void SetLayout(const FAnchorData& InLayoutData);

	/** Sets the position in Slate units, from where the anchors meet. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	UMG_API void SetPosition(FVector2D InPosition);

	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	UMG_API FVector2D GetPosition() const;

	/** Sets the size in Slate units. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	UMG_API void SetSize(FVector2D InSize);

	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	UMG_API FVector2D GetSize() const;

	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	UMG_API void SetOffsets(FMargin InOffset);

	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	UMG_API void SetAnchors(FAnchors InAnchors);

	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	UMG_API void SetAlignment(FVector2D InAlignment);

	/** Sets whether the child has the size that it asks for. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	UMG_API void SetAutoSize(bool InbAutoSize);

	/** Sets the order: higher ones are drawn above lower ones. */
	UFUNCTION(BlueprintCallable, Category = "Layout|Canvas Slot")
	UMG_API void SetZOrder(int32 InZOrder);

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

	/** Adds the content to the Slate canvas. */
	UMG_API void BuildSlot(TSharedRef<SConstraintCanvas> Canvas);

private:
	/** Place on the canvas. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Canvas Slot", meta = (AllowPrivateAccess = "true"))
	FAnchorData LayoutData;

	/** Whether the child has the size that it asks for. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Canvas Slot", meta = (DisplayName = "Size To Content", AllowPrivateAccess = "true"))
	bool bAutoSize = false;

	/** Higher ones are drawn above lower ones. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Layout|Canvas Slot", meta = (AllowPrivateAccess = "true"))
	int32 ZOrder = 0;

	SConstraintCanvas::FSlot* Slot = nullptr;
};

#pragma once

#include "CoreMinimal.h"
#include "Components/ContentWidget.h"
#include "SizeBox.generated.h"

class SBox;

/** Gives one child a size of its own choice. */
UCLASS(MinimalAPI)
class USizeBox : public UContentWidget
{
	GENERATED_BODY()

public:
	UMG_API USizeBox(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	UMG_API void SetWidthOverride(float InWidthOverride);

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	UMG_API void ClearWidthOverride();

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	UMG_API void SetHeightOverride(float InHeightOverride);

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	UMG_API void ClearHeightOverride();

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	UMG_API void SetMinDesiredWidth(float InMinDesiredWidth);

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	UMG_API void ClearMinDesiredWidth();

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	UMG_API void SetMinDesiredHeight(float InMinDesiredHeight);

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	UMG_API void ClearMinDesiredHeight();

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	UMG_API void SetMaxDesiredWidth(float InMaxDesiredWidth);

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	UMG_API void ClearMaxDesiredWidth();

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	UMG_API void SetMaxDesiredHeight(float InMaxDesiredHeight);

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	UMG_API void ClearMaxDesiredHeight();

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	UMG_API void SetMinAspectRatio(float InMinAspectRatio);

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	UMG_API void ClearMinAspectRatio();

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	UMG_API void SetMaxAspectRatio(float InMaxAspectRatio);

	UFUNCTION(BlueprintCallable, Category = "Layout|Size Box")
	UMG_API void ClearMaxAspectRatio();

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;
	UMG_API virtual UClass* GetSlotClass() const override;
	UMG_API virtual void OnSlotAdded(UPanelSlot* InSlot) override;
	UMG_API virtual void OnSlotRemoved(UPanelSlot* InSlot) override;

	TSharedPtr<SBox> MySizeBox;

private:
	UPROPERTY(EditAnywhere, Category = "Child Layout", meta = (InlineEditConditionToggle))
	uint8 bOverride_WidthOverride : 1;

	/** Width that the box asks for, whatever the content wants, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Child Layout", meta = (EditCondition = "bOverride_WidthOverride", AllowPrivateAccess = "true"))
	float WidthOverride = 0.0f;

	UPROPERTY(EditAnywhere, Category = "Child Layout", meta = (InlineEditConditionToggle))
	uint8 bOverride_HeightOverride : 1;

	/** Height that the box asks for, whatever the content wants, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Child Layout", meta = (EditCondition = "bOverride_HeightOverride", AllowPrivateAccess = "true"))
	float HeightOverride = 0.0f;

	UPROPERTY(EditAnywhere, Category = "Child Layout", meta = (InlineEditConditionToggle))
	uint8 bOverride_MinDesiredWidth : 1;

	/** Least width that the box asks for, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Child Layout", meta = (EditCondition = "bOverride_MinDesiredWidth", AllowPrivateAccess = "true"))
	float MinDesiredWidth = 0.0f;

	UPROPERTY(EditAnywhere, Category = "Child Layout", meta = (InlineEditConditionToggle))
	uint8 bOverride_MinDesiredHeight : 1;

	/** Least height that the box asks for, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Child Layout", meta = (EditCondition = "bOverride_MinDesiredHeight", AllowPrivateAccess = "true"))
	float MinDesiredHeight = 0.0f;

	UPROPERTY(EditAnywhere, Category = "Child Layout", meta = (InlineEditConditionToggle))
	uint8 bOverride_MaxDesiredWidth : 1;

	/** Greatest width that the box asks for, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Child Layout", meta = (EditCondition = "bOverride_MaxDesiredWidth", AllowPrivateAccess = "true"))
	float MaxDesiredWidth = 0.0f;

	UPROPERTY(EditAnywhere, Category = "Child Layout", meta = (InlineEditConditionToggle))
	uint8 bOverride_MaxDesiredHeight : 1;

	/** Greatest height that the box asks for, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Child Layout", meta = (EditCondition = "bOverride_MaxDesiredHeight", AllowPrivateAccess = "true"))
	float MaxDesiredHeight = 0.0f;

	UPROPERTY(EditAnywhere, Category = "Child Layout", meta = (InlineEditConditionToggle))
	uint8 bOverride_MinAspectRatio : 1;

	/** Least width of the content in heights. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Child Layout", meta = (EditCondition = "bOverride_MinAspectRatio", AllowPrivateAccess = "true"))
	float MinAspectRatio = 1.0f;

	UPROPERTY(EditAnywhere, Category = "Child Layout", meta = (InlineEditConditionToggle))
	uint8 bOverride_MaxAspectRatio : 1;

	/** Greatest width of the content in heights. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Child Layout", meta = (EditCondition = "bOverride_MaxAspectRatio", AllowPrivateAccess = "true"))
	float MaxAspectRatio = 1.0f;
};

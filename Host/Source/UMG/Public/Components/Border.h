#pragma once

#include "CoreMinimal.h"
#include "Components/ContentWidget.h"
#include "Components/SlateWrapperTypes.h"
#include "Input/Events.h"
#include "Layout/Margin.h"
#include "Styling/SlateBrush.h"
#include "Types/SlateEnums.h"
#include "Border.generated.h"

class SBorder;
class UTexture2D;

DECLARE_DYNAMIC_DELEGATE_RetVal_TwoParams(FEventReply, FOnPointerEvent, FGeometry, MyGeometry, const FPointerEvent&, MouseEvent);

/** A box behind one child, with room around the child. */
UCLASS(MinimalAPI)
class UBorder : public UContentWidget
{
	GENERATED_BODY()

public:
	/** What is drawn behind the child. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (DisplayName = "Brush"))
	FSlateBrush Background;

	/** Colour that the brush is multiplied with. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FLinearColor BrushColor = FLinearColor::White;

	/** Colour that the content is multiplied with. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content")
	FLinearColor ContentColorAndOpacity = FLinearColor::White;

	/** Room around the content, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content")
	FMargin Padding = FMargin(4.0f, 2.0f);

	/** Where the content lies from left to right. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content")
	TEnumAsByte<EHorizontalAlignment> HorizontalAlignment = HAlign_Fill;

	/** Where the content lies from top to bottom. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Content")
	TEnumAsByte<EVerticalAlignment> VerticalAlignment = VAlign_Fill;

	UPROPERTY(EditAnywhere, Category = "Events", meta = (IsBindableEvent = "True"))
	FOnPointerEvent OnMouseButtonDownEvent;

	UPROPERTY(EditAnywhere, Category = "Events", meta = (IsBindableEvent = "True"))
	FOnPointerEvent OnMouseButtonUpEvent;

	UPROPERTY(EditAnywhere, Category = "Events", meta = (IsBindableEvent = "True"))
	FOnPointerEvent OnMouseMoveEvent;

	UPROPERTY(EditAnywhere, Category = "Events", meta = (IsBindableEvent = "True"))
	FOnPointerEvent OnMouseDoubleClickEvent;

	UMG_API UBorder(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	FLinearColor GetBrushColor() const { return BrushColor; }

	/** Sets the colour that the brush is multiplied with. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetBrushColor(FLinearColor InBrushColor);

	FLinearColor GetContentColorAndOpacity() const { return ContentColorAndOpacity; }

	/** Sets the colour that the content is multiplied with. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetContentColorAndOpacity(FLinearColor InContentColorAndOpacity);

	FMargin GetPadding() const { return Padding; }

	/** Sets the room around the content, in Slate units. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetPadding(FMargin InPadding);

	EHorizontalAlignment GetHorizontalAlignment() const { return HorizontalAlignment; }

	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment);

	EVerticalAlignment GetVerticalAlignment() const { return VerticalAlignment; }

	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetVerticalAlignment(EVerticalAlignment InVerticalAlignment);

	/** Replaces the brush. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetBrush(const FSlateBrush& InBrush);

	/** Makes the brush show the texture. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetBrushFromTexture(UTexture2D* Texture);

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

	UMG_API FReply HandleMouseButtonDown(const FGeometry& Geometry, const FPointerEvent& MouseEvent);
	UMG_API FReply HandleMouseButtonUp(const FGeometry& Geometry, const FPointerEvent& MouseEvent);
	UMG_API FReply HandleMouseMove(const FGeometry& Geometry, const FPointerEvent& MouseEvent);
	UMG_API FReply HandleMouseDoubleClick(const FGeometry& Geometry, const FPointerEvent& MouseEvent);

	TSharedPtr<SBorder> MyBorder;

private:
	static FReply RunHandler(const FOnPointerEvent& Handler, const FGeometry& Geometry, const FPointerEvent& MouseEvent);
};

#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"
#include "Spacer.generated.h"

class SSpacer;

/** Room between other widgets. */
UCLASS(MinimalAPI)
class USpacer : public UWidget
{
	GENERATED_BODY()

public:
	UMG_API USpacer(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	FVector2D GetSize() const { return Size; }

	/** Sets the size in Slate units. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void SetSize(FVector2D InSize);

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;

	TSharedPtr<SSpacer> MySpacer;

private:
	/** Size in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	FVector2D Size = FVector2D(1.0, 1.0);
};

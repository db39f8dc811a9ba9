#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"
#include "RecordingWidget.generated.h"

/** What a recording widget has several of. */
USTRUCT()
struct FRecordingItem
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, Category = "Recording")
	int32 Size = 0;
};

/** A widget that writes down how it is edited and what follows from that. */
UCLASS()
class BLUEPRINTTESTTYPES_API URecordingWidget : public UWidget
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Recording")
	int32 Number = 0;

	UPROPERTY(EditAnywhere, Category = "Recording", meta = (EditCondition = "Number > 0"))
	int32 Conditional = 0;

	UPROPERTY(EditAnywhere, Category = "Recording", meta = (DesignerRebuild))
	FRecordingItem Shape;

	UPROPERTY(EditAnywhere, Category = "Recording")
	TArray<FRecordingItem> Items;

	/** Another widget of the tree. */
	UPROPERTY(EditAnywhere, Category = "Recording")
	TObjectPtr<UWidget> Partner;

	/** What happened, in order. */
	TArray<FString> Events;

	virtual void SynchronizeProperties() override;
#if WITH_EDITOR
	virtual void PreEditChange(FProperty* PropertyAboutToChange) override;
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;
	virtual void PostEditChangeChainProperty(FPropertyChangedChainEvent& PropertyChangedEvent) override;
#endif

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;
};

#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "RecordingUserWidget.generated.h"

/** A user widget that writes down what happens to it. */
UCLASS()
class UMGTESTTYPES_API URecordingUserWidget : public UUserWidget
{
	GENERATED_BODY()

public:
	/** What happened, in order. */
	TArray<FString> Events;

	virtual bool Initialize() override;

protected:
	virtual void NativeOnInitialized() override;
	virtual void NativePreConstruct() override;
	virtual void NativeConstruct() override;
	virtual void NativeDestruct() override;
	virtual TSharedRef<SWidget> RebuildWidget() override;
};

#pragma once

#include "CoreMinimal.h"
#include "Components/ContentWidget.h"
#include "RecordingWidget.generated.h"

class SBox;

/** A widget around one child that writes down what happens to it. */
UCLASS()
class UMGTESTTYPES_API URecordingWidget : public UContentWidget
{
	GENERATED_BODY()

public:
	/** Where it writes, in order: its label and what happened. */
	TArray<FString>* Events = nullptr;

	FString Label;

	virtual void SynchronizeProperties() override;
	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;
	virtual void OnWidgetRebuilt() override;

private:
	void Record(const TCHAR* Event);

	TSharedPtr<SBox> MyBox;
};

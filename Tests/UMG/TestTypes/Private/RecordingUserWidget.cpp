#include "RecordingUserWidget.h"

bool URecordingUserWidget::Initialize()
{
	const bool bFirst = Super::Initialize();
	Events.Add(bFirst ? TEXT("Initialize") : TEXT("InitializeAgain"));
	return bFirst;
}

void URecordingUserWidget::NativeOnInitialized()
{
	Super::NativeOnInitialized();
	Events.Add(TEXT("OnInitialized"));
}

void URecordingUserWidget::NativePreConstruct()
{
	Super::NativePreConstruct();
	Events.Add(IsDesignTime() ? TEXT("PreConstructInDesigner") : TEXT("PreConstruct"));
}

void URecordingUserWidget::NativeConstruct()
{
	Super::NativeConstruct();
	Events.Add(TEXT("Construct"));
}

void URecordingUserWidget::NativeDestruct()
{
	Super::NativeDestruct();
	Events.Add(TEXT("Destruct"));
}

TSharedRef<SWidget> URecordingUserWidget::RebuildWidget()
{
	Events.Add(TEXT("Rebuild"));
	return Super::RebuildWidget();
}

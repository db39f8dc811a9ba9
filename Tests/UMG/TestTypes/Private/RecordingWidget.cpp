#include "RecordingWidget.h"

#include "Components/PanelSlot.h"
#include "Widgets/Layout/SBox.h"

void URecordingWidget::Record(const TCHAR* Event)
{
	if (Events)
	{
		Events->Add(Label + TEXT(".") + Event);
	}
}

TSharedRef<SWidget> URecordingWidget::RebuildWidget()
{
	Record(TEXT("Rebuild"));
	MyBox = SNew(SBox);
	if (UWidget* Content = GetContent())
	{
		MyBox->SetContent(Content->TakeWidget());
	}
	return MyBox.ToSharedRef();
}

void URecordingWidget::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	Record(MyBox ? TEXT("Synchronize") : TEXT("SynchronizeUnbuilt"));
}

void URecordingWidget::OnWidgetRebuilt()
{
	Super::OnWidgetRebuilt();
	Record(TEXT("Rebuilt"));
}

void URecordingWidget::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyBox.Reset();
	Record(TEXT("Release"));
}

#include "RecordingWidget.h"

#include "UObject/PropertyChangedEvent.h"
#include "Widgets/Layout/SSpacer.h"

TSharedRef<SWidget> URecordingWidget::RebuildWidget()
{
	Events.Add(TEXT("Rebuild"));
	return SNew(SSpacer);
}

void URecordingWidget::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	Events.Add(TEXT("Synchronize"));
}

#if WITH_EDITOR
void URecordingWidget::PreEditChange(FProperty* PropertyAboutToChange)
{
	Super::PreEditChange(PropertyAboutToChange);
	Events.Add(TEXT("Pre:") + PropertyAboutToChange->GetName());
}

void URecordingWidget::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);
	Events.Add(FString::Printf(TEXT("Post:%s.%s"), *PropertyChangedEvent.GetMemberPropertyName().ToString(), *PropertyChangedEvent.GetPropertyName().ToString()));
}

void URecordingWidget::PostEditChangeChainProperty(FPropertyChangedChainEvent& PropertyChangedEvent)
{
	FString Way;
	for (const FEditPropertyChain::TDoubleLinkedListNode* Node = PropertyChangedEvent.PropertyChain.GetHead(); Node; Node = Node->GetNextNode())
	{
		Way += (Way.IsEmpty() ? TEXT("") : TEXT("/")) + Node->GetValue()->GetName();
	}
	const int32 Item = PropertyChangedEvent.GetArrayIndex(TEXT("Items"));
	Events.Add(FString::Printf(TEXT("Chain:%s:%d:%s"), *Way, Item, *PropertyChangedEvent.PropertyChain.GetActiveNode()->GetValue()->GetName()));
	Super::PostEditChangeChainProperty(PropertyChangedEvent);
}
#endif

#include "EditableTextListener.h"

#include "UObject/UnrealType.h"

void UEditableTextListener::OnChanged(const FText& Text)
{
	Events.Add(TEXT("Changed:") + Text.ToString());
}

void UEditableTextListener::OnCommitted(const FText& Text, ETextCommit::Type CommitMethod)
{
	Events.Add(StaticEnum<ETextCommit::Type>()->GetNameStringByValue(CommitMethod) + TEXT(":") + Text.ToString());
}

#include "Components/EditableTextBox.h"

#include "Styling/CoreStyle.h"
#include "Widgets/Input/SEditableTextBox.h"

#define LOCTEXT_NAMESPACE "UMG"

UEditableTextBox::UEditableTextBox(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, WidgetStyle(FCoreStyle::Get().GetWidgetStyle<FEditableTextBoxStyle>("NormalEditableTextBox"))
{
}

FText UEditableTextBox::GetText() const
{
	return MyEditableTextBlock ? MyEditableTextBlock->GetText() : Text;
}

void UEditableTextBox::SetText(FText InText)
{
	Text = InText;
	if (MyEditableTextBlock)
	{
		MyEditableTextBlock->SetText(InText);
	}
}

void UEditableTextBox::SetHintText(FText InText)
{
	HintText = InText;
	if (MyEditableTextBlock)
	{
		MyEditableTextBlock->SetHintText(InText);
	}
}

void UEditableTextBox::SetIsReadOnly(bool bReadOnly)
{
	IsReadOnly = bReadOnly;
	if (MyEditableTextBlock)
	{
		MyEditableTextBlock->SetIsReadOnly(bReadOnly);
	}
}

void UEditableTextBox::SetIsPassword(bool InIsPassword)
{
	IsPassword = InIsPassword;
	if (MyEditableTextBlock)
	{
		MyEditableTextBlock->SetIsPassword(InIsPassword);
	}
}

void UEditableTextBox::SetWidgetStyle(const FEditableTextBoxStyle& InStyle)
{
	WidgetStyle = InStyle;
	if (MyEditableTextBlock)
	{
		MyEditableTextBlock->SetStyle(&WidgetStyle);
	}
}

void UEditableTextBox::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (!MyEditableTextBlock)
	{
		return;
	}
	MyEditableTextBlock->SetStyle(&WidgetStyle);
	MyEditableTextBlock->SetText(Text);
	MyEditableTextBlock->SetHintText(HintText);
	MyEditableTextBlock->SetIsReadOnly(IsReadOnly);
	MyEditableTextBlock->SetIsPassword(IsPassword);
	MyEditableTextBlock->SetMinDesiredWidth(MinimumDesiredWidth);
}

void UEditableTextBox::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyEditableTextBlock.Reset();
}

#if WITH_EDITOR
const FText UEditableTextBox::GetPaletteCategory()
{
	return LOCTEXT("Input", "Input");
}
#endif

TSharedRef<SWidget> UEditableTextBox::RebuildWidget()
{
	MyEditableTextBlock = SNew(SEditableTextBox)
		.Style(&WidgetStyle)
		.OnTextChanged(BIND_UOBJECT_DELEGATE(FOnTextChanged, HandleOnTextChanged))
		.OnTextCommitted(BIND_UOBJECT_DELEGATE(FOnTextCommitted, HandleOnTextCommitted));
	return MyEditableTextBlock.ToSharedRef();
}

void UEditableTextBox::HandleOnTextChanged(const FText& InText)
{
	Text = InText;
	OnTextChanged.Broadcast(InText);
}

void UEditableTextBox::HandleOnTextCommitted(const FText& InText, ETextCommit::Type CommitMethod)
{
	Text = InText;
	OnTextCommitted.Broadcast(InText, CommitMethod);
}

#undef LOCTEXT_NAMESPACE

#include "Components/EditableTextBox.h"

#include "Components/EditableTextProperties.h"
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
	Host::SetEditableTextProperty(HintText, InText, MyEditableTextBlock, &SEditableTextBox::SetHintText);
}

void UEditableTextBox::SetIsReadOnly(bool InIsReadOnly)
{
	Host::SetEditableTextProperty(IsReadOnly, InIsReadOnly, MyEditableTextBlock, &SEditableTextBox::SetIsReadOnly);
}

void UEditableTextBox::SetIsPassword(bool InIsPassword)
{
	Host::SetEditableTextProperty(IsPassword, InIsPassword, MyEditableTextBlock, &SEditableTextBox::SetIsPassword);
}

void UEditableTextBox::SetMinimumDesiredWidth(float InMinimumDesiredWidth)
{
	Host::SetEditableTextProperty(MinimumDesiredWidth, InMinimumDesiredWidth, MyEditableTextBlock, &SEditableTextBox::SetMinDesiredWidth);
}

void UEditableTextBox::SetIsCaretMovedWhenGainFocus(bool InIsCaretMovedWhenGainFocus)
{
	Host::SetEditableTextProperty(IsCaretMovedWhenGainFocus, InIsCaretMovedWhenGainFocus, MyEditableTextBlock, &SEditableTextBox::SetIsCaretMovedWhenGainFocus);
}

void UEditableTextBox::SetSelectAllTextWhenFocused(bool InSelectAllTextWhenFocused)
{
	Host::SetEditableTextProperty(SelectAllTextWhenFocused, InSelectAllTextWhenFocused, MyEditableTextBlock, &SEditableTextBox::SetSelectAllTextWhenFocused);
}

void UEditableTextBox::SetRevertTextOnEscape(bool InRevertTextOnEscape)
{
	Host::SetEditableTextProperty(RevertTextOnEscape, InRevertTextOnEscape, MyEditableTextBlock, &SEditableTextBox::SetRevertTextOnEscape);
}

void UEditableTextBox::SetClearKeyboardFocusOnCommit(bool InClearKeyboardFocusOnCommit)
{
	Host::SetEditableTextProperty(ClearKeyboardFocusOnCommit, InClearKeyboardFocusOnCommit, MyEditableTextBlock, &SEditableTextBox::SetClearKeyboardFocusOnCommit);
}

void UEditableTextBox::SetSelectAllTextOnCommit(bool InSelectAllTextOnCommit)
{
	Host::SetEditableTextProperty(SelectAllTextOnCommit, InSelectAllTextOnCommit, MyEditableTextBlock, &SEditableTextBox::SetSelectAllTextOnCommit);
}

void UEditableTextBox::SetJustification(ETextJustify::Type InJustification)
{
	Host::SetEditableTextProperty(Justification, InJustification, MyEditableTextBlock, &SEditableTextBox::SetJustification);
}

void UEditableTextBox::SetTextOverflowPolicy(ETextOverflowPolicy InOverflowPolicy)
{
	Host::SetEditableTextProperty(OverflowPolicy, InOverflowPolicy, MyEditableTextBlock, &SEditableTextBox::SetOverflowPolicy);
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
	Host::PushEditableTextProperties(*this, Text, *MyEditableTextBlock);
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
		.Text(Text)
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

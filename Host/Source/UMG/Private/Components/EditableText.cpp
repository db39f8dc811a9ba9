#include "Components/EditableText.h"

#include "Components/EditableTextProperties.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Input/SEditableText.h"

#define LOCTEXT_NAMESPACE "UMG"

UEditableText::UEditableText(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, WidgetStyle(FCoreStyle::Get().GetWidgetStyle<FEditableTextStyle>("NormalEditableText"))
{
	SetClipping(EWidgetClipping::ClipToBounds);
}

FText UEditableText::GetText() const
{
	return MyEditableText ? MyEditableText->GetText() : Text;
}

void UEditableText::SetText(FText InText)
{
	Text = InText;
	if (MyEditableText)
	{
		MyEditableText->SetText(InText);
	}
}

void UEditableText::SetHintText(FText InHintText)
{
	Host::SetEditableTextProperty(HintText, InHintText, MyEditableText, &SEditableText::SetHintText);
}

void UEditableText::SetIsReadOnly(bool InIsReadOnly)
{
	Host::SetEditableTextProperty(IsReadOnly, InIsReadOnly, MyEditableText, &SEditableText::SetIsReadOnly);
}

void UEditableText::SetIsPassword(bool InIsPassword)
{
	Host::SetEditableTextProperty(IsPassword, InIsPassword, MyEditableText, &SEditableText::SetIsPassword);
}

void UEditableText::SetMinimumDesiredWidth(float InMinimumDesiredWidth)
{
	Host::SetEditableTextProperty(MinimumDesiredWidth, InMinimumDesiredWidth, MyEditableText, &SEditableText::SetMinDesiredWidth);
}

void UEditableText::SetIsCaretMovedWhenGainFocus(bool InIsCaretMovedWhenGainFocus)
{
	Host::SetEditableTextProperty(IsCaretMovedWhenGainFocus, InIsCaretMovedWhenGainFocus, MyEditableText, &SEditableText::SetIsCaretMovedWhenGainFocus);
}

void UEditableText::SetSelectAllTextWhenFocused(bool InSelectAllTextWhenFocused)
{
	Host::SetEditableTextProperty(SelectAllTextWhenFocused, InSelectAllTextWhenFocused, MyEditableText, &SEditableText::SetSelectAllTextWhenFocused);
}

void UEditableText::SetRevertTextOnEscape(bool InRevertTextOnEscape)
{
	Host::SetEditableTextProperty(RevertTextOnEscape, InRevertTextOnEscape, MyEditableText, &SEditableText::SetRevertTextOnEscape);
}

void UEditableText::SetClearKeyboardFocusOnCommit(bool InClearKeyboardFocusOnCommit)
{
	Host::SetEditableTextProperty(ClearKeyboardFocusOnCommit, InClearKeyboardFocusOnCommit, MyEditableText, &SEditableText::SetClearKeyboardFocusOnCommit);
}

void UEditableText::SetSelectAllTextOnCommit(bool InSelectAllTextOnCommit)
{
	Host::SetEditableTextProperty(SelectAllTextOnCommit, InSelectAllTextOnCommit, MyEditableText, &SEditableText::SetSelectAllTextOnCommit);
}

void UEditableText::SetJustification(ETextJustify::Type InJustification)
{
	Host::SetEditableTextProperty(Justification, InJustification, MyEditableText, &SEditableText::SetJustification);
}

void UEditableText::SetTextOverflowPolicy(ETextOverflowPolicy InOverflowPolicy)
{
	Host::SetEditableTextProperty(OverflowPolicy, InOverflowPolicy, MyEditableText, &SEditableText::SetOverflowPolicy);
}

void UEditableText::SetFont(FSlateFontInfo InFontInfo)
{
	FEditableTextStyle NewStyle = WidgetStyle;
	NewStyle.SetFont(InFontInfo);
	SetWidgetStyle(NewStyle);
}

void UEditableText::SetWidgetStyle(const FEditableTextStyle& InWidgetStyle)
{
	WidgetStyle = InWidgetStyle;
	if (MyEditableText)
	{
		MyEditableText->SetTextStyle(&WidgetStyle);
	}
}

void UEditableText::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (!MyEditableText)
	{
		return;
	}
	MyEditableText->SetTextStyle(&WidgetStyle);
	Host::PushEditableTextProperties(*this, Text, *MyEditableText);
}

void UEditableText::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyEditableText.Reset();
}

#if WITH_EDITOR
const FText UEditableText::GetPaletteCategory()
{
	return LOCTEXT("Input", "Input");
}
#endif

TSharedRef<SWidget> UEditableText::RebuildWidget()
{
	MyEditableText = SNew(SEditableText)
		.Style(&WidgetStyle)
		.Text(Text)
		.OnTextChanged(BIND_UOBJECT_DELEGATE(FOnTextChanged, HandleOnTextChanged))
		.OnTextCommitted(BIND_UOBJECT_DELEGATE(FOnTextCommitted, HandleOnTextCommitted));
	return MyEditableText.ToSharedRef();
}

void UEditableText::HandleOnTextChanged(const FText& InText)
{
	Text = InText;
	OnTextChanged.Broadcast(InText);
}

void UEditableText::HandleOnTextCommitted(const FText& InText, ETextCommit::Type CommitMethod)
{
	Text = InText;
	OnTextCommitted.Broadcast(InText, CommitMethod);
}

#undef LOCTEXT_NAMESPACE

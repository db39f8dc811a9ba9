#include "Widgets/Input/SEditableTextBox.h"

#include "Layout/WidgetPath.h"

void SEditableTextBox::Construct(const FArguments& InArgs)
{
	Style = InArgs._Style ? InArgs._Style : &FEditableTextBoxStyle::GetDefault();
	ForegroundColorOverride = InArgs._ForegroundColor;
	ReadOnlyForegroundColorOverride = InArgs._ReadOnlyForegroundColor;
	FocusedForegroundColorOverride = InArgs._FocusedForegroundColor;
	bHasOwnFont = InArgs._Font.IsSet();
	bHasOwnPadding = InArgs._Padding.IsSet();
	bHasOwnBackgroundColor = InArgs._BackgroundColor.IsSet();

	SAssignNew(EditableText, SEditableText)
		.Text(InArgs._Text)
		.HintText(InArgs._HintText)
		.IsPassword(InArgs._IsPassword)
		.IsCaretMovedWhenGainFocus(InArgs._IsCaretMovedWhenGainFocus)
		.SelectAllTextWhenFocused(InArgs._SelectAllTextWhenFocused)
		.RevertTextOnEscape(InArgs._RevertTextOnEscape)
		.ClearKeyboardFocusOnCommit(InArgs._ClearKeyboardFocusOnCommit)
		.SelectAllTextOnCommit(InArgs._SelectAllTextOnCommit)
		.AllowContextMenu(InArgs._AllowContextMenu)
		.Justification(InArgs._Justification)
		.OverflowPolicy(InArgs._OverflowPolicy)
		.MinDesiredWidth(InArgs._MinDesiredWidth)
		.Font(bHasOwnFont ? InArgs._Font : TAttribute<FSlateFontInfo>(Style->TextStyle.Font))
		.ColorAndOpacity(FSlateColor::UseForeground())
		.OnTextChanged(InArgs._OnTextChanged)
		.OnTextCommitted(InArgs._OnTextCommitted)
		.OnIsTypedCharValid(InArgs._OnIsTypedCharValid)
		.OnKeyDownHandler(InArgs._OnKeyDownHandler);
	SBorder::Construct(SBorder::FArguments()
		.HAlign(HAlign_Fill)
		.VAlign(VAlign_Center)
		.BorderImage(ChooseBrush())
		.BorderBackgroundColor(bHasOwnBackgroundColor ? InArgs._BackgroundColor : TAttribute<FSlateColor>(Style->BackgroundColor))
		.Padding(bHasOwnPadding ? InArgs._Padding : TAttribute<FMargin>(Style->Padding))
		[
			EditableText.ToSharedRef()
		]);
	SetIsReadOnly(InArgs._IsReadOnly);
}

void SEditableTextBox::SetIsReadOnly(TAttribute<bool> InIsReadOnly)
{
	if (InIsReadOnly.IsBound())
	{
		// The frame must learn of what the getter answers at the same time as the text.
		const TWeakPtr<SEditableTextBox> WeakBox = StaticCastSharedRef<SEditableTextBox>(AsShared());
		EditableText->SetIsReadOnly(TAttribute<bool>::CreateLambda([WeakBox, InIsReadOnly]()
		{
			const bool bNowReadOnly = InIsReadOnly.Get();
			if (const TSharedPtr<SEditableTextBox> Box = WeakBox.Pin())
			{
				Box->ShowReadOnly(bNowReadOnly);
			}
			return bNowReadOnly;
		}));
		return;
	}
	EditableText->SetIsReadOnly(InIsReadOnly);
	ShowReadOnly(EditableText->IsTextReadOnly());
}

void SEditableTextBox::ShowReadOnly(bool bInReadOnly)
{
	if (bReadOnly != bInReadOnly)
	{
		bReadOnly = bInReadOnly;
		UpdateLook();
	}
}

void SEditableTextBox::SetFont(const TAttribute<FSlateFontInfo>& InFont)
{
	bHasOwnFont = InFont.IsSet();
	EditableText->SetFont(bHasOwnFont ? InFont : TAttribute<FSlateFontInfo>(Style->TextStyle.Font));
}

void SEditableTextBox::SetTextBoxForegroundColor(const TAttribute<FSlateColor>& InForegroundColor)
{
	ForegroundColorOverride = InForegroundColor;
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SEditableTextBox::SetReadOnlyForegroundColor(const TAttribute<FSlateColor>& InReadOnlyForegroundColor)
{
	ReadOnlyForegroundColorOverride = InReadOnlyForegroundColor;
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SEditableTextBox::SetFocusedForegroundColor(const TAttribute<FSlateColor>& InFocusedForegroundColor)
{
	FocusedForegroundColorOverride = InFocusedForegroundColor;
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SEditableTextBox::SetTextBoxBackgroundColor(const TAttribute<FSlateColor>& InBackgroundColor)
{
	bHasOwnBackgroundColor = InBackgroundColor.IsSet();
	SetBorderBackgroundColor(bHasOwnBackgroundColor ? InBackgroundColor : TAttribute<FSlateColor>(Style->BackgroundColor));
}

void SEditableTextBox::SetStyle(const FEditableTextBoxStyle* InStyle)
{
	Style = InStyle ? InStyle : &FEditableTextBoxStyle::GetDefault();
	if (!bHasOwnFont)
	{
		EditableText->SetFont(Style->TextStyle.Font);
	}
	if (!bHasOwnPadding)
	{
		SetPadding(Style->Padding);
	}
	if (!bHasOwnBackgroundColor)
	{
		SetBorderBackgroundColor(Style->BackgroundColor);
	}
	SetBorderImage(ChooseBrush());
}

FSlateColor SEditableTextBox::GetForegroundColor() const
{
	if (bReadOnly)
	{
		return ReadOnlyForegroundColorOverride.Get(Style->ReadOnlyForegroundColor);
	}
	return bIsFocused ? FocusedForegroundColorOverride.Get(Style->FocusedForegroundColor) : ForegroundColorOverride.Get(Style->ForegroundColor);
}

FReply SEditableTextBox::OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent)
{
	const FReply Reply = SBorder::OnFocusReceived(MyGeometry, InFocusEvent);
	return Reply.IsEventHandled() ? Reply : FReply::Handled().SetUserFocus(EditableText.ToSharedRef(), InFocusEvent.GetCause());
}

void SEditableTextBox::OnFocusChanging(const FWidgetPath& NewWidgetPath, const FFocusEvent& InFocusEvent)
{
	SBorder::OnFocusChanging(NewWidgetPath, InFocusEvent);
	const bool bNowFocused = NewWidgetPath.ContainsWidget(EditableText.Get());
	if (bIsFocused != bNowFocused)
	{
		bIsFocused = bNowFocused;
		UpdateLook();
	}
}

FReply SEditableTextBox::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	// A press beside the text is one on its nearest character.
	const FReply Reply = SBorder::OnMouseButtonDown(MyGeometry, MouseEvent);
	return Reply.IsEventHandled() ? Reply : EditableText->OnMouseButtonDown(EditableText->GetCachedGeometry(), MouseEvent);
}

void SEditableTextBox::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	SBorder::OnMouseEnter(MyGeometry, MouseEvent);
	UpdateLook();
}

void SEditableTextBox::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	SBorder::OnMouseLeave(MouseEvent);
	UpdateLook();
}

const FSlateBrush* SEditableTextBox::ChooseBrush() const
{
	if (bReadOnly)
	{
		return &Style->BackgroundImageReadOnly;
	}
	return bIsFocused ? &Style->BackgroundImageFocused : IsHovered() ? &Style->BackgroundImageHovered : &Style->BackgroundImageNormal;
}

void SEditableTextBox::UpdateLook()
{
	ChangeBorderImage(ChooseBrush());
	// The foreground of the text follows the state too.
	Invalidate(EInvalidateWidgetReason::Paint);
}

#include "Widgets/Input/SEditableText.h"

#include "Host/DumpWidgetTree.h"
#include "Widgets/Input/EditableTextView.h"
#include "Widgets/Input/TextEditModel.h"

namespace
{
	bool ReadText(const SWidget& Widget, FString& OutText)
	{
		const SEditableText& Editable = static_cast<const SEditableText&>(Widget);
		if (!Editable.IsTextPassword())
		{
			OutText = Editable.GetText().ToString();
		}
		return !Editable.IsTextPassword();
	}

	/** Lets dumps and searches see the text that is edited. */
	bool RegisterTextReader()
	{
		Host::RegisterWidgetTextReader("SEditableText", &ReadText);
		return true;
	}
}

SEditableText::SEditableText()
	: Model(MakeUnique<Host::FTextEditModel>())
	, Composition(MakeUnique<Host::FComposition>())
	, View(MakeUnique<Host::FEditableTextView>())
	, BoundTextAttribute(*this)
	, HintTextAttribute(*this)
	, FontAttribute(*this)
	, ColorAttribute(*this)
	, SelectionBrushAttribute(*this, nullptr)
	, CompositionBrushAttribute(*this, nullptr)
	, CaretBrushAttribute(*this, nullptr)
	, IsReadOnlyAttribute(*this, false)
	, IsPasswordAttribute(*this, false)
	, JustificationAttribute(*this, ETextJustify::Left)
	, MinDesiredWidthAttribute(*this, 0.0f)
{
}

SEditableText::~SEditableText() = default;

void SEditableText::Construct(const FArguments& InArgs)
{
	[[maybe_unused]] static const bool bRegistered = RegisterTextReader();
	Style = InArgs._Style ? InArgs._Style : &FEditableTextStyle::GetDefault();
	SetFont(InArgs._Font);
	SetColorAndOpacity(InArgs._ColorAndOpacity);
	SelectionBrushAttribute.Assign(*this, InArgs._BackgroundImageSelected);
	CompositionBrushAttribute.Assign(*this, InArgs._BackgroundImageComposing);
	CaretBrushAttribute.Assign(*this, InArgs._CaretImage);
	SetHintText(InArgs._HintText);
	SetIsReadOnly(InArgs._IsReadOnly);
	SetIsPassword(InArgs._IsPassword);
	SetIsCaretMovedWhenGainFocus(InArgs._IsCaretMovedWhenGainFocus);
	SetSelectAllTextWhenFocused(InArgs._SelectAllTextWhenFocused);
	SetRevertTextOnEscape(InArgs._RevertTextOnEscape);
	SetClearKeyboardFocusOnCommit(InArgs._ClearKeyboardFocusOnCommit);
	SetSelectAllTextOnCommit(InArgs._SelectAllTextOnCommit);
	SetAllowContextMenu(InArgs._AllowContextMenu);
	SetJustification(InArgs._Justification);
	SetOverflowPolicy(InArgs._OverflowPolicy);
	SetMinDesiredWidth(InArgs._MinDesiredWidth);
	SetText(InArgs._Text);
	// Only now: the text that it is made with is no change.
	OnTextChanged = InArgs._OnTextChanged;
	OnTextCommitted = InArgs._OnTextCommitted;
	OnIsTypedCharValid = InArgs._OnIsTypedCharValid;
	OnKeyDownHandler = InArgs._OnKeyDownHandler;
}

void SEditableText::SetText(const TAttribute<FText>& InNewText)
{
	if (InNewText.IsBound())
	{
		BoundTextAttribute.Assign(*this, TAttribute<FText>::CreateLambda([this, InNewText]()
		{
			const FText NewText = InNewText.Get();
			if (!bEditing)
			{
				ReplaceText(NewText);
			}
			return NewText;
		}));
		return;
	}
	if (!InNewText.IsSet())
	{
		return;
	}
	BoundTextAttribute.Unbind(*this);
	if (ReplaceText(InNewText.Get()))
	{
		const FOnTextChanged Handler = OnTextChanged;
		Handler.ExecuteIfBound(Text);
	}
}

void SEditableText::SetHintText(const TAttribute<FText>& InHintText)
{
	HintTextAttribute.Assign(*this, InHintText);
}

void SEditableText::SetIsReadOnly(TAttribute<bool> InIsReadOnly)
{
	IsReadOnlyAttribute.Assign(*this, InIsReadOnly);
	if (bHasFocus)
	{
		StartBlinking();
	}
}

void SEditableText::SetIsPassword(TAttribute<bool> InIsPassword)
{
	IsPasswordAttribute.Assign(*this, InIsPassword);
}

void SEditableText::SetTextStyle(const FEditableTextStyle* InStyle)
{
	Style = InStyle ? InStyle : &FEditableTextStyle::GetDefault();
	Invalidate(EInvalidateWidgetReason::Layout);
}

void SEditableText::SetFont(const TAttribute<FSlateFontInfo>& InNewFont)
{
	if (bFontIsOwn != InNewFont.IsSet())
	{
		bFontIsOwn = InNewFont.IsSet();
		Invalidate(EInvalidateWidgetReason::Layout);
	}
	FontAttribute.Assign(*this, InNewFont);
}

void SEditableText::SetColorAndOpacity(const TAttribute<FSlateColor>& InNewColor)
{
	if (bColorIsOwn != InNewColor.IsSet())
	{
		bColorIsOwn = InNewColor.IsSet();
		Invalidate(EInvalidateWidgetReason::Paint);
	}
	ColorAttribute.Assign(*this, InNewColor);
}

void SEditableText::SetMinDesiredWidth(const TAttribute<float>& InMinDesiredWidth)
{
	MinDesiredWidthAttribute.Assign(*this, InMinDesiredWidth);
}

void SEditableText::SetIsCaretMovedWhenGainFocus(const TAttribute<bool>& InIsCaretMovedWhenGainFocus)
{
	IsCaretMovedWhenGainFocus = InIsCaretMovedWhenGainFocus;
}

void SEditableText::SetSelectAllTextWhenFocused(const TAttribute<bool>& InSelectAllTextWhenFocused)
{
	SelectAllTextWhenFocused = InSelectAllTextWhenFocused;
}

void SEditableText::SetRevertTextOnEscape(const TAttribute<bool>& InRevertTextOnEscape)
{
	RevertTextOnEscape = InRevertTextOnEscape;
}

void SEditableText::SetClearKeyboardFocusOnCommit(const TAttribute<bool>& InClearKeyboardFocusOnCommit)
{
	ClearKeyboardFocusOnCommit = InClearKeyboardFocusOnCommit;
}

void SEditableText::SetSelectAllTextOnCommit(const TAttribute<bool>& InSelectAllTextOnCommit)
{
	SelectAllTextOnCommit = InSelectAllTextOnCommit;
}

void SEditableText::SetJustification(const TAttribute<ETextJustify::Type>& InJustification)
{
	JustificationAttribute.Assign(*this, InJustification);
}

void SEditableText::SetAllowContextMenu(const TAttribute<bool>& InAllowContextMenu)
{
	AllowContextMenu = InAllowContextMenu;
}

void SEditableText::SetOverflowPolicy(TOptional<ETextOverflowPolicy> InOverflowPolicy)
{
	const ETextOverflowPolicy NewPolicy = InOverflowPolicy.Get(ETextOverflowPolicy::Clip);
	if (OverflowPolicy != NewPolicy)
	{
		OverflowPolicy = NewPolicy;
		Invalidate(EInvalidateWidgetReason::Paint);
	}
}

bool SEditableText::AnyTextSelected() const
{
	return Model->HasSelection();
}

FText SEditableText::GetSelectedText() const
{
	return FText::FromString(Model->GetSelectedText());
}

void SEditableText::SelectAllText()
{
	Model->SelectAll();
	NoteCaretMove();
}

void SEditableText::ClearSelection()
{
	if (Model->HasSelection())
	{
		Model->ClearSelection();
		NoteCaretMove();
	}
}

const FSlateFontInfo& SEditableText::GetFont() const
{
	return bFontIsOwn ? FontAttribute.Get() : Style->Font;
}

bool SEditableText::ReplaceText(const FText& NewText)
{
	// Also what looks the same may be another text to who translates it.
	Text = NewText;
	if (!bEditing)
	{
		OriginalText = NewText;
	}
	if (!Model->SetText(NewText.ToString()))
	{
		return false;
	}
	Invalidate(EInvalidateWidgetReason::Layout);
	return true;
}

void SEditableText::NoteEdit()
{
	Text = FText::FromString(Model->GetText());
	Invalidate(EInvalidateWidgetReason::Layout);
	NoteCaretMove();
	const FOnTextChanged Handler = OnTextChanged;
	Handler.ExecuteIfBound(Text);
}

void SEditableText::NoteCaretMove()
{
	if (bHasFocus)
	{
		StartBlinking();
	}
	Invalidate(EInvalidateWidgetReason::Paint);
}

void SEditableText::Commit(ETextCommit::Type CommitType)
{
	Model->EndStep();
	const FOnTextCommitted Handler = OnTextCommitted;
	const FText Committed = Text;
	Handler.ExecuteIfBound(Committed, CommitType);
}

#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Layout/SBorder.h"

/** A line of text that the user can edit, in a frame that shows whether it is hovered, focused or read only. */
class SLATE_API SEditableTextBox : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SEditableTextBox)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FEditableTextBoxStyle>("NormalEditableTextBox"))
		, _Text()
		, _HintText()
		, _IsReadOnly(false)
		, _IsPassword(false)
		, _IsCaretMovedWhenGainFocus(true)
		, _SelectAllTextWhenFocused(false)
		, _RevertTextOnEscape(false)
		, _ClearKeyboardFocusOnCommit(true)
		, _SelectAllTextOnCommit(false)
		, _AllowContextMenu(true)
		, _Justification(ETextJustify::Left)
		, _MinDesiredWidth(0.0f)
	{
	}
		/** Kept by address. */
		SLATE_STYLE_ARGUMENT(FEditableTextBoxStyle, Style)
		/** The next ones are those of SEditableText. */
		SLATE_ATTRIBUTE(FText, Text)
		SLATE_ATTRIBUTE(FText, HintText)
		SLATE_ATTRIBUTE(FSlateFontInfo, Font)
		SLATE_ATTRIBUTE(bool, IsReadOnly)
		SLATE_ATTRIBUTE(bool, IsPassword)
		SLATE_ATTRIBUTE(bool, IsCaretMovedWhenGainFocus)
		SLATE_ATTRIBUTE(bool, SelectAllTextWhenFocused)
		SLATE_ATTRIBUTE(bool, RevertTextOnEscape)
		SLATE_ATTRIBUTE(bool, ClearKeyboardFocusOnCommit)
		SLATE_ATTRIBUTE(bool, SelectAllTextOnCommit)
		SLATE_ATTRIBUTE(bool, AllowContextMenu)
		SLATE_ATTRIBUTE(ETextJustify::Type, Justification)
		SLATE_ARGUMENT(TOptional<ETextOverflowPolicy>, OverflowPolicy)
		SLATE_ATTRIBUTE(float, MinDesiredWidth)
		SLATE_EVENT(FOnTextChanged, OnTextChanged)
		SLATE_EVENT(FOnTextCommitted, OnTextCommitted)
		SLATE_EVENT(FOnIsTypedCharValid, OnIsTypedCharValid)
		SLATE_EVENT(FOnKeyDown, OnKeyDownHandler)
		/** In place of the colours of the style; so are the next ones. */
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		SLATE_ATTRIBUTE(FSlateColor, ReadOnlyForegroundColor)
		SLATE_ATTRIBUTE(FSlateColor, FocusedForegroundColor)
		/** Multiplies the frame. */
		SLATE_ATTRIBUTE(FSlateColor, BackgroundColor)
		/** Between the frame and the text. */
		SLATE_ATTRIBUTE(FMargin, Padding)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	const FText& GetText() const { return EditableText->GetText(); }
	/** Tells OnTextChanged when it is another text. */
	void SetText(const TAttribute<FText>& InNewText) { EditableText->SetText(InNewText); }
	FText GetHintText() const { return EditableText->GetHintText(); }
	void SetHintText(const TAttribute<FText>& InHintText) { EditableText->SetHintText(InHintText); }
	void SetIsReadOnly(TAttribute<bool> InIsReadOnly);
	bool IsReadOnly() const { return bReadOnly; }
	void SetIsPassword(TAttribute<bool> InIsPassword) { EditableText->SetIsPassword(MoveTemp(InIsPassword)); }
	void SetFont(const TAttribute<FSlateFontInfo>& InFont);
	void SetMinDesiredWidth(const TAttribute<float>& InMinDesiredWidth) { EditableText->SetMinDesiredWidth(InMinDesiredWidth); }
	void SetJustification(const TAttribute<ETextJustify::Type>& InJustification) { EditableText->SetJustification(InJustification); }
	void SetIsCaretMovedWhenGainFocus(const TAttribute<bool>& InValue) { EditableText->SetIsCaretMovedWhenGainFocus(InValue); }
	void SetSelectAllTextWhenFocused(const TAttribute<bool>& InValue) { EditableText->SetSelectAllTextWhenFocused(InValue); }
	void SetRevertTextOnEscape(const TAttribute<bool>& InValue) { EditableText->SetRevertTextOnEscape(InValue); }
	void SetClearKeyboardFocusOnCommit(const TAttribute<bool>& InValue) { EditableText->SetClearKeyboardFocusOnCommit(InValue); }
	void SetSelectAllTextOnCommit(const TAttribute<bool>& InValue) { EditableText->SetSelectAllTextOnCommit(InValue); }
	void SetAllowContextMenu(const TAttribute<bool>& InAllowContextMenu) { EditableText->SetAllowContextMenu(InAllowContextMenu); }
	void SetOverflowPolicy(TOptional<ETextOverflowPolicy> InOverflowPolicy) { EditableText->SetOverflowPolicy(InOverflowPolicy); }
	void SetTextBoxForegroundColor(const TAttribute<FSlateColor>& InForegroundColor);
	void SetReadOnlyForegroundColor(const TAttribute<FSlateColor>& InReadOnlyForegroundColor);
	void SetFocusedForegroundColor(const TAttribute<FSlateColor>& InFocusedForegroundColor);
	void SetTextBoxBackgroundColor(const TAttribute<FSlateColor>& InBackgroundColor);
	/** Also to be called when the style was changed in place. Null stands for the default style. */
	void SetStyle(const FEditableTextBoxStyle* InStyle);

	bool AnyTextSelected() const { return EditableText->AnyTextSelected(); }
	FText GetSelectedText() const { return EditableText->GetSelectedText(); }
	void SelectAllText() { EditableText->SelectAllText(); }
	void ClearSelection() { EditableText->ClearSelection(); }
	/** The widget inside, which has the focus while the text is edited. */
	const TSharedRef<SEditableText> GetEditableText() const { return EditableText.ToSharedRef(); }

	virtual FSlateColor GetForegroundColor() const override;

	/** It hands the focus on to the text inside; once that has it, the frame is no stop of its own for the tab key. */
	virtual bool SupportsKeyboardFocus() const override { return EditableText->SupportsKeyboardFocus() && !bIsFocused; }
	virtual const FSlateBrush* GetFocusBrush() const override { return nullptr; }
	virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) override;
	virtual void OnFocusChanging(const FWidgetPath& NewWidgetPath, const FFocusEvent& InFocusEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent) override;

private:
	const FSlateBrush* ChooseBrush() const;
	void UpdateLook();
	void ShowReadOnly(bool bInReadOnly);

	TSharedPtr<SEditableText> EditableText;
	const FEditableTextBoxStyle* Style = nullptr;
	TAttribute<FSlateColor> ForegroundColorOverride;
	TAttribute<FSlateColor> ReadOnlyForegroundColorOverride;
	TAttribute<FSlateColor> FocusedForegroundColorOverride;
	bool bHasOwnFont = false;
	bool bHasOwnPadding = false;
	bool bHasOwnBackgroundColor = false;
	/** The text is edited. */
	bool bIsFocused = false;
	bool bReadOnly = false;
};

#pragma once

#include "CoreMinimal.h"
#include "Framework/Application/IMenu.h"
#include "Framework/SlateDelegates.h"
#include "Framework/Text/TextLayout.h"
#include "Misc/Optional.h"
#include "Rendering/DrawElementTypes.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Templates/UniquePtr.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

namespace Host
{
	struct FCaretPlace;
	struct FComposition;
	struct FEditableTextView;
	struct FTextPlace;
	class FTextEditModel;
	enum class ETextCommand : uint8;
}

/**
 * One line of text that the user can edit.
 *
 * The arrow keys move the caret, with control by words, and with shift select; so do the mouse and a double click.
 * Control with A, C, X, V, Z and Y selects all, copies, cuts, pastes, undoes and redoes; the right button opens a menu of
 * these. Enter commits the text, and so does leaving it; escape leaves it. What an input method composes is shown,
 * underlined, in place of the selection, and is no part of the text until it is finished.
 */
class SLATE_API SEditableText : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SEditableText)
		: _Text()
		, _HintText()
		, _Style(&FCoreStyle::Get().GetWidgetStyle<FEditableTextStyle>("NormalEditableText"))
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
		_Clipping = EWidgetClipping::ClipToBounds;
	}
		/** A getter is asked while the text is not being edited. */
		SLATE_ATTRIBUTE(FText, Text)
		/** Shown while the text is empty. */
		SLATE_ATTRIBUTE(FText, HintText)
		/** Kept by address. */
		SLATE_STYLE_ARGUMENT(FEditableTextStyle, Style)
		/** In place of that of the style; so are the next ones. */
		SLATE_ATTRIBUTE(FSlateFontInfo, Font)
		SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
		SLATE_ATTRIBUTE(const FSlateBrush*, BackgroundImageSelected)
		SLATE_ATTRIBUTE(const FSlateBrush*, BackgroundImageComposing)
		SLATE_ATTRIBUTE(const FSlateBrush*, CaretImage)
		/** It can be selected and copied, but not changed. */
		SLATE_ATTRIBUTE(bool, IsReadOnly)
		/** Characters are shown as dots, and not given to the clipboard. */
		SLATE_ATTRIBUTE(bool, IsPassword)
		/** The caret goes to the end when the text gets the focus other than by the mouse. */
		SLATE_ATTRIBUTE(bool, IsCaretMovedWhenGainFocus)
		SLATE_ATTRIBUTE(bool, SelectAllTextWhenFocused)
		/** Escape brings back the text from before the editing. */
		SLATE_ATTRIBUTE(bool, RevertTextOnEscape)
		/** Enter gives up the focus. */
		SLATE_ATTRIBUTE(bool, ClearKeyboardFocusOnCommit)
		SLATE_ATTRIBUTE(bool, SelectAllTextOnCommit)
		/** The right mouse button opens a menu. */
		SLATE_ATTRIBUTE(bool, AllowContextMenu)
		SLATE_ATTRIBUTE(ETextJustify::Type, Justification)
		/** What becomes of text that is wider than the widget, while it is not edited. */
		SLATE_ARGUMENT(TOptional<ETextOverflowPolicy>, OverflowPolicy)
		/** In slate units. */
		SLATE_ATTRIBUTE(float, MinDesiredWidth)
		/** The text is another one, by typing or by code. */
		SLATE_EVENT(FOnTextChanged, OnTextChanged)
		/** The editing ended, and how. */
		SLATE_EVENT(FOnTextCommitted, OnTextCommitted)
		/** Asked ahead of each character typed; false leaves it out. */
		SLATE_EVENT(FOnIsTypedCharValid, OnIsTypedCharValid)
		/** Asked ahead of the keys of the text itself. */
		SLATE_EVENT(FOnKeyDown, OnKeyDownHandler)
	SLATE_END_ARGS()

	SEditableText();
	virtual ~SEditableText() override;
	void Construct(const FArguments& InArgs);

	const FText& GetText() const { return Text; }
	/** Tells OnTextChanged when it is another text. */
	void SetText(const TAttribute<FText>& InNewText);
	FText GetHintText() const { return HintTextAttribute.Get(); }
	void SetHintText(const TAttribute<FText>& InHintText);
	void SetIsReadOnly(TAttribute<bool> InIsReadOnly);
	bool IsTextReadOnly() const { return IsReadOnlyAttribute.Get(); }
	void SetIsPassword(TAttribute<bool> InIsPassword);
	bool IsTextPassword() const { return IsPasswordAttribute.Get(); }

	/** Also to be called when the style was changed in place. Null stands for the default style. */
	void SetTextStyle(const FEditableTextStyle* InStyle);
	void SetFont(const TAttribute<FSlateFontInfo>& InNewFont);
	void SetColorAndOpacity(const TAttribute<FSlateColor>& InNewColor);
	void SetMinDesiredWidth(const TAttribute<float>& InMinDesiredWidth);
	void SetIsCaretMovedWhenGainFocus(const TAttribute<bool>& InIsCaretMovedWhenGainFocus);
	void SetSelectAllTextWhenFocused(const TAttribute<bool>& InSelectAllTextWhenFocused);
	void SetRevertTextOnEscape(const TAttribute<bool>& InRevertTextOnEscape);
	void SetClearKeyboardFocusOnCommit(const TAttribute<bool>& InClearKeyboardFocusOnCommit);
	void SetSelectAllTextOnCommit(const TAttribute<bool>& InSelectAllTextOnCommit);
	void SetAllowContextMenu(const TAttribute<bool>& InAllowContextMenu);
	void SetJustification(const TAttribute<ETextJustify::Type>& InJustification);
	void SetOverflowPolicy(TOptional<ETextOverflowPolicy> InOverflowPolicy);
	void SetOnTextChanged(const FOnTextChanged& InOnTextChanged) { OnTextChanged = InOnTextChanged; }
	void SetOnTextCommitted(const FOnTextCommitted& InOnTextCommitted) { OnTextCommitted = InOnTextCommitted; }
	void SetOnKeyDownHandler(const FOnKeyDown& InOnKeyDownHandler) { OnKeyDownHandler = InOnKeyDownHandler; }

	bool AnyTextSelected() const;
	FText GetSelectedText() const;
	void SelectAllText();
	void ClearSelection();

	virtual bool SupportsKeyboardFocus() const override { return true; }
	virtual bool IsInteractable() const override { return IsEnabled(); }
	/** The caret shows where the focus is. */
	virtual const FSlateBrush* GetFocusBrush() const override { return nullptr; }
	virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) override;
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent) override;
	virtual FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent) override;
	virtual FCursorReply OnCursorQuery(const FGeometry& MyGeometry, const FPointerEvent& CursorEvent) const override;

	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	const FSlateFontInfo& GetFont() const;

	// Keys.
	FReply HandleCommandKey(const FKeyEvent& InKeyEvent);
	FReply HandleRemovingKey(const FKeyEvent& InKeyEvent);
	FReply HandleCaretKey(const FKeyEvent& InKeyEvent);
	FReply HandleEnter();
	FReply HandleEscape();
	bool CanExecute(Host::ETextCommand Command) const;
	void Execute(Host::ETextCommand Command);
	void CopySelection() const;
	/** True when the text changed. */
	bool Paste();

	// Places in the text.
	/** Where the word begins that is next in the text, or the one before. A password is one word. */
	int32 FindWord(bool bNext) const;
	/** Where an arrow key moves the caret to: to the side that it shows, whatever the direction of the text there. */
	Host::FTextPlace FindCaretBeside(bool bToRight) const;
	/** The end of the selection that is farther on a side. */
	int32 FindSelectionEdge(bool bRight) const;
	Host::FTextPlace FindPlaceAt(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) const;

	// Changes.
	/** After an edit: shows it, and tells. */
	void NoteEdit();
	/** After the caret moved: shows it, and has it blink from its begin. */
	void NoteCaretMove();
	/** Takes over a text that nobody typed. True when it is another one. */
	bool ReplaceText(const FText& NewText);
	void EndEditing(EFocusCause Cause);
	void Commit(ETextCommit::Type CommitType);

	// The menu.
	void SummonContextMenu(const FVector2f& Position);
	void OnContextMenuDismissed(TSharedRef<IMenu> Menu);

	// What an input method composes.
	bool IsComposing() const;
	void ShowComposition(const FString& InText, int32 InCaret);
	/** Forgets it, here and where it is composed. */
	void CancelComposition();

	// The caret.
	bool CanShowCaret() const;
	EActiveTimerReturnType BlinkCaret(double InCurrentTime, float InDeltaTime);
	void StartBlinking();
	void StopBlinking();

	// Painting.
	void UpdateView(float Scale) const;
	/** Brings the view up to the text, at the scale that it was painted in last. */
	void RefreshView() const;
	void ScrollToCaret(float ViewWidth) const;
	/** Where the caret stands: that of what is composed, if something is. */
	Host::FCaretPlace GetCaret() const;
	/** Input methods put their lists next to it. */
	void TellCaretArea(const FGeometry& AllottedGeometry, const Host::FCaretPlace& Caret) const;
	void PaintBackground(const FGeometry& AllottedGeometry, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, ESlateDrawEffect Effect) const;
	void PaintText(const FGeometry& AllottedGeometry, FSlateWindowElementList& OutDrawElements, int32 LayerId, ESlateDrawEffect Effect, const FLinearColor& Color) const;
	void PaintHint(const FGeometry& AllottedGeometry, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FLinearColor& Color) const;
	void PaintCompositionLine(const FGeometry& AllottedGeometry, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FLinearColor& Color) const;
	void PaintCaret(const FGeometry& AllottedGeometry, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, const FLinearColor& Color) const;
	/** Paints a box over the part of the text from one shown unit to before another, for each piece of it that stands together. */
	void PaintRange(const FGeometry& AllottedGeometry, FSlateWindowElementList& OutDrawElements, int32 LayerId, int32 Begin, int32 End, const FSlateBrush& Brush,
		ESlateDrawEffect Effect, const FLinearColor& Color) const;

	TUniquePtr<Host::FTextEditModel> Model;
	TUniquePtr<Host::FComposition> Composition;
	/** How the text is laid out, and which part of it is seen. */
	TUniquePtr<Host::FEditableTextView> View;

	const FEditableTextStyle* Style = nullptr;
	TSlateAttribute<FText, EInvalidateWidgetReason::None> BoundTextAttribute;
	TSlateAttribute<FText, EInvalidateWidgetReason::Layout> HintTextAttribute;
	TSlateAttribute<FSlateFontInfo, EInvalidateWidgetReason::Layout> FontAttribute;
	TSlateAttribute<FSlateColor, EInvalidateWidgetReason::Paint> ColorAttribute;
	TSlateAttribute<const FSlateBrush*, EInvalidateWidgetReason::Paint> SelectionBrushAttribute;
	TSlateAttribute<const FSlateBrush*, EInvalidateWidgetReason::Paint> CompositionBrushAttribute;
	TSlateAttribute<const FSlateBrush*, EInvalidateWidgetReason::Paint> CaretBrushAttribute;
	TSlateAttribute<bool, EInvalidateWidgetReason::Paint> IsReadOnlyAttribute;
	TSlateAttribute<bool, EInvalidateWidgetReason::Layout> IsPasswordAttribute;
	TSlateAttribute<ETextJustify::Type, EInvalidateWidgetReason::Paint> JustificationAttribute;
	TSlateAttribute<float, EInvalidateWidgetReason::Layout> MinDesiredWidthAttribute;
	TAttribute<bool> IsCaretMovedWhenGainFocus;
	TAttribute<bool> SelectAllTextWhenFocused;
	TAttribute<bool> RevertTextOnEscape;
	TAttribute<bool> ClearKeyboardFocusOnCommit;
	TAttribute<bool> SelectAllTextOnCommit;
	TAttribute<bool> AllowContextMenu;
	ETextOverflowPolicy OverflowPolicy = ETextOverflowPolicy::Clip;
	FOnTextChanged OnTextChanged;
	FOnTextCommitted OnTextCommitted;
	FOnIsTypedCharValid OnIsTypedCharValid;
	FOnKeyDown OnKeyDownHandler;

	/** As it was given, or as it was edited since. */
	FText Text;
	/** From before the editing, for escape. */
	FText OriginalText;
	TSharedPtr<FActiveTimerHandle> BlinkTimer;
	/** While it is open, the text is edited still. */
	TWeakPtr<IMenu> ContextMenu;
	/** First half of a character beyond 16 bits, until the second comes. */
	TCHAR PendingSurrogate = 0;
	bool bFontIsOwn = false;
	bool bColorIsOwn = false;
	bool bHasFocus = false;
	/** From getting the focus to losing it to something else than the menu. */
	bool bEditing = false;
	bool bCaretShown = false;
	bool bSelectingByMouse = false;
	/** The right button is held on the text. */
	bool bSummoningMenu = false;
	bool bSelectAllOnMouseUp = false;
	/** Enter gave the text already; losing the focus over it is no second commit. */
	bool bCommittedByEnter = false;
};

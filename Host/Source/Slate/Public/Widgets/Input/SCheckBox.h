#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SBorder;
class SImage;

/** A box that the user checks and unchecks, or a button that stays down, beside or around some content. */
class SLATE_API SCheckBox : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SCheckBox)
		: _Content()
		, _Style(&FCoreStyle::Get().GetWidgetStyle<FCheckBoxStyle>("Checkbox"))
		, _IsChecked(ECheckBoxState::Unchecked)
		, _HAlign(HAlign_Fill)
		, _ClickMethod(EButtonClickMethod::DownAndUp)
		, _TouchMethod(EButtonTouchMethod::DownAndUp)
		, _PressMethod(EButtonPressMethod::DownAndUp)
		, _ForegroundColor(FSlateColor::UseStyle())
		, _IsFocusable(true)
	{
	}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		/** Kept by address. */
		SLATE_STYLE_ARGUMENT(FCheckBoxStyle, Style)
		/** In place of the type of the style. */
		SLATE_ARGUMENT(TOptional<ESlateCheckBoxType::Type>, Type)
		/** The user changed the state; it is in force already. Changes from code do not tell. */
		SLATE_EVENT(FOnCheckStateChanged, OnCheckStateChanged)
		/** A getter keeps the user from changing the state other than through OnCheckStateChanged. */
		SLATE_ATTRIBUTE(ECheckBoxState, IsChecked)
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		/** In place of the padding of the style. */
		SLATE_ATTRIBUTE(FMargin, Padding)
		SLATE_ARGUMENT(EButtonClickMethod::Type, ClickMethod)
		/** For touch; a mouse is ruled by ClickMethod. */
		SLATE_ARGUMENT(EButtonTouchMethod::Type, TouchMethod)
		/** For the keyboard. */
		SLATE_ARGUMENT(EButtonPressMethod::Type, PressMethod)
		/** Of the content; that of the style and state when it is "use style". */
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		SLATE_ARGUMENT(bool, IsFocusable)
	SLATE_END_ARGS()

	SCheckBox();
	void Construct(const FArguments& InArgs);

	bool IsChecked() const { return GetCheckedState() == ECheckBoxState::Checked; }
	ECheckBoxState GetCheckedState() const { return IsCheckedAttribute.Get(); }
	void SetIsChecked(TAttribute<ECheckBoxState> InIsChecked);
	/** As a click does. */
	void ToggleCheckedState();

	void SetContent(const TSharedRef<SWidget>& InContent);
	/** Also to be called when the style was changed in place. Null stands for the default style. */
	void SetStyle(const FCheckBoxStyle* InStyle);
	void SetClickMethod(EButtonClickMethod::Type InClickMethod) { ClickMethod = InClickMethod; }
	void SetTouchMethod(EButtonTouchMethod::Type InTouchMethod) { TouchMethod = InTouchMethod; }
	void SetPressMethod(EButtonPressMethod::Type InPressMethod) { PressMethod = InPressMethod; }

	bool IsPressed() const { return bIsPressed; }

	virtual FSlateColor GetForegroundColor() const override;

	virtual bool SupportsKeyboardFocus() const override { return bIsFocusable; }
	virtual bool IsInteractable() const override { return IsEnabled(); }
	/** Drawn over a toggle button; of a check box, the box alone has a ring. */
	virtual const FSlateBrush* GetFocusBrush() const override;
	virtual void OnFocusLost(const FFocusEvent& InFocusEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnDragDetected(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent) override;
	virtual void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent) override;

	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

private:
	bool IsToggleButton() const;
	/** Puts the parts together for the type. */
	void Build(EHorizontalAlignment HAlign, const TSharedRef<SWidget>& Content);
	void SetPressed(bool bInIsPressed);
	/** Chooses the brushes for the state. */
	void UpdateLook();
	/** The same, after the style changed: brushes may be others at the same address. */
	void ApplyStyle();
	void ShowState(ECheckBoxState State);
	const FSlateBrush* ChooseImage() const;
	const FSlateBrush* ChooseBackground() const;

	TSharedPtr<SBorder> Background;
	/** The box beside the content; null for a toggle button. */
	TSharedPtr<SImage> Box;
	/** Around the content: the frame of a toggle button, or just the padding. */
	TSharedPtr<SBorder> ContentFrame;
	const FCheckBoxStyle* Style = nullptr;
	TSlateAttribute<ECheckBoxState, EInvalidateWidgetReason::Paint> IsCheckedAttribute;
	FOnCheckStateChanged OnCheckStateChanged;
	TOptional<ESlateCheckBoxType::Type> TypeOverride;
	/** Set when it does not come from the style. */
	TAttribute<FMargin> PaddingOverride;
	/** What the brushes were chosen for. */
	ECheckBoxState ShownState = ECheckBoxState::Unchecked;
	TEnumAsByte<EButtonClickMethod::Type> ClickMethod = EButtonClickMethod::DownAndUp;
	TEnumAsByte<EButtonTouchMethod::Type> TouchMethod = EButtonTouchMethod::DownAndUp;
	TEnumAsByte<EButtonPressMethod::Type> PressMethod = EButtonPressMethod::DownAndUp;
	bool bIsFocusable = true;
	bool bIsPressed = false;
};

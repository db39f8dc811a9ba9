#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SBorder.h"

/**
 * A border that is pressed to do something.
 *
 * The border's brush is chosen from the style whenever the button is hovered, pressed, enabled or given a style, or one of
 * these ends; a brush set by SetBorderImage lasts until then. The look changes before the delegates run, so a handler
 * that sets the brush prevails until the next change.
 */
class SLATE_API SButton : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SButton)
		: _Content()
		, _ButtonStyle(&FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("Button"))
		, _TextStyle(nullptr)
		, _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _ContentPadding(FMargin(4.0f, 2.0f))
		, _ClickMethod(EButtonClickMethod::DownAndUp)
		, _TouchMethod(EButtonTouchMethod::DownAndUp)
		, _PressMethod(EButtonPressMethod::DownAndUp)
		, _DesiredSizeScale(FVector2D(1.0, 1.0))
		, _ContentScale(FVector2D(1.0, 1.0))
		, _ButtonColorAndOpacity(FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)))
		, _ColorAndOpacity(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f))
		, _ForegroundColor(FSlateColor::UseStyle())
		, _IsFocusable(true)
	{
	}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		/** Kept by address. */
		SLATE_STYLE_ARGUMENT(FButtonStyle, ButtonStyle)
		/** Of Text. Without one, the default. */
		SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		SLATE_ARGUMENT(EVerticalAlignment, VAlign)
		/** Around the content, besides the padding of the style. */
		SLATE_ATTRIBUTE(FMargin, ContentPadding)
		/** Content where no other is given. */
		SLATE_ATTRIBUTE(FText, Text)
		SLATE_EVENT(FOnClicked, OnClicked)
		SLATE_EVENT(FSimpleDelegate, OnPressed)
		SLATE_EVENT(FSimpleDelegate, OnReleased)
		SLATE_EVENT(FSimpleDelegate, OnHovered)
		SLATE_EVENT(FSimpleDelegate, OnUnhovered)
		SLATE_ARGUMENT(EButtonClickMethod::Type, ClickMethod)
		/** For touch; a mouse is ruled by ClickMethod. */
		SLATE_ARGUMENT(EButtonTouchMethod::Type, TouchMethod)
		/** For the keyboard. */
		SLATE_ARGUMENT(EButtonPressMethod::Type, PressMethod)
		SLATE_ATTRIBUTE(FVector2D, DesiredSizeScale)
		SLATE_ATTRIBUTE(FVector2D, ContentScale)
		/** Multiplies the tint of the border's brush. */
		SLATE_ATTRIBUTE(FSlateColor, ButtonColorAndOpacity)
		/** Multiplies the colours of the content. */
		SLATE_ATTRIBUTE(FLinearColor, ColorAndOpacity)
		/** Foreground of the content; that of the style and state when it is "use style". */
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		SLATE_ARGUMENT(bool, IsFocusable)
	SLATE_END_ARGS()

	SButton();
	void Construct(const FArguments& InArgs);

	/** Replaces the content; the text that the button was made with goes too. */
	virtual void SetContent(TSharedRef<SWidget> InContent) override;

	/** Also to be called when the style was changed in place. Null stands for the default style. */
	void SetButtonStyle(const FButtonStyle* InButtonStyle);
	void SetContentPadding(TAttribute<FMargin> InContentPadding);

	void SetOnClicked(FOnClicked InOnClicked);
	void SetOnPressed(FSimpleDelegate InOnPressed);
	void SetOnReleased(FSimpleDelegate InOnReleased);
	void SetOnHovered(FSimpleDelegate InOnHovered);
	void SetOnUnhovered(FSimpleDelegate InOnUnhovered);

	void SetClickMethod(EButtonClickMethod::Type InClickMethod) { ClickMethod = InClickMethod; }
	void SetTouchMethod(EButtonTouchMethod::Type InTouchMethod) { TouchMethod = InTouchMethod; }
	void SetPressMethod(EButtonPressMethod::Type InPressMethod) { PressMethod = InPressMethod; }
	void SetIsFocusable(bool bInIsFocusable) { bIsFocusable = bInIsFocusable; }

	/** Held down by the mouse or by a key. */
	bool IsPressed() const { return bIsPressed; }

	virtual FSlateColor GetForegroundColor() const override;
	virtual FSlateColor GetDisabledForegroundColor() const override;

	virtual bool SupportsKeyboardFocus() const override { return bIsFocusable; }
	virtual bool IsInteractable() const override { return IsEnabled(); }
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

protected:
	virtual void OnEnabledChanged() override;

	/** Takes on the pressed look, and tells OnPressed. Nothing happens when it is pressed already. */
	void Press();
	void Release();
	/** Tells OnClicked. The reply is handled, whatever the handler answered. */
	FReply ExecuteOnClick();

private:
	/** Chooses brush and padding for the state of the button. */
	void UpdateLook();
	const FSlateBrush* ChooseBrush() const;
	const FSlateColor& ChooseForeground() const;
	const FMargin& GetStylePadding() const { return bIsPressed ? Style->PressedPadding : Style->NormalPadding; }
	void UpdatePadding();

	const FButtonStyle* Style = nullptr;
	/** Unless the content padding is bound to a getter. */
	FMargin ContentPadding;
	FOnClicked OnClicked;
	FSimpleDelegate OnPressed;
	FSimpleDelegate OnReleased;
	FSimpleDelegate OnHovered;
	FSimpleDelegate OnUnhovered;
	TEnumAsByte<EButtonClickMethod::Type> ClickMethod;
	TEnumAsByte<EButtonTouchMethod::Type> TouchMethod;
	TEnumAsByte<EButtonPressMethod::Type> PressMethod;
	bool bIsFocusable : 1;
	bool bIsPressed : 1;
	bool bContentPaddingBound : 1;
};

#pragma once

#include "CoreMinimal.h"
#include "Framework/Application/IMenu.h"
#include "Framework/SlateDelegates.h"
#include "Styling/SlateTypes.h"
#include "Styling/CoreStyle.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SButton;
class SImage;

/** The menu came up, or went. */
DECLARE_DELEGATE_OneParam(FOnIsOpenChanged, bool);

/**
 * A button that opens a menu below it, or above when there is no room below. The menu is at least as wide as the button. It
 * is closed by a press outside of it, Escape, the focus going elsewhere, and by whatever happens to the button: when it is
 * taken away, hidden, disabled or moved, or its window gets another size.
 */
class SLATE_API SComboButton : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SComboButton)
		: _ComboButtonStyle(&FCoreStyle::Get().GetWidgetStyle<FComboBoxStyle>("ComboBox").ComboButtonStyle)
		, _ContentPadding(FMargin(0.0f))
		, _HasDownArrow(true)
		, _ForegroundColor(FSlateColor::UseStyle())
		, _IsFocusable(true)
	{
	}
		SLATE_NAMED_SLOT(FArguments, ButtonContent)
		/** Kept by address. */
		SLATE_STYLE_ARGUMENT(FComboButtonStyle, ComboButtonStyle)
		SLATE_ATTRIBUTE(FMargin, ContentPadding)
		SLATE_ARGUMENT(bool, HasDownArrow)
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		SLATE_ARGUMENT(bool, IsFocusable)
		/** Makes the menu each time that it opens. */
		SLATE_EVENT(FOnGetContent, OnGetMenuContent)
		/** The menu has come up. */
		SLATE_EVENT(FSimpleDelegate, OnComboBoxOpened)
		SLATE_EVENT(FOnIsOpenChanged, OnMenuOpenChanged)
	SLATE_END_ARGS()

	virtual ~SComboButton() override;
	void Construct(const FArguments& InArgs);

	bool IsOpen() const { return Menu.IsValid(); }
	/** Nothing happens when it is so already, or when the button stands in no window. */
	void SetIsOpen(bool InIsOpen, bool bFocusMenu = true);
	/** What has the focus when the menu opens; without one, the menu as a whole. */
	void SetMenuContentWidgetToFocus(TWeakPtr<SWidget> InWidget) { WidgetToFocus = MoveTemp(InWidget); }

	void SetButtonContentPadding(FMargin InPadding);
	void SetHasDownArrow(bool InHasArrowDown);
	/** Also to be called when the style was changed in place. */
	void SetComboButtonStyle(const FComboButtonStyle* InStyle);
	void SetButtonForegroundColor(const TAttribute<FSlateColor>& InColor);

private:
	void OnButtonPressed();
	FReply OnButtonClicked();
	void OnMenuDismissed(TSharedRef<IMenu> Dismissed);

	const FComboButtonStyle* Style = nullptr;
	TSharedPtr<SButton> Button;
	TSharedPtr<SImage> Arrow;
	TWeakPtr<IMenu> Menu;
	TWeakPtr<SWidget> WidgetToFocus;
	FOnGetContent OnGetMenuContent;
	FSimpleDelegate OnComboBoxOpened;
	FOnIsOpenChanged OnMenuOpenChanged;
	/** The press that is about to come here has closed the menu, as any press outside does. */
	bool bDismissedByPress = false;
	/** The button is held down by such a press, whose click is not to open the menu again. */
	bool bPressCloses = false;
};

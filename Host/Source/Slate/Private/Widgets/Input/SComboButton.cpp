#include "Widgets/Input/SComboButton.h"

#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "Layout/WidgetPath.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScaleBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SWindow.h"

SComboButton::~SComboButton()
{
	if (const TSharedPtr<IMenu> Open = Menu.Pin())
	{
		Open->Dismiss();
	}
}

void SComboButton::Construct(const FArguments& InArgs)
{
	Style = InArgs._ComboButtonStyle ? InArgs._ComboButtonStyle : &FComboButtonStyle::GetDefault();
	OnGetMenuContent = InArgs._OnGetMenuContent;
	OnComboBoxOpened = InArgs._OnComboBoxOpened;
	OnMenuOpenChanged = InArgs._OnMenuOpenChanged;
	ChildSlot
	[
		SAssignNew(Button, SButton)
			.ButtonStyle(&Style->ButtonStyle)
			.ContentPadding(InArgs._ContentPadding)
			.ForegroundColor(InArgs._ForegroundColor)
			.IsFocusable(InArgs._IsFocusable)
			.OnPressed(FSimpleDelegate::CreateSP(this, &SComboButton::OnButtonPressed))
			.OnClicked(FOnClicked::CreateSP(this, &SComboButton::OnButtonClicked))
			[
				SNew(SHorizontalBox)
				+ SHorizontalBox::Slot().FillWidth(1.0f).VAlign(VAlign_Center)
				[
					InArgs._ButtonContent.Widget
				]
				+ SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Center).Padding(6.0f, 0.0f, 0.0f, 0.0f)
				[
					SAssignNew(Arrow, SImage)
						.Image(&Style->DownArrowImage)
						.ColorAndOpacity(FSlateColor::UseForeground())
				]
			]
	];
	SetHasDownArrow(InArgs._HasDownArrow);
}

void SComboButton::SetIsOpen(bool InIsOpen, bool bFocusMenu)
{
	if (InIsOpen == IsOpen())
	{
		return;
	}
	if (!InIsOpen)
	{
		Menu.Pin()->Dismiss();
		return;
	}
	FSlateApplication& Application = FSlateApplication::Get();
	const TSharedPtr<SWindow> Window = Application.FindWidgetWindow(AsShared());
	if (!Window.IsValid() || !OnGetMenuContent.IsBound())
	{
		return;
	}
	// The handlers may take the button away.
	const TSharedRef<SWidget> KeepAlive = AsShared();
	WidgetToFocus.Reset();
	const TSharedRef<SWidget> Content = OnGetMenuContent.Execute();
	const FGeometry& Place = GetCachedGeometry();
	// The layer of menus has the scale of the window; what stands in the menu is to look like the button.
	const TSharedRef<SWidget> Scaled = SNew(SScaleBox)
		.Stretch(EStretch::UserSpecified)
		// A menu that is given less room than it wants is to make do with it.
		.HAlign(HAlign_Fill)
		.VAlign(VAlign_Fill)
		.UserSpecifiedScale(Place.Scale / Window->GetCachedGeometry().Scale)
		[
			SNew(SBox).MinDesiredWidth(FOptionalSize(Place.GetLocalSize().X))[Content]
		];
	const TSharedPtr<IMenu> Opened = Application.PushMenu(AsShared(), FWidgetPath(), Scaled, Place.GetAbsolutePosition(),
		FPopupTransitionEffect(FPopupTransitionEffect::ComboButton), false, Place.GetAbsoluteSize());
	if (!Opened.IsValid())
	{
		return;
	}
	Menu = Opened;
	Opened->GetOnMenuDismissed().AddSP(this, &SComboButton::OnMenuDismissed);
	if (bFocusMenu)
	{
		Application.SetKeyboardFocus(WidgetToFocus.IsValid() ? WidgetToFocus.Pin() : Content);
	}
	OnComboBoxOpened.ExecuteIfBound();
	OnMenuOpenChanged.ExecuteIfBound(true);
}

void SComboButton::SetButtonContentPadding(FMargin InPadding)
{
	Button->SetContentPadding(InPadding);
}

void SComboButton::SetHasDownArrow(bool InHasArrowDown)
{
	Arrow->SetVisibility(InHasArrowDown ? EVisibility::HitTestInvisible : EVisibility::Collapsed);
}

void SComboButton::SetComboButtonStyle(const FComboButtonStyle* InStyle)
{
	Style = InStyle ? InStyle : &FComboButtonStyle::GetDefault();
	Button->SetButtonStyle(&Style->ButtonStyle);
	Arrow->SetImage(&Style->DownArrowImage);
}

void SComboButton::SetButtonForegroundColor(const TAttribute<FSlateColor>& InColor)
{
	Button->SetForegroundColor(InColor);
}

void SComboButton::OnButtonPressed()
{
	bPressCloses = bDismissedByPress;
	bDismissedByPress = false;
}

FReply SComboButton::OnButtonClicked()
{
	// The second press of a double click leaves the menu open.
	SetIsOpen(!IsOpen() && !bPressCloses);
	return FReply::Handled();
}

void SComboButton::OnMenuDismissed(TSharedRef<IMenu>)
{
	Menu.Reset();
	FSlateApplication& Application = FSlateApplication::Get();
	bDismissedByPress = Application.GetPressedMouseButtons().Contains(EKeys::LeftMouseButton)
		&& GetCachedGeometry().IsUnderLocation(FVector2f(Application.GetCursorPos()));
	const TSharedPtr<SWidget> Focused = Application.GetKeyboardFocusedWidget();
	if (!Focused.IsValid() || !Application.FindWidgetWindow(Focused.ToSharedRef()).IsValid())
	{
		Application.SetKeyboardFocus(Button, EFocusCause::OtherWidgetLostFocus);
	}
	OnMenuOpenChanged.ExecuteIfBound(false);
}

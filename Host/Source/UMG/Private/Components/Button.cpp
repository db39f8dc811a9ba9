#include "Components/Button.h"

#include "Binding/States/WidgetStateRegistration.h"
#include "Components/ButtonSlot.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/SNullWidget.h"

#define LOCTEXT_NAMESPACE "UMG"

UButton::UButton(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, WidgetStyle(FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("Button"))
{
}

void UButton::SetColorAndOpacity(FLinearColor InColorAndOpacity)
{
	ColorAndOpacity = InColorAndOpacity;
	if (MyButton)
	{
		MyButton->SetColorAndOpacity(InColorAndOpacity);
	}
}

void UButton::SetBackgroundColor(FLinearColor InBackgroundColor)
{
	BackgroundColor = InBackgroundColor;
	if (MyButton)
	{
		MyButton->SetBorderBackgroundColor(FSlateColor(InBackgroundColor));
	}
}

void UButton::SetClickMethod(EButtonClickMethod::Type InClickMethod)
{
	ClickMethod = InClickMethod;
	if (MyButton)
	{
		MyButton->SetClickMethod(InClickMethod);
	}
}

void UButton::SetTouchMethod(EButtonTouchMethod::Type InTouchMethod)
{
	TouchMethod = InTouchMethod;
	if (MyButton)
	{
		MyButton->SetTouchMethod(InTouchMethod);
	}
}

void UButton::SetPressMethod(EButtonPressMethod::Type InPressMethod)
{
	PressMethod = InPressMethod;
	if (MyButton)
	{
		MyButton->SetPressMethod(InPressMethod);
	}
}

void UButton::SetStyle(const FButtonStyle& InStyle)
{
	WidgetStyle = InStyle;
	if (MyButton)
	{
		MyButton->SetButtonStyle(&WidgetStyle);
	}
}

bool UButton::IsPressed() const
{
	return MyButton && MyButton->IsPressed();
}

void UButton::InitIsFocusable(bool InIsFocusable)
{
	IsFocusable = InIsFocusable;
}

FReply UButton::SlateHandleClicked()
{
	OnClicked.Broadcast();
	return FReply::Handled();
}

void UButton::SlateHandlePressed()
{
	OnPressed.Broadcast();
	BroadcastBinaryPostStateChange(UWidgetPressedStateRegistration::Bit, true);
}

void UButton::SlateHandleReleased()
{
	OnReleased.Broadcast();
	BroadcastBinaryPostStateChange(UWidgetPressedStateRegistration::Bit, false);
}

void UButton::SlateHandleHovered()
{
	OnHovered.Broadcast();
	BroadcastBinaryPostStateChange(UWidgetHoveredStateRegistration::Bit, true);
}

void UButton::SlateHandleUnhovered()
{
	OnUnhovered.Broadcast();
	BroadcastBinaryPostStateChange(UWidgetHoveredStateRegistration::Bit, false);
}

void UButton::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (!MyButton)
	{
		return;
	}
	MyButton->SetButtonStyle(&WidgetStyle);
	MyButton->SetColorAndOpacity(ColorAndOpacity);
	MyButton->SetBorderBackgroundColor(FSlateColor(BackgroundColor));
}

void UButton::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyButton.Reset();
}

#if WITH_EDITOR
const FText UButton::GetPaletteCategory()
{
	return LOCTEXT("Common", "Common");
}
#endif

TSharedRef<SWidget> UButton::RebuildWidget()
{
	MyButton = SNew(SButton)
		.OnClicked(BIND_UOBJECT_DELEGATE(FOnClicked, SlateHandleClicked))
		.OnPressed(BIND_UOBJECT_DELEGATE(FSimpleDelegate, SlateHandlePressed))
		.OnReleased(BIND_UOBJECT_DELEGATE(FSimpleDelegate, SlateHandleReleased))
		.OnHovered(BIND_UOBJECT_DELEGATE(FSimpleDelegate, SlateHandleHovered))
		.OnUnhovered(BIND_UOBJECT_DELEGATE(FSimpleDelegate, SlateHandleUnhovered))
		.ButtonStyle(&WidgetStyle)
		.ClickMethod(ClickMethod.GetValue())
		.TouchMethod(TouchMethod.GetValue())
		.PressMethod(PressMethod.GetValue())
		.IsFocusable(IsFocusable);
	if (UPanelSlot* ContentSlot = GetContentSlot())
	{
		OnSlotAdded(ContentSlot);
	}
	return MyButton.ToSharedRef();
}

UClass* UButton::GetSlotClass() const
{
	return UButtonSlot::StaticClass();
}

void UButton::OnSlotAdded(UPanelSlot* InSlot)
{
	if (MyButton)
	{
		CastChecked<UButtonSlot>(InSlot)->BuildSlot(MyButton.ToSharedRef());
	}
}

void UButton::OnSlotRemoved(UPanelSlot*)
{
	if (MyButton)
	{
		MyButton->SetContent(SNullWidget::NullWidget);
	}
}

#undef LOCTEXT_NAMESPACE

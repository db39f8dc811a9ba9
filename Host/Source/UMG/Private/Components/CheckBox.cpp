#include "Components/CheckBox.h"

#include "Binding/States/WidgetStateRegistration.h"
#include "Components/PanelSlot.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/SNullWidget.h"

#define LOCTEXT_NAMESPACE "UMG"

UCheckBox::UCheckBox(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, WidgetStyle(FCoreStyle::Get().GetWidgetStyle<FCheckBoxStyle>("Checkbox"))
{
}

bool UCheckBox::IsPressed() const
{
	return MyCheckbox && MyCheckbox->IsPressed();
}

bool UCheckBox::IsChecked() const
{
	return GetCheckedState() == ECheckBoxState::Checked;
}

ECheckBoxState UCheckBox::GetCheckedState() const
{
	return MyCheckbox ? MyCheckbox->GetCheckedState() : CheckedState;
}

void UCheckBox::SetIsChecked(bool InIsChecked)
{
	SetCheckedState(InIsChecked ? ECheckBoxState::Checked : ECheckBoxState::Unchecked);
}

void UCheckBox::SetCheckedState(ECheckBoxState InCheckedState)
{
	if (MyCheckbox)
	{
		MyCheckbox->SetIsChecked(InCheckedState);
	}
	StoreCheckedState(InCheckedState);
}

void UCheckBox::SetWidgetStyle(const FCheckBoxStyle& InStyle)
{
	WidgetStyle = InStyle;
	if (MyCheckbox)
	{
		MyCheckbox->SetStyle(&WidgetStyle);
	}
}

void UCheckBox::SetClickMethod(EButtonClickMethod::Type InClickMethod)
{
	ClickMethod = InClickMethod;
	if (MyCheckbox)
	{
		MyCheckbox->SetClickMethod(InClickMethod);
	}
}

void UCheckBox::SetTouchMethod(EButtonTouchMethod::Type InTouchMethod)
{
	TouchMethod = InTouchMethod;
	if (MyCheckbox)
	{
		MyCheckbox->SetTouchMethod(InTouchMethod);
	}
}

void UCheckBox::SetPressMethod(EButtonPressMethod::Type InPressMethod)
{
	PressMethod = InPressMethod;
	if (MyCheckbox)
	{
		MyCheckbox->SetPressMethod(InPressMethod);
	}
}

void UCheckBox::InitIsFocusable(bool InIsFocusable)
{
	IsFocusable = InIsFocusable;
}

void UCheckBox::SlateOnCheckStateChangedCallback(ECheckBoxState NewState)
{
	StoreCheckedState(NewState);
	OnCheckStateChanged.Broadcast(NewState == ECheckBoxState::Checked);
}

void UCheckBox::StoreCheckedState(ECheckBoxState NewState)
{
	const bool bWasChecked = CheckedState == ECheckBoxState::Checked;
	const bool bChecked = NewState == ECheckBoxState::Checked;
	CheckedState = NewState;
	if (bWasChecked != bChecked)
	{
		BroadcastBinaryPostStateChange(UWidgetSelectedStateRegistration::Bit, bChecked);
	}
}

void UCheckBox::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (!MyCheckbox)
	{
		return;
	}
	MyCheckbox->SetStyle(&WidgetStyle);
	MyCheckbox->SetIsChecked(CheckedState);
	MyCheckbox->SetClickMethod(ClickMethod);
	MyCheckbox->SetTouchMethod(TouchMethod);
	MyCheckbox->SetPressMethod(PressMethod);
}

void UCheckBox::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyCheckbox.Reset();
}

#if WITH_EDITOR
const FText UCheckBox::GetPaletteCategory()
{
	return LOCTEXT("Common", "Common");
}
#endif

TSharedRef<SWidget> UCheckBox::RebuildWidget()
{
	MyCheckbox = SNew(SCheckBox)
		.Style(&WidgetStyle)
		.OnCheckStateChanged(BIND_UOBJECT_DELEGATE(FOnCheckStateChanged, SlateOnCheckStateChangedCallback))
		.HAlign(HorizontalAlignment.GetValue())
		.IsFocusable(IsFocusable);
	if (UPanelSlot* ContentSlot = GetContentSlot())
	{
		OnSlotAdded(ContentSlot);
	}
	return MyCheckbox.ToSharedRef();
}

void UCheckBox::OnSlotAdded(UPanelSlot* InSlot)
{
	if (MyCheckbox)
	{
		MyCheckbox->SetContent(InSlot->Content ? InSlot->Content->TakeWidget() : SNullWidget::NullWidget);
	}
}

void UCheckBox::OnSlotRemoved(UPanelSlot*)
{
	if (MyCheckbox)
	{
		MyCheckbox->SetContent(SNullWidget::NullWidget);
	}
}

#undef LOCTEXT_NAMESPACE

#include "Components/Widget.h"

#include "Binding/States/WidgetStateRegistration.h"
#include "Blueprint/UserWidget.h"
#include "Blueprint/WidgetTree.h"
#include "Components/PanelWidget.h"
#include "Engine/LocalPlayer.h"
#include "Engine/World.h"
#include "Framework/Application/SlateApplication.h"
#include "GameFramework/PlayerController.h"
#include "Slate/SObjectWidget.h"
#include "Widgets/SNullWidget.h"

#define LOCTEXT_NAMESPACE "UMG"

UWidget::UWidget(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bIsVariable(true)
	, bIsEnabled(true)
{
}

void UWidget::SetRenderTransform(FWidgetTransform InTransform)
{
	RenderTransform = InTransform;
	ApplyRenderTransform();
}

void UWidget::SetRenderScale(FVector2D Scale)
{
	RenderTransform.Scale = Scale;
	ApplyRenderTransform();
}

void UWidget::SetRenderShear(FVector2D Shear)
{
	RenderTransform.Shear = Shear;
	ApplyRenderTransform();
}

void UWidget::SetRenderTransformAngle(float Angle)
{
	RenderTransform.Angle = Angle;
	ApplyRenderTransform();
}

void UWidget::SetRenderTranslation(FVector2D Translation)
{
	RenderTransform.Translation = Translation;
	ApplyRenderTransform();
}

void UWidget::SetRenderTransformPivot(FVector2D Pivot)
{
	RenderTransformPivot = Pivot;
	ApplyRenderTransform();
}

void UWidget::ApplyRenderTransform()
{
	const TSharedPtr<SWidget> Widget = GetCachedWidget();
	if (!Widget)
	{
		return;
	}
	TOptional<FSlateRenderTransform> Transform;
	if (!RenderTransform.IsIdentity())
	{
		// The pivot means nothing without a transform, and few widgets have one: the others need no room for either.
		Widget->SetRenderTransformPivot(RenderTransformPivot);
		Transform = RenderTransform.ToSlateRenderTransform();
	}
	Widget->SetRenderTransform(Transform);
}

FDelegateHandle UWidget::RegisterPostStateListener(const FOnWidgetStateBroadcast::FDelegate& ListenerDelegate, bool bBroadcastCurrentState)
{
	if (!PostStateListeners)
	{
		PostStateListeners = MakeUnique<FOnWidgetStateBroadcast>();
	}
	if (bBroadcastCurrentState)
	{
		ListenerDelegate.ExecuteIfBound(this, AskForStates());
	}
	return PostStateListeners->Add(ListenerDelegate);
}

void UWidget::UnregisterPostStateListener(const FDelegateHandle& ListenerDelegate)
{
	if (PostStateListeners)
	{
		PostStateListeners->Remove(ListenerDelegate);
	}
}

void UWidget::BroadcastBinaryPostStateChange(const FWidgetStateBitfield& StateChange, bool bInValue)
{
	if (PostStateListeners)
	{
		FWidgetStateBitfield States = AskForStates();
		States.SetBinaryState(StateChange, bInValue);
		PostStateListeners->Broadcast(this, States);
	}
}

FWidgetStateBitfield UWidget::AskForStates() const
{
	FWidgetStateBitfield States;
	const auto Ask = [this, &States]<typename T>(const T* Registration) { States.SetBinaryState(T::Bit, Registration->GetRegisteredWidgetState(this)); };
	Ask(GetDefault<UWidgetHoveredStateRegistration>());
	Ask(GetDefault<UWidgetPressedStateRegistration>());
	Ask(GetDefault<UWidgetDisabledStateRegistration>());
	Ask(GetDefault<UWidgetSelectedStateRegistration>());
	return States;
}

void UWidget::SetIsEnabled(bool bInIsEnabled)
{
	const bool bChanged = bIsEnabled != bInIsEnabled;
	bIsEnabled = bInIsEnabled;
	if (const TSharedPtr<SWidget> Widget = GetCachedWidget())
	{
		Widget->SetEnabled(bInIsEnabled);
	}
	if (bChanged)
	{
		BroadcastBinaryPostStateChange(UWidgetDisabledStateRegistration::Bit, !bInIsEnabled);
	}
}

void UWidget::SetToolTipText(const FText& InToolTipText)
{
	ToolTipText = InToolTipText;
	if (const TSharedPtr<SWidget> Widget = GetCachedWidget())
	{
		Widget->SetToolTipText(InToolTipText);
	}
}

void UWidget::SetCursor(EMouseCursor::Type InCursor)
{
	Cursor = InCursor;
	if (const TSharedPtr<SWidget> Widget = GetCachedWidget())
	{
		Widget->SetCursor(InCursor);
	}
}

bool UWidget::IsVisible() const
{
	const TSharedPtr<SWidget> Widget = GetCachedWidget();
	return Widget && Widget->GetVisibility().IsVisible();
}

bool UWidget::IsRendered() const
{
	for (TSharedPtr<SWidget> Widget = GetCachedWidget(); Widget; Widget = Widget->GetParentWidget())
	{
		if (!Widget->GetVisibility().IsVisible() || Widget->GetRenderOpacity() <= 0.0f)
		{
			return false;
		}
	}
	return IsVisible();
}

ESlateVisibility UWidget::GetVisibility() const
{
	if (const TSharedPtr<SWidget> Widget = GetCachedWidget())
	{
		return ConvertRuntimeToSerializedVisibility(Widget->GetVisibility());
	}
	return Visibility;
}

void UWidget::SetVisibility(ESlateVisibility InVisibility)
{
	Visibility = InVisibility;
	if (const TSharedPtr<SWidget> Widget = GetCachedWidget())
	{
		Widget->SetVisibility(ConvertSerializedVisibilityToRuntime(InVisibility));
	}
}

void UWidget::SetRenderOpacity(float InOpacity)
{
	RenderOpacity = InOpacity;
	if (const TSharedPtr<SWidget> Widget = GetCachedWidget())
	{
		Widget->SetRenderOpacity(InOpacity);
	}
}

void UWidget::SetClipping(EWidgetClipping InClipping)
{
	Clipping = InClipping;
	if (const TSharedPtr<SWidget> Widget = GetCachedWidget())
	{
		Widget->SetClipping(InClipping);
	}
}

bool UWidget::IsHovered() const
{
	const TSharedPtr<SWidget> Widget = GetCachedWidget();
	return Widget && Widget->IsHovered();
}

bool UWidget::HasKeyboardFocus() const
{
	const TSharedPtr<SWidget> Widget = GetCachedWidget();
	return Widget && Widget->HasKeyboardFocus();
}

bool UWidget::HasMouseCapture() const
{
	const TSharedPtr<SWidget> Widget = GetCachedWidget();
	return Widget && Widget->HasMouseCapture();
}

void UWidget::SetKeyboardFocus()
{
	SetFocus();
}

void UWidget::SetFocus()
{
	if (const TSharedPtr<SWidget> Widget = GetCachedWidget(); Widget && FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().SetKeyboardFocus(Widget, EFocusCause::SetDirectly);
	}
}

void UWidget::ForceLayoutPrepass()
{
	if (const TSharedPtr<SWidget> Widget = GetCachedWidget())
	{
		Widget->SlatePrepass();
	}
}

void UWidget::InvalidateLayoutAndVolatility()
{
	if (const TSharedPtr<SWidget> Widget = GetCachedWidget())
	{
		Widget->Invalidate(EInvalidateWidgetReason::LayoutAndVolatility);
	}
}

FVector2D UWidget::GetDesiredSize() const
{
	const TSharedPtr<SWidget> Widget = GetCachedWidget();
	return Widget ? FVector2D(Widget->GetDesiredSize()) : FVector2D(0.0, 0.0);
}

UPanelWidget* UWidget::GetParent() const
{
	return Slot ? Slot->Parent : nullptr;
}

void UWidget::RemoveFromParent()
{
	if (UPanelWidget* Parent = GetParent())
	{
		Parent->RemoveChild(this);
	}
}

const FGeometry& UWidget::GetCachedGeometry() const
{
	static const FGeometry Nowhere;
	const TSharedPtr<SWidget> Widget = GetCachedWidget();
	return Widget ? Widget->GetCachedGeometry() : Nowhere;
}

APlayerController* UWidget::GetOwningPlayer() const
{
	const UUserWidget* UserWidget = GetTypedOuter<UUserWidget>();
	return UserWidget ? UserWidget->GetOwningPlayer() : nullptr;
}

ULocalPlayer* UWidget::GetOwningLocalPlayer() const
{
	const APlayerController* Controller = GetOwningPlayer();
	return Controller ? Controller->GetLocalPlayer() : nullptr;
}

UWorld* UWidget::GetWorld() const
{
	// Only through the tree that the widget is part of: a widget outside any tree has no world.
	const UWidgetTree* Tree = Cast<UWidgetTree>(GetOuter());
	const UUserWidget* UserWidget = Tree ? Cast<UUserWidget>(Tree->GetOuter()) : nullptr;
	return UserWidget ? UserWidget->GetWorld() : nullptr;
}

TSharedRef<SWidget> UWidget::TakeWidget()
{
	if (const TSharedPtr<SWidget> Existing = GetCachedWidget())
	{
		return Existing.ToSharedRef();
	}

	const TSharedRef<SWidget> Built = RebuildWidget();
	MyWidget = Built;
	TSharedRef<SWidget> Result = Built;
	if (UUserWidget* UserWidget = Cast<UUserWidget>(this))
	{
		const TSharedRef<SObjectWidget> Wrapper = SNew(SObjectWidget, UserWidget)[Built];
		MyGCWidget = Wrapper;
		Result = Wrapper;
	}
	SynchronizeProperties();
	OnWidgetRebuilt();
	return Result;
}

TSharedPtr<SWidget> UWidget::GetCachedWidget() const
{
	if (const TSharedPtr<SObjectWidget> Wrapper = MyGCWidget.Pin())
	{
		return Wrapper;
	}
	return MyWidget.Pin();
}

void UWidget::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyWidget.Reset();
	MyGCWidget.Reset();
}

void UWidget::SynchronizeProperties()
{
	const TSharedPtr<SWidget> Widget = GetCachedWidget();
	if (!Widget)
	{
		return;
	}
	Widget->SetEnabled(bool(bIsEnabled));
	Widget->SetVisibility(ConvertSerializedVisibilityToRuntime(Visibility));
	Widget->SetClipping(Clipping);
	Widget->SetRenderOpacity(RenderOpacity);
	ApplyRenderTransform();
	if (!ToolTipText.IsEmpty())
	{
		Widget->SetToolTipText(ToolTipText);
	}
	if (Cursor != EMouseCursor::Default)
	{
		Widget->SetCursor(Cursor.GetValue());
	}
}

void UWidget::SetDesignerFlags(EWidgetDesignFlags NewFlags)
{
	DesignerFlags = NewFlags;
}

#if WITH_EDITOR
const FText UWidget::GetPaletteCategory()
{
	return LOCTEXT("Uncategorized", "Uncategorized");
}

void UWidget::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);
	if (IsDesignTime() && GetCachedWidget())
	{
		SynchronizeProperties();
	}
}
#endif

TSharedRef<SWidget> UWidget::RebuildWidget()
{
	return SNullWidget::NullWidget;
}

EVisibility UWidget::ConvertSerializedVisibilityToRuntime(ESlateVisibility Input)
{
	switch (Input)
	{
	case ESlateVisibility::Collapsed:
		return EVisibility::Collapsed;
	case ESlateVisibility::Hidden:
		return EVisibility::Hidden;
	case ESlateVisibility::HitTestInvisible:
		return EVisibility::HitTestInvisible;
	case ESlateVisibility::SelfHitTestInvisible:
		return EVisibility::SelfHitTestInvisible;
	default:
		return EVisibility::Visible;
	}
}

ESlateVisibility UWidget::ConvertRuntimeToSerializedVisibility(const EVisibility& Input)
{
	if (Input == EVisibility::Collapsed)
	{
		return ESlateVisibility::Collapsed;
	}
	if (Input == EVisibility::Hidden)
	{
		return ESlateVisibility::Hidden;
	}
	if (Input == EVisibility::HitTestInvisible)
	{
		return ESlateVisibility::HitTestInvisible;
	}
	if (Input == EVisibility::SelfHitTestInvisible)
	{
		return ESlateVisibility::SelfHitTestInvisible;
	}
	return ESlateVisibility::Visible;
}

#undef LOCTEXT_NAMESPACE

#include "Slate/SObjectWidget.h"

#include "Blueprint/UserWidget.h"

SObjectWidget::SObjectWidget() = default;

SObjectWidget::~SObjectWidget()
{
	ResetWidget();
}

void SObjectWidget::Construct(const FArguments& InArgs, UUserWidget* InWidgetObject)
{
	WidgetObject = InWidgetObject;
	SetCanTick(!InWidgetObject->IsDesignTime() && InWidgetObject->WantsNativeTick());
	ChildSlot[InArgs._Content.Widget];
}

void SObjectWidget::ResetWidget()
{
	if (UUserWidget* UserWidget = WidgetObject)
	{
		WidgetObject = nullptr;
		UserWidget->OnSlateWidgetReleased();
	}
}

void SObjectWidget::AddReferencedObjects(FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(WidgetObject);
}

FString SObjectWidget::GetReferencerName() const
{
	return TEXT("SObjectWidget");
}

bool SObjectWidget::CanRouteEvent() const
{
	return WidgetObject && !WidgetObject->IsDesignTime();
}

void SObjectWidget::Tick(const FGeometry& AllottedGeometry, const double, const float InDeltaTime)
{
	if (CanRouteEvent())
	{
		WidgetObject->NativeTick(AllottedGeometry, InDeltaTime);
	}
}

bool SObjectWidget::SupportsKeyboardFocus() const
{
	return CanRouteEvent() && WidgetObject->IsFocusable();
}

FReply SObjectWidget::OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent)
{
	return CanRouteEvent() ? WidgetObject->NativeOnFocusReceived(MyGeometry, InFocusEvent) : FReply::Unhandled();
}

void SObjectWidget::OnFocusLost(const FFocusEvent& InFocusEvent)
{
	if (CanRouteEvent())
	{
		WidgetObject->NativeOnFocusLost(InFocusEvent);
	}
}

FReply SObjectWidget::OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent)
{
	return CanRouteEvent() ? WidgetObject->NativeOnKeyChar(MyGeometry, InCharacterEvent) : FReply::Unhandled();
}

FReply SObjectWidget::OnPreviewKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	return CanRouteEvent() ? WidgetObject->NativeOnPreviewKeyDown(MyGeometry, InKeyEvent) : FReply::Unhandled();
}

FReply SObjectWidget::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	return CanRouteEvent() ? WidgetObject->NativeOnKeyDown(MyGeometry, InKeyEvent) : FReply::Unhandled();
}

FReply SObjectWidget::OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	return CanRouteEvent() ? WidgetObject->NativeOnKeyUp(MyGeometry, InKeyEvent) : FReply::Unhandled();
}

FReply SObjectWidget::OnPreviewMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return CanRouteEvent() ? WidgetObject->NativeOnPreviewMouseButtonDown(MyGeometry, MouseEvent) : FReply::Unhandled();
}

FReply SObjectWidget::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return CanRouteEvent() ? WidgetObject->NativeOnMouseButtonDown(MyGeometry, MouseEvent) : FReply::Unhandled();
}

FReply SObjectWidget::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return CanRouteEvent() ? WidgetObject->NativeOnMouseButtonUp(MyGeometry, MouseEvent) : FReply::Unhandled();
}

FReply SObjectWidget::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return CanRouteEvent() ? WidgetObject->NativeOnMouseMove(MyGeometry, MouseEvent) : FReply::Unhandled();
}

void SObjectWidget::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	SCompoundWidget::OnMouseEnter(MyGeometry, MouseEvent);
	if (CanRouteEvent())
	{
		WidgetObject->NativeOnMouseEnter(MyGeometry, MouseEvent);
	}
}

void SObjectWidget::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	SCompoundWidget::OnMouseLeave(MouseEvent);
	if (CanRouteEvent())
	{
		WidgetObject->NativeOnMouseLeave(MouseEvent);
	}
}

FReply SObjectWidget::OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return CanRouteEvent() ? WidgetObject->NativeOnMouseWheel(MyGeometry, MouseEvent) : FReply::Unhandled();
}

FReply SObjectWidget::OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return CanRouteEvent() ? WidgetObject->NativeOnMouseButtonDoubleClick(MyGeometry, MouseEvent) : FReply::Unhandled();
}

void SObjectWidget::OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent)
{
	SCompoundWidget::OnMouseCaptureLost(CaptureLostEvent);
	if (CanRouteEvent())
	{
		WidgetObject->NativeOnMouseCaptureLost(CaptureLostEvent);
	}
}

#include "Host/WidgetExtras.h"
#include "Widgets/SWidget.h"

using Host::FWidgetExtras;

namespace
{
	/** By value: the handler may replace itself, or destroy the widget. */
	FReply Ask(const FWidgetExtras* Extras, FPointerEventHandler FWidgetExtras::*Handler, const FGeometry& Geometry, const FPointerEvent& Event)
	{
		if (!Extras || !(Extras->*Handler).IsBound())
		{
			return FReply::Unhandled();
		}
		const FPointerEventHandler Bound = Extras->*Handler;
		return Bound.Execute(Geometry, Event);
	}
}

FReply SWidget::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return Ask(Extras.Get(), &FWidgetExtras::OnMouseButtonDown, MyGeometry, MouseEvent);
}

FReply SWidget::OnPreviewMouseButtonDown(const FGeometry&, const FPointerEvent&)
{
	return FReply::Unhandled();
}

FReply SWidget::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return Ask(Extras.Get(), &FWidgetExtras::OnMouseButtonUp, MyGeometry, MouseEvent);
}

FReply SWidget::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return Ask(Extras.Get(), &FWidgetExtras::OnMouseMove, MyGeometry, MouseEvent);
}

FReply SWidget::OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return Ask(Extras.Get(), &FWidgetExtras::OnMouseDoubleClick, MyGeometry, MouseEvent);
}

void SWidget::OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	bIsHovered = true;
	if (Extras.IsValid() && Extras->OnMouseEnter.IsBound())
	{
		const FNoReplyPointerEventHandler Bound = Extras->OnMouseEnter;
		Bound.Execute(MyGeometry, MouseEvent);
	}
}

void SWidget::OnMouseLeave(const FPointerEvent& MouseEvent)
{
	bIsHovered = false;
	if (Extras.IsValid() && Extras->OnMouseLeave.IsBound())
	{
		const FSimpleNoReplyPointerEventHandler Bound = Extras->OnMouseLeave;
		Bound.Execute(MouseEvent);
	}
}

FReply SWidget::OnMouseWheel(const FGeometry&, const FPointerEvent&)
{
	return FReply::Unhandled();
}

FReply SWidget::OnDragDetected(const FGeometry&, const FPointerEvent&)
{
	return FReply::Unhandled();
}

void SWidget::OnMouseCaptureLost(const FCaptureLostEvent&)
{
}

FCursorReply SWidget::OnCursorQuery(const FGeometry&, const FPointerEvent&) const
{
	const TOptional<EMouseCursor::Type> Wanted = GetCursor();
	return Wanted.IsSet() ? FCursorReply::Cursor(Wanted.GetValue()) : FCursorReply::Unhandled();
}

FReply SWidget::OnKeyChar(const FGeometry&, const FCharacterEvent&)
{
	return FReply::Unhandled();
}

FReply SWidget::OnPreviewKeyDown(const FGeometry&, const FKeyEvent&)
{
	return FReply::Unhandled();
}

FReply SWidget::OnKeyDown(const FGeometry&, const FKeyEvent&)
{
	return FReply::Unhandled();
}

FReply SWidget::OnKeyUp(const FGeometry&, const FKeyEvent&)
{
	return FReply::Unhandled();
}

FNavigationReply SWidget::OnNavigation(const FGeometry&, const FNavigationEvent&)
{
	return FNavigationReply::Escape();
}

FReply SWidget::OnFocusReceived(const FGeometry&, const FFocusEvent&)
{
	return FReply::Unhandled();
}

void SWidget::OnFocusLost(const FFocusEvent&)
{
}

void SWidget::OnFocusChanging(const FWidgetPath&, const FFocusEvent&)
{
}

void SWidget::SetOnMouseButtonDown(FPointerEventHandler EventHandler)
{
	GetExtras().OnMouseButtonDown = MoveTemp(EventHandler);
}

void SWidget::SetOnMouseButtonUp(FPointerEventHandler EventHandler)
{
	GetExtras().OnMouseButtonUp = MoveTemp(EventHandler);
}

void SWidget::SetOnMouseMove(FPointerEventHandler EventHandler)
{
	GetExtras().OnMouseMove = MoveTemp(EventHandler);
}

void SWidget::SetOnMouseDoubleClick(FPointerEventHandler EventHandler)
{
	GetExtras().OnMouseDoubleClick = MoveTemp(EventHandler);
}

void SWidget::SetOnMouseEnter(FNoReplyPointerEventHandler EventHandler)
{
	GetExtras().OnMouseEnter = MoveTemp(EventHandler);
}

void SWidget::SetOnMouseLeave(FSimpleNoReplyPointerEventHandler EventHandler)
{
	GetExtras().OnMouseLeave = MoveTemp(EventHandler);
}

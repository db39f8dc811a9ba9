#include "Widgets/SBoxWithWheel.h"

namespace
{
	FReply Answer(const FPointerEventHandler& Handler, const FGeometry& Geometry, const FPointerEvent& MouseEvent)
	{
		return Handler.IsBound() ? Handler.Execute(Geometry, MouseEvent) : FReply::Unhandled();
	}
}

void SBoxWithWheel::Construct(const FArguments& InArgs)
{
	MouseWheelHandler = InArgs._OnMouseWheel;
	MouseMoveHandler = InArgs._OnMouseMove;
	MouseButtonDownHandler = InArgs._OnMouseButtonDown;
	MouseButtonUpHandler = InArgs._OnMouseButtonUp;
	MouseDoubleClickHandler = InArgs._OnMouseDoubleClick;
	PreviewMouseButtonDownHandler = InArgs._OnPreviewMouseButtonDown;

	SBox::Construct(SBox::FArguments()
		.HAlign(InArgs._HAlign)
		.VAlign(InArgs._VAlign)
		.Padding(InArgs._Padding)
		.WidthOverride(InArgs._WidthOverride)
		.HeightOverride(InArgs._HeightOverride)
		.MinDesiredWidth(InArgs._MinDesiredWidth)
		.MinDesiredHeight(InArgs._MinDesiredHeight)
		.MaxDesiredWidth(InArgs._MaxDesiredWidth)
		.MaxDesiredHeight(InArgs._MaxDesiredHeight)
		.MinAspectRatio(InArgs._MinAspectRatio)
		.MaxAspectRatio(InArgs._MaxAspectRatio)
		[
			InArgs._Content.Widget
		]);
}

FReply SBoxWithWheel::OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return Answer(MouseWheelHandler, MyGeometry, MouseEvent);
}

FReply SBoxWithWheel::OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return Answer(MouseMoveHandler, MyGeometry, MouseEvent);
}

FReply SBoxWithWheel::OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return Answer(MouseButtonDownHandler, MyGeometry, MouseEvent);
}

FReply SBoxWithWheel::OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return Answer(MouseButtonUpHandler, MyGeometry, MouseEvent);
}

FReply SBoxWithWheel::OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return Answer(MouseDoubleClickHandler, MyGeometry, MouseEvent);
}

FReply SBoxWithWheel::OnPreviewMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent)
{
	return Answer(PreviewMouseButtonDownHandler, MyGeometry, MouseEvent);
}

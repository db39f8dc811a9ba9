#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SWidget.h"

/** A box that hands its mouse events to whoever made it, the wheel among them. An event without a handler stays unhandled. */
class HALVEXPROUI_API SBoxWithWheel : public SBox
{
public:
	SLATE_BEGIN_ARGS(SBoxWithWheel)
		: _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _Padding(FMargin(0.0f))
		, _Content()
	{
	}
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		SLATE_ARGUMENT(EVerticalAlignment, VAlign)
		/** Around the content. */
		SLATE_ATTRIBUTE(FMargin, Padding)
		SLATE_DEFAULT_SLOT(FArguments, Content)

		/** Sizes and ratios are those of the box, in slate units. */
		SLATE_ATTRIBUTE(FOptionalSize, WidthOverride)
		SLATE_ATTRIBUTE(FOptionalSize, HeightOverride)
		SLATE_ATTRIBUTE(FOptionalSize, MinDesiredWidth)
		SLATE_ATTRIBUTE(FOptionalSize, MinDesiredHeight)
		SLATE_ATTRIBUTE(FOptionalSize, MaxDesiredWidth)
		SLATE_ATTRIBUTE(FOptionalSize, MaxDesiredHeight)
		SLATE_ATTRIBUTE(FOptionalSize, MinAspectRatio)
		SLATE_ATTRIBUTE(FOptionalSize, MaxAspectRatio)

		SLATE_EVENT(FPointerEventHandler, OnMouseWheel)
		SLATE_EVENT(FPointerEventHandler, OnMouseMove)
		SLATE_EVENT(FPointerEventHandler, OnMouseButtonDown)
		SLATE_EVENT(FPointerEventHandler, OnMouseButtonUp)
		/** Without a handler the second of two quick presses is a press like any other. */
		SLATE_EVENT(FPointerEventHandler, OnMouseDoubleClick)
		/** Comes before the press reaches what is in the box; handled, it never does. */
		SLATE_EVENT(FPointerEventHandler, OnPreviewMouseButtonDown)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	virtual FReply OnMouseWheel(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnPreviewMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;

private:
	FPointerEventHandler MouseWheelHandler;
	FPointerEventHandler MouseMoveHandler;
	FPointerEventHandler MouseButtonDownHandler;
	FPointerEventHandler MouseButtonUpHandler;
	FPointerEventHandler MouseDoubleClickHandler;
	FPointerEventHandler PreviewMouseButtonDownHandler;
};

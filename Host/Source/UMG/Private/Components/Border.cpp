#include "Components/Border.h"

#include "Components/BorderSlot.h"
#include "Engine/Texture2D.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SNullWidget.h"

#define LOCTEXT_NAMESPACE "UMG"

UBorder::UBorder(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

void UBorder::SetBrushColor(FLinearColor InBrushColor)
{
	BrushColor = InBrushColor;
	if (MyBorder)
	{
		MyBorder->SetBorderBackgroundColor(FSlateColor(InBrushColor));
	}
}

void UBorder::SetContentColorAndOpacity(FLinearColor InContentColorAndOpacity)
{
	ContentColorAndOpacity = InContentColorAndOpacity;
	if (MyBorder)
	{
		MyBorder->SetColorAndOpacity(InContentColorAndOpacity);
	}
}

void UBorder::SetPadding(FMargin InPadding)
{
	Padding = InPadding;
	if (MyBorder)
	{
		MyBorder->SetPadding(InPadding);
	}
}

void UBorder::SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment)
{
	HorizontalAlignment = InHorizontalAlignment;
	if (MyBorder)
	{
		MyBorder->SetHAlign(InHorizontalAlignment);
	}
}

void UBorder::SetVerticalAlignment(EVerticalAlignment InVerticalAlignment)
{
	VerticalAlignment = InVerticalAlignment;
	if (MyBorder)
	{
		MyBorder->SetVAlign(InVerticalAlignment);
	}
}

void UBorder::SetBrush(const FSlateBrush& InBrush)
{
	Background = InBrush;
	if (MyBorder)
	{
		MyBorder->SetBorderImage(&Background);
	}
}

void UBorder::SetBrushFromTexture(UTexture2D* Texture)
{
	Background.SetResourceObject(Texture);
	if (MyBorder)
	{
		MyBorder->SetBorderImage(&Background);
	}
}

FReply UBorder::HandleMouseButtonDown(const FGeometry& Geometry, const FPointerEvent& MouseEvent)
{
	return RunHandler(OnMouseButtonDownEvent, Geometry, MouseEvent);
}

FReply UBorder::HandleMouseButtonUp(const FGeometry& Geometry, const FPointerEvent& MouseEvent)
{
	return RunHandler(OnMouseButtonUpEvent, Geometry, MouseEvent);
}

FReply UBorder::HandleMouseMove(const FGeometry& Geometry, const FPointerEvent& MouseEvent)
{
	return RunHandler(OnMouseMoveEvent, Geometry, MouseEvent);
}

FReply UBorder::HandleMouseDoubleClick(const FGeometry& Geometry, const FPointerEvent& MouseEvent)
{
	return RunHandler(OnMouseDoubleClickEvent, Geometry, MouseEvent);
}

FReply UBorder::RunHandler(const FOnPointerEvent& Handler, const FGeometry& Geometry, const FPointerEvent& MouseEvent)
{
	return Handler.IsBound() ? Handler.Execute(Geometry, MouseEvent).NativeReply : FReply::Unhandled();
}

void UBorder::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (!MyBorder)
	{
		return;
	}
	MyBorder->SetBorderImage(&Background);
	MyBorder->SetBorderBackgroundColor(FSlateColor(BrushColor));
	MyBorder->SetColorAndOpacity(ContentColorAndOpacity);
	MyBorder->SetPadding(Padding);
	MyBorder->SetHAlign(HorizontalAlignment.GetValue());
	MyBorder->SetVAlign(VerticalAlignment.GetValue());
}

void UBorder::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyBorder.Reset();
}

#if WITH_EDITOR
const FText UBorder::GetPaletteCategory()
{
	return LOCTEXT("Common", "Common");
}
#endif

TSharedRef<SWidget> UBorder::RebuildWidget()
{
	MyBorder = SNew(SBorder)
		.OnMouseButtonDown(BIND_UOBJECT_DELEGATE(FPointerEventHandler, HandleMouseButtonDown))
		.OnMouseButtonUp(BIND_UOBJECT_DELEGATE(FPointerEventHandler, HandleMouseButtonUp))
		.OnMouseMove(BIND_UOBJECT_DELEGATE(FPointerEventHandler, HandleMouseMove))
		.OnMouseDoubleClick(BIND_UOBJECT_DELEGATE(FPointerEventHandler, HandleMouseDoubleClick));
	if (UPanelSlot* ContentSlot = GetContentSlot())
	{
		OnSlotAdded(ContentSlot);
	}
	return MyBorder.ToSharedRef();
}

UClass* UBorder::GetSlotClass() const
{
	return UBorderSlot::StaticClass();
}

void UBorder::OnSlotAdded(UPanelSlot* InSlot)
{
	if (MyBorder)
	{
		CastChecked<UBorderSlot>(InSlot)->BuildSlot(MyBorder.ToSharedRef());
	}
}

void UBorder::OnSlotRemoved(UPanelSlot*)
{
	if (MyBorder)
	{
		MyBorder->SetContent(SNullWidget::NullWidget);
	}
}

#undef LOCTEXT_NAMESPACE

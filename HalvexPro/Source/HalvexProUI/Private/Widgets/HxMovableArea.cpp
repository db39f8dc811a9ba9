#include "Widgets/HxMovableArea.h"

#include "Input/Events.h"
#include "UObject/UnrealType.h"
#include "Widgets/HxWidgetSupport.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"

namespace
{
	/** A frame without a fill. */
	FSlateBrush MakeFrame(float Width)
	{
		FSlateBrush Brush;
		Brush.DrawAs = ESlateBrushDrawType::RoundedBox;
		Brush.TintColor = FSlateColor(FLinearColor::Transparent);
		Brush.OutlineSettings.Color = FSlateColor(FLinearColor::White);
		Brush.OutlineSettings.Width = Width;
		Brush.OutlineSettings.RoundingType = ESlateBrushRoundingType::FixedRadius;
		return Brush;
	}
}

UHxMovableArea::UHxMovableArea(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, BrushHighlight(MakeFrame(1.5f))
	, BorderBrush(MakeFrame(1.0f))
{
	BorderBrush.OutlineSettings.CornerRadii = FVector4(10.0, 10.0, 10.0, 10.0);
}

void UHxMovableArea::RestorePosition()
{
	SetRenderTranslation(FVector2D::ZeroVector);
}

void UHxMovableArea::SetContentWidget(UWidget* InContent)
{
	SetContent(InContent);
}

void UHxMovableArea::SetHighlight(bool Visible) const
{
	HighlightBorder->SetVisibility(Visible && bUseSelectableBorder ? EVisibility::HitTestInvisible : EVisibility::Collapsed);
}

void UHxMovableArea::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (ClickableZoneBox.IsValid())
	{
		ClickableZoneBox->SetHeightOverride(FOptionalSize(ClickableZoneHeight));
	}
	if (ClickableZoneBorder.IsValid())
	{
		SetHighlight(IsDesignTime() && bPreviewHighlight);
		BorderBrush.OutlineSettings.bUseBrushTransparency = !IsDesignTime() || !bDebugArea;
		ClickableZoneBorder->SetBorderImage(&BorderBrush);
	}
	// Without the overlap the padding stays as it was built: only an edit of the property sets it.
	if (HasSlots() && bOverlapZone)
	{
		ContentSlot->SetPadding(FMargin(0.0f));
	}
}

void UHxMovableArea::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	ClickableZoneBox.Reset();
	ClickableZoneBorder.Reset();
	HighlightBorder.Reset();
}

#if WITH_EDITOR
void UHxMovableArea::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);
	const FName PropertyName = PropertyChangedEvent.GetPropertyName();
	const bool bIsOfTheMargin = PropertyName == GET_MEMBER_NAME_CHECKED(UHxMovableArea, ClickableZoneHeight)
		|| PropertyName == GET_MEMBER_NAME_CHECKED(UHxMovableArea, bOverlapZone);
	if (bIsOfTheMargin && HasSlots())
	{
		ContentSlot->SetPadding(GetMarginOverlap());
		HighlightSlot->SetPadding(GetMarginOverlap());
	}
}

const FText UHxMovableArea::GetPaletteCategory()
{
	return HxWidgetSupport::GetPaletteCategory();
}
#endif

TSharedRef<SWidget> UHxMovableArea::RebuildWidget()
{
	return SNew(SOverlay)
		+ SOverlay::Slot()
		.Expose(ContentSlot)
		.HAlign(HAlign_Fill)
		.VAlign(VAlign_Fill)
		.Padding(GetMarginOverlap())
		[
			Super::RebuildWidget()
		]
		+ SOverlay::Slot()
		.HAlign(HAlign_Fill)
		.VAlign(VAlign_Top)
		[
			SAssignNew(ClickableZoneBox, SBox)
			.HeightOverride(FOptionalSize(ClickableZoneHeight))
			[
				SAssignNew(ClickableZoneBorder, SBorder)
				.BorderImage(&BorderBrush)
				.Visibility(EVisibility::Visible)
				.OnMouseButtonDown(BIND_UOBJECT_DELEGATE(FPointerEventHandler, HandleMouseDown))
				.OnMouseButtonUp(BIND_UOBJECT_DELEGATE(FPointerEventHandler, HandleMouseUp))
				.OnMouseMove(BIND_UOBJECT_DELEGATE(FPointerEventHandler, HandleMouseMove))
			]
		]
		+ SOverlay::Slot()
		.Expose(HighlightSlot)
		.HAlign(HAlign_Fill)
		.VAlign(VAlign_Fill)
		.Padding(GetMarginOverlap())
		[
			SAssignNew(HighlightBorder, SBorder)
			.BorderImage(&BrushHighlight)
			.Visibility(EVisibility::HitTestInvisible)
		];
}

FReply UHxMovableArea::HandleMouseDown(const FGeometry& Geometry, const FPointerEvent&)
{
	// Taken first: a listener may take the area off the screen.
	const TSharedRef<SBorder> Captor = ClickableZoneBorder.ToSharedRef();
	bIsMouseDown = true;
	MouseDownLocalPosition = GetMouseLocalPos(Geometry);
	SetHighlight(true);
	OnStartCaptureMouse.Broadcast();
	return FReply::Handled().CaptureMouse(Captor);
}

FReply UHxMovableArea::HandleMouseMove(const FGeometry& Geometry, const FPointerEvent&)
{
	if (!bIsMouseDown)
	{
		return FReply::Unhandled();
	}
	// The grip moves along, so what the mouse went since the last move adds to the translation of now.
	const FVector2D Translation = (GetMouseLocalPos(Geometry) - MouseDownLocalPosition) + GetRenderTransform().Translation;
	// Teams watch their logs for this line, at this level.
	UE_LOG(LogTemp, Warning, TEXT("Tracking"));
	SetRenderTranslation(Translation);
	return FReply::Handled();
}

FReply UHxMovableArea::HandleMouseUp(const FGeometry&, const FPointerEvent&)
{
	HighlightBorder->SetVisibility(EVisibility::Collapsed);
	OnStopCaptureMouse.Broadcast();
	bIsMouseDown = false;
	return FReply::Handled().ReleaseMouseCapture();
}

FMargin UHxMovableArea::GetMarginOverlap() const
{
	return FMargin(0.0f, bOverlapZone ? 0.0f : ClickableZoneHeight, 0.0f, 0.0f);
}

FVector2D UHxMovableArea::GetMouseLocalPos(const FGeometry& Geometry) const
{
	return HxWidgetSupport::GetMouseLocalPos(Geometry);
}

bool UHxMovableArea::HasSlots() const
{
	return GetCachedWidget().IsValid();
}

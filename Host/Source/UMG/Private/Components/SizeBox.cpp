#include "Components/SizeBox.h"

#include "Components/SizeBoxSlot.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SNullWidget.h"

#define LOCTEXT_NAMESPACE "UMG"

USizeBox::USizeBox(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bOverride_WidthOverride(false)
	, bOverride_HeightOverride(false)
	, bOverride_MinDesiredWidth(false)
	, bOverride_MinDesiredHeight(false)
	, bOverride_MaxDesiredWidth(false)
	, bOverride_MaxDesiredHeight(false)
	, bOverride_MinAspectRatio(false)
	, bOverride_MaxAspectRatio(false)
{
	SetVisibility(ESlateVisibility::SelfHitTestInvisible);
}

void USizeBox::SetWidthOverride(float InWidthOverride)
{
	bOverride_WidthOverride = true;
	WidthOverride = InWidthOverride;
	if (MySizeBox)
	{
		MySizeBox->SetWidthOverride(InWidthOverride);
	}
}

void USizeBox::ClearWidthOverride()
{
	bOverride_WidthOverride = false;
	if (MySizeBox)
	{
		MySizeBox->SetWidthOverride(FOptionalSize());
	}
}

void USizeBox::SetHeightOverride(float InHeightOverride)
{
	bOverride_HeightOverride = true;
	HeightOverride = InHeightOverride;
	if (MySizeBox)
	{
		MySizeBox->SetHeightOverride(InHeightOverride);
	}
}

void USizeBox::ClearHeightOverride()
{
	bOverride_HeightOverride = false;
	if (MySizeBox)
	{
		MySizeBox->SetHeightOverride(FOptionalSize());
	}
}

void USizeBox::SetMinDesiredWidth(float InMinDesiredWidth)
{
	bOverride_MinDesiredWidth = true;
	MinDesiredWidth = InMinDesiredWidth;
	if (MySizeBox)
	{
		MySizeBox->SetMinDesiredWidth(InMinDesiredWidth);
	}
}

void USizeBox::ClearMinDesiredWidth()
{
	bOverride_MinDesiredWidth = false;
	if (MySizeBox)
	{
		MySizeBox->SetMinDesiredWidth(FOptionalSize());
	}
}

void USizeBox::SetMinDesiredHeight(float InMinDesiredHeight)
{
	bOverride_MinDesiredHeight = true;
	MinDesiredHeight = InMinDesiredHeight;
	if (MySizeBox)
	{
		MySizeBox->SetMinDesiredHeight(InMinDesiredHeight);
	}
}

void USizeBox::ClearMinDesiredHeight()
{
	bOverride_MinDesiredHeight = false;
	if (MySizeBox)
	{
		MySizeBox->SetMinDesiredHeight(FOptionalSize());
	}
}

void USizeBox::SetMaxDesiredWidth(float InMaxDesiredWidth)
{
	bOverride_MaxDesiredWidth = true;
	MaxDesiredWidth = InMaxDesiredWidth;
	if (MySizeBox)
	{
		MySizeBox->SetMaxDesiredWidth(InMaxDesiredWidth);
	}
}

void USizeBox::ClearMaxDesiredWidth()
{
	bOverride_MaxDesiredWidth = false;
	if (MySizeBox)
	{
		MySizeBox->SetMaxDesiredWidth(FOptionalSize());
	}
}

void USizeBox::SetMaxDesiredHeight(float InMaxDesiredHeight)
{
	bOverride_MaxDesiredHeight = true;
	MaxDesiredHeight = InMaxDesiredHeight;
	if (MySizeBox)
	{
		MySizeBox->SetMaxDesiredHeight(InMaxDesiredHeight);
	}
}

void USizeBox::ClearMaxDesiredHeight()
{
	bOverride_MaxDesiredHeight = false;
	if (MySizeBox)
	{
		MySizeBox->SetMaxDesiredHeight(FOptionalSize());
	}
}

void USizeBox::SetMinAspectRatio(float InMinAspectRatio)
{
	bOverride_MinAspectRatio = true;
	MinAspectRatio = InMinAspectRatio;
	if (MySizeBox)
	{
		MySizeBox->SetMinAspectRatio(InMinAspectRatio);
	}
}

void USizeBox::ClearMinAspectRatio()
{
	bOverride_MinAspectRatio = false;
	if (MySizeBox)
	{
		MySizeBox->SetMinAspectRatio(FOptionalSize());
	}
}

void USizeBox::SetMaxAspectRatio(float InMaxAspectRatio)
{
	bOverride_MaxAspectRatio = true;
	MaxAspectRatio = InMaxAspectRatio;
	if (MySizeBox)
	{
		MySizeBox->SetMaxAspectRatio(InMaxAspectRatio);
	}
}

void USizeBox::ClearMaxAspectRatio()
{
	bOverride_MaxAspectRatio = false;
	if (MySizeBox)
	{
		MySizeBox->SetMaxAspectRatio(FOptionalSize());
	}
}

void USizeBox::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (!MySizeBox)
	{
		return;
	}
	MySizeBox->SetWidthOverride(bOverride_WidthOverride ? FOptionalSize(WidthOverride) : FOptionalSize());
	MySizeBox->SetHeightOverride(bOverride_HeightOverride ? FOptionalSize(HeightOverride) : FOptionalSize());
	MySizeBox->SetMinDesiredWidth(bOverride_MinDesiredWidth ? FOptionalSize(MinDesiredWidth) : FOptionalSize());
	MySizeBox->SetMinDesiredHeight(bOverride_MinDesiredHeight ? FOptionalSize(MinDesiredHeight) : FOptionalSize());
	MySizeBox->SetMaxDesiredWidth(bOverride_MaxDesiredWidth ? FOptionalSize(MaxDesiredWidth) : FOptionalSize());
	MySizeBox->SetMaxDesiredHeight(bOverride_MaxDesiredHeight ? FOptionalSize(MaxDesiredHeight) : FOptionalSize());
	MySizeBox->SetMinAspectRatio(bOverride_MinAspectRatio ? FOptionalSize(MinAspectRatio) : FOptionalSize());
	MySizeBox->SetMaxAspectRatio(bOverride_MaxAspectRatio ? FOptionalSize(MaxAspectRatio) : FOptionalSize());
}

void USizeBox::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MySizeBox.Reset();
}

#if WITH_EDITOR
const FText USizeBox::GetPaletteCategory()
{
	return LOCTEXT("Panel", "Panel");
}
#endif

TSharedRef<SWidget> USizeBox::RebuildWidget()
{
	MySizeBox = SNew(SBox);
	if (UPanelSlot* ContentSlot = GetContentSlot())
	{
		OnSlotAdded(ContentSlot);
	}
	return MySizeBox.ToSharedRef();
}

UClass* USizeBox::GetSlotClass() const
{
	return USizeBoxSlot::StaticClass();
}

void USizeBox::OnSlotAdded(UPanelSlot* InSlot)
{
	if (MySizeBox)
	{
		CastChecked<USizeBoxSlot>(InSlot)->BuildSlot(MySizeBox.ToSharedRef());
	}
}

void USizeBox::OnSlotRemoved(UPanelSlot*)
{
	if (MySizeBox)
	{
		MySizeBox->SetContent(SNullWidget::NullWidget);
	}
}

#undef LOCTEXT_NAMESPACE

#include "Widgets/Layout/SBox.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"

namespace
{
	/** The wanted length in one direction. */
	float ResolveLength(float ContentLength, const FOptionalSize& Override, const FOptionalSize& Min, const FOptionalSize& Max)
	{
		if (Override.IsSet())
		{
			return FMath::Max(Override.Get(), 0.0f);
		}
		float Length = ContentLength;
		if (Min.IsSet())
		{
			Length = FMath::Max(Length, Min.Get());
		}
		if (Max.IsSet())
		{
			Length = FMath::Min(Length, Max.Get());
		}
		return Length;
	}

	/** What is narrower than the room that it should fill stands in the middle of it. */
	Host::EAxisAlignment CentreInsteadOfFill(Host::EAxisAlignment Alignment)
	{
		return Alignment == Host::EAxisAlignment::Fill ? Host::EAxisAlignment::Centre : Alignment;
	}
}

SBox::SBox()
	: ChildSlot(this)
	, WidthOverrideAttribute(*this)
	, HeightOverrideAttribute(*this)
	, MinDesiredWidthAttribute(*this)
	, MinDesiredHeightAttribute(*this)
	, MaxDesiredWidthAttribute(*this)
	, MaxDesiredHeightAttribute(*this)
	, MinAspectRatioAttribute(*this)
	, MaxAspectRatioAttribute(*this)
{
}

void SBox::Construct(const FArguments& InArgs)
{
	SetWidthOverride(InArgs._WidthOverride);
	SetHeightOverride(InArgs._HeightOverride);
	SetMinDesiredWidth(InArgs._MinDesiredWidth);
	SetMinDesiredHeight(InArgs._MinDesiredHeight);
	SetMaxDesiredWidth(InArgs._MaxDesiredWidth);
	SetMaxDesiredHeight(InArgs._MaxDesiredHeight);
	SetMinAspectRatio(InArgs._MinAspectRatio);
	SetMaxAspectRatio(InArgs._MaxAspectRatio);

	ChildSlot.HAlign(InArgs._HAlign).VAlign(InArgs._VAlign).Padding(InArgs._Padding);
	ChildSlot.AttachWidget(InArgs._Content.Widget);
}

void SBox::SetContent(const TSharedRef<SWidget>& InContent)
{
	ChildSlot.AttachWidget(InContent);
}

void SBox::SetHAlign(EHorizontalAlignment HAlign)
{
	ChildSlot.SetHorizontalAlignment(HAlign);
}

void SBox::SetVAlign(EVerticalAlignment VAlign)
{
	ChildSlot.SetVerticalAlignment(VAlign);
}

void SBox::SetPadding(TAttribute<FMargin> InPadding)
{
	ChildSlot.SetPadding(MoveTemp(InPadding));
}

void SBox::SetWidthOverride(TAttribute<FOptionalSize> InWidthOverride)
{
	WidthOverrideAttribute.Assign(*this, InWidthOverride);
}

void SBox::SetHeightOverride(TAttribute<FOptionalSize> InHeightOverride)
{
	HeightOverrideAttribute.Assign(*this, InHeightOverride);
}

void SBox::SetMinDesiredWidth(TAttribute<FOptionalSize> InMinDesiredWidth)
{
	MinDesiredWidthAttribute.Assign(*this, InMinDesiredWidth);
}

void SBox::SetMinDesiredHeight(TAttribute<FOptionalSize> InMinDesiredHeight)
{
	MinDesiredHeightAttribute.Assign(*this, InMinDesiredHeight);
}

void SBox::SetMaxDesiredWidth(TAttribute<FOptionalSize> InMaxDesiredWidth)
{
	MaxDesiredWidthAttribute.Assign(*this, InMaxDesiredWidth);
}

void SBox::SetMaxDesiredHeight(TAttribute<FOptionalSize> InMaxDesiredHeight)
{
	MaxDesiredHeightAttribute.Assign(*this, InMaxDesiredHeight);
}

void SBox::SetMinAspectRatio(TAttribute<FOptionalSize> InMinAspectRatio)
{
	MinAspectRatioAttribute.Assign(*this, InMinAspectRatio);
}

void SBox::SetMaxAspectRatio(TAttribute<FOptionalSize> InMaxAspectRatio)
{
	MaxAspectRatioAttribute.Assign(*this, InMaxAspectRatio);
}

FVector2D SBox::ComputeDesiredSize(float) const
{
	const TSharedRef<SWidget>& Child = ChildSlot.GetWidget();
	if (Child->GetVisibility() == EVisibility::Collapsed)
	{
		return FVector2D::ZeroVector;
	}
	const FVector2f Content = FVector2f(Child->GetDesiredSize()) + FVector2f(ChildSlot.GetPadding().GetDesiredSize());
	return FVector2D(
		ResolveLength(Content.X, WidthOverrideAttribute.Get(), MinDesiredWidthAttribute.Get(), MaxDesiredWidthAttribute.Get()),
		ResolveLength(Content.Y, HeightOverrideAttribute.Get(), MinDesiredHeightAttribute.Get(), MaxDesiredHeightAttribute.Get()));
}

void SBox::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	if (!MinAspectRatioAttribute.Get().IsSet() && !MaxAspectRatioAttribute.Get().IsSet())
	{
		ArrangeSingleChild(AllottedGeometry, ArrangedChildren, ChildSlot);
		return;
	}
	const TSharedRef<SWidget>& Child = ChildSlot.GetWidget();
	if (!ArrangedChildren.Accepts(Child->GetVisibility()))
	{
		return;
	}
	using namespace Host;
	const FVector2f Room(AllottedGeometry.GetLocalSize());
	const FVector2f Desired(Child->GetDesiredSize());
	const FMargin& Padding = ChildSlot.GetPadding();
	const EAxisAlignment AlignmentX = GetAxisAlignment<Orient_Horizontal>(EFlowDirection::LeftToRight, ChildSlot);
	const EAxisAlignment AlignmentY = GetAxisAlignment<Orient_Vertical>(EFlowDirection::LeftToRight, ChildSlot);
	const FVector2f Size = FitAspectRatio(FVector2f(
		AlignSpan(AlignmentX, Room.X, Desired.X, Padding.Left, Padding.Right, true).Size,
		AlignSpan(AlignmentY, Room.Y, Desired.Y, Padding.Top, Padding.Bottom, true).Size));
	const AlignmentArrangeResult X = AlignSpan(CentreInsteadOfFill(AlignmentX), Room.X, Size.X, Padding.Left, Padding.Right, true);
	const AlignmentArrangeResult Y = AlignSpan(CentreInsteadOfFill(AlignmentY), Room.Y, Size.Y, Padding.Top, Padding.Bottom, true);
	ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Child, FVector2f(X.Offset, Y.Offset), FVector2f(X.Size, Y.Size)));
}

FVector2f SBox::FitAspectRatio(const FVector2f& Size) const
{
	const FOptionalSize& Min = MinAspectRatioAttribute.Get();
	const FOptionalSize& Max = MaxAspectRatioAttribute.Get();
	if (Max.IsSet() && Max.Get() > 0.0f && Size.X > Size.Y * Max.Get())
	{
		return FVector2f(Size.Y * Max.Get(), Size.Y);
	}
	if (Min.IsSet() && Min.Get() > 0.0f && Size.X < Size.Y * Min.Get())
	{
		return FVector2f(Size.X, Size.X / Min.Get());
	}
	return Size;
}

#pragma once

#include "CoreMinimal.h"
#include "Types/SlateEnums.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

/** Places each child at a position, with a size. */
class SLATE_API SCanvas : public SPanel
{
public:
	class SLATE_API FSlot : public TSlotBase<FSlot>
	{
	public:
		virtual ~FSlot() override;

		struct FSlotArguments : public TSlotBase<FSlot>::FSlotArguments
		{
			using TSlotBase<FSlot>::FSlotArguments::FSlotArguments;
			FSlotArguments(FSlotArguments&&) = default;

			/** In the canvas, in slate units. */
			FSlotArguments& Position(TAttribute<FVector2D> InPosition)
			{
				PositionArgument = MoveTemp(InPosition);
				return Me();
			}

			/** Default: (1, 1). */
			FSlotArguments& Size(TAttribute<FVector2D> InSize)
			{
				SizeArgument = MoveTemp(InSize);
				return Me();
			}

			/** Which side of the child stands at the position; the left one by default. */
			FSlotArguments& HAlign(EHorizontalAlignment InHAlign)
			{
				HorizontalAlignment = InHAlign;
				return Me();
			}

			FSlotArguments& VAlign(EVerticalAlignment InVAlign)
			{
				VerticalAlignment = InVAlign;
				return Me();
			}

			TAttribute<FVector2D> PositionArgument;
			TAttribute<FVector2D> SizeArgument;
			TOptional<EHorizontalAlignment> HorizontalAlignment;
			TOptional<EVerticalAlignment> VerticalAlignment;
		};

		void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs);

		FVector2D GetPosition() const { return Position; }
		void SetPosition(TAttribute<FVector2D> InPosition);
		FVector2D GetSize() const { return Size; }
		void SetSize(TAttribute<FVector2D> InSize);
		EHorizontalAlignment GetHorizontalAlignment() const { return HorizontalAlignment; }
		void SetHorizontalAlignment(EHorizontalAlignment InAlignment);
		EVerticalAlignment GetVerticalAlignment() const { return VerticalAlignment; }
		void SetVerticalAlignment(EVerticalAlignment InAlignment);

	private:
		void Assign(FVector2D& Value, const TAttribute<FVector2D>& Attribute);

		FVector2D Position = FVector2D::ZeroVector;
		FVector2D Size = FVector2D(1.0, 1.0);
		EHorizontalAlignment HorizontalAlignment = HAlign_Left;
		EVerticalAlignment VerticalAlignment = VAlign_Top;
	};

	using FScopedWidgetSlotArguments = TPanelChildren<FSlot>::FScopedWidgetSlotArguments;

	static FSlot::FSlotArguments Slot();

	SLATE_BEGIN_ARGS(SCanvas)
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
	}
		SLATE_SLOT_ARGUMENT(FSlot, Slots)
	SLATE_END_ARGS()

	SCanvas();
	void Construct(const FArguments& InArgs);

	FScopedWidgetSlotArguments AddSlot();
	/** Index of the slot, or INDEX_NONE when the widget is not in the canvas. */
	int32 RemoveSlot(const TSharedRef<SWidget>& SlotWidget);
	void ClearChildren();

	virtual FChildren* GetChildren() override { return &Slots; }

protected:
	/** A canvas wants no room. */
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

private:
	TPanelChildren<FSlot> Slots;
};

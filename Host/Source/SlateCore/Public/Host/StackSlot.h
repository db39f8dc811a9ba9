#pragma once

#include "CoreMinimal.h"
#include "Layout/BasicLayoutWidgetSlot.h"
#include "Types/SlateStructs.h"

namespace Host
{
	/** What placing children in a stack needs to know of each, in either direction. */
	struct FStackSizing
	{
		/** Takes its desired size; else shares what is left. */
		bool bAuto = false;
		/** Share of what is left, in proportion to the others. */
		float StretchValue = 1.0f;
		/** Bounds of the size along the stack, in slate units; no upper one when 0. */
		float MinSize = 0.0f;
		float MaxSize = 0.0f;
	};

	/** A slot of a box panel. */
	template <typename SlotType>
	class TStackSlot : public TBasicLayoutWidgetSlot<SlotType>
	{
	public:
		virtual ~TStackSlot() override
		{
			if (SWidget* OwnerWidget = this->GetOwnerWidget())
			{
				FAttributeBindings::UnbindRange(*OwnerWidget, &Sizing, &Sizing + 1);
			}
		}

		struct FSlotArguments : public TBasicLayoutWidgetSlot<SlotType>::FSlotArguments
		{
			using TBasicLayoutWidgetSlot<SlotType>::FSlotArguments::FSlotArguments;
			FSlotArguments(FSlotArguments&&) = default;

			TOptional<FSizeParam> SizeParam;
			TAttribute<float> MinSize;
			TAttribute<float> MaxSize;
		};

		void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs)
		{
			TBasicLayoutWidgetSlot<SlotType>::Construct(SlotOwner, MoveTemp(InArgs));
			if (InArgs.SizeParam.IsSet())
			{
				SetSizeParam(InArgs.SizeParam.GetValue());
			}
			if (InArgs.MinSize.IsSet())
			{
				Assign(Sizing.MinSize, InArgs.MinSize);
			}
			if (InArgs.MaxSize.IsSet())
			{
				Assign(Sizing.MaxSize, InArgs.MaxSize);
			}
		}

		const FStackSizing& GetSizing() const { return Sizing; }

		FSizeParam::ESizeRule GetSizeRule() const { return Sizing.bAuto ? FSizeParam::SizeRule_Auto : FSizeParam::SizeRule_Stretch; }
		/** Share of a stretching slot. */
		float GetSizeValue() const { return Sizing.StretchValue; }

		void SetSizeParam(const FSizeParam& InSizeParam)
		{
			const bool bAuto = InSizeParam.SizeRule == FSizeParam::SizeRule_Auto;
			if (Sizing.bAuto != bAuto)
			{
				Sizing.bAuto = bAuto;
				this->Invalidate(EInvalidateWidgetReason::Layout);
			}
			if (!bAuto)
			{
				Assign(Sizing.StretchValue, InSizeParam.Value);
			}
		}

	protected:
		void Assign(float& Value, const TAttribute<float>& Attribute)
		{
			if (SWidget* OwnerWidget = this->GetOwnerWidget())
			{
				AssignAttribute(*OwnerWidget, Value, Attribute, EInvalidateWidgetReason::Layout);
			}
			else
			{
				Value = Attribute.Get(Value);
			}
		}

		FStackSizing Sizing;
	};
}

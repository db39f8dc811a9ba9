#include "Styling/CoreControlStyles.h"

#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateNoResource.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "Styling/LineDrawings.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateTypes.h"

namespace Host
{
	namespace
	{
		FLinearColor Grey(uint8 Level)
		{
			return FLinearColor(FColor(Level, Level, Level));
		}

		FLinearColor Accent()
		{
			return FLinearColor(FColor(0, 112, 224));
		}

		FLinearColor BrightAccent()
		{
			return FLinearColor(FColor(14, 134, 255));
		}

		template <typename BrushType>
		BrushType Sized(BrushType Brush, float Width, float Height)
		{
			Brush.SetImageSize(FVector2f(Width, Height));
			return Brush;
		}

		/** Darkens what is below it, so that it shows on light and on dark ground. */
		FLinearColor Shade(float Opacity)
		{
			return FLinearColor(0.0f, 0.0f, 0.0f, Opacity);
		}

		FSlateBrush CheckImage(const FLinearColor& Fill, const FLinearColor& Edge)
		{
			return Sized(FSlateRoundedBoxBrush(Fill, 3.0f, Edge, 1.0f), 16.0f, 16.0f);
		}

		void AddCheckBoxes(FSlateStyleSet& Set)
		{
			Set.Set("Checkbox", FCheckBoxStyle()
				.SetCheckBoxType(ESlateCheckBoxType::CheckBox)
				.SetUncheckedImage(CheckImage(Shade(0.1f), Grey(128)))
				.SetUncheckedHoveredImage(CheckImage(Shade(0.1f), BrightAccent()))
				.SetUncheckedPressedImage(CheckImage(Shade(0.3f), BrightAccent()))
				.SetCheckedImage(FLineDrawingBrush("CheckMark", CheckImage(Accent(), Accent())))
				.SetCheckedHoveredImage(FLineDrawingBrush("CheckMark", CheckImage(BrightAccent(), BrightAccent())))
				.SetCheckedPressedImage(FLineDrawingBrush("CheckMark", CheckImage(Accent(), Grey(192))))
				.SetUndeterminedImage(FLineDrawingBrush("Dash", CheckImage(Accent(), Accent())))
				.SetUndeterminedHoveredImage(FLineDrawingBrush("Dash", CheckImage(BrightAccent(), BrightAccent())))
				.SetUndeterminedPressedImage(FLineDrawingBrush("Dash", CheckImage(Accent(), Grey(192))))
				.SetPadding(FMargin(4.0f, 0.0f, 0.0f, 0.0f))
				.SetBackgroundImage(FSlateNoResource())
				.SetBackgroundHoveredImage(FSlateNoResource())
				.SetBackgroundPressedImage(FSlateNoResource()));

			Set.Set("ToggleButtonCheckbox", FCheckBoxStyle()
				.SetCheckBoxType(ESlateCheckBoxType::ToggleButton)
				.SetUncheckedImage(FSlateRoundedBoxBrush(Grey(56), 4.0f))
				.SetUncheckedHoveredImage(FSlateRoundedBoxBrush(Grey(87), 4.0f))
				.SetUncheckedPressedImage(FSlateRoundedBoxBrush(Grey(36), 4.0f))
				.SetCheckedImage(FSlateRoundedBoxBrush(Accent(), 4.0f))
				.SetCheckedHoveredImage(FSlateRoundedBoxBrush(BrightAccent(), 4.0f))
				.SetCheckedPressedImage(FSlateRoundedBoxBrush(Accent(), 4.0f))
				.SetUndeterminedImage(FSlateRoundedBoxBrush(Grey(72), 4.0f))
				.SetUndeterminedHoveredImage(FSlateRoundedBoxBrush(Grey(96), 4.0f))
				.SetUndeterminedPressedImage(FSlateRoundedBoxBrush(Grey(56), 4.0f))
				.SetPadding(FMargin(12.0f, 2.0f))
				.SetBackgroundImage(FSlateNoResource())
				.SetBackgroundHoveredImage(FSlateNoResource())
				.SetBackgroundPressedImage(FSlateNoResource()));
		}

		void AddBars(FSlateStyleSet& Set)
		{
			Set.Set("Slider", FSliderStyle()
				.SetNormalBarImage(FSlateColorBrush(Grey(80)))
				.SetHoveredBarImage(FSlateColorBrush(Grey(112)))
				.SetDisabledBarImage(FSlateColorBrush(Grey(112)))
				.SetNormalThumbImage(Sized(FSlateRoundedBoxBrush(Grey(192), 7.0f, Grey(80), 1.0f), 14.0f, 14.0f))
				.SetHoveredThumbImage(Sized(FSlateRoundedBoxBrush(FLinearColor::White, 7.0f, BrightAccent(), 1.0f), 14.0f, 14.0f))
				.SetDisabledThumbImage(Sized(FSlateRoundedBoxBrush(Grey(144), 7.0f), 14.0f, 14.0f))
				.SetBarThickness(2.0f));

			Set.Set("ProgressBar", FProgressBarStyle()
				.SetBackgroundImage(FSlateRoundedBoxBrush(Shade(0.2f), 4.0f))
				.SetFillImage(FSlateRoundedBoxBrush(Accent(), 4.0f))
				.SetMarqueeImage(FSlateRoundedBoxBrush(Accent(), 4.0f)));
		}

		void AddScrolling(FSlateStyleSet& Set)
		{
			Set.Set("ScrollBar", FScrollBarStyle()
				.SetHorizontalBackgroundImage(FSlateNoResource())
				.SetVerticalBackgroundImage(FSlateNoResource())
				.SetHorizontalTopSlotImage(FSlateNoResource())
				.SetVerticalTopSlotImage(FSlateNoResource())
				.SetHorizontalBottomSlotImage(FSlateNoResource())
				.SetVerticalBottomSlotImage(FSlateNoResource())
				.SetNormalThumbImage(FSlateRoundedBoxBrush(Grey(87), 4.0f))
				.SetHoveredThumbImage(FSlateRoundedBoxBrush(Grey(112), 4.0f))
				.SetDraggedThumbImage(FSlateRoundedBoxBrush(Grey(128), 4.0f))
				.SetThickness(8.0f));

			Set.Set("ScrollBox", FScrollBoxStyle()
				.SetBarThickness(8.0f)
				.SetTopShadowBrush(FSlateNoResource())
				.SetBottomShadowBrush(FSlateNoResource())
				.SetLeftShadowBrush(FSlateNoResource())
				.SetRightShadowBrush(FSlateNoResource()));
		}

		void AddTextBoxes(FSlateStyleSet& Set)
		{
			Set.Set("NormalEditableTextBox", FEditableTextBoxStyle()
				.SetBackgroundImageNormal(FSlateRoundedBoxBrush(Grey(15), 4.0f, Grey(56), 1.0f))
				.SetBackgroundImageHovered(FSlateRoundedBoxBrush(Grey(15), 4.0f, Grey(96), 1.0f))
				.SetBackgroundImageFocused(FSlateRoundedBoxBrush(Grey(15), 4.0f, Accent(), 1.0f))
				.SetBackgroundImageReadOnly(FSlateRoundedBoxBrush(Grey(36), 4.0f, Grey(56), 1.0f))
				.SetPadding(FMargin(8.0f, 3.0f, 8.0f, 4.0f))
				.SetTextStyle(Set.GetWidgetStyle<FTextBlockStyle>("NormalText"))
				.SetForegroundColor(Grey(192))
				.SetFocusedForegroundColor(FLinearColor::White)
				.SetReadOnlyForegroundColor(Grey(128)));
		}

		void AddComboBoxes(FSlateStyleSet& Set)
		{
			Set.Set("TableView.Row", FTableRowStyle()
				.SetActiveBrush(FSlateRoundedBoxBrush(Accent(), 3.0f))
				.SetActiveHoveredBrush(FSlateRoundedBoxBrush(BrightAccent(), 3.0f))
				.SetEvenRowBackgroundBrush(FSlateNoResource())
				.SetEvenRowBackgroundHoveredBrush(FSlateRoundedBoxBrush(Grey(70), 3.0f))
				.SetOddRowBackgroundBrush(FSlateNoResource())
				.SetOddRowBackgroundHoveredBrush(FSlateRoundedBoxBrush(Grey(70), 3.0f))
				.SetTextColor(Grey(192))
				.SetSelectedTextColor(FLinearColor::White));

			Set.Set("ComboBox", FComboBoxStyle()
				.SetComboButtonStyle(FComboButtonStyle()
					// White, as it is faded with all the rest of a disabled box, and is to be read on light ground too.
					.SetButtonStyle(FButtonStyle(Set.GetWidgetStyle<FButtonStyle>("Button")).SetDisabledForeground(FLinearColor::White))
					.SetDownArrowImage(FLineDrawingBrush("ChevronDown", FLinearColor::White, FVector2f(10.0f, 10.0f)))
					.SetMenuBorderBrush(*Set.GetBrush("Menu.Background"))
					.SetMenuBorderPadding(FMargin(3.0f)))
				// Within the frame, texts of rows begin where the text of the box does.
				.SetMenuRowPadding(FMargin(13.0f, 3.0f)));
		}
	}

	void AddCoreControlStyles(FSlateStyleSet& Set)
	{
		AddCheckBoxes(Set);
		AddBars(Set);
		AddScrolling(Set);
		AddTextBoxes(Set);
		AddComboBoxes(Set);
	}
}

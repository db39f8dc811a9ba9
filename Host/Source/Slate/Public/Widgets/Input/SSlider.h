#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

/** Lets the user choose a number from a range by moving a handle along a bar. */
class SLATE_API SSlider : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SSlider)
		: _IndentHandle(true)
		, _MouseUsesStep(false)
		, _Locked(false)
		, _Orientation(Orient_Horizontal)
		, _SliderBarColor(FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)))
		, _SliderHandleColor(FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f)))
		, _Style(&FCoreStyle::Get().GetWidgetStyle<FSliderStyle>("Slider"))
		, _StepSize(0.01f)
		, _Value(1.0f)
		, _MinValue(0.0f)
		, _MaxValue(1.0f)
		, _IsFocusable(true)
	{
	}
		/** Whether the bar is shorter than the slider, so that the handle stays within it at both ends. */
		SLATE_ATTRIBUTE(bool, IndentHandle)
		/** Whether the mouse too moves the handle in steps. */
		SLATE_ARGUMENT(bool, MouseUsesStep)
		/** The user cannot move the handle. */
		SLATE_ATTRIBUTE(bool, Locked)
		/** Values rise to the right, or upwards. */
		SLATE_ARGUMENT(EOrientation, Orientation)
		SLATE_ATTRIBUTE(FSlateColor, SliderBarColor)
		SLATE_ATTRIBUTE(FSlateColor, SliderHandleColor)
		/** Kept by address. */
		SLATE_STYLE_ARGUMENT(FSliderStyle, Style)
		/** Change of the value by a press of an arrow key. */
		SLATE_ATTRIBUTE(float, StepSize)
		SLATE_ATTRIBUTE(float, Value)
		SLATE_ARGUMENT(float, MinValue)
		SLATE_ARGUMENT(float, MaxValue)
		SLATE_ARGUMENT(bool, IsFocusable)
		/** The user began, or ended, to hold the handle by the mouse. */
		SLATE_EVENT(FSimpleDelegate, OnMouseCaptureBegin)
		SLATE_EVENT(FSimpleDelegate, OnMouseCaptureEnd)
		/** The user changed the value. */
		SLATE_EVENT(FOnFloatValueChanged, OnValueChanged)
	SLATE_END_ARGS()

	SSlider();
	void Construct(const FArguments& InArgs);

	float GetValue() const { return ValueAttribute.Get(); }
	/** Place of the value in the range, from 0 to 1. */
	float GetNormalizedValue() const;
	float GetMinValue() const { return MinValue; }
	float GetMaxValue() const { return MaxValue; }

	/** Does not tell OnValueChanged. */
	void SetValue(TAttribute<float> InValueAttribute);
	/** A maximum below the minimum is raised to it. */
	void SetMinAndMaxValues(float InMinValue, float InMaxValue);
	void SetIndentHandle(TAttribute<bool> InIndentHandle);
	void SetLocked(TAttribute<bool> InLocked);
	bool IsLocked() const { return LockedAttribute.Get(); }
	void SetOrientation(EOrientation InOrientation);
	void SetSliderBarColor(TAttribute<FSlateColor> InSliderBarColor);
	void SetSliderHandleColor(TAttribute<FSlateColor> InSliderHandleColor);
	void SetStepSize(TAttribute<float> InStepSize);
	float GetStepSize() const { return StepSizeAttribute.Get(); }
	void SetMouseUsesStep(bool bInMouseUsesStep) { bMouseUsesStep = bInMouseUsesStep; }
	/** Also to be called when the style was changed in place. */
	void SetStyle(const FSliderStyle* InStyle);

	virtual bool SupportsKeyboardFocus() const override { return bIsFocusable; }
	/** The handle has a ring instead. */
	virtual const FSlateBrush* GetFocusBrush() const override { return nullptr; }
	virtual bool IsInteractable() const override { return IsEnabled(); }
	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonUp(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseMove(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseEnter(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual void OnMouseLeave(const FPointerEvent& MouseEvent) override;
	virtual void OnMouseCaptureLost(const FCaptureLostEvent& CaptureLostEvent) override;
	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

private:
	/** The ways that the handle and the bar have, along the orientation. */
	struct FTrack
	{
		float Begin;
		float Length;
	};

	FTrack ComputeTrack(const FGeometry& Geometry) const;
	float ValueAtCursor(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) const;
	float SnapToStep(float Value) const;
	void CommitValue(float NewValue);
	void EndDrag();

	TSlateAttribute<float, EInvalidateWidgetReason::Paint> ValueAttribute;
	TSlateAttribute<bool, EInvalidateWidgetReason::Paint> IndentHandleAttribute;
	TSlateAttribute<bool, EInvalidateWidgetReason::Paint> LockedAttribute;
	TSlateAttribute<FSlateColor, EInvalidateWidgetReason::Paint> BarColorAttribute;
	TSlateAttribute<FSlateColor, EInvalidateWidgetReason::Paint> HandleColorAttribute;
	TSlateAttribute<float, EInvalidateWidgetReason::None> StepSizeAttribute;
	const FSliderStyle* Style = nullptr;
	FSimpleDelegate OnMouseCaptureBegin;
	FSimpleDelegate OnMouseCaptureEnd;
	FOnFloatValueChanged OnValueChanged;
	float MinValue = 0.0f;
	float MaxValue = 1.0f;
	EOrientation Orientation = Orient_Horizontal;
	bool bMouseUsesStep = false;
	bool bIsFocusable = true;
	bool bDragging = false;
};

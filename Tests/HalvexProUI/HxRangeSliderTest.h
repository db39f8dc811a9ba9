#pragma once

#include "KitTest.h"

#include "Widgets/HxRangeSlider.h"

/** A slider from 0 to 100 at (50, 50), whose handles of 16 pixels have 200 pixels of way, and somebody who listens to it. */
class FHxRangeSliderTest : public FKitTest
{
protected:
	virtual void SetUp() override;

	/** Shows it with the range and steps. */
	void ShowSlider(float Lower = 0.0f, float Upper = 100.0f, float StepSize = 1.0f);

	/** Where the middle of a handle with the value is. */
	static FVector2D At(double Value) { return FVector2D(58.0 + 2.0 * Value, 62.0); }

	/** Presses at one value and moves to the other; the button stays down. */
	void PressAndMove(double From, double To);

	/** A press and a release at the value, that is no double click with one before. */
	void ClickAt(double Value) { Driver.SingleClickAt(At(Value)); }

	/** Both ends as text. */
	std::string GetRange() const;

	UHxRangeSlider* Slider = nullptr;
};

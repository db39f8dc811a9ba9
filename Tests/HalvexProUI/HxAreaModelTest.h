#pragma once

#include "HxAreaTest.h"

#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"

#include <random>
#include <vector>

/** An area in a turned and scaled parent, for models that say what must come of any input. */
class FHxAreaModelTest : public FHxAreaTest, public testing::WithParamInterface<int>
{
protected:
	explicit FHxAreaModelTest(FVector2D InSize) : Size(InSize), Random(static_cast<unsigned>(GetParam())) {}

	int Roll(int Count) { return static_cast<int>(Random() % static_cast<unsigned>(Count)); }
	bool Chance(int Percent) { return Roll(100) < Percent; }
	/** From -Most to Most, with a fraction. */
	double AnyWithin(double Most) { return (static_cast<double>(Random()) / static_cast<double>(Random.max()) * 2.0 - 1.0) * Most; }
	FVector2D AnyOffset(double Most) { return FVector2D(AnyWithin(Most), AnyWithin(Most)); }

	/** Shows the area in the middle of a parent that is turned and scaled about the middle of the window. */
	void ShowIn(UWidget& Area)
	{
		Angle = AnyWithin(180.0);
		ParentScale = 1.0 + AnyWithin(0.4);
		UCanvasPanel* Parent = Make<UCanvasPanel>();
		UCanvasPanelSlot* Slot = Parent->AddChildToCanvas(&Area);
		Slot->SetPosition((FVector2D(800.0, 600.0) - Size) / 2.0);
		Slot->SetSize(Size);
		Place(*Parent, 0.0, 0.0, FVector2D(800.0, 600.0));
		Parent->SetRenderTransformAngle(static_cast<float>(Angle));
		Parent->SetRenderScale(FVector2D(ParentScale, ParentScale));
		Show();
	}

	/** A place of the window in the units of the area, which has been moved by so much within its parent. */
	FVector2D ToLocal(FVector2D Place, FVector2D Moved) const
	{
		const FVector2D FromMiddle = (Place - WindowMiddle) / ParentScale;
		const double Radians = FMath::DegreesToRadians(-Angle);
		const FVector2D Turned(FromMiddle.X * FMath::Cos(Radians) - FromMiddle.Y * FMath::Sin(Radians), FromMiddle.X * FMath::Sin(Radians) + FromMiddle.Y * FMath::Cos(Radians));
		return Turned + Size / 2.0 - Moved;
	}

	FVector2D ToWindow(FVector2D Local, FVector2D Moved) const
	{
		const FVector2D FromMiddle = (Local - Size / 2.0 + Moved) * ParentScale;
		const double Radians = FMath::DegreesToRadians(Angle);
		return WindowMiddle + FVector2D(FromMiddle.X * FMath::Cos(Radians) - FromMiddle.Y * FMath::Sin(Radians), FromMiddle.X * FMath::Sin(Radians) + FromMiddle.Y * FMath::Cos(Radians));
	}

	/** A frame of some length that is no multiple of anything. */
	double AnyFrame()
	{
		static constexpr double Lengths[] = { 0.0041337, 0.0166719, 0.0331277, 0.2503391 };
		return Lengths[Roll(4)];
	}

	const FVector2D Size;
	const FVector2D WindowMiddle = FVector2D(400.0, 300.0);
	double Angle = 0.0;
	double ParentScale = 1.0;
	std::string History;

private:
	std::mt19937 Random;
};

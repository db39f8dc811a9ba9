#pragma once

#include "CoreMinimal.h"

class SWidget;

/** What painting has in common for all widgets of a frame. */
class FPaintArgs
{
public:
	FPaintArgs(const SWidget* InPaintParent, double InCurrentTime, float InDeltaTime) : PaintParent(InPaintParent), CurrentTime(InCurrentTime), DeltaTime(InDeltaTime) {}

	/** For painting the children of a widget. */
	FPaintArgs WithNewParent(const SWidget* InPaintParent) const { return FPaintArgs(InPaintParent, CurrentTime, DeltaTime); }

	const SWidget* GetPaintParent() const { return PaintParent; }
	/** Seconds since the start. */
	double GetCurrentTime() const { return CurrentTime; }
	/** Seconds since the last frame. */
	float GetDeltaTime() const { return DeltaTime; }

private:
	const SWidget* PaintParent;
	double CurrentTime;
	float DeltaTime;
};

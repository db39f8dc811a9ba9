#include "Layout/SlateRect.h"
#include "Layout/Visibility.h"

FString FSlateRect::ToString() const
{
	return FString::Printf(TEXT("Left=%g Top=%g Right=%g Bottom=%g"), Left, Top, Right, Bottom);
}

FString EVisibility::ToString() const
{
	if (*this == Visible)
	{
		return TEXT("Visible");
	}
	if (*this == Collapsed)
	{
		return TEXT("Collapsed");
	}
	if (*this == Hidden)
	{
		return TEXT("Hidden");
	}
	if (*this == HitTestInvisible)
	{
		return TEXT("HitTestInvisible");
	}
	return *this == SelfHitTestInvisible ? TEXT("SelfHitTestInvisible") : TEXT("All");
}

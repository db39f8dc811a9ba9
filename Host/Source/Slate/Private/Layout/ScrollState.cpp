#include "Layout/ScrollState.h"

namespace Host
{
	void FScrollState::SetSizes(float InContentSize, float InViewSize)
	{
		ContentSize = InContentSize;
		ViewSize = InViewSize;
		bHasSizes = true;
		Offset = bEndRequested ? GetEndOffset() : FMath::Clamp(Offset, 0.0f, GetEndOffset());
		bEndRequested = false;
	}

	bool FScrollState::SetOffset(float InOffset)
	{
		bEndRequested = false;
		const float NewOffset = bHasSizes ? FMath::Clamp(InOffset, 0.0f, GetEndOffset()) : FMath::Max(InOffset, 0.0f);
		if (NewOffset == Offset)
		{
			return false;
		}
		Offset = NewOffset;
		return true;
	}
}

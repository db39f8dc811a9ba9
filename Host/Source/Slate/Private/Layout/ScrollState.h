#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/** How far some content is scrolled in some view, along one direction. All lengths are slate units. */
	class FScrollState
	{
	public:
		/** The lengths by layout. The offset asked for before becomes one that is possible. */
		void SetSizes(float InContentSize, float InViewSize);

		/** Asks for an offset. Without sizes yet it is kept until there are some. True when the offset is another one than before. */
		bool SetOffset(float InOffset);
		/** Goes to the end, also of content that is not laid out yet. */
		void RequestEnd() { bEndRequested = true; }

		float GetOffset() const { return Offset; }
		/** The offset that shows the end. */
		float GetEndOffset() const { return FMath::Max(ContentSize - ViewSize, 0.0f); }
		float GetContentSize() const { return ContentSize; }
		float GetViewSize() const { return ViewSize; }
		bool CanScroll() const { return GetEndOffset() > 0.0f; }

		/** Shares of the content: in view, and before it. */
		float GetViewFraction() const { return ContentSize > 0.0f ? FMath::Clamp(ViewSize / ContentSize, 0.0f, 1.0f) : 1.0f; }
		float GetOffsetFraction() const { return ContentSize > 0.0f ? FMath::Clamp(Offset / ContentSize, 0.0f, 1.0f) : 0.0f; }

	private:
		float ContentSize = 0.0f;
		float ViewSize = 0.0f;
		float Offset = 0.0f;
		bool bHasSizes = false;
		bool bEndRequested = false;
	};
}

#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"

/** An upright rectangle, left and top inclusive. Right below left or bottom below top make it empty. */
class FSlateRect
{
public:
	float Left = 0.0f;
	float Top = 0.0f;
	float Right = 0.0f;
	float Bottom = 0.0f;

	/** All sides at -1: the unset rectangle. */
	constexpr FSlateRect() : Left(-1.0f), Top(-1.0f), Right(-1.0f), Bottom(-1.0f) {}
	constexpr FSlateRect(float InLeft, float InTop, float InRight, float InBottom) : Left(InLeft), Top(InTop), Right(InRight), Bottom(InBottom) {}
	FSlateRect(const FVector2f& TopLeft, const FVector2f& BottomRight) : Left(TopLeft.X), Top(TopLeft.Y), Right(BottomRight.X), Bottom(BottomRight.Y) {}

	static FSlateRect FromPointAndExtent(const FVector2f& TopLeft, const FVector2f& Size)
	{
		return FSlateRect(TopLeft.X, TopLeft.Y, TopLeft.X + Size.X, TopLeft.Y + Size.Y);
	}

	bool IsValid() const { return !(Left == -1.0f && Top == -1.0f && Right == -1.0f && Bottom == -1.0f) && Right >= Left && Bottom >= Top; }
	constexpr bool IsEmpty() const { return !(Right > Left && Bottom > Top); }

	UE::Slate::FDeprecateVector2DResult GetSize() const { return UE::Slate::FDeprecateVector2DResult(Right - Left, Bottom - Top); }
	UE::Slate::FDeprecateVector2DResult GetTopLeft() const { return UE::Slate::FDeprecateVector2DResult(Left, Top); }
	UE::Slate::FDeprecateVector2DResult GetTopRight() const { return UE::Slate::FDeprecateVector2DResult(Right, Top); }
	UE::Slate::FDeprecateVector2DResult GetBottomLeft() const { return UE::Slate::FDeprecateVector2DResult(Left, Bottom); }
	UE::Slate::FDeprecateVector2DResult GetBottomRight() const { return UE::Slate::FDeprecateVector2DResult(Right, Bottom); }
	UE::Slate::FDeprecateVector2DResult GetCenter() const { return UE::Slate::FDeprecateVector2DResult((Left + Right) * 0.5f, (Top + Bottom) * 0.5f); }

	/** The rectangle without a margin on each side. */
	FSlateRect InsetBy(const FMargin& Inset) const { return FSlateRect(Left + Inset.Left, Top + Inset.Top, Right - Inset.Right, Bottom - Inset.Bottom); }
	FSlateRect ExtendBy(const FMargin& Extend) const { return FSlateRect(Left - Extend.Left, Top - Extend.Top, Right + Extend.Right, Bottom + Extend.Bottom); }
	FSlateRect OffsetBy(const FVector2f& Offset) const { return FSlateRect(Left + Offset.X, Top + Offset.Y, Right + Offset.X, Bottom + Offset.Y); }

	/** The smallest rectangle around both. */
	FSlateRect Expand(const FSlateRect& Other) const
	{
		return FSlateRect(FMath::Min(Left, Other.Left), FMath::Min(Top, Other.Top), FMath::Max(Right, Other.Right), FMath::Max(Bottom, Other.Bottom));
	}

	/** What both cover; of no size when they do not meet. */
	FSlateRect IntersectionWith(const FSlateRect& Other) const
	{
		const FSlateRect Both(FMath::Max(Left, Other.Left), FMath::Max(Top, Other.Top), FMath::Min(Right, Other.Right), FMath::Min(Bottom, Other.Bottom));
		return Both.Right < Both.Left || Both.Bottom < Both.Top ? FSlateRect(0.0f, 0.0f, 0.0f, 0.0f) : Both;
	}

	bool ContainsPoint(const FVector2f& Point) const { return Point.X >= Left && Point.X <= Right && Point.Y >= Top && Point.Y <= Bottom; }

	/** True when they meet or touch. */
	static bool DoRectanglesIntersect(const FSlateRect& A, const FSlateRect& B)
	{
		return !(B.Left > A.Right || A.Left > B.Right || B.Top > A.Bottom || A.Top > B.Bottom);
	}

	/** True when B lies in A altogether. */
	static bool IsRectangleContained(const FSlateRect& A, const FSlateRect& B)
	{
		return A.Left <= B.Left && A.Right >= B.Right && A.Top <= B.Top && A.Bottom >= B.Bottom;
	}

	constexpr bool operator==(const FSlateRect& Other) const = default;

	FString ToString() const;
};

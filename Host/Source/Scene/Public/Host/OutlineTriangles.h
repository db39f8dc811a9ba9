#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/** Area enclosed by the points in order, positive when they turn from X toward Y. */
	double GetSignedArea(TConstArrayView<FVector2D> Points);

	/**
	 * Fills a polygon without holes with triangles, by cutting off one corner after the other.
	 * @param Points	turning from X toward Y
	 * @param OutTriangles	indices of points, three a triangle, turned as the points
	 * @return false when the sides cross, so that no corner can be cut off any more
	 */
	bool TriangulateOutline(TConstArrayView<FVector2D> Points, TArray<int32>& OutTriangles);
}

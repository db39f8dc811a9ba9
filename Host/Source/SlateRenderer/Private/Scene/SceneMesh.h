#pragma once

#include "CoreMinimal.h"
#include "Host/SceneContent.h"

namespace Host
{
	/** One corner of a triangle. */
	struct FSceneVertex
	{
		float Place[3];
		int8 Normal[4];
		/** For up to four edges of the face: 0 on the edge, 255 on the other side, or all 255. */
		uint8 Edges[4];
		uint32 Volume;
	};
	static_assert(sizeof(FSceneVertex) == 24);

	/** Appends walls, roof and floor, with places relative to Origin. Triangles turn so that they are seen from outside. */
	void AppendExtrusion(const FSceneContent::FExtrusion& Extrusion, const FVector& Origin, TArray<FSceneVertex>& OutVertices);

	/** A cube from -1 to 1. */
	void AppendCube(TArray<FSceneVertex>& OutVertices);
}

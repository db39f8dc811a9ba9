#pragma once

#include "HAL/Platform.h"

/** A part of a texture to be replaced, and where its new pixels stand in the source. */
struct FUpdateTextureRegion2D
{
	uint32 DestX = 0;
	uint32 DestY = 0;
	int32 SrcX = 0;
	int32 SrcY = 0;
	uint32 Width = 0;
	uint32 Height = 0;

	FUpdateTextureRegion2D() = default;

	FUpdateTextureRegion2D(uint32 InDestX, uint32 InDestY, int32 InSrcX, int32 InSrcY, uint32 InWidth, uint32 InHeight)
		: DestX(InDestX)
		, DestY(InDestY)
		, SrcX(InSrcX)
		, SrcY(InSrcY)
		, Width(InWidth)
		, Height(InHeight)
	{
	}
};

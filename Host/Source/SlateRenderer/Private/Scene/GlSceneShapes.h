#pragma once

#include "CoreMinimal.h"
#include "Gl/GlObjects.h"

namespace Host
{
	class FSceneContent;
	struct FSceneCounters;

	/**
	 * The volumes as OpenGL has them: boxes as instances of a cube, outlines as one mesh, and a texel of colour for each, and one of
	 * roughness where any is smooth.
	 */
	class FGlSceneShapes
	{
	public:
		/** Texels in a row of the texture of colours; stands in the shader too. */
		static constexpr int32 ColoursPerRow = 1024;

		void Create();

		/** Brings up to date what changed. Places are kept relative to GetOrigin(). */
		void Update(const FSceneContent& Content, FSceneCounters& Counters);

		/** Draws all volumes with the program in use, its colours bound to the active unit. */
		void Draw(FSceneCounters& Counters) const;

		void BindColours() const { glBindTexture(GL_TEXTURE_2D, Colours.Get()); }
		/** Of no use unless IsAnySmooth(). */
		void BindRoughness() const { glBindTexture(GL_TEXTURE_2D, Roughness.Get()); }
		bool IsAnySmooth() const { return bAnySmooth; }
		const FVector& GetOrigin() const { return Origin; }

	private:
		void UploadBoxes(const FSceneContent& Content, FSceneCounters& Counters);
		void UploadOutlines(const FSceneContent& Content, FSceneCounters& Counters);
		void UploadAllColours(const FSceneContent& Content, FSceneCounters& Counters);
		void UpdateColours(const FSceneContent& Content, FSceneCounters& Counters);
		void UploadRoughness(const FSceneContent& Content, FSceneCounters& Counters);

		FGlObject BoxArray;
		FGlObject Cube;
		FGlObject Boxes;
		FGlObject OutlineArray;
		FGlObject Outlines;
		FGlObject Colours;
		FGlObject Roughness;
		FVector Origin = FVector(0.0, 0.0, 0.0);
		int32 NumCubeVertices = 0;
		int32 NumBoxes = 0;
		int32 NumOutlineVertices = 0;
		/** Of the content that was uploaded last. */
		uint64 ShapeRevision = 0;
		uint64 ColourRevision = 0;
		uint64 RoughnessRevision = 0;
		bool bAnySmooth = false;
		int32 NumColourRows = 0;
	};
}

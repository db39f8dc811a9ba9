#pragma once

#include "CoreMinimal.h"
#include "Gl/GlObjects.h"

namespace Host
{
	class FGlSceneShapes;
	class FSceneContent;
	struct FGlSceneFrame;
	struct FSceneCounters;

	/** What the light of a scene needs to know of where volumes stand: a map of shadows, and a map of soft footprints. */
	class FGlSceneShadows
	{
	public:
		/** Programs that draw the maps. */
		struct FPrograms
		{
			FGlObject Depth;
			FGlObject Footprint;
			FGlObject Blur;
			GLint BlurStep = -1;
		};

		/** Side of the map of shadows in texels, and taps of the filter along an axis. */
		struct FLevel
		{
			int32 MapSize;
			int32 Taps;
		};
		static const FLevel& GetLevel(int32 Shadows);

		/**
		 * Draws the maps again when what stands in the scene, the sun, or the level changed.
		 * @param Write	makes the frame's values known to the programs
		 * @return false, with the reason, when the driver cannot
		 */
		bool Update(const FSceneContent& Content, const FGlSceneShapes& Shapes, int32 Shadows, const FPrograms& Programs,
			TFunctionRef<void(const FGlSceneFrame&)> Write, FSceneCounters& Counters, FString& OutError);

		/** Fills in what the programs need to read the maps. */
		void Describe(FGlSceneFrame& Frame) const;

		GLuint GetShadowMap() const { return ShadowMap.Get(); }
		GLuint GetFootprints() const { return Footprints.Get(); }
		int32 GetMapSize() const { return MapSize; }

	private:
		bool Create(int32 Level, FString& OutError);
		void DrawShadowMap(const FSceneContent& Content, const FGlSceneShapes& Shapes, const FPrograms& Programs, TFunctionRef<void(const FGlSceneFrame&)> Write, FSceneCounters& Counters);
		void DrawFootprints(const FSceneContent& Content, const FGlSceneShapes& Shapes, const FPrograms& Programs, TFunctionRef<void(const FGlSceneFrame&)> Write, FSceneCounters& Counters);
		void Blur(const FPrograms& Programs, FSceneCounters& Counters);

		FGlObject ShadowFramebuffer;
		FGlObject ShadowMap;
		FGlObject FootprintFramebuffer;
		FGlObject Footprints;
		FGlObject FootprintDepth;
		FGlObject BlurFramebuffer;
		FGlObject Blurred;
		FGlObject EmptyArray;
		int32 MapSize = 0;
		int32 Taps = 0;
		int32 CurrentLevel = INDEX_NONE;
		uint64 ShadowRevision = 0;
		FMatrix44f ToSun = FMatrix44f::Identity;
		FVector4f ToFootprints = FVector4f(0.0f, 0.0f, 0.0f, 0.0f);
		/** Size of a texel of either map in space. */
		float ShadowTexel = 0.0f;
		FVector2f FootprintSize = FVector2f(1.0f, 1.0f);
	};
}

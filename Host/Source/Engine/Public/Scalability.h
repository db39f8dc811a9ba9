#pragma once

#include "CoreMinimal.h"

/** How much work each group of the picture's features may make. The values are the console variables "sg.*". */
namespace Scalability
{
	constexpr int32 LowestQualityLevel = 0;
	/** Above low, medium, high and epic: for pictures that need not be made in time. */
	constexpr int32 HighestQualityLevel = 4;
	constexpr int32 DefaultQualityLevel = 3;

	constexpr float MinResolutionScale = 0.0f;
	constexpr float MaxResolutionScale = 100.0f;

	/** A level for each group, 0 (low) to 4 (cinematic). */
	struct ENGINE_API FQualityLevels
	{
		/** Of the picture that a scene is drawn in, in percent of the window's pixels along an axis; 0 leaves it to the project. */
		float ResolutionQuality = MaxResolutionScale;
		int32 ViewDistanceQuality = DefaultQualityLevel;
		int32 AntiAliasingQuality = DefaultQualityLevel;
		int32 ShadowQuality = DefaultQualityLevel;
		int32 GlobalIlluminationQuality = DefaultQualityLevel;
		int32 ReflectionQuality = DefaultQualityLevel;
		int32 PostProcessQuality = DefaultQualityLevel;
		int32 TextureQuality = DefaultQualityLevel;
		int32 EffectsQuality = DefaultQualityLevel;
		int32 FoliageQuality = DefaultQualityLevel;
		int32 ShadingQuality = DefaultQualityLevel;

		bool operator==(const FQualityLevels& Other) const = default;

		/** Gives every group the same level, brought into range; the resolution stays. */
		void SetFromSingleQualityLevel(int32 Value);

		/** The level that all groups have; -1 when they differ. */
		int32 GetSingleQualityLevel() const;

		/** Brings every value into its range. */
		void Clamp();
	};

	/** What the console variables say. */
	ENGINE_API FQualityLevels GetQualityLevels();

	/** Sets the console variables, whoever set them last. Values are brought into range. */
	ENGINE_API void SetQualityLevels(const FQualityLevels& QualityLevels);

	/** Reads [ScalabilityGroups] of a configuration over the given values. What is no number, or out of range, is one warning each. */
	ENGINE_API void LoadState(const FString& IniName, FQualityLevels& InOutLevels);

	/** Puts the values into [ScalabilityGroups] of a configuration, in memory. */
	ENGINE_API void SaveState(const FString& IniName, const FQualityLevels& Levels);
}

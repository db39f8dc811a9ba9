#pragma once

#include "CoreMinimal.h"
#include "Math/Box.h"

namespace Host
{
	/** A box that stands upright. Lengths in centimetres. */
	struct FSceneBox
	{
		FVector Centre = FVector(0.0, 0.0, 0.0);
		/** Half the lengths of its edges, each above 0. */
		FVector Extent = FVector(50.0, 50.0, 50.0);
		/** Turn about the vertical axis in degrees, from X toward Y. */
		double Yaw = 0.0;
		/** Alpha 1 is solid, less is a ghost that casts no shadow, 0 is not drawn. */
		FLinearColor Colour = FLinearColor(0.6f, 0.6f, 0.6f);
	};

	/** A flat outline, drawn up to a height. Lengths in centimetres. */
	struct FSceneOutline
	{
		/** Corners in order, either way round; the last is joined to the first. No side crosses another. */
		TArray<FVector2D> Points;
		double Bottom = 0.0;
		/** Above Bottom. */
		double Top = 300.0;
		/** As that of a box. */
		FLinearColor Colour = FLinearColor(0.6f, 0.6f, 0.6f);
	};

	/** What the volumes stand on and what lights them. Colours in linear light. */
	struct FSceneEnvironment
	{
		/** Height of the ground in centimetres. */
		double GroundHeight = 0.0;
		FLinearColor GroundColour = FLinearColor(0.60f, 0.60f, 0.55f);
		/**
		 * From the scene toward the sun; of any length, above the horizon. At first low and to the left of where cameras look at
		 * first, so that volumes throw long shadows across the picture.
		 */
		FVector SunDirection = FVector(0.22, -0.80, 0.56);
		/** Light of the sun on a surface that faces it. */
		FLinearColor SunColour = FLinearColor(1.10f, 0.98f, 0.82f);
		/** Light on a surface that faces up, out of the sun. */
		FLinearColor SkyLight = FLinearColor(0.43f, 0.47f, 0.55f);
		/** Light on a surface that faces down. */
		FLinearColor GroundLight = FLinearColor(0.33f, 0.30f, 0.26f);
		FLinearColor ZenithColour = FLinearColor(0.18f, 0.40f, 0.74f);
		FLinearColor HorizonColour = FLinearColor(0.82f, 0.85f, 0.86f);
		/** How much of the light the lines along the edges take away, 0 to 1. */
		float EdgeOpacity = 0.62f;
		/** Width of these lines in pixels of the view. */
		float EdgeWidth = 1.3f;

		bool operator==(const FSceneEnvironment&) const = default;
	};

	/**
	 * The volumes of a scene, by index in the order in which they were added. It keeps revisions, by which whoever draws or
	 * searches it knows what changed; no two contents ever have the same ones.
	 */
	class FSceneContent
	{
	public:
		/** What a volume was made from. */
		struct FVolume
		{
			bool bBox;
			/** Place in GetBoxes() or in GetOutlines(). */
			int32 Index;
		};

		/** An outline, as it is drawn. */
		struct FExtrusion
		{
			/** Counted from X toward Y. */
			TArray<FVector2D> Points;
			/** Corners of the triangles that fill it, three each, turned as the points. */
			TArray<int32> Triangles;
			double Bottom;
			double Top;
			int32 Volume;
		};

		struct FPlacedBox
		{
			FVector Centre;
			FVector Extent;
			/** Cosine and sine of the turn. */
			FVector2D Turn;
			int32 Volume;
		};

		FSceneContent();
		FSceneContent(const FSceneContent&) = delete;
		FSceneContent& operator=(const FSceneContent&) = delete;

		/** INDEX_NONE, after a line in the log, when a number is not finite or a length not above 0. */
		int32 AddBox(const FSceneBox& Box);

		/**
		 * A rectangle becomes a box, which is drawn faster.
		 * @return INDEX_NONE, after a line in the log, when the points enclose nothing or cross, or a number is not finite
		 */
		int32 AddOutline(const FSceneOutline& Outline);

		/** Removes all volumes; the environment stays. */
		void Empty();

		int32 Num() const { return Volumes.Num(); }
		const FVolume& GetVolume(int32 Index) const { return Volumes[Index]; }
		const TArray<FPlacedBox>& GetBoxes() const { return Boxes; }
		const TArray<FExtrusion>& GetOutlines() const { return Outlines; }

		/** Sets how a volume is drawn. Costs nothing when it is drawn so already. */
		void SetColour(int32 Index, const FLinearColor& Colour) { SetColour(Index, Colour.ToFColorSRGB()); }
		void SetColour(int32 Index, const FColor& Colour);
		/** As sRGB, B, G, R, A in memory. */
		const TArray<FColor>& GetColours() const { return Colours; }
		/** Sets how smooth a solid volume is: 0 for a mirror of sky and sun, 1, as at first, for chalk. */
		void SetRoughness(int32 Index, float InRoughness);
		/** In 255ths by volume; empty while all are 1. */
		const TArray<uint8>& GetRoughness() const { return Roughness; }
		/** Volumes that are drawn, but not solid. */
		int32 GetNumGhosts() const { return NumGhosts; }

		void SetEnvironment(const FSceneEnvironment& InEnvironment);
		const FSceneEnvironment& GetEnvironment() const { return Environment; }

		/** Of all volumes; invalid when there are none. */
		const FBox& GetBounds() const { return Bounds; }
		FBox GetVolumeBounds(int32 Index) const;

		/** Changes with anything. */
		uint64 GetRevision() const { return Revision; }
		/** Changes with the volumes that there are. */
		uint64 GetShapeRevision() const { return ShapeRevision; }
		/** Changes with what is solid and with the environment. */
		uint64 GetShadowRevision() const { return ShadowRevision; }
		/** Changes with the roughness of any volume. */
		uint64 GetRoughnessRevision() const { return RoughnessRevision; }
		/** Grows by one with each colour that is set. */
		uint64 GetColourRevision() const { return ColourRevision; }

		/**
		 * Volumes whose colour was set since the revision, perhaps several times.
		 * @return false when that is too long ago to tell: then every one may have been
		 */
		bool GetColoursSetSince(uint64 SinceColourRevision, TArray<int32>& OutIndices) const;

	private:
		int32 AddVolume(bool bBox, int32 Index, const FLinearColor& Colour, const FBox& VolumeBounds);

		TArray<FVolume> Volumes;
		TArray<FPlacedBox> Boxes;
		TArray<FExtrusion> Outlines;
		TArray<FColor> Colours;
		TArray<uint8> Roughness;
		FSceneEnvironment Environment;
		FBox Bounds = FBox(ForceInit);
		int32 NumGhosts = 0;
		uint64 Revision;
		uint64 ShapeRevision;
		uint64 ShadowRevision;
		uint64 ColourRevision;
		uint64 RoughnessRevision;
		/** The volumes of the last changes of colour, the newest last. */
		TArray<int32> RecentColours;
	};
}

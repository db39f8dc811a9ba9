#pragma once

#include "CoreMinimal.h"
#include "Gl/GlInstance.h"

namespace Host
{
	class FGlyphAtlas;
	class FTexture;
	struct FClipQuads;

	/** Instances that one draw call draws: in a row, with the same picture and the same rotated clips. */
	struct FGlBatch
	{
		int32 FirstInstance = 0;
		int32 NumInstances = 0;
		/** Null while none of the instances has a picture. */
		TSharedPtr<const FTexture> Texture;
		/** The highest level of detail that is sampled. */
		int32 Level = 0;
		bool bRepeat = false;
		TSharedPtr<const FClipQuads> ClipQuads;
	};

	/** Turns elements into as few batches as their order allows. Boxes without pictures and glyphs fit into any batch. */
	class FGlBatches
	{
	public:
		/** Keeps the memory. */
		void Reset();

		void Add(const FDrawElement& Element, const FPixelRect& Area, FGlyphAtlas& Atlas);

		const TArray<FGlInstance>& GetInstances() const { return Instances; }
		const TArray<FGlBatch>& GetBatches() const { return Batches; }

	private:
		void AddBox(const FDrawElement& Element, const FPixelRect& Area);
		void AddGlyphs(const FDrawElement& Element, const FPixelRect& Area, FGlyphAtlas& Atlas);
		void AddLines(const FDrawElement& Element, const FPixelRect& Area);
		/** The batch for an instance with these clips and, if not null, this picture. */
		FGlBatch& Open(const FDrawElement& Element, bool bTextured);
		void Append(FGlBatch& Batch, const FGlInstance& Instance);

		TArray<FGlInstance> Instances;
		TArray<FGlBatch> Batches;
	};
}

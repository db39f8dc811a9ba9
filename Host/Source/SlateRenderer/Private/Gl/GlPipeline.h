#pragma once

#include "CoreMinimal.h"
#include "Gl/GlBatches.h"
#include "Gl/GlObjects.h"
#include "Gl/GlTextures.h"

namespace Host
{
	struct FRenderCounters;

	/** The program, buffers and textures with which batches are drawn into whatever framebuffer is bound. */
	class FGlPipeline
	{
	public:
		/** Compiles the program. False, with what the driver says, when that fails. */
		bool Create(FString& OutError);
		void Release();

		/** Draws all batches into the bound framebuffer of the given size. */
		void Draw(const FGlBatches& Batches, FIntPoint SurfaceSize, const FGlyphAtlas& Atlas, FRenderCounters& Counters);

		FGlTextures& GetTextures() { return Textures; }

	private:
		void SetPointers(int32 FirstInstance);
		void SetClip(const FClipQuads* Quads);

		FGlObject Program;
		FGlObject VertexArray;
		FGlObject InstanceBuffer;
		FGlObject ClampSampler;
		FGlObject RepeatSampler;
		FGlTextures Textures;
		GLint SurfaceSizeLocation = -1;
		GLint NumClipEdgesLocation = -1;
		GLint ClipEdgesLocation = -1;
	};
}

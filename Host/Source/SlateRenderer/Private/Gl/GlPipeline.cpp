#include "Gl/GlPipeline.h"

#include <cstddef>

#include "Gl/GlProgram.h"
#include "Gl/GlShaders.h"
#include "Host/ClipState.h"
#include "Rendering/SlateRenderer.h"

namespace Host
{
	namespace
	{
		constexpr GLint PictureUnit = 0;
		constexpr GLint AtlasUnit = 1;
		constexpr GLuint NumVectorAttributes = 6;
		constexpr GLuint WordsAttribute = 6;

		FGlObject MakeSampler(const ANSICHAR* Label, GLint Wrap)
		{
			FGlObject Sampler(EGlObjectKind::Sampler, Label);
			glSamplerParameteri(Sampler.Get(), GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_NEAREST);
			glSamplerParameteri(Sampler.Get(), GL_TEXTURE_MAG_FILTER, GL_LINEAR);
			glSamplerParameteri(Sampler.Get(), GL_TEXTURE_WRAP_S, Wrap);
			glSamplerParameteri(Sampler.Get(), GL_TEXTURE_WRAP_T, Wrap);
			return Sampler;
		}
	}

	bool FGlPipeline::Create(FString& OutError)
	{
		Program = MakeGlProgram("Slate elements", { GlShaders::Vertex }, { GlShaders::Fragment }, OutError);
		if (!Program.IsValid())
		{
			return false;
		}
		SurfaceSizeLocation = glGetUniformLocation(Program.Get(), "SurfaceSize");
		NumClipEdgesLocation = glGetUniformLocation(Program.Get(), "NumClipEdges");
		ClipEdgesLocation = glGetUniformLocation(Program.Get(), "ClipEdges");
		glUseProgram(Program.Get());
		glUniform1i(glGetUniformLocation(Program.Get(), "Picture"), PictureUnit);
		glUniform1i(glGetUniformLocation(Program.Get(), "Atlas"), AtlasUnit);

		VertexArray = FGlObject(EGlObjectKind::VertexArray, "Slate instances");
		InstanceBuffer = FGlObject(EGlObjectKind::Buffer, "Slate instances");
		for (GLuint Attribute = 0; Attribute <= WordsAttribute; ++Attribute)
		{
			glEnableVertexAttribArray(Attribute);
			glVertexAttribDivisor(Attribute, 1);
		}
		ClampSampler = MakeSampler("Clamp", GL_CLAMP_TO_EDGE);
		RepeatSampler = MakeSampler("Repeat", GL_REPEAT);
		return true;
	}

	void FGlPipeline::Release()
	{
		Textures.ReleaseAll();
		Program.Reset();
		VertexArray.Reset();
		InstanceBuffer.Reset();
		ClampSampler.Reset();
		RepeatSampler.Reset();
	}

	void FGlPipeline::SetPointers(int32 FirstInstance)
	{
		const auto Offset = [FirstInstance](size_t Member)
		{
			return reinterpret_cast<const void*>(static_cast<size_t>(FirstInstance) * sizeof(FGlInstance) + Member);
		};
		for (GLuint Attribute = 0; Attribute < NumVectorAttributes; ++Attribute)
		{
			glVertexAttribPointer(Attribute, 4, GL_FLOAT, GL_FALSE, sizeof(FGlInstance), Offset(Attribute * 4 * sizeof(float)));
		}
		glVertexAttribIPointer(WordsAttribute, 4, GL_UNSIGNED_INT, sizeof(FGlInstance), Offset(offsetof(FGlInstance, Words)));
	}

	void FGlPipeline::SetClip(const FClipQuads* Quads)
	{
		GLint Count = 0;
		if (Quads)
		{
			static_assert(sizeof(FClipQuad) == 4 * 3 * sizeof(float));
			Count = 4 * Quads->Quads.Num();
			glUniform3fv(ClipEdgesLocation, Count, &Quads->Quads[0].Edges[0].A);
		}
		glUniform1i(NumClipEdgesLocation, Count);
	}

	void FGlPipeline::Draw(const FGlBatches& Batches, FIntPoint SurfaceSize, const FGlyphAtlas& Atlas, FRenderCounters& Counters)
	{
		const TArray<FGlInstance>& Instances = Batches.GetInstances();
		if (Instances.Num() == 0)
		{
			return;
		}
		glUseProgram(Program.Get());
		glUniform2f(SurfaceSizeLocation, static_cast<float>(SurfaceSize.X), static_cast<float>(SurfaceSize.Y));
		glBindVertexArray(VertexArray.Get());
		glBindBuffer(GL_ARRAY_BUFFER, InstanceBuffer.Get());
		glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(sizeof(FGlInstance)) * Instances.Num(), Instances.GetData(), GL_STREAM_DRAW);
		glEnable(GL_BLEND);
		glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
		glActiveTexture(GL_TEXTURE0 + AtlasUnit);
		glBindSampler(AtlasUnit, ClampSampler.Get());
		Textures.UpdateAtlas(Atlas, Counters.UploadedBytes);
		glActiveTexture(GL_TEXTURE0 + PictureUnit);
		for (const FGlBatch& Batch : Batches.GetBatches())
		{
			if (Batch.NumInstances == 0)
			{
				continue;
			}
			if (Batch.Texture.IsValid())
			{
				Textures.Find(Batch.Texture, Batch.Level, Counters.UploadedBytes);
				glBindSampler(PictureUnit, Batch.bRepeat ? RepeatSampler.Get() : ClampSampler.Get());
			}
			SetClip(Batch.ClipQuads.Get());
			SetPointers(Batch.FirstInstance);
			glDrawArraysInstanced(GL_TRIANGLE_STRIP, 0, 4, Batch.NumInstances);
			++Counters.DrawCalls;
		}
		// Whoever else draws with this context, such as a scene, must not find our samplers in the way.
		glBindSampler(PictureUnit, 0);
		glBindSampler(AtlasUnit, 0);
		glDisable(GL_BLEND);
	}
}

#include "Scene/GlSceneTargets.h"

#include "Host/SceneRenderer.h"

namespace Host
{
	namespace
	{
		FGlObject MakeColours(const ANSICHAR* Label, FIntPoint Size)
		{
			FGlObject Texture(EGlObjectKind::Texture, Label);
			glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, Size.X, Size.Y, 0, GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV, nullptr);
			glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAX_LEVEL, 0);
			glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
			glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
			glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
			glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
			return Texture;
		}

		FGlObject MakeRenderbuffer(const ANSICHAR* Label, GLenum Format, FIntPoint Size, int32 Samples)
		{
			FGlObject Buffer(EGlObjectKind::Renderbuffer, Label);
			glRenderbufferStorageMultisample(GL_RENDERBUFFER, Samples, Format, Size.X, Size.Y);
			return Buffer;
		}
	}

	bool FGlSceneTargets::IsComplete(const FGlObject& Framebuffer, FString& OutError) const
	{
		glBindFramebuffer(GL_FRAMEBUFFER, Framebuffer.Get());
		const GLenum Status = glCheckFramebufferStatus(GL_FRAMEBUFFER);
		if (Status == GL_FRAMEBUFFER_COMPLETE)
		{
			return true;
		}
		OutError = FString::Printf(TEXT("a framebuffer of %d x %d pixels cannot be drawn into (status 0x%x)"), DrawSize.X, DrawSize.Y, static_cast<uint32>(Status));
		return false;
	}

	bool FGlSceneTargets::Resize(FIntPoint InPictureSize, FIntPoint InDrawSize, int32 InSamples, FString& OutError)
	{
		if (InPictureSize == PictureSize && InDrawSize == DrawSize && InSamples == WantedSamples)
		{
			return true;
		}
		*this = FGlSceneTargets();
		PictureSize = InPictureSize;
		DrawSize = InDrawSize;
		WantedSamples = InSamples;
		EmptyArray = FGlObject(EGlObjectKind::VertexArray, "Scene screen");
		glActiveTexture(GL_TEXTURE0);
		Resolved = MakeColours("Scene", DrawSize);
		ResolvedFramebuffer = FGlObject(EGlObjectKind::Framebuffer, "Scene");
		glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, Resolved.Get(), 0);
		const bool bSampled = WantedSamples > 1;
		if (bSampled)
		{
			SampledFramebuffer = FGlObject(EGlObjectKind::Framebuffer, "Scene samples");
			Sampled = MakeRenderbuffer("Scene samples", GL_RGBA8, DrawSize, WantedSamples);
			glGetRenderbufferParameteriv(GL_RENDERBUFFER, GL_RENDERBUFFER_SAMPLES, &ActualSamples);
			glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, Sampled.Get());
		}
		Depth = MakeRenderbuffer("Scene depth", GL_DEPTH_COMPONENT24, DrawSize, bSampled ? ActualSamples : 0);
		glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, Depth.Get());
		if (!IsComplete(ResolvedFramebuffer, OutError) || (bSampled && !IsComplete(SampledFramebuffer, OutError)))
		{
			return false;
		}
		if (IsScaled())
		{
			Picture = MakeColours("Scene picture", PictureSize);
			PictureFramebuffer = FGlObject(EGlObjectKind::Framebuffer, "Scene picture");
			glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, Picture.Get(), 0);
			return IsComplete(PictureFramebuffer, OutError);
		}
		return true;
	}

	void FGlSceneTargets::Begin() const
	{
		glBindFramebuffer(GL_FRAMEBUFFER, SampledFramebuffer.IsValid() ? SampledFramebuffer.Get() : ResolvedFramebuffer.Get());
		glViewport(0, 0, DrawSize.X, DrawSize.Y);
	}

	void FGlSceneTargets::Finish(const FGlObject& ScaleProgram, GLint RatioLocation, FSceneCounters& Counters) const
	{
		if (SampledFramebuffer.IsValid())
		{
			glBindFramebuffer(GL_READ_FRAMEBUFFER, SampledFramebuffer.Get());
			glBindFramebuffer(GL_DRAW_FRAMEBUFFER, ResolvedFramebuffer.Get());
			glBlitFramebuffer(0, 0, DrawSize.X, DrawSize.Y, 0, 0, DrawSize.X, DrawSize.Y, GL_COLOR_BUFFER_BIT, GL_NEAREST);
		}
		glBindFramebuffer(GL_FRAMEBUFFER, ResolvedFramebuffer.Get());
		if (IsScaled())
		{
			glBindFramebuffer(GL_FRAMEBUFFER, PictureFramebuffer.Get());
			glViewport(0, 0, PictureSize.X, PictureSize.Y);
			glDisable(GL_DEPTH_TEST);
			glUseProgram(ScaleProgram.Get());
			glUniform2f(RatioLocation, static_cast<float>(DrawSize.X) / static_cast<float>(PictureSize.X), static_cast<float>(DrawSize.Y) / static_cast<float>(PictureSize.Y));
			glActiveTexture(GL_TEXTURE0);
			glBindTexture(GL_TEXTURE_2D, Resolved.Get());
			glBindVertexArray(EmptyArray.Get());
			glDrawArrays(GL_TRIANGLES, 0, 3);
			++Counters.DrawCalls;
		}
	}
}

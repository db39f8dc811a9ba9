#include "Gl/GlSurface.h"

#include "Gl/GlRenderer.h"
#include "Host/FontServices.h"
#include "Cpu/PixelMath.h"
#include "RendererLog.h"
#include "Shared/DamageAreas.h"

namespace Host
{
	namespace
	{
		/** Whoever else draws with the context, such as a scene, may leave anything behind. */
		void ResetState()
		{
			glDisable(GL_DEPTH_TEST);
			glDisable(GL_STENCIL_TEST);
			glDisable(GL_CULL_FACE);
			glDisable(GL_FRAMEBUFFER_SRGB);
			glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
			glBlendEquation(GL_FUNC_ADD);
			glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
			glBindBuffer(GL_PIXEL_UNPACK_BUFFER, 0);
		}
	}

	FGlSurface::FGlSurface(FGlRenderer& InRenderer, FIntPoint InSize, void* InNativeWindow)
		: Renderer(InRenderer)
		, NativeWindow(InNativeWindow)
	{
		++Renderer.NumSurfaces;
		if (MakeCurrent())
		{
			Colours = FGlObject(EGlObjectKind::Texture, "Window colours");
			glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAX_LEVEL, 0);
			Framebuffer = FGlObject(EGlObjectKind::Framebuffer, "Window");
			glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, Colours.Get(), 0);
			Resize(InSize);
		}
	}

	FGlSurface::~FGlSurface()
	{
		MakeCurrent();
		Framebuffer.Reset();
		Colours.Reset();
		Renderer.Context->ForgetWindow(NativeWindow);
		--Renderer.NumSurfaces;
	}

	bool FGlSurface::MakeCurrent()
	{
		FString Error;
		if (Renderer.Context->MakeCurrent(NativeWindow, Error))
		{
			return true;
		}
		UE_LOG(LogSlateRenderer, Error, TEXT("A window cannot be drawn with OpenGL: %s"), *Error);
		return false;
	}

	bool FGlSurface::IsComplete(FString& OutError)
	{
		if (!Framebuffer.IsValid())
		{
			OutError = TEXT("there is no context for the window");
			return false;
		}
		glBindFramebuffer(GL_FRAMEBUFFER, Framebuffer.Get());
		const GLenum Status = glCheckFramebufferStatus(GL_FRAMEBUFFER);
		if (Status != GL_FRAMEBUFFER_COMPLETE)
		{
			OutError = FString::Printf(TEXT("the framebuffer cannot be drawn into (status 0x%x)"), static_cast<uint32>(Status));
			return false;
		}
		return true;
	}

	void FGlSurface::Resize(FIntPoint NewSize)
	{
		GLint MaxSize = 0;
		if (!MakeCurrent())
		{
			return;
		}
		glGetIntegerv(GL_MAX_TEXTURE_SIZE, &MaxSize);
		// A minimised window has no pixels; a texture needs one.
		Size = FIntPoint(FMath::Clamp(NewSize.X, 1, MaxSize), FMath::Clamp(NewSize.Y, 1, MaxSize));
		glBindTexture(GL_TEXTURE_2D, Colours.Get());
		glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, Size.X, Size.Y, 0, GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV, nullptr);
		const FPixelRect All = FPixelRect::Make(0, 0, Size.X, Size.Y);
		glBindFramebuffer(GL_FRAMEBUFFER, Framebuffer.Get());
		Clear(FColor(0, 0, 0, 0), MakeArrayView(&All, 1));
	}

	void FGlSurface::Clear(const FColor& Colour, TConstArrayView<FPixelRect> Areas)
	{
		const uint32 Pixel = PixelMath::Premultiply(Colour);
		const auto Channel = [Pixel](int32 Shift) { return static_cast<float>(Pixel >> Shift & 255) / 255.0f; };
		glClearColor(Channel(16), Channel(8), Channel(0), Channel(24));
		glEnable(GL_SCISSOR_TEST);
		for (const FPixelRect& Area : Areas)
		{
			glScissor(Area.Left, Area.Top, Area.Width(), Area.Height());
			glClear(GL_COLOR_BUFFER_BIT);
		}
		glDisable(GL_SCISSOR_TEST);
	}

	void FGlSurface::DrawFrame(const FWindowFrame& Frame)
	{
		const auto Areas = MergeDamage(Frame.Damage, FPixelRect::Make(0, 0, Size.X, Size.Y));
		if (Areas.Num() == 0 || !MakeCurrent())
		{
			return;
		}
		FGlyphAtlas& Atlas = FFontServices::Get().GetAtlas();
		Atlas.BeginFrame();
		FRenderCounters& Counters = Renderer.Counters;
		++Counters.Frames;
		FGlBatches& Batches = Renderer.Batches;
		Batches.Reset();
		for (const FPixelRect& Area : Areas)
		{
			Counters.DamagedPixels += Area.Area();
			Frame.Traverse(Area, [&](TConstArrayView<FDrawElement> Elements)
			{
				for (const FDrawElement& Element : Elements)
				{
					if (Element.Bounds.Intersects(Area))
					{
						++Counters.Elements;
						Batches.Add(Element, Area, Atlas);
					}
				}
			});
		}
		glBindFramebuffer(GL_FRAMEBUFFER, Framebuffer.Get());
		glViewport(0, 0, Size.X, Size.Y);
		ResetState();
		Clear(Frame.ClearColour, Areas);
		Renderer.Pipeline.Draw(Batches, Size, Atlas, Counters);
		Renderer.Pipeline.GetTextures().ReleaseUnused();
		Present();
	}

	void FGlSurface::Present()
	{
		if (!NativeWindow || !MakeCurrent())
		{
			return;
		}
		glBindFramebuffer(GL_READ_FRAMEBUFFER, Framebuffer.Get());
		glBindFramebuffer(GL_DRAW_FRAMEBUFFER, 0);
		// A window's framebuffer begins with its lowest row.
		glBlitFramebuffer(0, 0, Size.X, Size.Y, 0, Size.Y, Size.X, 0, GL_COLOR_BUFFER_BIT, GL_NEAREST);
		Renderer.Context->SwapBuffers(NativeWindow);
	}

	void FGlSurface::ReadPixels(TArray<FColor>& OutPixels, FIntPoint& OutSize)
	{
		OutSize = Size;
		OutPixels.SetNumZeroed(Size.X * Size.Y);
		if (!MakeCurrent())
		{
			return;
		}
		TArray<uint32> Pixels;
		Pixels.SetNumUninitialized(Size.X * Size.Y);
		glBindFramebuffer(GL_FRAMEBUFFER, Framebuffer.Get());
		glPixelStorei(GL_PACK_ALIGNMENT, 4);
		glReadPixels(0, 0, Size.X, Size.Y, GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV, Pixels.GetData());
		for (int32 Index = 0; Index < Pixels.Num(); ++Index)
		{
			OutPixels[Index] = PixelMath::ToStraight(Pixels[Index]);
		}
	}
}

#include "Gl/GlRenderer.h"

#include "Gl/GlSurface.h"
#include "RendererLog.h"

namespace Host
{
	namespace
	{
		constexpr int32 RequiredVersion = 33;
		/** Renderers that hold a context: objects are counted over all of them. */
		int32 NumInitialized = 0;
	}

	FGlRenderer::FGlRenderer(FContextMaker InMakeContext)
		: MakeContext(InMakeContext)
	{
	}

	FGlRenderer::~FGlRenderer()
	{
		Destroy();
	}

	bool FGlRenderer::Initialize(FString& OutError)
	{
		if (Context.IsValid())
		{
			return true;
		}
		Context = MakeContext(OutError);
		if (!Context.IsValid())
		{
			return false;
		}
		const int32 Version = epoxy_gl_version();
		if (Version < RequiredVersion)
		{
			OutError = FString::Printf(TEXT("the driver offers OpenGL %d.%d, 3.3 is needed"), Version / 10, Version % 10);
			Context.Reset();
			return false;
		}
		DeviceName = FString(UTF8_TO_TCHAR(reinterpret_cast<const ANSICHAR*>(glGetString(GL_RENDERER))));
		if (!Pipeline.Create(OutError))
		{
			Pipeline.Release();
			Context.Reset();
			return false;
		}
		++NumInitialized;
		UE_LOG(LogSlateRenderer, Log, TEXT("OpenGL %d.%d on %s"), Version / 10, Version % 10, *DeviceName);
		return true;
	}

	void FGlRenderer::Destroy()
	{
		if (!Context.IsValid())
		{
			return;
		}
		if (NumSurfaces > 0)
		{
			UE_LOG(LogSlateRenderer, Error, TEXT("The renderer goes while %d surfaces still use it"), NumSurfaces);
		}
		FString Error;
		Context->MakeCurrent(nullptr, Error);
		Batches.Reset();
		Pipeline.Release();
		if (--NumInitialized == 0 && FGlObject::GetNumAlive() > 0)
		{
			UE_LOG(LogSlateRenderer, Error, TEXT("OpenGL objects were not given back: %s"), *FGlObject::DescribeAlive());
		}
		Context.Reset();
	}

	const TCHAR* FGlRenderer::GetName() const
	{
		return TEXT("gl");
	}

	bool FGlRenderer::BeginNativeDrawing()
	{
		FString Error;
		if (Context.IsValid() && Context->MakeCurrent(nullptr, Error))
		{
			return true;
		}
		UE_LOG(LogSlateRenderer, Error, TEXT("OpenGL cannot be drawn with: %s"), Context.IsValid() ? *Error : TEXT("the renderer is not initialised"));
		return false;
	}

	void FGlRenderer::TakeFilled(const TSharedRef<const FTexture>& Texture, const FPixelRect& Area)
	{
		if (BeginNativeDrawing())
		{
			Pipeline.GetTextures().UploadFilled(Texture, Area, Counters.UploadedBytes);
		}
	}

	bool FGlRenderer::IsSoftware() const
	{
		return DeviceName.Contains(TEXT("llvmpipe")) || DeviceName.Contains(TEXT("softpipe")) || DeviceName.Contains(TEXT("SwiftShader"));
	}

	TUniquePtr<FWindowSurface> FGlRenderer::CreateSurface(FIntPoint Size, void* NativeWindow)
	{
		TUniquePtr<FGlSurface> Surface = MakeUnique<FGlSurface>(*this, Size, NativeWindow);
		FString Error;
		if (!Surface->IsComplete(Error))
		{
			UE_LOG(LogSlateRenderer, Error, TEXT("A window cannot be drawn with OpenGL: %s"), *Error);
			return nullptr;
		}
		return Surface;
	}
}

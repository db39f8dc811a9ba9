#include "Cpu/CpuRenderer.h"

#include "Cpu/CpuSurface.h"
#include "RendererLog.h"
#include "Sdl/SdlWindowBlitter.h"

namespace Host
{
	FCpuRenderer::~FCpuRenderer()
	{
		Destroy();
	}

	bool FCpuRenderer::Initialize(FString&)
	{
		return true;
	}

	void FCpuRenderer::Destroy()
	{
		if (NumSurfaces > 0)
		{
			UE_LOG(LogSlateRenderer, Error, TEXT("The renderer goes while %d surfaces still use it"), NumSurfaces);
		}
	}

	const TCHAR* FCpuRenderer::GetName() const
	{
		return TEXT("cpu");
	}

	TUniquePtr<FWindowSurface> FCpuRenderer::CreateSurface(FIntPoint Size, void* NativeWindow)
	{
		TUniquePtr<FWindowBlitter> Blitter;
		if (NativeWindow)
		{
			Blitter = MakeUnique<FSdlWindowBlitter>(NativeWindow);
		}
		return MakeUnique<FCpuSurface>(*this, Size, MoveTemp(Blitter));
	}
}

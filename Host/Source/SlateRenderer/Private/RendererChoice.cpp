#include "Host/RendererChoice.h"

#include <unistd.h>

#include "Cpu/CpuRenderer.h"
#include "Gl/GlRenderer.h"
#include "RendererLog.h"
#include "Sdl/SdlGlContext.h"

namespace Host
{
	namespace
	{
		/**
		 * False when the machine surely has no graphics processor. Asking the driver would tell as well, but would first load
		 * its compiler into memory.
		 */
		bool MayHaveGraphicsProcessor()
		{
			for (const ANSICHAR* Device : { "/dev/dri", "/dev/nvidiactl", "/dev/dxg" })
			{
				if (access(Device, F_OK) == 0)
				{
					return true;
				}
			}
			return false;
		}

		TSharedPtr<FSlateRenderer> MakeCpuRenderer()
		{
			TSharedPtr<FSlateRenderer> Renderer = MakeShared<FCpuRenderer>();
			FString Ignored;
			Renderer->Initialize(Ignored);
			return Renderer;
		}

		TSharedPtr<FGlRenderer> MakeGlRenderer(bool bHeadless, FString& OutError)
		{
			TSharedPtr<FGlRenderer> Renderer = MakeShared<FGlRenderer>(bHeadless ? &MakeHeadlessGlContext : &MakeSdlGlContext);
			FString Reason;
			if (!Renderer->Initialize(Reason))
			{
				OutError = FString::Printf(TEXT("OpenGL 3.3 cannot be used: %s. The option --renderer cpu works without it."), *Reason);
				return nullptr;
			}
			return Renderer;
		}
	}

	bool ParseRendererChoice(FStringView Text, ERendererChoice& OutChoice)
	{
		const FString Name(Text);
		if (Name == TEXT("auto"))
		{
			OutChoice = ERendererChoice::Auto;
		}
		else if (Name == TEXT("cpu"))
		{
			OutChoice = ERendererChoice::Cpu;
		}
		else if (Name == TEXT("gl"))
		{
			OutChoice = ERendererChoice::Gl;
		}
		else
		{
			return false;
		}
		return true;
	}

	TSharedPtr<FSlateRenderer> MakeRenderer(ERendererChoice Choice, bool bHeadless, FString& OutError)
	{
		if (Choice == ERendererChoice::Cpu || (Choice == ERendererChoice::Auto && bHeadless))
		{
			return MakeCpuRenderer();
		}
		if (Choice == ERendererChoice::Gl)
		{
			return MakeGlRenderer(bHeadless, OutError);
		}
		if (!MayHaveGraphicsProcessor())
		{
			UE_LOG(LogSlateRenderer, Log, TEXT("Drawing with the CPU: there is no graphics processor"));
			return MakeCpuRenderer();
		}
		FString Reason;
		TSharedPtr<FGlRenderer> Renderer = MakeGlRenderer(bHeadless, Reason);
		if (!Renderer.IsValid())
		{
			UE_LOG(LogSlateRenderer, Log, TEXT("Drawing with the CPU. %s"), *Reason);
			return MakeCpuRenderer();
		}
		if (Renderer->IsSoftware())
		{
			UE_LOG(LogSlateRenderer, Log, TEXT("Drawing with the CPU: OpenGL is computed in software here, which is slower"));
			Renderer.Reset();
			return MakeCpuRenderer();
		}
		return Renderer;
	}
}

#include "Sdl/SdlGlContext.h"

#include "HAL/IConsoleManager.h"
#include "RendererLog.h"
#include "Sdl/SdlLibrary.h"

namespace Host
{
	namespace
	{
		TAutoConsoleVariable<int32> VSync(TEXT("r.VSync"), 0, TEXT("1: pictures wait for the screen, so that none is shown torn. 0: they do not."));

		/** What every window must have in common, so that one context draws into all of them. */
		void RequestFormat(const FSdl& Sdl)
		{
			Sdl.GL_SetAttribute(SDL_GL_CONTEXT_MAJOR_VERSION, 3);
			Sdl.GL_SetAttribute(SDL_GL_CONTEXT_MINOR_VERSION, 3);
			Sdl.GL_SetAttribute(SDL_GL_CONTEXT_PROFILE_MASK, SDL_GL_CONTEXT_PROFILE_CORE);
			Sdl.GL_SetAttribute(SDL_GL_DOUBLEBUFFER, 1);
			// Elements and scenes are drawn into framebuffers of their own.
			Sdl.GL_SetAttribute(SDL_GL_DEPTH_SIZE, 0);
		}

		class FSdlGlContext final : public FGlContext
		{
		public:
			virtual ~FSdlGlContext() override
			{
				const FSdl& Sdl = FSdl::Get();
				if (Context)
				{
					Sdl.GL_DeleteContext(Context);
				}
				if (HiddenWindow)
				{
					Sdl.DestroyWindow(HiddenWindow);
				}
			}

			bool Open(FString& OutError)
			{
				const FSdl& Sdl = FSdl::Get();
				RequestFormat(Sdl);
				HiddenWindow = Sdl.CreateWindow("", 0, 0, 1, 1, SDL_WINDOW_OPENGL | SDL_WINDOW_HIDDEN);
				Context = HiddenWindow ? Sdl.GL_CreateContext(HiddenWindow) : nullptr;
				if (!Context)
				{
					OutError = FString::Printf(TEXT("the video system has no OpenGL 3.3 (%s)"), *Sdl.GetErrorText());
					return false;
				}
				return true;
			}

			virtual bool MakeCurrent(void* NativeWindow, FString& OutError) override
			{
				SDL_Window* const Window = NativeWindow ? static_cast<SDL_Window*>(NativeWindow) : HiddenWindow;
				if (Window == CurrentWindow)
				{
					return true;
				}
				const FSdl& Sdl = FSdl::Get();
				if (Sdl.GL_MakeCurrent(Window, Context) != 0)
				{
					OutError = Sdl.GetErrorText();
					return false;
				}
				CurrentWindow = Window;
				SwapInterval = UnknownInterval;
				return true;
			}

			virtual void SwapBuffers(void* NativeWindow) override
			{
				if (const int32 Wanted = VSync.GetValueOnGameThread() != 0 ? 1 : 0; Wanted != SwapInterval)
				{
					const bool bSet = FSdl::Get().GL_SetSwapInterval(Wanted) == 0;
					UE_CLOG(!bSet && Wanted != 0, LogSlateRenderer, Warning, TEXT("r.VSync: pictures do not wait for the screen: %s"), *FSdl::Get().GetErrorText());
					SwapInterval = Wanted;
				}
				FSdl::Get().GL_SwapWindow(static_cast<SDL_Window*>(NativeWindow));
			}

			virtual void ForgetWindow(void* NativeWindow) override
			{
				if (CurrentWindow == NativeWindow)
				{
					FString Ignored;
					MakeCurrent(nullptr, Ignored);
				}
			}

		private:
			SDL_Window* HiddenWindow = nullptr;
			SDL_Window* CurrentWindow = nullptr;
			/** Of the current window, which begins with one of the system's choice. */
			static constexpr int32 UnknownInterval = -1;
			int32 SwapInterval = UnknownInterval;
			SDL_GLContext Context = nullptr;
		};
	}

	TUniquePtr<FGlContext> MakeSdlGlContext(FString& OutError)
	{
		TUniquePtr<FSdlGlContext> Context = MakeUnique<FSdlGlContext>();
		if (!Context->Open(OutError))
		{
			return nullptr;
		}
		if (!Context->MakeCurrent(nullptr, OutError))
		{
			return nullptr;
		}
		return Context;
	}
}

#include "Gl/GlContext.h"

#include <epoxy/egl.h>

namespace Host
{
	namespace
	{
		/** The display without a screen, if the driver has one; else the first graphics device; else the default display. */
		EGLDisplay FindDisplay()
		{
			if (epoxy_has_egl_extension(EGL_NO_DISPLAY, "EGL_MESA_platform_surfaceless"))
			{
				const EGLDisplay Display = eglGetPlatformDisplayEXT(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr);
				if (Display != EGL_NO_DISPLAY && eglInitialize(Display, nullptr, nullptr))
				{
					return Display;
				}
			}
			if (epoxy_has_egl_extension(EGL_NO_DISPLAY, "EGL_EXT_platform_device") && epoxy_has_egl_extension(EGL_NO_DISPLAY, "EGL_EXT_device_enumeration"))
			{
				EGLDeviceEXT Device = nullptr;
				EGLint Count = 0;
				if (eglQueryDevicesEXT(1, &Device, &Count) && Count > 0)
				{
					const EGLDisplay Display = eglGetPlatformDisplayEXT(EGL_PLATFORM_DEVICE_EXT, Device, nullptr);
					if (Display != EGL_NO_DISPLAY && eglInitialize(Display, nullptr, nullptr))
					{
						return Display;
					}
				}
			}
			const EGLDisplay Display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
			return Display != EGL_NO_DISPLAY && eglInitialize(Display, nullptr, nullptr) ? Display : EGL_NO_DISPLAY;
		}

		/** Contexts on the display, which all share: it goes with the last of them. */
		int32 NumContexts = 0;

		class FEglContext final : public FGlContext
		{
		public:
			virtual ~FEglContext() override
			{
				if (Display == EGL_NO_DISPLAY)
				{
					return;
				}
				if (eglGetCurrentContext() == Context)
				{
					eglMakeCurrent(Display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
				}
				if (Surface != EGL_NO_SURFACE)
				{
					eglDestroySurface(Display, Surface);
				}
				if (Context != EGL_NO_CONTEXT)
				{
					eglDestroyContext(Display, Context);
				}
				if (--NumContexts == 0)
				{
					eglTerminate(Display);
				}
			}

			bool Open(FString& OutError)
			{
				if (!epoxy_has_egl())
				{
					OutError = TEXT("there is no EGL library");
					return false;
				}
				Display = FindDisplay();
				if (Display == EGL_NO_DISPLAY)
				{
					OutError = TEXT("EGL offers no display");
					return false;
				}
				++NumContexts;
				return MakeContext(OutError) && MakeCurrent(nullptr, OutError);
			}

			virtual bool MakeCurrent(void*, FString& OutError) override
			{
				if (eglGetCurrentContext() == Context || eglMakeCurrent(Display, Surface, Surface, Context))
				{
					return true;
				}
				OutError = FString::Printf(TEXT("EGL cannot use its context (error 0x%x)"), static_cast<uint32>(eglGetError()));
				return false;
			}

			virtual void SwapBuffers(void*) override {}
			virtual void ForgetWindow(void*) override {}

		private:
			bool MakeContext(FString& OutError)
			{
				const bool bSurfaceless = epoxy_has_egl_extension(Display, "EGL_KHR_surfaceless_context");
				const EGLint ConfigAttributes[] = { EGL_RENDERABLE_TYPE, EGL_OPENGL_BIT, EGL_SURFACE_TYPE, bSurfaceless ? 0 : EGL_PBUFFER_BIT, EGL_NONE };
				EGLConfig Config = nullptr;
				EGLint Count = 0;
				eglBindAPI(EGL_OPENGL_API);
				if (!eglChooseConfig(Display, ConfigAttributes, &Config, 1, &Count) || Count == 0)
				{
					OutError = TEXT("EGL has no configuration for OpenGL");
					return false;
				}
				const EGLint ContextAttributes[] = { EGL_CONTEXT_MAJOR_VERSION, 3, EGL_CONTEXT_MINOR_VERSION, 3, EGL_CONTEXT_OPENGL_PROFILE_MASK,
					EGL_CONTEXT_OPENGL_CORE_PROFILE_BIT, EGL_NONE };
				Context = eglCreateContext(Display, Config, EGL_NO_CONTEXT, ContextAttributes);
				if (Context == EGL_NO_CONTEXT)
				{
					OutError = TEXT("EGL cannot make a context for OpenGL 3.3");
					return false;
				}
				if (!bSurfaceless)
				{
					const EGLint SurfaceAttributes[] = { EGL_WIDTH, 1, EGL_HEIGHT, 1, EGL_NONE };
					Surface = eglCreatePbufferSurface(Display, Config, SurfaceAttributes);
				}
				return true;
			}

			EGLDisplay Display = EGL_NO_DISPLAY;
			EGLContext Context = EGL_NO_CONTEXT;
			EGLSurface Surface = EGL_NO_SURFACE;
		};
	}

	TUniquePtr<FGlContext> MakeHeadlessGlContext(FString& OutError)
	{
		TUniquePtr<FEglContext> Context = MakeUnique<FEglContext>();
		if (!Context->Open(OutError))
		{
			return nullptr;
		}
		return Context;
	}
}

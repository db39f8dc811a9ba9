#include "Sdl/SdlLibrary.h"

#include <dlfcn.h>

namespace Host
{
	namespace
	{
		FSdl Functions;
		bool bLoaded = false;

		template <typename FunctionType>
		bool Find(void* Library, const ANSICHAR* Name, FunctionType& OutFunction, FString& OutError)
		{
			OutFunction = reinterpret_cast<FunctionType>(dlsym(Library, Name));
			if (!OutFunction)
			{
				OutError = FString::Printf(TEXT("the SDL library is too old: it has no %s"), *FString(UTF8_TO_TCHAR(Name)));
			}
			return OutFunction != nullptr;
		}
	}

	const FSdl* FSdl::Load(FString& OutError)
	{
		if (bLoaded)
		{
			return &Functions;
		}
		// Never unloaded: the libraries behind it do not survive that.
		void* Library = dlopen("libSDL2-2.0.so.0", RTLD_NOW | RTLD_LOCAL);
		if (!Library)
		{
			OutError = TEXT("there is no SDL library (libSDL2-2.0.so.0)");
			return nullptr;
		}
#define HALVEX_FIND(Name) \
	if (!Find(Library, "SDL_" #Name, Functions.Name, OutError)) \
	{ \
		return nullptr; \
	}
		HALVEX_SDL_FUNCTIONS(HALVEX_FIND)
#undef HALVEX_FIND
		bLoaded = true;
		return &Functions;
	}

	const FSdl& FSdl::Get()
	{
		check(bLoaded);
		return Functions;
	}

	FString FSdl::GetErrorText() const
	{
		return FString(UTF8_TO_TCHAR(GetError()));
	}
}

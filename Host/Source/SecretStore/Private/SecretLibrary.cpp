#include "SecretLibrary.h"

#include <dlfcn.h>

namespace Host
{
	namespace
	{
		bool Load(FSecretLibrary& Functions)
		{
			// Never unloaded: it has types and threads that do not survive that.
			void* const Library = dlopen("libsecret-1.so.0", RTLD_NOW | RTLD_LOCAL);
			if (!Library)
			{
				return false;
			}
			bool bAll = true;
#define HALVEX_FIND(Name) \
	Functions.Name = reinterpret_cast<decltype(Functions.Name)>(dlsym(Library, #Name)); \
	bAll &= Functions.Name != nullptr;
			HALVEX_SECRET_FUNCTIONS(HALVEX_FIND)
#undef HALVEX_FIND
			return bAll;
		}
	}

	const FSecretLibrary* FSecretLibrary::Get()
	{
		static FSecretLibrary Functions;
		static const bool bLoaded = Load(Functions);
		return bLoaded ? &Functions : nullptr;
	}
}

#include "CoreMinimal.h"
#include "Host/LogSink.h"

#ifdef COREUOBJECT_API
#include "Host/StartModules.h"
#endif

#include <cstdlib>

/** How a fuzzing program starts: with its modules, and quiet, since every damaged input is a warning by design. */
extern "C" int LLVMFuzzerInitialize(int* ArgumentCount, char*** Arguments);

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
	Host::FLogSinks::SetStandardErrorVerbosity(ELogVerbosity::NoLogging);
#ifdef COREUOBJECT_API
	Host::StartLinkedModules();
#endif
	return 0;
}

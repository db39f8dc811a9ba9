#pragma once

#include "Async/TaskGraphInterfaces.h"
#include "Templates/Function.h"

/**
 * Runs the function once on a thread of the kind that is asked for. On the game thread that is at the start of a tick, in
 * the order of the calls; background work runs as soon as a thread is free, in no promised order. May be called on any thread.
 */
CORE_API void AsyncTask(ENamedThreads::Type Thread, TUniqueFunction<void()> Function);

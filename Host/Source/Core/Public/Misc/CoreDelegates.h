#pragma once

#include "Delegates/Delegate.h"

/** Moments in the life of the program. */
class FCoreDelegates
{
public:
	/** The engine and all its modules are up; the first frame comes next. */
	CORE_API static FSimpleMulticastDelegate& GetOnPostEngineInit();
	CORE_API static FSimpleMulticastDelegate OnBeginFrame;
	CORE_API static FSimpleMulticastDelegate OnEndFrame;
	/** The program is about to end; everything still works. */
	CORE_API static FSimpleMulticastDelegate OnEnginePreExit;
	/** Modules are about to be stopped. */
	CORE_API static FSimpleMulticastDelegate OnExit;
};

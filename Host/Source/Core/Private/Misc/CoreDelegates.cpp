#include "Misc/CoreDelegates.h"

FSimpleMulticastDelegate FCoreDelegates::OnBeginFrame;
FSimpleMulticastDelegate FCoreDelegates::OnEndFrame;
FSimpleMulticastDelegate FCoreDelegates::OnEnginePreExit;
FSimpleMulticastDelegate FCoreDelegates::OnExit;

FSimpleMulticastDelegate& FCoreDelegates::GetOnPostEngineInit()
{
	static FSimpleMulticastDelegate Delegate;
	return Delegate;
}

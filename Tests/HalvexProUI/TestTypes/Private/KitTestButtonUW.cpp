#include "KitTestButtonUW.h"

#include "KitTestRecorder.h"

void UKitTestButtonUW::NoteHook(bool bSelected)
{
	if (Recorder)
	{
		Recorder->Note(FString::Printf(TEXT("hook(%d)"), bSelected ? 1 : 0));
	}
}

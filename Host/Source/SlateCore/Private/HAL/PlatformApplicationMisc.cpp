#include "HAL/PlatformApplicationMisc.h"

#include "Host/Clipboard.h"

namespace
{
	Host::FClipboard* SystemClipboard = nullptr;

	FString& GetProcessClipboard()
	{
		static FString Text;
		return Text;
	}
}

namespace Host
{
	void FClipboard::Use(FClipboard* Clipboard)
	{
		SystemClipboard = Clipboard;
	}
}

void FPlatformApplicationMisc::ClipboardCopy(const TCHAR* Str)
{
	if (SystemClipboard)
	{
		SystemClipboard->SetText(Str);
	}
	else
	{
		GetProcessClipboard() = Str;
	}
}

void FPlatformApplicationMisc::ClipboardPaste(FString& Dest)
{
	Dest = SystemClipboard ? SystemClipboard->GetText() : GetProcessClipboard();
}

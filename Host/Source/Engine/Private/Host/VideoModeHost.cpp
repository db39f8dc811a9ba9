#include "Host/VideoModeHost.h"

namespace Host
{
	namespace
	{
		FVideoModeHost* CurrentHost = nullptr;
	}

	FVideoModeHost* FVideoModeHost::Get()
	{
		return CurrentHost;
	}

	void FVideoModeHost::Set(FVideoModeHost* Host)
	{
		CurrentHost = Host;
	}
}

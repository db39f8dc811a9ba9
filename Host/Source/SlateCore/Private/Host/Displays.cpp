#include "Host/Displays.h"

namespace Host
{
	namespace
	{
		struct FDisplayState
		{
			TArray<FDisplayMode> Modes = { { 1280, 720, 60 }, { 1600, 900, 60 }, { 1920, 1080, 60 }, { 2560, 1440, 60 }, { 3840, 2160, 60 } };
			FDisplayMode Desktop = { 1920, 1080, 60 };
		};

		FDisplayState& GetState()
		{
			static FDisplayState State;
			return State;
		}

		bool IsSmaller(const FDisplayMode& A, const FDisplayMode& B)
		{
			if (A.Width != B.Width)
			{
				return A.Width < B.Width;
			}
			return A.Height != B.Height ? A.Height < B.Height : A.RefreshRate < B.RefreshRate;
		}
	}

	TConstArrayView<FDisplayMode> FDisplays::GetModes()
	{
		return GetState().Modes;
	}

	FDisplayMode FDisplays::GetDesktopMode()
	{
		return GetState().Desktop;
	}

	void FDisplays::Set(TArray<FDisplayMode> Modes, const FDisplayMode& Desktop)
	{
		// Systems leave out the mode in which they are, when it was not made for the screen.
		if (!Modes.ContainsByPredicate([&Desktop](const FDisplayMode& Mode) { return Mode.Width == Desktop.Width && Mode.Height == Desktop.Height; }))
		{
			Modes.Add(Desktop);
		}
		Modes.Sort(IsSmaller);
		FDisplayState& State = GetState();
		State.Modes.Reset();
		for (const FDisplayMode& Mode : Modes)
		{
			if (State.Modes.Num() == 0 || !(State.Modes.Last() == Mode))
			{
				State.Modes.Add(Mode);
			}
		}
		State.Desktop = Desktop;
	}

	void FDisplays::Reset()
	{
		GetState() = FDisplayState();
	}
}

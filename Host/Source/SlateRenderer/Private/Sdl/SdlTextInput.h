#pragma once

#include "Host/TextInputDevice.h"

namespace Host
{
	struct FDesktopState;

	/** The keyboard and the input method of the system. */
	class FSdlTextInput final : public FTextInputDevice
	{
	public:
		explicit FSdlTextInput(FDesktopState& InState)
			: State(InState)
		{
		}

		virtual void Start() override;
		virtual void SetCaretArea(const FIntRect& Area) override;
		virtual void CancelComposition() override;
		virtual void Stop() override;

	private:
		/** Knows the windows, whose units SDL counts in. */
		FDesktopState& State;
	};
}

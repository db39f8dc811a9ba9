#pragma once

#include "Cpu/WindowBlitter.h"

namespace Host
{
	/** Copies pixels into a window's own memory, as far as they changed. */
	class FSdlWindowBlitter final : public FWindowBlitter
	{
	public:
		explicit FSdlWindowBlitter(void* InWindow) : Window(InWindow) {}

		virtual void Show(const uint32* Pixels, FIntPoint Size, TConstArrayView<FPixelRect> Areas) override;

	private:
		void* Window;
		bool bFailed = false;
	};
}

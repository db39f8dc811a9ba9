#pragma once

#include "CoreMinimal.h"
#include "Rendering/SlateRenderer.h"

namespace Host
{
	/** What "--renderer" can say. */
	enum class ERendererChoice : uint8
	{
		/** OpenGL in windows on a graphics processor, else the CPU. */
		Auto,
		Cpu,
		Gl,
	};

	/** Reads "auto", "cpu" or "gl". False for anything else. */
	bool ParseRendererChoice(FStringView Text, ERendererChoice& OutChoice);

	/**
	 * Makes and initialises a renderer. One line in the log says which it is.
	 * @param bHeadless	no window will be shown; with windows, the FDesktopApplication must exist
	 * @param OutError	why OpenGL, which was asked for, cannot be used: one line for people
	 * @return null only when OpenGL was asked for and cannot be used; automatic choice then takes the CPU
	 */
	TSharedPtr<FSlateRenderer> MakeRenderer(ERendererChoice Choice, bool bHeadless, FString& OutError);
}

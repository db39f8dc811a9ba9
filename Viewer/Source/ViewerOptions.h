#pragma once

#include "CoreMinimal.h"
#include "Host/RendererChoice.h"

/** What the command line says. */
struct FViewerOptions
{
	/** Name of the screen to show; empty to choose one for what else is shown. */
	FString Screen;
	/** Name of the 3D scene to show under the screen; empty for none. */
	FString Scene;
	/** Folder, address or sales list of the building project to show under the screen; empty for none. */
	FString Project;
	/** No project was wanted, not even for its users. */
	bool bNoProject = false;
	/** File that maps the columns of the sales list; empty to look for one beside it. */
	FString UnitsMap;
	/** Show the sample project when the screen of units comes up and no project was named. */
	bool bSampleProject = false;
	bool bListScreens = false;
	/** Object path of the style configuration; empty for the one of the project settings. */
	FString Style;
	FIntPoint Size = FIntPoint(1280, 800);
	/** The size was given, not the default. */
	bool bSizeGiven = false;
	/** Pixels a Slate unit; 0 for what the system asks for. */
	float Scale = 0.0f;
	bool bHeadless = false;
	Host::ERendererChoice Renderer = Host::ERendererChoice::Auto;
	/** File to write a picture of the screen to; empty for none. */
	FString Screenshot;
	bool bDumpTree = false;
	/** Show the screen as the designer does, and anew whenever its files are written. */
	bool bDesign = false;
	/** Lua file that drives the screen; empty for none. */
	FString Script;
};

/** What to do after the command line was read. */
enum class EViewerStart : uint8
{
	Run,
	/** The answer was printed; the program ends well. */
	Done,
	/** The command line is wrong, which was said in one line. */
	Refused,
};

/** Reads the command line; prints help, version, or what is wrong. */
EViewerStart ReadViewerOptions(int ArgumentCount, char** Arguments, FViewerOptions& OutOptions);

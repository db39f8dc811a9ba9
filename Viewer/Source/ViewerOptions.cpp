// First: it has functions whose name is an engine macro's.
#include <CLI/CLI.hpp>

#include "ViewerOptions.h"

#include <cstdio>
#include <iostream>

#undef check

namespace
{
	FString ToFString(const std::string& Text)
	{
		return FString(UTF8_TO_TCHAR(Text.c_str()));
	}

	/** Reads "1280x800". */
	bool ParseSize(const std::string& Text, FIntPoint& OutSize)
	{
		int Width = 0;
		int Height = 0;
		int Read = 0;
		if (std::sscanf(Text.c_str(), "%dx%d%n", &Width, &Height, &Read) != 2 || Read != static_cast<int>(Text.size()))
		{
			return false;
		}
		constexpr int Least = 64;
		constexpr int Most = 16384;
		OutSize = FIntPoint(Width, Height);
		return Width >= Least && Width <= Most && Height >= Least && Height <= Most;
	}
}

EViewerStart ReadViewerOptions(int ArgumentCount, char** Arguments, FViewerOptions& OutOptions)
{
	CLI::App App("Shows the screens of the Halvex widget kit.", "HalvexViewer");
	App.set_version_flag("--version", std::string("HalvexViewer " HALVEX_VERSION));
	App.failure_message([](const CLI::App*, const CLI::Error& Error) { return std::string("HalvexViewer: ") + Error.what() + " (--help lists the arguments)\n"; });

	std::string Screen;
	std::string Scene;
	std::string Project;
	std::string UnitsMap;
	std::string Style;
	std::string Size;
	std::string Renderer = "auto";
	std::string Screenshot;
	std::string Script;
	App.add_option("--screen", Screen, "Screen to show; without it, that of the units of a project, or the gallery")->type_name("NAME");
	App.add_option("--scene", Scene, "3D scene to show under the screen, or alone when no screen is named")
		->type_name("sample")->check(CLI::IsMember({ "sample" }));
	App.add_option("--project", Project, "Building project to show in 3D under the screen: a folder, an address, a sales list, or none; without it, and without a screen, the sample")
		->type_name("FOLDER|ADDRESS|FILE.csv|none")->excludes("--scene");
	App.add_option("--units-map", UnitsMap, "Which columns of the sales list are which fields; without it, FILE.map.json beside FILE.csv, or the names of the fields")
		->type_name("FILE.json")->needs("--project");
	App.add_flag("--list-screens", OutOptions.bListScreens, "List the screens and end");
	App.add_option("--style", Style, "Style configuration to use instead of the project's")->type_name("OBJECTPATH");
	App.add_option("--size", Size, "Size of the window in pixels")->type_name("WxH")->check([](const std::string& Text)
	{
		FIntPoint Parsed;
		return ParseSize(Text, Parsed) ? std::string() : "'" + Text + "' is no size from 64x64 to 16384x16384";
	});
	App.add_option("--scale", OutOptions.Scale, "Pixels a Slate unit, from 0.5 to 4")->type_name("S")->check(CLI::Range(0.5f, 4.0f));
	App.add_flag("--headless", OutOptions.bHeadless, "Show no window; end when the work is done");
	App.add_option("--renderer", Renderer, "What draws")->type_name("auto|cpu|gl")->check(CLI::IsMember({ "auto", "cpu", "gl" }));
	App.add_option("--screenshot", Screenshot, "Write a picture of the screen, then end")->type_name("FILE.png");
	App.add_flag("--dump-tree", OutOptions.bDumpTree, "Print the widgets with their geometry, then end");
	App.add_flag("--design", OutOptions.bDesign, "Show the screen at design time, and anew whenever its files are written");
	App.add_option("--script", Script, "Drive the screen by a script, then end")->type_name("FILE.lua")->check(CLI::ExistingFile);

	try
	{
		App.parse(ArgumentCount, Arguments);
	}
	catch (const CLI::ParseError& Error)
	{
		return App.exit(Error, std::cout, std::cerr) == 0 ? EViewerStart::Done : EViewerStart::Refused;
	}

	OutOptions.Screen = ToFString(Screen);
	OutOptions.Scene = ToFString(Scene);
	OutOptions.Project = Project == "none" ? FString() : ToFString(Project);
	OutOptions.UnitsMap = ToFString(UnitsMap);
	OutOptions.bNoProject = Project == "none";
	OutOptions.bSampleProject = Project.empty() && Screen.empty() && Scene.empty() && !OutOptions.bDesign && !OutOptions.bListScreens;
	OutOptions.Style = ToFString(Style);
	OutOptions.Screenshot = ToFString(Screenshot);
	OutOptions.Script = ToFString(Script);
	if (!Size.empty())
	{
		ParseSize(Size, OutOptions.Size);
		OutOptions.bSizeGiven = true;
	}
	Host::ParseRendererChoice(ToFString(Renderer), OutOptions.Renderer);
	return EViewerStart::Run;
}

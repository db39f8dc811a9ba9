#pragma once

#include "CoreMinimal.h"
#include "Host/EngineLoop.h"
#include "Host/LogSink.h"
#include "Host/WidgetDesigner.h"
#include "ViewerOptions.h"

class UUserWidget;

namespace Host
{
	class FProjectScene;
	class SSceneViewport;
}

/** The application: shows one screen in a window, or does what was asked for without one. */
class FViewer
{
public:
	explicit FViewer(const FViewerOptions& InOptions);
	~FViewer();

	/** Runs to the end. Gives the exit code: 0, or 1 when something could not be started, loaded or written. */
	int32 Run();

private:
	/** Counts what goes wrong: a headless run that logged an error has failed. */
	class FErrorCounter final : public Host::FLogSink
	{
	public:
		FErrorCounter();
		virtual ~FErrorCounter() override;
		virtual void Write(const FName& Category, ELogVerbosity::Type Verbosity, const FString& Message, const char* File, int32 Line) override;

		int32 NumErrors = 0;
	};

	bool Start();
	bool ChooseStyle(const FString& StylePath);
	/** Tool tips, menus and other text that names no font is drawn in the project's. */
	void UseProjectFont();
	int32 RunScreen();
	/** Shows the 3D scene under all screens. */
	void ShowScene();
	/** Shows the project under all screens, if it can be read. */
	void ShowProject();
	/** The screen that was asked for, or the one for what else is shown; empty for none. */
	FString ChooseScreen() const;
	/** Shows a screen, and tells it of the project. Null when there is no such screen. */
	UUserWidget* ShowScreen(const FString& Name);
	/** Shows the screen at design time. */
	bool ShowDesign(const FString& Screen);
	bool WritePicture(const FString& File);

	/** Writes a picture of every screen in every shipped style, for a machine without a display. */
	int32 WriteAllScreens();

	FViewerOptions Options;
	FErrorCounter Errors;
	Host::FEngineLoop Loop;
	/** Set while a screen is shown at design time; gone before the engine stops. */
	TUniquePtr<Host::FWidgetDesigner> Designer;
	/** Set while a 3D scene is shown; gone before the engine stops. */
	TSharedPtr<Host::SSceneViewport> Scene;
	/** Set while a project is shown; gone before the engine stops. */
	TUniquePtr<Host::FProjectScene> Project;
	/** True when a window was wanted and there is no display. */
	bool bNoDisplay = false;
};

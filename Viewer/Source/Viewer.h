#pragma once

#include "Containers/Ticker.h"
#include "CoreMinimal.h"
#include "Host/EngineLoop.h"
#include "Host/LogSink.h"
#include "Host/WidgetDesigner.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "ViewerOptions.h"

class UProjectLoader;
class UUserWidget;
struct FProjectData;

namespace Host
{
	class FProjectConnection;
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

	/** Whether the program ends by itself, once something is done. */
	bool IsWorkAskedFor() const;
	bool Start();
	bool ChooseStyle(const FString& StylePath);
	/** Tool tips, menus and other text that names no font is drawn in the project's. */
	void UseProjectFont();
	int32 RunScreen();
	/** Shows the 3D scene under all screens. */
	void ShowScene();
	/** Shows the project under all screens, if it can be read. One at an address is begun to be fetched. */
	void ShowProject();
	/** Lets the users of the project sign in. */
	void ConnectUsers(const FString& Source);
	/** Puts a project under all screens. */
	void PlaceProject(const FProjectData& Data);
	/** Shows the project that came from its address, with its screen. */
	void ReceiveProject(const FProjectData& Data);
	/** Shows the scene beside a screen that has just come. What it covers is known when it was painted: in the frame after this one. */
	void FrameAfterPaint();
	/** Shows the scene beside the screen, in the second frame in which it is called. */
	bool FrameLater(float);
	/** Runs frames until the project has come from its address, or will not. */
	void WaitForProject();
	/** The screen that was asked for, or the one for what else is shown; empty for none. */
	FString ChooseScreen() const;
	/** Shows a screen, and tells it of the project. Null when there is no such screen. */
	UUserWidget* ShowScreen(const FString& Name);
	/** Shows the screen that belongs to rooms over them, or the one from before again. */
	void ExchangeScreens(bool bRooms);
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
	/** Where users sign in; gone before the engine stops. */
	TUniquePtr<Host::FProjectConnection> Connection;
	/** Set while a project is on its way; gone before the engine stops. */
	TStrongObjectPtr<UProjectLoader> Loader;
	/** Set until the scene is shown beside a screen that came in the middle of a frame. */
	FTSTicker::FDelegateHandle FramingTicker;
	bool bScreenPainted = false;
	/** The screen that was asked for, and the one that lies over rooms. */
	TWeakObjectPtr<UUserWidget> MainScreen;
	TWeakObjectPtr<UUserWidget> RoomsScreen;
	/** True when a window was wanted and there is no display. */
	bool bNoDisplay = false;
};

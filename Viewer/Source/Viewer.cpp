#include "Viewer.h"

#include "Blueprint/UserWidget.h"
#include "Engine/Engine.h"
#include "Engine/Font.h"
#include "Engine/GameInstance.h"
#include "Engine/GameViewportClient.h"
#include "Engine/World.h"
#include "HalvexProUISettings.h"
#include "HalvexUISubsystem.h"
#include "Host/AutomationScript.h"
#include "Host/ConfiguratorSceneBinding.h"
#include "Host/DumpWidgetTree.h"
#include "Host/FontServices.h"
#include "Host/PictureCompare.h"
#include "HAL/PlatformProcess.h"
#include "Host/ProjectConnection.h"
#include "Host/ProjectLoader.h"
#include "Host/ProjectScene.h"
#include "Host/SSceneViewport.h"
#include "Host/SampleScene.h"
#include "Misc/App.h"
#include "Misc/Paths.h"
#include "Project/ProjectAddress.h"
#include "Style/HalvexUIStyleConfiguration.h"
#include "ViewerScreens.h"
#include "Widgets/SWindow.h"

#include <cstdio>
#include <cstdlib>

namespace
{
	const TCHAR* const ShippedStyles[] = { TEXT("UIStyle_Hx_Light"), TEXT("UIStyle_Hx_Dark") };

	/** How long a written file may take to show at design time. */
	constexpr float SecondsBetweenLooks = 0.5f;

	/** The screens of a project's units and of the rooms of one, and that for everything else. */
	const TCHAR* const UnitsScreen = TEXT("Units");
	const TCHAR* const RoomsScreenName = TEXT("Configurator");
	const TCHAR* const GalleryScreen = TEXT("Gallery");

	bool HasDisplay()
	{
		return std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY");
	}

	void Print(const FString& Text)
	{
		std::printf("%s\n", TCHAR_TO_UTF8(*Text));
		std::fflush(stdout);
	}
}

FViewer::FErrorCounter::FErrorCounter()
{
	Host::FLogSinks::Add(*this);
}

FViewer::FErrorCounter::~FErrorCounter()
{
	Host::FLogSinks::Remove(*this);
}

void FViewer::FErrorCounter::Write(const FName&, ELogVerbosity::Type Verbosity, const FString&, const char*, int32)
{
	NumErrors += Verbosity <= ELogVerbosity::Error;
}

FViewer::FViewer(const FViewerOptions& InOptions)
	: Options(InOptions)
{
	if (!Options.bHeadless && !HasDisplay())
	{
		bNoDisplay = !IsWorkAskedFor();
		Options.bHeadless = true;
	}
	Options.bHeadless |= Options.bListScreens;
}

FViewer::~FViewer() = default;

bool FViewer::IsWorkAskedFor() const
{
	return Options.bListScreens || Options.bDumpTree || !Options.Screenshot.IsEmpty() || !Options.Script.IsEmpty();
}

int32 FViewer::Run()
{
	FApp::SetProjectName(TEXT("HalvexViewer"));
	if (!Start())
	{
		return 1;
	}
	int32 ExitCode = 0;
	if (Options.bListScreens)
	{
		Print(FString::Join(ViewerScreens::List(), TEXT("\n")));
	}
	else if (bNoDisplay)
	{
		ExitCode = WriteAllScreens();
	}
	else
	{
		ExitCode = RunScreen();
	}
	Designer.Reset();
	FTSTicker::RemoveTicker(FramingTicker);
	if (Loader)
	{
		Loader->Close();
		Loader.Reset();
	}
	Scene.Reset();
	Project.Reset();
	Connection.Reset();
	Loop.Exit();
	return ExitCode == 0 && Options.bHeadless && Errors.NumErrors > 0 ? 1 : ExitCode;
}

bool FViewer::Start()
{
	Host::FEngineLoopSettings Settings;
	Settings.bHeadless = Options.bHeadless;
	Settings.Renderer = Options.Renderer;
	Settings.WindowSize = Options.Size;
	Settings.bKeepWindowSize = Options.bSizeGiven;
	Settings.Scale = Options.Scale;
	Settings.Title = FText::AsCultureInvariant(TEXT("Halvex"));
	Settings.PluginFolder = TEXT(HALVEX_PLUGIN_DIR);
	FString Error;
	if (!Loop.Init(Settings, Error))
	{
		std::fprintf(stderr, "HalvexViewer: %s\n", TCHAR_TO_UTF8(*Error));
		return false;
	}
	if (!Options.Style.IsEmpty() && !ChooseStyle(Options.Style))
	{
		return false;
	}
	UseProjectFont();
	return true;
}

bool FViewer::ChooseStyle(const FString& StylePath)
{
	UHalvexUIStyleConfiguration* Style = LoadObject<UHalvexUIStyleConfiguration>(nullptr, *StylePath);
	if (!Style)
	{
		std::fprintf(stderr, "HalvexViewer: '%s' is no style configuration.\n", TCHAR_TO_UTF8(*StylePath));
		return false;
	}
	GetMutableDefault<UHalvexProUISettings>()->ProjectUIConfiguration = Style;
	UHalvexUISubsystem::Get()->RefreshSettingsReferences();
	return true;
}

void FViewer::UseProjectFont()
{
	const UFont* Font = UHalvexUISubsystem::Get()->GetHalvexFontStyle().Font;
	if (const FCompositeFont* CompositeFont = Font ? Font->GetCompositeFont() : nullptr)
	{
		Host::FFontServices::Get().SetDefaultFont(MakeShared<FCompositeFont>(*CompositeFont));
	}
}

int32 FViewer::RunScreen()
{
	if (!Options.Scene.IsEmpty())
	{
		ShowScene();
	}
	ShowProject();
	// One from an address brings its screen with it.
	const FString Screen = Loader ? FString() : ChooseScreen();
	if (IsWorkAskedFor() || Options.bHeadless)
	{
		WaitForProject();
	}
	if (!Screen.IsEmpty() && (Options.bDesign ? !ShowDesign(Screen) : !ShowScreen(Screen)))
	{
		return 1;
	}
	if (!IsWorkAskedFor() && !Options.bHeadless)
	{
		return Loop.Run();
	}
	Loop.RunUntilIdle();
	if (!Options.Script.IsEmpty() && !Host::FAutomationScript(Loop).RunFile(Options.Script))
	{
		return 1;
	}
	if (Options.bDumpTree)
	{
		Print(Host::DumpWidgetTree(Loop.GetWindow().ToSharedRef()));
	}
	return Options.Screenshot.IsEmpty() || WritePicture(Options.Screenshot) ? 0 : 1;
}

void FViewer::ShowScene()
{
	const TSharedRef<Host::FSceneContent> Content = MakeShared<Host::FSceneContent>();
	Host::SampleScene::Build(*Content);
	Scene = SNew(Host::SSceneViewport)
		.Content(Content)
		.WindowRenderer(Loop.GetRenderer());
	Scene->MoveCamera([](Host::FSceneCamera& Camera) { Camera.JumpTo(Host::SampleScene::GetPose()); });
	GEngine->GameViewport->AddViewportWidgetContent(Scene.ToSharedRef(), Host::SSceneViewport::ViewportOrder);
}

void FViewer::ShowProject()
{
	// Without its screen the sample would be behind the gallery, where nobody sees it.
	const bool bSample = Options.bSampleProject && ViewerScreens::List().Contains(UnitsScreen);
	const FString Source = bSample ? FString(TEXT(HALVEX_SAMPLE_PROJECT)) : Options.Project;
	ConnectUsers(Source);
	FProjectData Data;
	if (FProjectAddress::IsAddress(Source))
	{
		Loader.Reset(NewObject<UProjectLoader>());
		Loader->Load(Source, Host::FOnProjectLoaded::CreateRaw(this, &FViewer::ReceiveProject));
	}
	else if (!Source.IsEmpty() && Host::FProjectScene::Load(Source, Data, Options.UnitsMap))
	{
		PlaceProject(Data);
	}
}

void FViewer::ConnectUsers(const FString& Source)
{
	if (!Options.bNoProject)
	{
		// Screens that are shown without a project have users to sign in, too.
		Connection = MakeUnique<Host::FProjectConnection>(Source.IsEmpty() ? FString(TEXT(HALVEX_SAMPLE_PROJECT)) : Source);
	}
}

void FViewer::PlaceProject(const FProjectData& Data)
{
	const FVector2D Size = Loop.GetWindow()->GetClientSizeInScreen();
	Project = MakeUnique<Host::FProjectScene>(Data, Loop.GetRenderer(), Size.X / Size.Y);
	Project->GetConfigurator().OnRoomsShown.AddRaw(this, &FViewer::ExchangeScreens);
}

void FViewer::ReceiveProject(const FProjectData& Data)
{
	PlaceProject(Data);
	Loader.Reset();
	const FString Screen = bNoDisplay ? FString() : ChooseScreen();
	MainScreen = Screen.IsEmpty() ? nullptr : ViewerScreens::Show(Screen);
	if (MainScreen.IsValid())
	{
		Project->AnnounceUnits();
		FrameAfterPaint();
	}
}

void FViewer::FrameAfterPaint()
{
	bScreenPainted = false;
	FTSTicker::RemoveTicker(FramingTicker);
	FramingTicker = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateRaw(this, &FViewer::FrameLater));
}

bool FViewer::FrameLater(float)
{
	if (bScreenPainted)
	{
		Project->FrameBesideScreens();
		return false;
	}
	bScreenPainted = true;
	return true;
}

void FViewer::WaitForProject()
{
	constexpr double FrameSeconds = 1.0 / 60.0;
	while (Loader && Loader->IsLoading() && !Loop.IsExitRequested())
	{
		Loop.Step(FrameSeconds);
		// The server needs real time, which passes slower than that of the frames.
		FPlatformProcess::Sleep(0.001f);
	}
}

FString FViewer::ChooseScreen() const
{
	if (!Options.Screen.IsEmpty())
	{
		return Options.Screen;
	}
	if (Project && ViewerScreens::List().Contains(UnitsScreen))
	{
		return UnitsScreen;
	}
	return Project || Scene ? FString() : FString(GalleryScreen);
}

UUserWidget* FViewer::ShowScreen(const FString& Name)
{
	UUserWidget* const Screen = ViewerScreens::Show(Name);
	if (Screen && Project)
	{
		Project->AnnounceUnits();
		// What a screen covers is known when it was painted.
		Loop.Step(0.0);
		Project->FrameBesideScreens();
	}
	MainScreen = Screen;
	return Screen;
}

void FViewer::ExchangeScreens(bool bRooms)
{
	if (UUserWidget* const Main = MainScreen.Get())
	{
		Main->SetVisibility(bRooms ? ESlateVisibility::Collapsed : ESlateVisibility::SelfHitTestInvisible);
	}
	if (UUserWidget* const Rooms = RoomsScreen.Get())
	{
		Rooms->RemoveFromParent();
	}
	RoomsScreen = bRooms ? ViewerScreens::Show(RoomsScreenName) : nullptr;
	if (RoomsScreen.IsValid())
	{
		FrameAfterPaint();
	}
}

bool FViewer::ShowDesign(const FString& Screen)
{
	const FString ClassPath = ViewerScreens::FindClassPath(Screen);
	if (ClassPath.IsEmpty())
	{
		return false;
	}
	Designer = MakeUnique<Host::FWidgetDesigner>();
	FString Reason;
	if (!Designer->Open(ClassPath, Reason))
	{
		std::fprintf(stderr, "HalvexViewer: %s\n", TCHAR_TO_UTF8(*Reason));
		return false;
	}
	Designer->Show();
	FTimerHandle Handle;
	GEngine->GetGameInstance()->GetWorld()->GetTimerManager().SetTimer(Handle, FTimerDelegate::CreateLambda([this]
	{
		if (Designer)
		{
			Designer->ReloadIfChanged();
		}
	}), SecondsBetweenLooks, true);
	return true;
}

bool FViewer::WritePicture(const FString& File)
{
	Host::FPicture Picture;
	FString Error;
	if (!Loop.TakePicture(Picture) || !Host::SavePicture(File, Picture, Error))
	{
		std::fprintf(stderr, "HalvexViewer: %s cannot be written: %s\n", TCHAR_TO_UTF8(*File), TCHAR_TO_UTF8(*Error));
		return false;
	}
	return true;
}

int32 FViewer::WriteAllScreens()
{
	const FString Folder = FPaths::ConvertRelativePathToFull(TEXT("HalvexPictures"));
	Print(FString::Printf(TEXT("There is no display: the screens are written as pictures to %s."), *Folder));
	ShowProject();
	WaitForProject();
	for (const TCHAR* Style : ShippedStyles)
	{
		if (!ChooseStyle(FString::Printf(TEXT("/HalvexPro/Widgets/%s.%s"), Style, Style)))
		{
			return 1;
		}
		for (const FString& Name : ViewerScreens::List())
		{
			UUserWidget* Screen = ShowScreen(Name);
			if (!Screen)
			{
				return 1;
			}
			Loop.RunUntilIdle();
			if (!WritePicture(FPaths::Combine(Folder, FString::Printf(TEXT("%s-%s.png"), *Name, Style))))
			{
				return 1;
			}
			Screen->RemoveFromParent();
		}
	}
	return 0;
}

#include "GameFramework/GameUserSettings.h"

#include "Engine/Engine.h"
#include "HAL/IConsoleManager.h"
#include "Host/ConfigFiles.h"
#include "Host/Displays.h"
#include "Host/RankedSet.h"
#include "Host/VideoModeHost.h"
#include "Misc/CommandLine.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Parse.h"

namespace
{
	const TCHAR* const VSyncName = TEXT("r.VSync");

	/** The least side of a window in which a person can still find the settings, and the largest that anything could show. */
	constexpr int32 LeastSide = 100;
	constexpr int32 LargestSide = 16384;

	/** What the command line says instead of the settings. */
	void ApplyCommandLine(Host::FVideoMode& Mode)
	{
		const TCHAR* const CommandLine = FCommandLine::Get();
		FParse::Value(CommandLine, TEXT("ResX="), Mode.Size.X);
		FParse::Value(CommandLine, TEXT("ResY="), Mode.Size.Y);
		if (FParse::Param(CommandLine, TEXT("windowed")))
		{
			Mode.WindowMode = EWindowMode::Windowed;
		}
		else if (FParse::Param(CommandLine, TEXT("fullscreen")))
		{
			Mode.WindowMode = EWindowMode::Fullscreen;
		}
	}

	/** Whether a wrong value is new: until it is saved again, every loading finds it. */
	bool IsFirstReport(const TCHAR* Name, const FString& Found)
	{
		return Host::FConfigFiles::IsFirstReport(GGameUserSettingsIni, UGameUserSettings::StaticClass()->GetPathName(), Name, Found);
	}

	void ValidateNumber(const TCHAR* Name, int32& Value, int32 Least, int32 Most, int32 Used)
	{
		if (Value < Least || Value > Most)
		{
			UE_CLOG(IsFirstReport(Name, FString::FromInt(Value)), LogCore, Warning, TEXT("%s: %s: expected %d to %d, found %d; %d is used"), *GGameUserSettingsIni, Name, Least, Most, Value, Used);
			Value = Used;
		}
	}

	/** A size is good or bad as a whole: half of it with half of another would be one that nobody chose. */
	void ValidateSize(const TCHAR* Name, int32& Width, int32& Height, FIntPoint Used)
	{
		const auto IsGood = [](int32 Side) { return Side >= LeastSide && Side <= LargestSide; };
		if (!IsGood(Width) || !IsGood(Height))
		{
			UE_CLOG(IsFirstReport(Name, FString::Printf(TEXT("%dx%d"), Width, Height)), LogCore, Warning, TEXT("%s: %sX and %sY: expected %d to %d, found %d and %d; %d and %d are used"),
				*GGameUserSettingsIni, Name, Name, LeastSide, LargestSide, Width, Height, Used.X, Used.Y);
			Width = Used.X;
			Height = Used.Y;
		}
	}
}

UGameUserSettings::UGameUserSettings(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	UGameUserSettings::SetToDefaults();
}

UGameUserSettings* UGameUserSettings::GetGameUserSettings()
{
	return GEngine ? GEngine->GetGameUserSettings() : nullptr;
}

void UGameUserSettings::ApplySettings(bool bCheckForCommandLineOverrides)
{
	ApplyResolutionSettings(bCheckForCommandLineOverrides);
	ApplyNonResolutionSettings();
	SaveSettings();
}

void UGameUserSettings::ApplyResolutionSettings(bool bCheckForCommandLineOverrides)
{
	ValidateSettings();
	Host::FVideoModeHost* const Window = Host::FVideoModeHost::Get();
	if (!Window)
	{
		return;
	}
	Host::FVideoMode Mode{ GetScreenResolution(), GetFullscreenMode() };
	if (bCheckForCommandLineOverrides)
	{
		ApplyCommandLine(Mode);
	}
	Window->SetVideoMode(Mode);
}

void UGameUserSettings::ApplyNonResolutionSettings()
{
	ValidateSettings();
	if (IConsoleVariable* const VSync = IConsoleManager::Get().FindConsoleVariable(VSyncName))
	{
		Host::SetUnlessOutranked(*VSync, bUseVSync ? TEXT("1") : TEXT("0"), ECVF_SetByGameSetting);
	}
	if (GEngine)
	{
		GEngine->SetMaxFPS(GetEffectiveFrameRateLimit());
	}
	Scalability::SetQualityLevels(ScalabilityQuality);
}

float UGameUserSettings::GetEffectiveFrameRateLimit()
{
	return FrameRateLimit;
}

void UGameUserSettings::LoadSettings(bool bForceReload)
{
	if (bForceReload)
	{
		GConfig->Flush(true, GGameUserSettingsIni);
	}
	// A choice that the file does not know was not saved.
	SetToDefaults();
	UpdateVersion();
	LoadConfig(GetClass(), *GGameUserSettingsIni);
	Scalability::LoadState(GGameUserSettingsIni, ScalabilityQuality);
	ValidateSettings();
}

void UGameUserSettings::SaveSettings()
{
	// Ahead of the other values, with which it is written in one go.
	Scalability::SaveState(GGameUserSettingsIni, ScalabilityQuality);
	SaveConfig(CPF_Config, *GGameUserSettingsIni);
}

void UGameUserSettings::SetToDefaults()
{
	SetScreenResolution(GetDefaultResolution());
	SetFullscreenMode(GetDefaultWindowMode());
	ConfirmVideoMode();
	PreferredFullscreenMode = EWindowMode::WindowedFullscreen;
	bUseVSync = false;
	FrameRateLimit = 0.0f;
	AudioQualityLevel = 0;
	ScalabilityQuality = Scalability::FQualityLevels();
}

void UGameUserSettings::ResetToCurrentSettings()
{
	if (const Host::FVideoModeHost* const Window = Host::FVideoModeHost::Get())
	{
		SetScreenResolution(Window->GetVideoMode().Size);
		SetFullscreenMode(Window->GetVideoMode().WindowMode);
	}
	if (const IConsoleVariable* const VSync = IConsoleManager::Get().FindConsoleVariable(VSyncName))
	{
		bUseVSync = VSync->GetBool();
	}
	if (GEngine)
	{
		FrameRateLimit = GEngine->GetMaxFPS();
	}
	ScalabilityQuality = Scalability::GetQualityLevels();
}

void UGameUserSettings::ValidateSettings()
{
	if (!IsVersionValid())
	{
		UE_LOG(LogCore, Warning, TEXT("%s: Version: expected %u, found %u; the defaults are used, and the file is set aside"), *GGameUserSettingsIni, uint32(UE_GAMEUSERSETTINGS_VERSION), Version);
		Host::FConfigFiles::SetAside(GGameUserSettingsIni);
		SetToDefaults();
		UpdateVersion();
	}
	const FIntPoint Default = GetDefaultResolution();
	ValidateSize(TEXT("ResolutionSize"), ResolutionSizeX, ResolutionSizeY, Default);
	ValidateSize(TEXT("LastUserConfirmedResolutionSize"), LastUserConfirmedResolutionSizeX, LastUserConfirmedResolutionSizeY, Default);
	ValidateNumber(TEXT("FullscreenMode"), FullscreenMode, EWindowMode::Fullscreen, EWindowMode::Windowed, EWindowMode::Windowed);
	ValidateNumber(TEXT("LastConfirmedFullscreenMode"), LastConfirmedFullscreenMode, EWindowMode::Fullscreen, EWindowMode::Windowed, EWindowMode::Windowed);
	ValidateNumber(TEXT("PreferredFullscreenMode"), PreferredFullscreenMode, EWindowMode::Fullscreen, EWindowMode::WindowedFullscreen, EWindowMode::WindowedFullscreen);
	ValidateNumber(TEXT("AudioQualityLevel"), AudioQualityLevel, 0, MAX_int32, 0);
	if (!FMath::IsFinite(FrameRateLimit) || FrameRateLimit < 0.0f)
	{
		UE_CLOG(IsFirstReport(TEXT("FrameRateLimit"), FString::SanitizeFloat(FrameRateLimit)), LogCore, Warning, TEXT("%s: FrameRateLimit: expected 0 or more frames a second, found %g; 0 is used"), *GGameUserSettingsIni, double(FrameRateLimit));
		FrameRateLimit = 0.0f;
	}
	ScalabilityQuality.Clamp();
}

bool UGameUserSettings::IsVersionValid()
{
	return Version == UE_GAMEUSERSETTINGS_VERSION;
}

void UGameUserSettings::UpdateVersion()
{
	Version = UE_GAMEUSERSETTINGS_VERSION;
}

bool UGameUserSettings::IsDirty() const
{
	return IsScreenResolutionDirty() || IsFullscreenModeDirty() || IsVSyncDirty();
}

bool UGameUserSettings::IsScreenResolutionDirty() const
{
	const Host::FVideoModeHost* const Window = Host::FVideoModeHost::Get();
	return Window && GetFullscreenMode() != EWindowMode::WindowedFullscreen && Window->GetVideoMode().Size != GetScreenResolution();
}

bool UGameUserSettings::IsFullscreenModeDirty() const
{
	const Host::FVideoModeHost* const Window = Host::FVideoModeHost::Get();
	return Window && Window->GetVideoMode().WindowMode != GetFullscreenMode();
}

bool UGameUserSettings::IsVSyncDirty() const
{
	const IConsoleVariable* const VSync = IConsoleManager::Get().FindConsoleVariable(VSyncName);
	return VSync && VSync->GetBool() != bUseVSync;
}

void UGameUserSettings::ConfirmVideoMode()
{
	LastUserConfirmedResolutionSizeX = ResolutionSizeX;
	LastUserConfirmedResolutionSizeY = ResolutionSizeY;
	LastConfirmedFullscreenMode = FullscreenMode;
}

void UGameUserSettings::RevertVideoMode()
{
	ResolutionSizeX = LastUserConfirmedResolutionSizeX;
	ResolutionSizeY = LastUserConfirmedResolutionSizeY;
	FullscreenMode = LastConfirmedFullscreenMode;
}

void UGameUserSettings::SetScreenResolution(FIntPoint Resolution)
{
	ResolutionSizeX = Resolution.X;
	ResolutionSizeY = Resolution.Y;
}

FIntPoint UGameUserSettings::GetDesktopResolution() const
{
	const Host::FDisplayMode Desktop = Host::FDisplays::GetDesktopMode();
	return FIntPoint(Desktop.Width, Desktop.Height);
}

FIntPoint UGameUserSettings::GetDefaultResolution()
{
	const Host::FVideoModeHost* const Window = Host::FVideoModeHost::Get();
	const Host::FDisplayMode Desktop = Host::FDisplays::GetDesktopMode();
	return Window ? Window->GetDefaultVideoMode().Size : FIntPoint(Desktop.Width, Desktop.Height);
}

EWindowMode::Type UGameUserSettings::GetDefaultWindowMode()
{
	const Host::FVideoModeHost* const Window = Host::FVideoModeHost::Get();
	return Window ? Window->GetDefaultVideoMode().WindowMode : EWindowMode::WindowedFullscreen;
}

void UGameUserSettings::SetFullscreenMode(EWindowMode::Type InFullscreenMode)
{
	FullscreenMode = InFullscreenMode;
	if (InFullscreenMode == EWindowMode::Fullscreen || InFullscreenMode == EWindowMode::WindowedFullscreen)
	{
		PreferredFullscreenMode = InFullscreenMode;
	}
}

void UGameUserSettings::SetOverallScalabilityLevel(int32 Value)
{
	ScalabilityQuality.SetFromSingleQualityLevel(Value);
}

int32 UGameUserSettings::GetOverallScalabilityLevel() const
{
	return ScalabilityQuality.GetSingleQualityLevel();
}

void UGameUserSettings::SetViewDistanceQuality(int32 Value)
{
	ScalabilityQuality.ViewDistanceQuality = Value;
	ScalabilityQuality.Clamp();
}

void UGameUserSettings::SetShadowQuality(int32 Value)
{
	ScalabilityQuality.ShadowQuality = Value;
	ScalabilityQuality.Clamp();
}

void UGameUserSettings::SetGlobalIlluminationQuality(int32 Value)
{
	ScalabilityQuality.GlobalIlluminationQuality = Value;
	ScalabilityQuality.Clamp();
}

void UGameUserSettings::SetReflectionQuality(int32 Value)
{
	ScalabilityQuality.ReflectionQuality = Value;
	ScalabilityQuality.Clamp();
}

void UGameUserSettings::SetAntiAliasingQuality(int32 Value)
{
	ScalabilityQuality.AntiAliasingQuality = Value;
	ScalabilityQuality.Clamp();
}

void UGameUserSettings::SetTextureQuality(int32 Value)
{
	ScalabilityQuality.TextureQuality = Value;
	ScalabilityQuality.Clamp();
}

void UGameUserSettings::SetVisualEffectQuality(int32 Value)
{
	ScalabilityQuality.EffectsQuality = Value;
	ScalabilityQuality.Clamp();
}

void UGameUserSettings::SetPostProcessingQuality(int32 Value)
{
	ScalabilityQuality.PostProcessQuality = Value;
	ScalabilityQuality.Clamp();
}

void UGameUserSettings::SetFoliageQuality(int32 Value)
{
	ScalabilityQuality.FoliageQuality = Value;
	ScalabilityQuality.Clamp();
}

void UGameUserSettings::SetShadingQuality(int32 Value)
{
	ScalabilityQuality.ShadingQuality = Value;
	ScalabilityQuality.Clamp();
}

void UGameUserSettings::SetResolutionScaleValueEx(float NewScaleValue)
{
	ScalabilityQuality.ResolutionQuality = NewScaleValue;
	ScalabilityQuality.Clamp();
}

void UGameUserSettings::SetResolutionScaleNormalized(float NewScaleNormalized)
{
	SetResolutionScaleValueEx(FMath::Lerp(Scalability::MinResolutionScale, Scalability::MaxResolutionScale, NewScaleNormalized));
}

float UGameUserSettings::GetResolutionScaleNormalized() const
{
	return (ScalabilityQuality.ResolutionQuality - Scalability::MinResolutionScale) / (Scalability::MaxResolutionScale - Scalability::MinResolutionScale);
}

void UGameUserSettings::GetResolutionScaleInformationEx(float& CurrentScaleNormalized, float& CurrentScaleValue, float& MinScaleValue, float& MaxScaleValue) const
{
	CurrentScaleNormalized = GetResolutionScaleNormalized();
	CurrentScaleValue = ScalabilityQuality.ResolutionQuality;
	MinScaleValue = Scalability::MinResolutionScale;
	MaxScaleValue = Scalability::MaxResolutionScale;
}

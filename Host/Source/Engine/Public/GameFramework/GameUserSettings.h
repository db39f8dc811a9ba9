#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/GenericWindow.h"
#include "Scalability.h"
#include "UObject/Object.h"
#include "GameUserSettings.generated.h"

/** Of the saved values: what they mean changes with it. */
enum EGameUserSettingsVersion
{
	UE_GAMEUSERSETTINGS_VERSION = 5
};

/**
 * What the user has chosen for screen, picture and sound. Setters change this object alone; applying brings the values to
 * the window and the console variables, saving to the configuration GameUserSettings: [/Script/Engine.GameUserSettings], and
 * [ScalabilityGroups] for the levels of quality.
 *
 * A window's mode and size that the user has not confirmed end with a program that dies: the next one starts with those
 * confirmed last. A program that ends as it should confirms what it has applied and saved.
 */
UCLASS(Config = GameUserSettings, ConfigDoNotCheckDefaults)
class ENGINE_API UGameUserSettings : public UObject
{
	GENERATED_BODY()

public:
	UGameUserSettings(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The engine's one; null without an engine. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	static UGameUserSettings* GetGameUserSettings();

	/**
	 * Applies everything, and saves.
	 * @param bCheckForCommandLineOverrides whether ResX=, ResY=, -windowed and -fullscreen of the command line count more
	 */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	virtual void ApplySettings(bool bCheckForCommandLineOverrides);

	/** Gives the window its size and mode. Does not save. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void ApplyResolutionSettings(bool bCheckForCommandLineOverrides);

	/** Sets the console variables for waiting on the screen, for frames a second and for quality. Does not save. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	virtual void ApplyNonResolutionSettings();

	/**
	 * Takes the values of the configuration, and the defaults for those that it lacks; nothing is applied.
	 * @param bForceReload whether the file is read anew
	 */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	virtual void LoadSettings(bool bForceReload = false);

	/** Writes the file, whole or not at all; a failure is one log line, and the values stay for the next time. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	virtual void SaveSettings();

	/** What a user has who has chosen nothing: the window with which the program starts, no waiting, no limit, epic quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	virtual void SetToDefaults();

	/** Takes what the window and the console variables say now. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	virtual void ResetToCurrentSettings();

	/**
	 * Brings every value into its range, with a warning for each that is not: files can be written by hand. Values of another
	 * version are no longer understood: with one warning they become the defaults, and the user's file is set aside.
	 */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	virtual void ValidateSettings();

	/** Whether the window, or its waiting on the screen, differs from what is chosen here. */
	UFUNCTION(BlueprintPure, Category = "Settings")
	virtual bool IsDirty() const;
	/** Never for a borderless window, which takes the size of the desktop whatever is chosen. */
	UFUNCTION(BlueprintPure, Category = "Settings")
	bool IsScreenResolutionDirty() const;
	UFUNCTION(BlueprintPure, Category = "Settings")
	bool IsFullscreenModeDirty() const;
	UFUNCTION(BlueprintPure, Category = "Settings")
	bool IsVSyncDirty() const;

	/** The mode and size chosen are good: RevertVideoMode comes back to them. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void ConfirmVideoMode();
	/** Chooses the mode and size confirmed last, without applying them. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void RevertVideoMode();

	/** In pixels; both 100 to 16384 when validated. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetScreenResolution(FIntPoint Resolution);
	UFUNCTION(BlueprintPure, Category = "Settings")
	FIntPoint GetScreenResolution() const { return FIntPoint(ResolutionSizeX, ResolutionSizeY); }
	UFUNCTION(BlueprintPure, Category = "Settings")
	FIntPoint GetLastConfirmedScreenResolution() const { return FIntPoint(LastUserConfirmedResolutionSizeX, LastUserConfirmedResolutionSizeY); }
	UFUNCTION(BlueprintPure, Category = "Settings")
	FIntPoint GetDesktopResolution() const;
	/** The size with which the program opens its window; the desktop's without a window. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	static FIntPoint GetDefaultResolution();
	/** The mode with which the program opens its window; borderless without one. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	static EWindowMode::Type GetDefaultWindowMode();

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetFullscreenMode(EWindowMode::Type InFullscreenMode);
	UFUNCTION(BlueprintPure, Category = "Settings")
	EWindowMode::Type GetFullscreenMode() const { return EWindowMode::ConvertIntToWindowMode(FullscreenMode); }
	UFUNCTION(BlueprintPure, Category = "Settings")
	EWindowMode::Type GetLastConfirmedFullscreenMode() const { return EWindowMode::ConvertIntToWindowMode(LastConfirmedFullscreenMode); }
	/** Of the two modes that fill the screen, the one chosen last. */
	UFUNCTION(BlueprintPure, Category = "Settings")
	EWindowMode::Type GetPreferredFullscreenMode() const { return PreferredFullscreenMode == 0 ? EWindowMode::Fullscreen : EWindowMode::WindowedFullscreen; }

	/** Whether pictures wait for the screen, so that none is shown torn. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetVSyncEnabled(bool bEnable) { bUseVSync = bEnable; }
	UFUNCTION(BlueprintPure, Category = "Settings")
	bool IsVSyncEnabled() const { return bUseVSync; }

	/** Frames a second at most; 0 for no limit. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetFrameRateLimit(float NewLimit) { FrameRateLimit = NewLimit; }
	UFUNCTION(BlueprintPure, Category = "Settings")
	float GetFrameRateLimit() const { return FrameRateLimit; }

	/** Index into the project's list of audio quality levels; below 0 is 0. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetAudioQualityLevel(int32 QualityLevel) { AudioQualityLevel = FMath::Max(QualityLevel, 0); }
	UFUNCTION(BlueprintPure, Category = "Settings")
	int32 GetAudioQualityLevel() const { return AudioQualityLevel; }

	/** Gives every group the same level: 0 low, 1 medium, 2 high, 3 epic, 4 cinematic; others are brought into range. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	virtual void SetOverallScalabilityLevel(int32 Value);
	/** The level that all groups have; -1 when they differ. */
	UFUNCTION(BlueprintPure, Category = "Settings")
	virtual int32 GetOverallScalabilityLevel() const;

	// The groups: 0 to 4, others are brought into range.
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetViewDistanceQuality(int32 Value);
	UFUNCTION(BlueprintPure, Category = "Settings")
	int32 GetViewDistanceQuality() const { return ScalabilityQuality.ViewDistanceQuality; }

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetShadowQuality(int32 Value);
	UFUNCTION(BlueprintPure, Category = "Settings")
	int32 GetShadowQuality() const { return ScalabilityQuality.ShadowQuality; }

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetGlobalIlluminationQuality(int32 Value);
	UFUNCTION(BlueprintPure, Category = "Settings")
	int32 GetGlobalIlluminationQuality() const { return ScalabilityQuality.GlobalIlluminationQuality; }

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetReflectionQuality(int32 Value);
	UFUNCTION(BlueprintPure, Category = "Settings")
	int32 GetReflectionQuality() const { return ScalabilityQuality.ReflectionQuality; }

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetAntiAliasingQuality(int32 Value);
	UFUNCTION(BlueprintPure, Category = "Settings")
	int32 GetAntiAliasingQuality() const { return ScalabilityQuality.AntiAliasingQuality; }

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetTextureQuality(int32 Value);
	UFUNCTION(BlueprintPure, Category = "Settings")
	int32 GetTextureQuality() const { return ScalabilityQuality.TextureQuality; }

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetVisualEffectQuality(int32 Value);
	UFUNCTION(BlueprintPure, Category = "Settings")
	int32 GetVisualEffectQuality() const { return ScalabilityQuality.EffectsQuality; }

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetPostProcessingQuality(int32 Value);
	UFUNCTION(BlueprintPure, Category = "Settings")
	int32 GetPostProcessingQuality() const { return ScalabilityQuality.PostProcessQuality; }

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetFoliageQuality(int32 Value);
	UFUNCTION(BlueprintPure, Category = "Settings")
	int32 GetFoliageQuality() const { return ScalabilityQuality.FoliageQuality; }

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetShadingQuality(int32 Value);
	UFUNCTION(BlueprintPure, Category = "Settings")
	int32 GetShadingQuality() const { return ScalabilityQuality.ShadingQuality; }

	/** Resolution of scenes in percent, brought into 0 to 100. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetResolutionScaleValueEx(float NewScaleValue);
	/** As SetResolutionScaleValueEx, with 0 for the least and 1 for the largest. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetResolutionScaleNormalized(float NewScaleNormalized);
	UFUNCTION(BlueprintPure, Category = "Settings")
	float GetResolutionScaleNormalized() const;
	UFUNCTION(BlueprintPure, Category = "Settings")
	void GetResolutionScaleInformationEx(float& CurrentScaleNormalized, float& CurrentScaleValue, float& MinScaleValue, float& MaxScaleValue) const;

	UPROPERTY(Config)
	bool bUseVSync = false;

protected:
	/** What is applied of the limit: a program may know better in some places of its own. */
	virtual float GetEffectiveFrameRateLimit();

	/** Whether the values are of the version that the program understands; a file that names none has such values. */
	virtual bool IsVersionValid();
	/** Calls the values ones of that version. */
	virtual void UpdateVersion();

	UPROPERTY(Config)
	uint32 Version = 0;
	UPROPERTY(Config)
	int32 ResolutionSizeX = 0;
	UPROPERTY(Config)
	int32 ResolutionSizeY = 0;
	UPROPERTY(Config)
	int32 LastUserConfirmedResolutionSizeX = 0;
	UPROPERTY(Config)
	int32 LastUserConfirmedResolutionSizeY = 0;
	/** A value of EWindowMode. */
	UPROPERTY(Config)
	int32 FullscreenMode = EWindowMode::Windowed;
	UPROPERTY(Config)
	int32 LastConfirmedFullscreenMode = EWindowMode::Windowed;
	/** 0 for full screen, 1 for a borderless window. */
	UPROPERTY(Config)
	int32 PreferredFullscreenMode = 1;
	UPROPERTY(Config)
	float FrameRateLimit = 0.0f;
	UPROPERTY(Config)
	int32 AudioQualityLevel = 0;

	Scalability::FQualityLevels ScalabilityQuality;
};

#pragma once

#include "CoreMinimal.h"
#include "Style/HalvexStyleModels.h"
#include "Subsystems/EngineSubsystem.h"
#include "HalvexUISubsystem.generated.h"

class UHalvexUIStyleConfiguration;
class UWidget;

/** Turns the identifiers of the project's style into colours, fonts and icons. */
UCLASS()
class HALVEXPROUI_API UHalvexUISubsystem : public UEngineSubsystem
{
	GENERATED_BODY()

public:
	/** The one instance; null before the engine has created its subsystems. */
	static UHalvexUISubsystem* Get();

	virtual void Initialize(FSubsystemCollectionBase& Collection) override;
	virtual void Deinitialize() override;

	/** Loads the style configuration that the project settings name. Widgets keep the colours they took until they restyle. */
	UFUNCTION(BlueprintCallable, Category = "HalvexUISubsystem")
	void RefreshSettingsReferences();

	/** Raised when the style configuration was loaded anew: it may be another one. */
	FSimpleMulticastDelegate& OnSettingsRefreshed() { return SettingsRefreshed; }

	/**
	 * A colour of the project's style, linear; style colours win over simple ones of the same identifier.
	 * @param bContrast takes the contrast variant; without effect on simple colours
	 * @return transparent black for an unknown identifier or without a configuration
	 */
	UFUNCTION(BlueprintPure, Category = "HalvexUISubsystem")
	FLinearColor GetHalvexColorByID(FName ColorID, bool bContrast = false) const;

	/** The font family and its schemas; empty without a configuration. */
	UFUNCTION(BlueprintPure, Category = "HalvexUISubsystem")
	FHalvexFontStyle GetHalvexFontStyle() const;

	/** A registered icon font; an empty record when there is none of that name. Copy it before the configuration changes. */
	UFUNCTION(BlueprintPure, Category = "HalvexUISubsystem")
	const FFontIconData& GetFontIconDataByID(FName FontIconID) const;

	/** Hides the widget so that it takes no room. */
	UFUNCTION(BlueprintCallable, Category = "HalvexUISubsystem|Utilities")
	static void CollapseWidget(UWidget* Widget);

	/** Hides the widget; it keeps its room. */
	UFUNCTION(BlueprintCallable, Category = "HalvexUISubsystem|Utilities")
	static void HiddeWidget(UWidget* Widget);

	/** Shows the widget. @param bHitTest true makes the widget itself not clickable, only its children: callers rely on this sense */
	UFUNCTION(BlueprintCallable, Category = "HalvexUISubsystem|Utilities")
	static void ShowsWidget(UWidget* Widget, bool bHitTest);

	/** Identifiers of the style colours, in map order. */
	TArray<FName> GetAllColorStyleOptions() const;

	/** Identifiers of the simple colours, in map order. */
	TArray<FName> GetAllColorSimpleOptions() const;

	/** Names of the icon fonts, in map order. */
	TArray<FName> GetAllFontIconOptions() const;

	/** Typefaces of the icon font registered under the name. */
	TArray<FName> GetAllFontIconsStylesNames(const FName StyleName) const;

	/** Icons of the icon font registered under the name, in table order. */
	TArray<FName> GetAllIconsNames(const FName StyleName) const;

private:
	/** The loaded style configuration, if any. */
	UPROPERTY(Transient)
	TObjectPtr<UHalvexUIStyleConfiguration> UIConfig = nullptr;

	FSimpleMulticastDelegate SettingsRefreshed;
};

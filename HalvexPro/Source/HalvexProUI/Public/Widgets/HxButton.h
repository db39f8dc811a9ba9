#pragma once

#include "CoreMinimal.h"
#include "Components/Button.h"
#include "Style/HalvexStyleModels.h"
#include "HxButton.generated.h"

class SBox;
class UHxButton;
class UHxFontIcon;
class UHxText;

/** What a click does to the selection of a button. */
UENUM(BlueprintType)
enum class EButtonSelectionMode : uint8
{
	EBSM_None = 0 UMETA(DisplayName = "None"),
	/** Toggle the selection status of the button on every click */
	EBSM_Toggle = 1 UMETA(DisplayName = "Toggle"),
	/** Keep blocked the button's selection until it's unselect via Blueprint */
	EBSM_Blocked = 2 UMETA(DisplayName = "Blocked")
};

/** Which changes of a button its responsive texts and icons follow. */
UENUM(BlueprintType, meta = (Bitflags, UseEnumValuesAsMaskValuesInEditor = "true"))
enum class EButtonReactivityMode : uint8
{
	EBRM_None = 0 UMETA(Hidden),
	EBRM_Toggle = 1,
	EBRM_Hover = 2 UMETA(DisplayName = "Hover")
};
ENUM_CLASS_FLAGS(EButtonReactivityMode)

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnClickWithID, FName, ButtonID);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnButtonSelectionChange, UHxButton*, ButtonChanged, bool, bSelected);

/** A button in the project's style that can be selected, and that texts and icons on it can follow. */
UCLASS()
class HALVEXPROUI_API UHxButton : public UButton
{
	GENERATED_BODY()

public:
	/** Called when the button is clicked, after its selection changed. A blocked, selected button does not call it. */
	UPROPERTY(BlueprintAssignable, Category = "HalvexButton")
	FOnClickWithID OnClickWithID;

	/** Called when the selection changed. Without a selection mode it always carries false. */
	UPROPERTY(BlueprintAssignable, Category = "HalvexButton")
	FOnButtonSelectionChange OnButtonSelectionChange;

	/** Place of the button in its group, which writes it; -1 without one. */
	UPROPERTY(BlueprintReadOnly, Category = "HalvexButton")
	int32 ButtonIndex = INDEX_NONE;

	/** Whether the button is selected. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "HalvexButton")
	bool bSelectedButton = false;

	/** Name that the click carries. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexButton", meta = (ExposeOnSpawn = "true"))
	FName ButtonID = NAME_None;

	/** What a click does to the selection. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexButton")
	EButtonSelectionMode SelectionMode = EButtonSelectionMode::EBSM_None;

	/** Which changes the responsive texts and icons follow: bits of EButtonReactivityMode. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexButton|Responsive", meta = (Bitmask, BitmaskEnum = "/Script/HalvexProUI.EButtonReactivityMode"))
	int32 ReactivityMode = static_cast<int32>(EButtonReactivityMode::EBRM_Toggle);

	/** Texts that follow the button. */
	UPROPERTY(EditAnywhere, Instanced, BlueprintReadWrite, Category = "HalvexButton|Responsive")
	TArray<TObjectPtr<UHxText>> ResponsiveText;

	/** Font icons that follow the button. */
	UPROPERTY(EditAnywhere, Instanced, BlueprintReadWrite, Category = "HalvexButton|Responsive")
	TArray<TObjectPtr<UHxFontIcon>> ResponsiveIcons;

	/** Colour of the button's face; a selected button shows the contrast of it. In disabled mode colour and size stay as they are. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexButton")
	FHalvexColorHandler Color;

	/** Corners of the button's face. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexButton")
	FHalvexCornerStyle CornerStyle;

	/** Fixed size of the button, if any. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexButton")
	FHalvexSizeOverride SizeOverride;

	/** True for a selected button that has a selection mode. */
	UFUNCTION(BlueprintPure, Category = "HalvexButton")
	bool IsButtonSelected() const;

	UFUNCTION(BlueprintCallable, Category = "HalvexButton")
	void SetButtonID(FName NewButtonID);

	/** Sets what a click does; the look follows with the next UpdateStyle. */
	UFUNCTION(BlueprintCallable, Category = "HalvexButton")
	void SetButtonSelectionMode(EButtonSelectionMode NewMode);

	/** Takes colour, corners, size and opacity of the style and shows them. */
	UFUNCTION(BlueprintCallable, Category = "HalvexButton")
	void SetButtonStyle(const FHalvexButtonStyle& InButtonStyle);

	/**
	 * Selects the button or not, with everything that follows it; nothing happens when it is so already.
	 * @param bNotificate raises OnButtonSelectionChange
	 */
	UFUNCTION(BlueprintCallable, Category = "HalvexButton")
	void SetSelectionState(bool bSelected, bool bNotificate = true);

	/** Shows the properties in the project's style of now. The button's Slate side must be there unless its colour is disabled. */
	UFUNCTION(BlueprintCallable, Category = "HalvexButton")
	void UpdateStyle();

	/** Shows the responsive texts and icons in their contrast look, or not. */
	void SetReactivity(bool bReactive);

	/** Shows the responsive texts in their contrast look and the icons in their hover look, or not. */
	void SetReactivityHover(bool bReactive);

	virtual void SynchronizeProperties() override;
	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;
	virtual const FText GetPaletteCategory() override;
#endif

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;

	FReply OnClickedReceived();
	void OnHoverReceived();
	void OnUnHoverReceived();

private:
	/** Shows the button held down, or up, until the engine's button chooses its brush again. */
	void PaintSelection(bool bHeldDown);

	/** Around the engine's button; rules its size. */
	TSharedPtr<SBox> SizeBox;
};

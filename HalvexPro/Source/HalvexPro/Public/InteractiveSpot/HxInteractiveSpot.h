#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "Images/HalvexImageModels.h"
#include "Project/ProjectData.h"
#include "Templates/SubclassOf.h"
#include "HxInteractiveSpot.generated.h"

class AHxInteractiveSpot;
class UUserWidget;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnISPSelectionChange, AHxInteractiveSpot*, Spot, bool, bSelected);

/** A place in the scene that people can select, shown by a widget that stands over it. One spot of a scene is selected at a time. */
UCLASS()
class HALVEXPRO_API AHxInteractiveSpot : public AActor
{
	GENERATED_BODY()

public:
	/** Raised when the spot was selected or unselected. */
	UPROPERTY(BlueprintAssignable, Category = "HxInteractiveSpot")
	FOnISPSelectionChange OnISPSelectionChange;

	/** What the spot is about; its location is where it was placed from. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxInteractiveSpot")
	FProjectSpot SpotData;

	/** The picture of the spot, ready to be downloaded; without an address when it has none. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxInteractiveSpot")
	FImageObjectData Picture;

	/** The widget that shows the spot; it may implement IHxISPWidgetInterface. None for a spot without one. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxInteractiveSpot")
	TSubclassOf<UUserWidget> WidgetClass;

	AHxInteractiveSpot();

	/** Selects the spot in place of the one selected before. */
	UFUNCTION(BlueprintCallable, Category = "HxInteractiveSpot")
	void SelectISP();

	UFUNCTION(BlueprintCallable, Category = "HxInteractiveSpot")
	void UnSelectISP();

	UFUNCTION(BlueprintCallable, Category = "HxInteractiveSpot")
	bool IsISPSelected() const { return bSelected; }

	/** The spot's widget, made when it is first asked for and told of its spot; null without a class. */
	UFUNCTION(BlueprintCallable, Category = "HxInteractiveSpot")
	UUserWidget* GetISPWidget();

	/** Lets go of the widget; the next one that is asked for is made anew, in the style of then. */
	void ReleaseISPWidget();

	virtual void Destroyed() override;

private:
	void SetSelected(bool bInSelected);

	UPROPERTY(Transient)
	TObjectPtr<UUserWidget> Widget;

	bool bSelected = false;
};

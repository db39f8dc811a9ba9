#pragma once

#include "CoreMinimal.h"
#include "Host/ProjectFetch.h"
#include "UObject/Object.h"
#include "ProjectLoader.generated.h"

class UUserWidget;
class SWidget;

namespace Host
{
	DECLARE_DELEGATE_OneParam(FOnProjectLoaded, const FProjectData&);
}

/**
 * Fetches a project from its address and shows in the window how far that is, and what went wrong. Escape and a button cancel,
 * another button tries again.
 */
UCLASS(Transient)
class UProjectLoader : public UObject
{
	GENERATED_BODY()

public:
	/** The screen: a blueprint with texts TitleText and DetailText, a bar that moves named Bar, and buttons Retry and Cancel. */
	static const TCHAR* const ScreenClassPath;

	/** Begins. @param InOnLoaded called when the project is there and the screen has gone */
	void Load(const FString& Address, Host::FOnProjectLoaded InOnLoaded);

	/** Gives up what is on its way, and takes the screen away. */
	void Close();

	bool IsLoading() const { return Fetch && Fetch->GetState() == Host::FProjectFetch::EState::Fetching; }

private:
	UFUNCTION()
	void ReceivedCancel();
	UFUNCTION()
	void ReceivedRetry();

	void ShowScreen();
	void HideScreen();
	void Update();

	UPROPERTY(Transient)
	TObjectPtr<UUserWidget> Screen;

	Host::FOnProjectLoaded OnLoaded;
	TSharedPtr<SWidget> Layer;
	TUniquePtr<Host::FProjectFetch> Fetch;
};

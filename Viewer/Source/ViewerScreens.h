#pragma once

#include "CoreMinimal.h"

class UUserWidget;

/** The screens of the content: widget blueprints under /HalvexPro/Screens. */
namespace ViewerScreens
{
	/** Names of the screens, sorted. */
	TArray<FString> List();

	/** Path of the screen's class. Empty, after a line in the log, when there is no such screen. */
	FString FindClassPath(const FString& Name);

	/** Makes the screen and puts it into the viewport. Null, after a line in the log, when there is no such screen. */
	UUserWidget* Show(const FString& Name);
}

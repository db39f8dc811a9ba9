#pragma once

#include "Blueprint/UserWidget.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "EngineTest.h"
#include "TemporaryContent.h"
#include "UObject/UObjectGlobals.h"

namespace Host
{
	/** Tests that show screens given as text. */
	class FAutomationTest : public FEngineTest
	{
	protected:
		/** Shows a screen of which the root is given. */
		template <typename WidgetType = UUserWidget>
		WidgetType* Show(const std::string& Root, const TCHAR* Parent = TEXT("/Script/UMG.UserWidget"))
		{
			const FString Name = FString::Printf(TEXT("Screen%d"), ++NumScreens);
			const std::string Json = "{ \"Parent\": \"" + ToStd(FString(Parent)) + "\", \"Root\": " + Root + " }";
			Content.Write(*(Name + TEXT(".widget.json")), Json.c_str());
			UClass* Class = LoadObject<UClass>(nullptr, *FString::Printf(TEXT("/Automation%d/%s.%s_C"), Mount, *Name, *Name));
			WidgetType* Screen = CreateWidget<WidgetType>(GEngine->GetGameInstance(), Class);
			Screen->AddToViewport();
			Loop.RunUntilIdle();
			return Screen;
		}

		/** Each test has a root of its own, so that its screens are no earlier one's. */
		static inline int32 Mount = 0;
		FTemporaryContent Content{ *FString::Printf(TEXT("/Automation%d/"), ++Mount) };
		int32 NumScreens = 0;
	};
}

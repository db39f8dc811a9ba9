#pragma once

#include "UserWidgetTest.h"

#include "Engine/GameInstance.h"
#include "Widgets/SWindow.h"

/** The screen to sign in on, at a server of this machine, as a user finds it. */
class FSignInScreenTest : public FUserWidgetTest
{
protected:
	virtual void SetUp() override
	{
		FUserWidgetTest::SetUp();
		Loop.GetWindow()->Resize(FVector2D(900.0, 700.0));
	}

	virtual void TearDown() override
	{
		HideScreen();
		FUserWidgetTest::TearDown();
		Loop.GetWindow()->Resize(FVector2D(800.0, 600.0));
	}

	void ShowScreen(const TCHAR* Path = TEXT("/HalvexPro/Screens/SignIn.SignIn_C"))
	{
		UClass* Class = LoadObject<UClass>(nullptr, Path);
		Widget = CreateWidget<UUserWidget>(GEngine->GetGameInstance(), Class);
		Widget->AddToViewport();
		Settle();
		Driver.Wait(0.1);
	}

	void HideScreen()
	{
		if (Widget)
		{
			Widget->RemoveFromParent();
			Widget = nullptr;
		}
	}

	/** Ends the program as far as the user is concerned, and shows the screen of the next start. */
	void Restart()
	{
		HideScreen();
		UHalvexSDKEngineSubsystem* const Subsystem = UHalvexSDKEngineSubsystem::Get();
		Subsystem->SetHalvexUser(NewObject<UHalvexUser>(Subsystem));
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		ShowScreen();
	}

	void Click(const TCHAR* Locator) { ASSERT_TRUE(Driver.Click(Locator)) << Host::ToStd(Driver.GetError()); }
	bool IsShown(const TCHAR* Locator) const { return Driver.Count(Locator) == 1; }
	bool HasFocus(const TCHAR* Locator) const
	{
		const UWidget* Found = Driver.Find(Locator);
		// A text box hands it on to what is in it.
		return Found && (Found->HasKeyboardFocus() || Found->GetCachedWidget()->HasFocusedDescendants());
	}

	std::string ReadText(const TCHAR* Locator, const TCHAR* Property = TEXT("Text"))
	{
		FString Text;
		EXPECT_TRUE(Driver.Read(Locator, Property, Text)) << Host::ToStd(Driver.GetError());
		return Host::ToStd(Text);
	}

	/** Types name and password into the empty form, with the keys alone. */
	void Fill(const TCHAR* Name = TEXT("ada"), const TCHAR* Password = TEXT("harbour-5678"))
	{
		Click(TEXT("NameBox"));
		Driver.Type(Name);
		Driver.PressKey(EKeys::Tab);
		Driver.Type(Password);
	}

	/** Presses Enter, and waits for the answer. */
	void Enter()
	{
		Driver.PressKey(EKeys::Enter);
		WaitForAnswer();
	}

	void WaitForAnswer()
	{
		WaitForQuiet();
		Driver.Wait(0.1);
	}

	void ServeAda(const std::string& RefreshToken = "") { Service.Server.Serve("/api/session", FService::Grant("t1", 3600, RefreshToken)); }
	void Refuse() { Service.Server.Serve("/api/session", FService::Error(401, "invalid_credentials")); }

	UUserWidget* Widget = nullptr;
};

#pragma once

#include "UnitSceneTest.h"

#include "Host/HttpLimits.h"
#include "ScriptedService.h"
#include "TestPictures.h"
#include "UObject/UnrealType.h"
#include "WaitUntil.h"

/** Blueprints of the user's widgets at a server of this machine. Their graphs write what they are told into Events. */
class FUserWidgetTest : public FUnitSceneTest
{
protected:
	using FService = Host::FScriptedService;

	virtual void TearDown() override
	{
		FService::GetUser().Abandon();
		FUnitSceneTest::TearDown();
		WaitForQuiet();
	}

	/** Writes a blueprint of a native parent without anything to see. */
	void WriteBlueprint(const TCHAR* Name, const char* Parent, const std::string& Graph)
	{
		const std::string Tree = std::string(R"({ "Parent": "/Script/HalvexProUI.)") + Parent + R"(", "Variables": { "Events": { "Type": "string", "Default": "" } }, "Root": { "Class": "Spacer" } })";
		Content.Write(*(FString(Name) + TEXT(".widget.json")), Tree.c_str());
		Content.Write(*(FString(Name) + TEXT(".lua")), Graph.c_str());
	}

	/** What a widget wrote since the last call. */
	static std::string TakeEvents(UUserWidget& Widget)
	{
		const std::string Events = Read(Widget, TEXT("Events"));
		CastFieldChecked<FStrProperty>(Widget.GetClass()->FindPropertyByName(TEXT("Events")))->SetPropertyValue_InContainer(&Widget, FString());
		return Events;
	}

	/** Waits until no request is on its way, and for what follows in the next frame. */
	void WaitForQuiet()
	{
		EXPECT_TRUE(Host::WaitUntil(Loop, [] { return Host::FHttpActivity::GetNumActiveRequests() == 0; }, 1e-5));
	}

	/** Signs Ada in at the service, and waits until that is done. */
	void SignAdaIn(const std::string& More = "")
	{
		Service.Server.Serve("/api/session", FService::Grant("t1", 3600, "", FService::MakeAda(More)));
		FService::GetUser().RequestUserLogin(FHalvexUserInformation(false, TEXT("ada"), TEXT("x")));
		WaitForQuiet();
		ASSERT_TRUE(FService::GetUser().HasValidToken());
	}

	FService Service;
};

/** Takes the user out of the program as long as it lives. */
class FWithoutUser
{
public:
	FWithoutUser() { UHalvexSDKEngineSubsystem::Get()->SetHalvexUser(nullptr); }
	~FWithoutUser()
	{
		UHalvexSDKEngineSubsystem* const Subsystem = UHalvexSDKEngineSubsystem::Get();
		Subsystem->SetHalvexUser(NewObject<UHalvexUser>(Subsystem));
	}
	FWithoutUser(const FWithoutUser&) = delete;
	FWithoutUser& operator=(const FWithoutUser&) = delete;
};

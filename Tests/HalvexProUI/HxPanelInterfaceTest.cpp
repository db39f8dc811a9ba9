#include "UnitSceneTest.h"

#include "HxPanelInterface.h"
#include "InteractiveSpot/HxInteractiveSpot.h"
#include "KitTestPanel.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/World.h"
#include "UserWidget/InteractSpotPlacement/HxISPWidget.h"

namespace
{
	class FHxPanelInterfaceTest : public FUnitSceneTest
	{
	};

	TEST_F(FHxPanelInterfaceTest, ActivatedPanelIsActive)
	{
		UKitTestPanel* Panel = Make<UKitTestPanel>();
		EXPECT_FALSE(Panel->bPanelActive);
		IHxPanelInterface::Execute_ActivatePanel(Panel);
		EXPECT_TRUE(Panel->bPanelActive);
	}

	TEST_F(FHxPanelInterfaceTest, DeactivatedPanelStaysActive)
	{
		UKitTestPanel* Panel = Make<UKitTestPanel>();
		IHxPanelInterface::Execute_ActivatePanel(Panel);
		IHxPanelInterface::Execute_DeactivatePanel(Panel);
		IHxPanelInterface::Execute_RefreshPanel(Panel);
		EXPECT_TRUE(Panel->bPanelActive);
	}

	TEST_F(FHxPanelInterfaceTest, GraphAnswersInPlaceOfTheNativePanel)
	{
		Content.Write(TEXT("Scripted.widget.json"), R"({ "Parent": "/Script/HalvexProUITestTypes.KitTestPanel", "Variables": { "Calls": { "Type": "string", "Default": "" } } })");
		Content.Write(TEXT("Scripted.lua"), "function ActivatePanel(self) self.Calls = self.Calls .. 'on ' end function RefreshPanel(self) self.Calls = self.Calls .. 'refresh ' end");
		UUserWidget* Panel = ShowPanel(TEXT("Scripted"));
		IHxPanelInterface::Execute_ActivatePanel(Panel);
		IHxPanelInterface::Execute_RefreshPanel(Panel);
		IHxPanelInterface::Execute_DeactivatePanel(Panel);
		EXPECT_EQ(Read(*Panel, TEXT("Calls")), "on refresh ");
		EXPECT_FALSE(CastChecked<UKitTestPanel>(Panel)->bPanelActive);
	}

	TEST_F(FHxPanelInterfaceTest, GraphAnswersAndAsksTheNativePanelToo)
	{
		Content.Write(TEXT("Further.widget.json"), R"({ "Parent": "/Script/HalvexProUITestTypes.KitTestPanel", "Variables": { "Calls": { "Type": "int", "Default": 0 } } })");
		Content.Write(TEXT("Further.lua"), "function ActivatePanel(self) Super.ActivatePanel(self) self.Calls = self.Calls + 1 end");
		UUserWidget* Panel = ShowPanel(TEXT("Further"));
		IHxPanelInterface::Execute_ActivatePanel(Panel);
		EXPECT_EQ(Read(*Panel, TEXT("Calls")), "1");
		EXPECT_TRUE(CastChecked<UKitTestPanel>(Panel)->bPanelActive);
	}

	TEST_F(FHxPanelInterfaceTest, ScreenImplementsItByAGraphAlone)
	{
		Content.Write(TEXT("Alone.widget.json"), R"({ "Interfaces": ["/Script/HalvexProUI.HxPanelInterface"], "Variables": { "Calls": { "Type": "int", "Default": 0 } }, "Root": { "Class": "Spacer" } })");
		Content.Write(TEXT("Alone.lua"), "function RefreshPanel(self) self.Calls = self.Calls + 1 end");
		UUserWidget* Panel = ShowPanel(TEXT("Alone"));
		ASSERT_TRUE(Panel->Implements<UHxPanelInterface>());
		IHxPanelInterface::Execute_RefreshPanel(Panel);
		IHxPanelInterface::Execute_ActivatePanel(Panel);
		EXPECT_EQ(Read(*Panel, TEXT("Calls")), "1");
	}

	/** The widget of a spot in the scene. */
	class FHxISPWidgetTest : public FUnitSceneTest
	{
	protected:
		virtual void SetUp() override
		{
			FUnitSceneTest::SetUp();
			Spot = GEngine->GetGameInstance()->GetWorld()->SpawnActor<AHxInteractiveSpot>();
			Spot->WidgetClass = UHxISPWidget::StaticClass();
			Widget = CastChecked<UHxISPWidget>(Spot->GetISPWidget());
		}

		virtual void TearDown() override
		{
			Spot->Destroy();
			FUnitSceneTest::TearDown();
		}

		AHxInteractiveSpot* Spot = nullptr;
		UHxISPWidget* Widget = nullptr;
	};

	TEST_F(FHxISPWidgetTest, SpotTellsItsWidgetWhoseItIs)
	{
		EXPECT_EQ(Widget->OwnISPSpot, Spot);
	}

	TEST_F(FHxISPWidgetTest, NoSpotLeavesTheOneThatThereIs)
	{
		IHxISPWidgetInterface::Execute_OnISPConstruct(Widget, nullptr);
		EXPECT_EQ(Widget->OwnISPSpot, Spot);
	}

	TEST_F(FHxISPWidgetTest, WidgetSelectsAndUnselectsItsSpot)
	{
		Widget->SelectOwnISPSpot();
		EXPECT_TRUE(Spot->IsISPSelected());
		Widget->UnSelectOwnISPSpot();
		EXPECT_FALSE(Spot->IsISPSelected());
	}

	TEST_F(FHxISPWidgetTest, WidgetWithoutASpotSelectsNothing)
	{
		UHxISPWidget* Lost = Make<UHxISPWidget>();
		Lost->SelectOwnISPSpot();
		Lost->UnSelectOwnISPSpot();
		EXPECT_EQ(Lost->OwnISPSpot, nullptr);
	}
}

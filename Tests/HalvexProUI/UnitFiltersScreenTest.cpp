#include "UnitFiltersScreenTest.h"

#include "Components/CheckBox.h"
#include "Components/ListView.h"
#include "Filters/UnitsFilterManager.h"
#include "UnitVolumes/UnitVolumeActor.h"
#include "UserWidget/Exteriors/HxExteriorUnitListObject.h"

namespace
{
	TEST_F(FUnitFiltersScreenTest, FlatUnderAPriceOnALevelRangeIsFound)
	{
		ShowFilters();
		Enter(TEXT("Price/To"), TEXT("500000"));
		Enter(TEXT("Level/From"), TEXT("2"));
		Enter(TEXT("Level/To"), TEXT("5"));
		const auto Fits = [](const FUnitData& Unit) { return Unit.Price > 0.0 && Unit.Price <= 500000.0 && Unit.Level >= 2 && Unit.Level <= 5; };
		ASSERT_GT(CountUnits(Fits), 0);
		EXPECT_EQ(GetText(TEXT("PassingText")), Describe(Fits));
		EXPECT_EQ(GetText(TEXT("UnitList/CountText")), std::to_string(CountUnits(Fits)) + " units");
		EXPECT_EQ(GetListed().Num(), CountUnits(Fits));
		for (const FUnitData& Unit : GetListed())
		{
			EXPECT_TRUE(Fits(Unit)) << Host::ToStd(Unit.Name);
		}
		for (AUnitVolumeActor* UnitVolume : Manager->GetUnitVolumes())
		{
			EXPECT_NE(UnitVolume->IsFilteredOut(), Fits(UnitVolume->GetUnitData()));
		}
		EXPECT_EQ(GetChips(TEXT("Chips")), "Price up to 500 000 EUR|Level 2 – 5");
	}

	TEST_F(FUnitFiltersScreenTest, LimitsAndValuesAreThoseOfTheUnits)
	{
		ShowFilters();
		EXPECT_EQ(GetText(TEXT("PassingText")), "262 of 262 units");
		EXPECT_EQ(GetText(TEXT("Price/From")), "275 000");
		EXPECT_EQ(GetText(TEXT("Price/To")), "2 100 000");
		EXPECT_EQ(GetText(TEXT("Price/SuffixText")), "EUR");
		EXPECT_EQ(GetText(TEXT("Area/From")), "39");
		EXPECT_EQ(GetText(TEXT("Area/To")), "170");
		EXPECT_EQ(GetText(TEXT("Level/From")), "Ground floor");
		EXPECT_EQ(GetText(TEXT("Level/To")), "15");
		EXPECT_EQ(GetText(TEXT("Rooms/To")), "5");
		EXPECT_EQ(Driver.Count(TEXT("Building/Label")), 3);
		EXPECT_EQ(GetText(TEXT("Building/Label#1")), "Harbour House");
		EXPECT_EQ(Driver.Count(TEXT("Status/Label")), 4);
		EXPECT_EQ(Driver.Count(TEXT("Orientation/Label")), 8);
		EXPECT_EQ(GetText(TEXT("Orientation/Label#2")), "North-east");
		EXPECT_EQ(GetChips(TEXT("Chips")), "");
	}

	TEST_F(FUnitFiltersScreenTest, UnitsFollowAHandleWhileItMoves)
	{
		ShowFilters();
		FVector2D Middle;
		ASSERT_TRUE(Driver.FindPoint(TEXT("Price/Slider"), Middle));
		const FVector2D Handle(1248.0, Middle.Y);
		Driver.MoveTo(Handle);
		Driver.Press();
		int32 Before = 262;
		for (double X = 1180.0; X >= 1000.0; X -= 60.0)
		{
			Driver.MoveTo(FVector2D(X, Middle.Y));
			EXPECT_LT(GetListed().Num(), Before) << X;
			Before = GetListed().Num();
			EXPECT_EQ(GetText(TEXT("PassingText")), std::to_string(Before) + " of 262 units");
			EXPECT_EQ(Driver.Count(TEXT("Chips/Label")), 1);
		}
		Driver.Release();
		EXPECT_EQ(GetListed().Num(), Before);
		EXPECT_EQ(GetChips(TEXT("Chips")), "Price up to " + GetText(TEXT("Price/To")) + " EUR");
	}

	TEST_F(FUnitFiltersScreenTest, FieldsTakeNumbersAsPeopleWriteThem)
	{
		ShowFilters();
		const std::pair<const TCHAR*, const char*> Prices[] = {
			{ TEXT("650k"), "650 000" }, { TEXT("1.2m"), "1 200 000" }, { TEXT("500,000"), "500 000" }, { TEXT("512 300 EUR"), "512 300" }, { TEXT("9"), "275 000" } };
		for (const auto& [Typed, Shown] : Prices)
		{
			Enter(TEXT("Price/To"), Typed);
			EXPECT_EQ(GetText(TEXT("Price/To")), Shown);
		}
		Enter(TEXT("Level/To"), TEXT("ground floor"));
		EXPECT_EQ(GetChips(TEXT("Chips")), "Price 275 000 EUR|Level Ground floor");
		Enter(TEXT("Level/To"), TEXT("3.4"));
		EXPECT_EQ(GetText(TEXT("Level/To")), "3") << "levels are whole";
		Enter(TEXT("Area/From"), TEXT("60,5 m²"));
		EXPECT_EQ(GetText(TEXT("Area/From")), "60.5");
		Enter(TEXT("Price/To"), TEXT("none"));
		EXPECT_EQ(GetText(TEXT("Price/To")), "275 000") << "what is no number changes nothing";
	}

	TEST_F(FUnitFiltersScreenTest, TypedEndTakesTheOtherAlong)
	{
		ShowFilters();
		Enter(TEXT("Level/To"), TEXT("4"));
		Enter(TEXT("Level/From"), TEXT("7"));
		EXPECT_EQ(GetText(TEXT("Level/To")), "7");
		Enter(TEXT("Level/To"), TEXT("2"));
		EXPECT_EQ(GetText(TEXT("Level/From")), "2");
		EXPECT_EQ(GetText(TEXT("PassingText")), Describe([](const FUnitData& Unit) { return Unit.Level == 2; }));
	}

	TEST_F(FUnitFiltersScreenTest, ExactPriceStaysWhenTheOtherHandleMoves)
	{
		ShowFilters();
		Enter(TEXT("Price/To"), TEXT("651234"));
		FVector2D Middle;
		ASSERT_TRUE(Driver.FindPoint(TEXT("Price/Slider"), Middle));
		Driver.DragTo(FVector2D(952.0, Middle.Y), FVector2D(970.0, Middle.Y));
		EXPECT_NE(GetText(TEXT("Price/From")), "275 000");
		EXPECT_EQ(GetText(TEXT("Price/To")), "651 234");
	}

	TEST_F(FUnitFiltersScreenTest, CheckedValuesPassAndCountsTellWhatWouldBe)
	{
		ShowFilters();
		EXPECT_EQ(GetText(TEXT("Building/CountText#1")), "88");
		Driver.WheelOver(TEXT("Rooms"), -20.0f);
		Driver.Wait(1.0);
		Click(TEXT("Status/Box#1"));
		const auto Available = [](const FUnitData& Unit) { return Unit.Status == EUnitStatus::Available; };
		EXPECT_EQ(GetText(TEXT("PassingText")), Describe(Available));
		EXPECT_EQ(GetText(TEXT("Building/CountText#2")), std::to_string(CountUnits([](const FUnitData& Unit) { return Unit.Status == EUnitStatus::Available && Unit.Building == TEXT("lantern"); })));
		EXPECT_EQ(GetText(TEXT("Status/CountText#2")), "36") << "its own set does not count: this many would come";
		Click(TEXT("Status/Box#2"));
		EXPECT_EQ(GetText(TEXT("PassingText")), "172 of 262 units");
		Click(TEXT("Building/text:Wharf Terraces"));
		EXPECT_EQ(GetChips(TEXT("Chips")), "Wharf Terraces|Available|Reserved");
		Click(TEXT("Status/Box#1"));
		EXPECT_EQ(GetChips(TEXT("Chips")), "Wharf Terraces|Reserved");
	}

	TEST_F(FUnitFiltersScreenTest, TextIsFoundWhateverItsCaseWhileItIsTyped)
	{
		ShowFilters();
		Driver.WheelOver(TEXT("Rooms"), -50.0f);
		Driver.Wait(1.0);
		Click(TEXT("Words/Box"));
		Driver.Type(TEXT("LANT"));
		EXPECT_EQ(GetText(TEXT("PassingText")), "90 of 262 units");
		EXPECT_EQ(GetChips(TEXT("Chips")), "Name “LANT”");
	}

	TEST_F(FUnitFiltersScreenTest, ChipsAreRemovedOneByOne)
	{
		ShowFilters();
		Enter(TEXT("Price/To"), TEXT("500000"));
		Enter(TEXT("Rooms/From"), TEXT("2"));
		Click(TEXT("Building/Box#1"));
		Driver.WheelOver(TEXT("Rooms"), 1.0f);
		ASSERT_EQ(GetChips(TEXT("Chips")), "Price up to 500 000 EUR|Rooms from 2|Harbour House");
		Click(TEXT("Chips/text:Rooms from 2"));
		EXPECT_EQ(GetChips(TEXT("Chips")), "Price up to 500 000 EUR|Harbour House");
		EXPECT_EQ(GetText(TEXT("Rooms/From")), "0");
		Click(TEXT("Chips/text:Harbour House"));
		EXPECT_EQ(GetText(TEXT("PassingText")), Describe([](const FUnitData& Unit) { return Unit.Price > 0.0 && Unit.Price <= 500000.0; }));
		Click(TEXT("Chips/text:Price up to 500 000 EUR"));
		EXPECT_EQ(GetChips(TEXT("Chips")), "");
		EXPECT_EQ(GetText(TEXT("PassingText")), "262 of 262 units");
	}

	TEST_F(FUnitFiltersScreenTest, ResetTakesAllFiltersAwayWithOneResult)
	{
		ShowFilters();
		Enter(TEXT("Price/To"), TEXT("500000"));
		Click(TEXT("Building/Box#1"));
		Heard();
		Click(TEXT("Reset"));
		EXPECT_EQ(Heard(), "262 of 262; ");
		EXPECT_EQ(GetText(TEXT("Price/To")), "2 100 000");
		EXPECT_EQ(GetChips(TEXT("Chips")), "");
		EXPECT_FALSE(CastChecked<UCheckBox>(Driver.Find(TEXT("Building/Box#1")))->IsChecked());
		Click(TEXT("Reset"));
		EXPECT_EQ(Heard(), "") << "with nothing to reset the button is dead";
	}

	TEST_F(FUnitFiltersScreenTest, ClearingAllFromTheSceneResetsEveryComponent)
	{
		ShowFilters();
		for (const TCHAR* Field : { TEXT("Price/From"), TEXT("Area/From"), TEXT("Level/From"), TEXT("Rooms/From") })
		{
			const FString Limit = UTF8_TO_TCHAR(GetText(Field).c_str());
			Enter(Field, Field[0] == 'P' ? TEXT("300000") : Field[0] == 'A' ? TEXT("50") : TEXT("1"));
			EXPECT_NE(GetText(Field), Host::ToStd(Limit));
		}
		Check(TEXT("Building/Box#1"));
		Check(TEXT("Status/Box#1"));
		Check(TEXT("Orientation/Box#1"));
		ASSERT_TRUE(Driver.Focus(TEXT("Words/Box")));
		Driver.Type(TEXT("7"));
		ASSERT_EQ(Driver.Count(TEXT("Chips/Label")), 8);
		Heard();
		Filters->ClearAllFilters();
		Settle();
		EXPECT_EQ(Heard(), "262 of 262; ");
		EXPECT_EQ(GetChips(TEXT("Chips")), "");
		EXPECT_EQ(GetText(TEXT("Words/Box")), "");
		EXPECT_FALSE(CastChecked<UCheckBox>(Driver.Find(TEXT("Status/Box#1")))->IsChecked());
		EXPECT_EQ(GetText(TEXT("PassingText")), "262 of 262 units");
		Driver.WheelOver(TEXT("Orientation"), 50.0f);
		Driver.Wait(1.0);
		EXPECT_EQ(GetText(TEXT("Price/From")), "275 000");
		EXPECT_EQ(GetText(TEXT("Level/From")), "Ground floor");
		EXPECT_EQ(GetText(TEXT("Area/From")), "39");
	}

	TEST_F(FUnitFiltersScreenTest, ClosedPanelKeepsTheFiltersAndTheListShowsThem)
	{
		ShowFilters();
		Enter(TEXT("Level/From"), TEXT("3"));
		EXPECT_EQ(GetChips(TEXT("ActiveFilters")), "") << "while the panel shows them itself";
		Click(TEXT("Close"));
		const auto Fits = [](const FUnitData& Unit) { return Unit.Level >= 3; };
		EXPECT_FALSE(Driver.Find(TEXT("Filters")));
		EXPECT_EQ(GetListed().Num(), CountUnits(Fits));
		EXPECT_EQ(GetChips(TEXT("ActiveFilters")), "Level from 3");
		EXPECT_EQ(GetText(TEXT("FiltersText")), "Filters · 1");
		Click(TEXT("FiltersButton"));
		EXPECT_EQ(GetText(TEXT("Level/From")), "3");
		EXPECT_EQ(GetChips(TEXT("ActiveFilters")), "");
		Click(TEXT("FiltersButton"));
		EXPECT_FALSE(Driver.Find(TEXT("Filters")));
		Click(TEXT("ActiveFilters/Remove"));
		EXPECT_EQ(GetListed().Num(), 262);
		EXPECT_EQ(GetChips(TEXT("ActiveFilters")), "");
		EXPECT_EQ(GetText(TEXT("FiltersText")), "Filters");
	}

	TEST_F(FUnitFiltersScreenTest, WhenNothingPassesBothSidesSaySo)
	{
		ShowFilters();
		EXPECT_FALSE(Driver.Find(TEXT("Filters/NothingText")));
		Enter(TEXT("Price/To"), TEXT("280000"));
		Enter(TEXT("Rooms/From"), TEXT("5"));
		EXPECT_EQ(GetText(TEXT("PassingText")), "0 of 262 units");
		EXPECT_TRUE(Driver.Find(TEXT("Filters/NothingText")));
		EXPECT_TRUE(Driver.Find(TEXT("UnitList/NothingText")));
		Click(TEXT("Reset"));
		EXPECT_FALSE(Driver.Find(TEXT("Filters/NothingText")));
		EXPECT_EQ(GetListed().Num(), 262);
	}

	TEST_F(FUnitFiltersScreenTest, OrderSearchAndSelectionOutlastAChangeOfTheFilters)
	{
		ShowFilters();
		Click(TEXT("SortBox"));
		Click(TEXT("text:Price#2"));
		Click(TEXT("SearchBox"));
		Driver.Type(TEXT("wharf"));
		Driver.ClickAt(FVector2D(200.0, 280.0));
		Settle();
		ASSERT_EQ(Manager->GetSelectedUnitVolumes().Num(), 1);
		const FString Selected = Manager->GetSelectedUnitVolumes()[0]->GetUnitData().Name;
		Enter(TEXT("Level/To"), TEXT("10"));
		Settle();
		const TArray<FUnitData> Listed = GetListed();
		EXPECT_EQ(Listed.Num(), CountUnits([](const FUnitData& Unit) { return Unit.Level <= 10 && Unit.Building == TEXT("wharf"); }));
		for (int32 Index = 1; Index < Listed.Num(); ++Index)
		{
			EXPECT_LE(Listed[Index - 1].Price, Listed[Index].Price);
		}
		const UHxExteriorUnitListObject* const Item = CastChecked<UListView>(Driver.Find(TEXT("ListViewContainer")))->GetSelectedItem<UHxExteriorUnitListObject>();
		ASSERT_TRUE(Item);
		EXPECT_EQ(Item->UnitVolumeActorRef->GetUnitData().Name, Selected);
	}

	TEST_F(FUnitFiltersScreenTest, EverythingCanBeDoneByTheKeyboard)
	{
		ShowScreen();
		ASSERT_TRUE(Driver.Focus(TEXT("FiltersButton"))) << Host::ToStd(Driver.GetError());
		Driver.PressKey(EKeys::Enter);
		Settle();
		ASSERT_TRUE(Driver.Find(TEXT("Filters")));
		ASSERT_TRUE(Driver.Focus(TEXT("Level/From"))) << Host::ToStd(Driver.GetError());
		Driver.Type(TEXT("4"));
		Driver.PressKey(EKeys::Tab);
		EXPECT_EQ(GetChips(TEXT("Chips")), "Level from 4") << "leaving the field is enough";
		ASSERT_TRUE(Driver.Focus(TEXT("Rooms/Slider"))) << Host::ToStd(Driver.GetError());
		Driver.PressKey(EKeys::Right);
		EXPECT_EQ(GetText(TEXT("Rooms/From")), "1");
		ASSERT_TRUE(Driver.Focus(TEXT("Building/Box#2"))) << Host::ToStd(Driver.GetError());
		Driver.PressKey(EKeys::SpaceBar);
		EXPECT_EQ(GetChips(TEXT("Chips")), "Level from 4|Rooms from 1|Lantern Tower");
		ASSERT_TRUE(Driver.Focus(TEXT("Chips/Remove#2"))) << Host::ToStd(Driver.GetError());
		Driver.PressKey(EKeys::Enter);
		EXPECT_EQ(GetChips(TEXT("Chips")), "Level from 4|Lantern Tower");
		ASSERT_TRUE(Driver.Focus(TEXT("Reset"))) << Host::ToStd(Driver.GetError());
		Driver.PressKey(EKeys::Enter);
		EXPECT_EQ(GetChips(TEXT("Chips")), "");
		ASSERT_TRUE(Driver.Focus(TEXT("Close"))) << Host::ToStd(Driver.GetError());
		Driver.PressKey(EKeys::Enter);
		Settle();
		EXPECT_FALSE(Driver.Find(TEXT("Filters")));
	}

	TEST_F(FUnitFiltersScreenTest, NewDataMovesTheLimitsAndKeepsWhatWasChosen)
	{
		ShowFilters();
		Enter(TEXT("Level/From"), TEXT("2"));
		Click(TEXT("Building/Box#1"));
		Click(TEXT("Building/Box#2"));
		TArray<FProjectUnit> Few;
		for (int32 Level = 0; Level < 5; ++Level)
		{
			FProjectUnit& Unit = Few.AddDefaulted_GetRef();
			Unit.Data.UnitId = FName(*FString::Printf(TEXT("U%d"), Level));
			Unit.Data.Level = Level;
			Unit.Data.Rooms = 2;
			Unit.Data.Building = Level % 2 == 0 ? TEXT("lantern") : TEXT("annex");
		}
		Manager->SpawnUnits(Few);
		Settle();
		EXPECT_EQ(GetText(TEXT("Level/To")), "4");
		EXPECT_EQ(GetText(TEXT("Level/From")), "2");
		EXPECT_FALSE(Driver.Find(TEXT("Rooms/Slider"))) << "all have the same";
		EXPECT_FALSE(Driver.Find(TEXT("Price/Slider"))) << "none tells it";
		EXPECT_EQ(GetChips(TEXT("Chips")), "Level from 2|Lantern Tower");
		EXPECT_EQ(GetText(TEXT("Building/Label#2")), "annex");
		EXPECT_EQ(GetText(TEXT("PassingText")), "2 of 5 units");
	}

	TEST_F(FUnitFiltersScreenTest, WithoutUnitsThereIsNothingToFilter)
	{
		ShowFilters();
		Manager->SpawnUnits(TArray<FProjectUnit>());
		Settle();
		EXPECT_EQ(GetText(TEXT("PassingText")), "0 of 0 units");
		EXPECT_FALSE(Driver.Find(TEXT("Level/Slider")));
		EXPECT_FALSE(Driver.Find(TEXT("Building/CaptionText")));
	}
}

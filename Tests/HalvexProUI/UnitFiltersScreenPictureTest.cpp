#include "UnitFiltersScreenTest.h"

#include "GoldenPicture.h"
#include "ProjectStyle.h"
#include "Widgets/SWindow.h"

namespace
{
	class FUnitFiltersScreenPictureTest : public FUnitFiltersScreenTest, public testing::WithParamInterface<const TCHAR*>
	{
	protected:
		virtual void SetUp() override
		{
			FUnitFiltersScreenTest::SetUp();
			UseShippedStyle(GetParam());
		}

		/** A flat of two rooms and more at a price, on some levels of a house. */
		void ChooseSome()
		{
			Enter(TEXT("Price/To"), TEXT("650k"));
			Enter(TEXT("Level/From"), TEXT("2"));
			Enter(TEXT("Level/To"), TEXT("5"));
			Check(TEXT("Building/Box#1"));
		}

		void ExpectPicture(const TCHAR* Locator, const TCHAR* Name)
		{
			Driver.MoveTo(FVector2D(640.0, 4.0));
			Driver.Wait(0.5);
			Host::FPicture Picture;
			ASSERT_TRUE(Driver.TakePictureOf(Locator, Picture)) << Host::ToStd(Driver.GetError());
			Host::ExpectGolden(FString::Printf(TEXT("UnitFilters-%s-%s"), Name, GetParam()), Picture);
		}
	};

	TEST_P(FUnitFiltersScreenPictureTest, PanelAtRest)
	{
		ShowFilters();
		ExpectPicture(TEXT("Filters"), TEXT("AtRest"));
	}

	TEST_P(FUnitFiltersScreenPictureTest, PanelWithChips)
	{
		ShowFilters();
		ChooseSome();
		Driver.WheelOver(TEXT("Rooms"), -50.0f);
		Driver.Wait(1.0);
		Click(TEXT("Status/Box#1"));
		Click(TEXT("Orientation/text:South"));
		ExpectPicture(TEXT("Filters"), TEXT("Chips"));
	}

	TEST_P(FUnitFiltersScreenPictureTest, ListFilteredSortedAndSelected)
	{
		ShowFilters();
		ChooseSome();
		Click(TEXT("Close"));
		Click(TEXT("SortBox"));
		Click(TEXT("text:Price"));
		Driver.ClickAt(FVector2D(200.0, 430.0));
		ExpectPicture(TEXT("UnitList"), TEXT("List"));
	}

	TEST_P(FUnitFiltersScreenPictureTest, NothingPasses)
	{
		ShowFilters();
		Enter(TEXT("Price/To"), TEXT("280000"));
		Enter(TEXT("Rooms/From"), TEXT("5"));
		ExpectPicture(TEXT("Filters"), TEXT("Nothing"));
		ExpectPicture(TEXT("UnitList"), TEXT("NothingListed"));
	}

	TEST_P(FUnitFiltersScreenPictureTest, SavedFilters)
	{
		ShowFilters();
		ChooseSome();
		ShowStore();
		Enter(TEXT("NameField"), TEXT("For the family"));
		Enter(TEXT("NameField"), TEXT("A quiet one to the court"));
		Enter(TEXT("NameField"), TEXT("Under 500 000"));
		Click(TEXT("Delete#2"));
		// Whose folder it is says nothing of the look.
		Enter(TEXT("FileField"), TEXT("/home/ada/filters/under 500 000.json"));
		Enter(TEXT("TableField"), TEXT("/home/ada/tables/units.csv"));
		ExpectPicture(TEXT("Filters"), TEXT("Saved"));
	}

	TEST_P(FUnitFiltersScreenPictureTest, SmallWindow)
	{
		Loop.GetWindow()->Resize(FVector2D(900.0, 600.0));
		ShowFilters();
		ChooseSome();
		Driver.Wait(1.0);
		ExpectPicture(TEXT("Filters"), TEXT("Small"));
	}

	INSTANTIATE_TEST_SUITE_P(Styles, FUnitFiltersScreenPictureTest, testing::Values(TEXT("UIStyle_Hx_Light"), TEXT("UIStyle_Hx_Dark")),
		[](const testing::TestParamInfo<const TCHAR*>& Info) { return Host::ToStd(FString(Info.param)); });
}
